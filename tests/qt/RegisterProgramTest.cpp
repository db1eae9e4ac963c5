#include "register/Program.h"

#include "platform/data/Connection.h"
#include "sample/OutputFile.h"

#include <quillmere/Sqlite.h>

#include <QDir>
#include <QFile>
#include <QImage>
#include <QSettings>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace quillmere::host {
namespace {

CommandLine parsed(std::initializer_list<const char*> words) {
    QStringList list;
    for (const char* word : words)
        list << QString::fromUtf8(word);
    return parseCommandLine(list);
}

class RegisterProgramTest : public testing::Test {
protected:
    [[nodiscard]] QString path(const char* name) const { return folder.filePath(QLatin1String(name)); }

    void write(const char* name, const char* text) const {
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
    }

    [[nodiscard]] int work(const CommandLine& line) {
        return host::work(line, [this](const QString& text) { told << text; });
    }

    QTemporaryDir folder;
    QStringList told;
};

TEST_F(RegisterProgramTest, ReadsTheCommandLine) {
    const CommandLine line = parsed({"--tour", "shots", "r.db", "--unit", "0104"});
    EXPECT_EQ(line.complaint, QString());
    EXPECT_EQ(line.database, QStringLiteral("r.db"));
    EXPECT_EQ(line.tour, QStringLiteral("shots"));
    EXPECT_EQ(line.unitCode, QStringLiteral("0104"));
    EXPECT_FALSE(line.help);
    EXPECT_TRUE(parsed({"--help"}).help);
}

TEST_F(RegisterProgramTest, RefusesACommandLineThatItDoesNotKnow) {
    EXPECT_EQ(parsed({"--nonsense"}).complaint, QStringLiteral("没有这个选项：--nonsense"));
    EXPECT_EQ(parsed({"a.db", "b.db"}).complaint, QStringLiteral("只能打开一个登记库"));
    EXPECT_EQ(parsed({"--tour"}).complaint, QStringLiteral("--tour 后面缺少内容"));
    EXPECT_EQ(parsed({"--tour", ""}).complaint, QStringLiteral("--tour 后面缺少内容"));
}

TEST_F(RegisterProgramTest, AMissingRegisterIsToldAndGivesStatusOne) {
    CommandLine line;
    line.database = path("missing.db");
    EXPECT_EQ(work(line), 1);
    ASSERT_EQ(told.size(), 1);
    EXPECT_TRUE(told[0].startsWith(QStringLiteral("错误 53："))) << told[0].toStdString();
    EXPECT_TRUE(told[0].contains(QStringLiteral("missing.db"))) << told[0].toStdString();
    EXPECT_FALSE(QFile::exists(line.database));
}

TEST_F(RegisterProgramTest, AFileThatIsNoRegisterIsToldAndGivesStatusOne) {
    write("letter.txt",
          "This is a letter and no register. It is long enough to be taken for a page of one.\n");
    CommandLine line;
    line.database = path("letter.txt");
    EXPECT_EQ(work(line), 1);
    EXPECT_EQ(told.size(), 1);
}

TEST_F(RegisterProgramTest, ARegisterIsChosenByNameThenByLastUseThenByThePerson) {
    QCoreApplication::setOrganizationName(QStringLiteral("Quillmere"));
    QCoreApplication::setApplicationName(QStringLiteral("test"));
    QSettings::setDefaultFormat(QSettings::IniFormat);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder.path());
    int asked = 0;
    const auto ask = [&asked] {
        ++asked;
        return QStringLiteral("chosen.db");
    };
    EXPECT_EQ(chooseRegister(parsed({"named.db"}), ask), QStringLiteral("named.db"));
    EXPECT_EQ(asked, 0);
    EXPECT_EQ(chooseRegister({}, ask), QStringLiteral("chosen.db"));
    EXPECT_EQ(asked, 1);

    write("last.db", "");
    QSettings().setValue("database", path("last.db"));
    EXPECT_EQ(chooseRegister({}, ask), path("last.db"));
    EXPECT_EQ(asked, 1);
    QFile::remove(path("last.db"));
    EXPECT_EQ(chooseRegister({}, ask), QStringLiteral("chosen.db"));
    EXPECT_EQ(asked, 2);
}

TEST_F(RegisterProgramTest, TheTourLeavesAPictureOfEachStopAndTheRegisterAsItWas) {
    CommandLine line;
    line.database = path("register.db");
    line.tour = path("pictures");
    sample::buildFile(line.database.toStdString(), {}, false);
    const auto peopleAndUnits = [&line] {
        constexpr auto statement = "select group_concat(A00 || A0101) from A01 union all "
                                   "select group_concat(A00 || B0101) from B01";
        const data::RowSet rows = openSqlite(line.database.toStdString())->query(statement);
        return rows.at(0, std::size_t{0}).toText() + rows.at(1, std::size_t{0}).toText();
    };
    const std::string before = peopleAndUnits();

    EXPECT_EQ(work(line), 0);
    EXPECT_EQ(told, QStringList());
    const QStringList pictures = QDir(line.tour).entryList({QStringLiteral("*.png")});
    EXPECT_EQ(pictures.size(), 12);
    EXPECT_EQ(pictures.value(0), QStringLiteral("01-register.png"));
    for (const QString& picture : pictures)
        EXPECT_GT(QImage(QDir(line.tour).filePath(picture)).width(), 600) << picture.toStdString();
    EXPECT_EQ(peopleAndUnits(), before);
}

TEST_F(RegisterProgramTest, ATourThatCannotGoOnFails) {
    sample::Options nobody;
    nobody.people = false;
    CommandLine line;
    line.database = path("register.db");
    line.tour = path("pictures");
    sample::buildFile(line.database.toStdString(), nobody, false);
    EXPECT_EQ(work(line), 1);
    EXPECT_EQ(told, QStringList({QStringLiteral("演示中断：登记库里没有人员")}));
}

} // namespace
} // namespace quillmere::host
