#include "register/Program.h"

#include "panels/PanelCatalogue.h"
#include "platform/data/Connection.h"
#include "qt/RealPerson.h"
#include "qt/ScratchSettings.h"
#include "register/Memory.h"
#include "sample/OutputFile.h"

#include <quillmere/Sqlite.h>

#include <QDir>
#include <QFile>
#include <QImage>
#include <QLabel>
#include <QMenu>
#include <QTemporaryDir>
#include <QTimer>
#include <QToolButton>

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

    /// Works on the window of that name as soon as it is there.
    void onceRunning(const std::function<void(QWidget&)>& handWork, std::string_view name = "start") {
        QTimer::singleShot(0, &context, [handWork, name] { handWork(test::windowNamed(name)); });
    }

    test::ScratchSettings settings;
    QObject context;
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
    EXPECT_EQ(parsed({"--panels", "shots"}).panels, QStringLiteral("shots"));
    EXPECT_EQ(parsed({"--journal", "r.journal", "r.db"}).journal, QStringLiteral("r.journal"));
    EXPECT_TRUE(parsed({"--help"}).help);
    const CommandLine shots = parsed({"--panels", "shots", "--skin", "dark.qss", "--size", "1366x768"});
    EXPECT_EQ(shots.complaint, QString());
    EXPECT_EQ(shots.skin, QStringLiteral("dark.qss"));
    EXPECT_EQ(shots.size, QSize(1366, 768));
    EXPECT_FALSE(parsed({"--panels", "shots"}).size.isValid());
}

TEST_F(RegisterProgramTest, RefusesACommandLineThatItDoesNotKnow) {
    EXPECT_EQ(parsed({"--nonsense"}).complaint, QStringLiteral("没有这个选项：--nonsense"));
    EXPECT_EQ(parsed({"a.db", "b.db"}).complaint, QStringLiteral("只能打开一个登记库"));
    EXPECT_EQ(parsed({"--tour"}).complaint, QStringLiteral("--tour 后面缺少内容"));
    EXPECT_EQ(parsed({"--tour", ""}).complaint, QStringLiteral("--tour 后面缺少内容"));
    EXPECT_EQ(parsed({"--tour", "a", "--panels", "b"}).complaint,
              QStringLiteral("--tour 和 --panels 不能同时用"));
    for (const char* unattended : {"--tour", "--panels"})
        EXPECT_EQ(parsed({unattended, "a", "--journal", "b"}).complaint,
                  QStringLiteral("--journal 不能和 --tour、--panels 同时用"));
    for (const char* size : {"1366", "1366x", "0x768", "1366x768x2", "wide"}) {
        EXPECT_EQ(parsed({"--panels", "shots", "--size", size}).complaint,
                  QStringLiteral("--size 后面应是 宽x高，例如 1366x768"))
            << size;
    }
    for (const auto& words : {std::pair{"--skin", "dark.qss"}, {"--size", "1366x768"}}) {
        EXPECT_EQ(parsed({words.first, words.second}).complaint,
                  QStringLiteral("--skin 和 --size 只能和 --panels 同时用"));
    }
}

TEST_F(RegisterProgramTest, AMissingRegisterIsToldInTheStartWindowAndGivesStatusOne) {
    CommandLine line;
    line.database = path("missing.db");
    QString title;
    QString text;
    onceRunning([&](QWidget& start) {
        title = start.findChild<QLabel*>("problemTitle")->text();
        text = start.findChild<QLabel*>("problemText")->text();
        start.close();
    });
    EXPECT_EQ(work(line), 1);
    EXPECT_EQ(title, QStringLiteral("找不到登记库"));
    EXPECT_TRUE(text.contains(QStringLiteral("missing.db"))) << text.toStdString();
    EXPECT_EQ(told, QStringList());
    EXPECT_FALSE(QFile::exists(line.database));
    EXPECT_EQ(Memory::lastRegister(), QString());
}

