#include "RealPerson.h"
#include "ScratchSettings.h"

#include "register/Memory.h"
#include "register/OpenRegister.h"
#include "register/StartWindow.h"
#include "sample/OutputFile.h"

#include <QDir>
#include <QFile>
#include <QLabel>
#include <QPushButton>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <unistd.h>

namespace quillmere::host {
namespace {

class RegisterStartTest : public testing::Test {
protected:
    [[nodiscard]] QString path(const char* name) const { return folder.filePath(QLatin1String(name)); }

    void write(const char* name, const QByteArray& content) const {
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }

    /// What is told of a file that does not open.
    [[nodiscard]] static Problem problemOf(const QString& file) {
        try {
            (void)openRegister(file, {});
        } catch (const std::exception& failure) {
            return problemWith(file, failure);
        }
        ADD_FAILURE() << "opened " << file.toStdString();
        return {};
    }

    [[nodiscard]] QString labelText(const char* name) const {
        return start.findChild<QLabel*>(QLatin1String(name))->text();
    }

    test::ScratchSettings settings;
    test::Screen screen;
    QTemporaryDir folder;
    QStringList chosen;
    QString asked;
    QString place;
    StartWindow start{{.chosen = [this](const QString& file) { chosen << file; },
                       .askForFile = [this] { return asked; },
                       .askForPlace = [this] { return place; }}};
};

TEST_F(RegisterStartTest, TellsWhatIsWrongWithAFile) {
    EXPECT_EQ(problemOf(path("missing.db")).title, QStringLiteral("找不到登记库"));
    EXPECT_EQ(problemOf(folder.path()).title, QStringLiteral("这是一个文件夹"));
    write("letter.txt", QByteArray(5000, 'x'));
    EXPECT_EQ(problemOf(path("letter.txt")).title, QStringLiteral("这个文件不是登记库"));
    write("empty.db", {});
    const Problem empty = problemOf(path("empty.db"));
    EXPECT_EQ(empty.title, QStringLiteral("这个文件不是登记库"));
    EXPECT_TRUE(empty.text.contains(QStringLiteral("empty.db"))) << empty.text.toStdString();
}

TEST_F(RegisterStartTest, AFileWithoutPermissionIsToldAsThat) {
    if (geteuid() == 0) GTEST_SKIP() << "root may read and write every file";
    sample::buildFile(path("register.db").toStdString(), {.persons = 1, .units = 0}, false);
    QFile::setPermissions(path("register.db"), QFileDevice::ReadOwner);
    EXPECT_TRUE(openRegister(path("register.db"), {})->findChild<QLabel*>("notice") != nullptr);
    QFile::setPermissions(path("register.db"), {});
    EXPECT_EQ(problemOf(path("register.db")).title, QStringLiteral("没有权限读取登记库"));
}

TEST_F(RegisterStartTest, ARegisterThatMayBeWrittenShowsNoNotice) {
    sample::buildFile(path("register.db").toStdString(), {.persons = 1, .units = 0}, false);
    EXPECT_EQ(openRegister(path("register.db"), {})->findChild<QLabel*>("notice"), nullptr);
}

TEST_F(RegisterStartTest, AChosenFileIsHandedOver) {
    start.show();
    (void)test::windowNamed("start");
    test::clickOn(test::widgetNamed("openFile"));
    EXPECT_TRUE(chosen.isEmpty());
    asked = QStringLiteral("some.db");
    test::clickOn(test::widgetNamed("openFile"));
    EXPECT_EQ(chosen, QStringList({"some.db"}));
}

TEST_F(RegisterStartTest, TheSampleIsMadeAndHandedOver) {
    start.show();
    (void)test::windowNamed("start");
    place = path("sample.db");
    test::clickOn(test::widgetNamed("makeSample"));
    EXPECT_FALSE(start.findChild<QPushButton*>("openFile")->isEnabled());
    ASSERT_TRUE(test::waitUntil([this] { return !chosen.isEmpty(); }));
    EXPECT_EQ(chosen, QStringList({place}));
    const auto window = openRegister(place, {});
    EXPECT_EQ(window->findChild<QLabel*>("count")->text(), QStringLiteral("共 200 人"));
}

TEST_F(RegisterStartTest, ASampleThatCannotBeMadeIsTold) {
    start.show();
    (void)test::windowNamed("start");
    start.makeSample(path("no/such/folder/sample.db"));
    ASSERT_TRUE(test::waitUntil([this] { return !labelText("problemTitle").isEmpty(); }));
    EXPECT_EQ(labelText("problemTitle"), QStringLiteral("样例库没有做成"));
    EXPECT_FALSE(labelText("problemText").isEmpty());
    EXPECT_TRUE(start.findChild<QPushButton*>("makeSample")->isEnabled());
    EXPECT_TRUE(chosen.isEmpty());
}

TEST_F(RegisterStartTest, MakingShowsProgressAndCalledOffLeavesNoFile) {
    start.show();
    QStringList parts;
    SampleMaker maker({.working = [&parts](const QString& part) { parts << part; },
                       .made = [this](const QString& file) { chosen << file; },
                       .failed = [](const QString& why) { ADD_FAILURE() << why.toStdString(); }});
    // More than can be made before the first news of it arrives.
    maker.start(path("large.db"), 200000, 0);
    ASSERT_TRUE(test::waitUntil([&parts] { return parts.contains(QStringLiteral("正在写入代码表")); }));
    maker.cancel();
    test::settle();
    EXPECT_TRUE(chosen.isEmpty());
    EXPECT_EQ(parts.front(), QStringLiteral("正在建立表"));
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList());
}

class RegisterMemoryTest : public testing::Test {
protected:
    test::ScratchSettings settings;
};

TEST_F(RegisterMemoryTest, KeepsTheTenRecordsOpenedLastTheLatestFirst) {
    {
        Memory memory(QStringLiteral("/r.db"));
        for (int i = 1; i <= 12; ++i)
            memory.addRecent({Kind::Persons, std::to_string(i), QString::number(i), {}});
        memory.addRecent({Kind::Persons, "5", QStringLiteral("五"), {}});
    }
    const Memory again(QStringLiteral("/r.db"));
    std::vector<std::string> ids;
    for (const RecentRecord& record : again.recent())
        ids.push_back(record.id);
    EXPECT_EQ(ids, std::vector<std::string>({"5", "12", "11", "10", "9", "8", "7", "6", "4", "3"}));
    EXPECT_EQ(again.recent().front().name, QStringLiteral("五"));
}

TEST_F(RegisterMemoryTest, EachRegisterHasItsOwnRecords) {
    Memory(QStringLiteral("/a.db")).addRecent({Kind::Units, "u", QStringLiteral("院"), {}});
    EXPECT_TRUE(Memory(QStringLiteral("/b.db")).recent().empty());
    ASSERT_EQ(Memory(QStringLiteral("/a.db")).recent().size(), 1U);
    EXPECT_EQ(Memory(QStringLiteral("/a.db")).recent().front().kind, Kind::Units);
}

TEST_F(RegisterMemoryTest, WithoutARegisterNothingIsKept) {
    Memory memory;
    memory.addRecent({Kind::Persons, "x", {}, {}});
    memory.setGeometry("somewhere");
    memory.setColumnWidths(Kind::Persons, {1, 2});
    EXPECT_EQ(memory.recent().size(), 1U);
    EXPECT_TRUE(QSettings().allKeys().isEmpty());
}

} // namespace
} // namespace quillmere::host
