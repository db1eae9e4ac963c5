#include "RealPerson.h"
#include "ScratchSettings.h"

#include "register/Memory.h"
#include "register/Reception.h"
#include "sample/OutputFile.h"

#include <QFile>
#include <QLabel>
#include <QPointer>
#include <QTemporaryDir>
#include <QToolButton>

#include <gtest/gtest.h>

namespace quillmere::host {
namespace {

/// Two registers, of one person and of two, and the file that the person chooses next.
class RegisterReceptionTest : public testing::Test {
protected:
    RegisterReceptionTest() {
        for (const int persons : {1, 2})
            sample::buildFile(path(persons).toStdString(), {.persons = persons, .units = 0}, false);
    }

    [[nodiscard]] QString path(int persons) const {
        return folder.filePath(QStringLiteral("%1.db").arg(persons));
    }

    template <class T>
    [[nodiscard]] T& child(const char* name) const {
        return *reception.window()->findChild<T*>(QLatin1String(name));
    }
    [[nodiscard]] QString count() const { return child<QLabel>("count").text(); }
    [[nodiscard]] QString message() const { return child<QLabel>("message").text(); }
    [[nodiscard]] QString outcome() const { return child<QLabel>("message").property("outcome").toString(); }
    void openAnother() const {
        (void)test::windowNamed("register");
        test::clickOn(child<QToolButton>("openAnother"));
        test::settle();
    }

    test::ScratchSettings settings;
    test::Screen screen;
    QTemporaryDir folder;
    QString chosen;
    Reception reception{{}, {[this] { return chosen; }, [] { return QString(); }}};
};

TEST_F(RegisterReceptionTest, AnotherRegisterTakesThePlaceOfTheOneThatIsOpen) {
    reception.open(path(1));
    EXPECT_EQ(count(), QStringLiteral("共 1 人"));
    const QPointer<QWidget> former = reception.window();
    former->resize(1000, 700);
    chosen = path(2);
    openAnother();
    EXPECT_EQ(count(), QStringLiteral("共 2 人"));
    EXPECT_EQ(reception.window()->size(), QSize(1000, 700));
    EXPECT_TRUE(reception.window()->isVisible());
    EXPECT_TRUE(test::waitUntil([&] { return former.isNull(); }));
    EXPECT_EQ(Memory::lastRegister(), path(2));
}

TEST_F(RegisterReceptionTest, WhoChoosesNoFileStaysWhereTheyAre) {
    reception.open(path(1));
    const QString before = message();
    openAnother();
    EXPECT_EQ(count(), QStringLiteral("共 1 人"));
    EXPECT_EQ(message(), before);
}

TEST_F(RegisterReceptionTest, AFileThatIsNoRegisterIsToldAndTheOpenOneStays) {
    reception.open(path(1));
    QFile letter(folder.filePath(QStringLiteral("letter.txt")));
    ASSERT_TRUE(letter.open(QIODevice::WriteOnly));
    letter.write(QByteArray(5000, 'x'));
    letter.close();
    chosen = letter.fileName();
    openAnother();
    EXPECT_EQ(count(), QStringLiteral("共 1 人"));
    EXPECT_EQ(outcome(), QStringLiteral("failure"));
    EXPECT_TRUE(message().startsWith(QStringLiteral("这个文件不是登记库"))) << message().toStdString();
    EXPECT_TRUE(message().contains(QStringLiteral("letter.txt"))) << message().toStdString();
    EXPECT_EQ(Memory::lastRegister(), path(1));
}

TEST_F(RegisterReceptionTest, TheRegisterThatIsOpenIsNotOpenedTwice) {
    reception.open(path(1));
    const QWidget* const window = reception.window();
    chosen = path(1);
    openAnother();
    EXPECT_EQ(reception.window(), window);
    EXPECT_EQ(message(), QStringLiteral("这个登记库已经打开"));
}

} // namespace
} // namespace quillmere::host