TEST_F(RegisterProgramTest, WhereNobodyLooksAMissingRegisterIsToldAndGivesStatusOne) {
    CommandLine line;
    line.database = path("missing.db");
    line.tour = path("pictures");
    EXPECT_EQ(work(line), 1);
    ASSERT_EQ(told.size(), 1);
    EXPECT_TRUE(told[0].startsWith(QStringLiteral("错误 53："))) << told[0].toStdString();
    EXPECT_TRUE(told[0].contains(QStringLiteral("missing.db"))) << told[0].toStdString();
    EXPECT_FALSE(QFile::exists(line.database));
}

TEST_F(RegisterProgramTest, TheFirstStartOffersASampleOrAFile) {
    bool problem = true;
    onceRunning([&](QWidget& start) {
        problem = start.findChild<QLabel*>("problemTitle")->isVisible();
        EXPECT_TRUE(start.findChild<QWidget*>("openFile")->isVisible());
        EXPECT_TRUE(start.findChild<QWidget*>("makeSample")->isVisible());
        start.close();
    });
    EXPECT_EQ(work({}), 0);
    EXPECT_FALSE(problem);
}

TEST_F(RegisterProgramTest, TheRegisterNamedComesBeforeTheLastOne) {
    EXPECT_EQ(registerToOpen({}), QString());
    Memory::setLastRegister(path("last.db"));
    EXPECT_EQ(registerToOpen({}), path("last.db"));
    EXPECT_EQ(registerToOpen(parsed({"named.db"})), QStringLiteral("named.db"));
}

TEST_F(RegisterProgramTest, ARegisterThatOpensIsTheOneOfTheNextStart) {
    CommandLine line;
    line.database = path("register.db");
    sample::buildFile(line.database.toStdString(), {}, false);
    onceRunning([](QWidget& window) { window.close(); }, "register");
    EXPECT_EQ(work(line), 0);
    EXPECT_EQ(Memory::lastRegister(), line.database);
}

TEST_F(RegisterProgramTest, WhatIsChangedIsKeptInTheJournal) {
    CommandLine line;
    line.database = path("register.db");
    line.journal = path("register.journal");
    sample::buildFile(line.database.toStdString(), {.persons = 1, .units = 0}, false);
    onceRunning(
        [](QWidget& window) {
            window.findChild<QToolButton*>("newRecord")->menu()->actions().last()->trigger();
            window.close();
        },
        "register");
    EXPECT_EQ(work(line), 0);
    QFile journal(line.journal);
    ASSERT_TRUE(journal.open(QIODevice::ReadOnly));
    const QByteArray kept = journal.readAll();
    EXPECT_TRUE(kept.contains("update ZZStyle set ZZType=")) << kept.toStdString();
    EXPECT_TRUE(kept.contains(" register.db\n")) << kept.toStdString();
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
    EXPECT_EQ(pictures.size(), 13);
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

TEST_F(RegisterProgramTest, APictureIsTakenOfEachPanelOfTheCatalogue) {
    CommandLine line;
    line.panels = path("panels");
    EXPECT_EQ(work(line), 0);
    EXPECT_EQ(told, QStringList());
    QStringList expected;
    for (const PanelRow& row : panelCatalogue())
        expected << QString::fromStdString(std::string(row.className)) + QStringLiteral(".png");
    expected.sort();
    EXPECT_EQ(QDir(line.panels).entryList({QStringLiteral("*.png")}, QDir::Files, QDir::Name), expected);
    QFile index(QDir(line.panels).filePath(QStringLiteral("index.html")));
    ASSERT_TRUE(index.open(QIODevice::ReadOnly));
    EXPECT_EQ(index.readAll().count("<img "), expected.size());
}

TEST_F(RegisterProgramTest, PanelsThatNoRecordLeadsToAreNamed) {
    sample::Options nobody;
    nobody.people = false;
    CommandLine line;
    line.database = path("register.db");
    line.panels = path("panels");
    sample::buildFile(line.database.toStdString(), nobody, false);
    EXPECT_EQ(work(line), 1);
    ASSERT_EQ(told.size(), 1);
    EXPECT_TRUE(told[0].startsWith(QStringLiteral("截图中断：没有到达的面板：A1ctrlUserA01 ")))
        << told[0].toStdString();
}

} // namespace
} // namespace quillmere::host
