#include "cinterface/Host.h"

#include <QApplication>
#include <QTimer>
#include <QWidget>

#include <functional>
#include <thread>

namespace quillmere::cinterface {
namespace {

/// The application of a host that has one of its own.
template <class Application>
class HostApplication {
    int count_ = 1;
    char name_[5] = "host";
    char* words_[2] = {name_, nullptr};

public:
    Application application{count_, words_};
};

/// Sets a variable of the environment for a time.
class Variable {
public:
    Variable(const char* name, const QByteArray& value)
        : name_(name), known_(qEnvironmentVariableIsSet(name)), before_(qgetenv(name)) {
        qputenv(name, value);
    }
    ~Variable() { known_ ? qputenv(name_, before_) : qunsetenv(name_); }
    Variable(const Variable&) = delete;
    Variable& operator=(const Variable&) = delete;

private:
    const char* name_;
    bool known_;
    QByteArray before_;
};

QWidget* maintenanceWindow() {
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->objectName() == "frmPersonWh" && window->isVisible()) return window;
    return nullptr;
}

class ShowTest : public RegisterTest {
protected:
    /// Shows the window in the host's application. What is to happen while it is open happens, and then it is
    /// closed by its frame.
    void showAnd(const std::function<void()>& work) {
        bool opened = false;
        QTimer::singleShot(0, [&] {
            QWidget* window = maintenanceWindow();
            ASSERT_NE(nullptr, window);
            opened = true;
            work();
            window->close();
        });
        saved = -1;
        EXPECT_EQ(QUILLMERE_OK, quillmere_show(entry, &saved)) << told(entry).description;
        EXPECT_TRUE(opened);
        EXPECT_EQ(nullptr, maintenanceWindow());
    }

    /// Shows nothing; the description of the failure.
    std::string refusal(quillmere_status status) {
        saved = -1;
        EXPECT_EQ(status, quillmere_show(entry, &saved));
        EXPECT_EQ(-1, saved);
        return told(entry).description;
    }

    std::int32_t saved = -1;
};

TEST_F(ShowTest, TellsThatNothingWasSavedWhenTheWindowIsOnlyClosed) {
    const HostApplication<QApplication> host;
    showAnd([] {});
    EXPECT_EQ(0, saved);
}

TEST_F(ShowTest, WorksAnyNumberOfTimes) {
    const HostApplication<QApplication> host;
    for (int i = 0; i < 3; ++i)
        showAnd([] {});
}

TEST_F(ShowTest, WorksInTheNextApplicationOfTheHostToo) {
    for (int i = 0; i < 2; ++i) {
        const HostApplication<QApplication> host;
        showAnd([] {});
    }
}

TEST_F(ShowTest, LeavesTheHostsApplicationToTheHost) {
    const HostApplication<QApplication> host;
    showAnd([] {});
    EXPECT_EQ(QUILLMERE_OK, quillmere_shutdown());
    EXPECT_EQ(&host.application, QCoreApplication::instance());
}

TEST_F(ShowTest, KeepsWhatTheWindowWorksOn) {
    const HostApplication<QApplication> host;
    showAnd([&] {
        EXPECT_EQ(QUILLMERE_INVALID_CALL, quillmere_release(entry));
        EXPECT_EQ("维护窗口正在使用此对象，不能释放。", told(entry).description);
        EXPECT_EQ(QUILLMERE_INVALID_CALL, quillmere_close(database));
        EXPECT_EQ("维护窗口正在使用此数据库，不能关闭。", told(database).description);
        EXPECT_EQ(QUILLMERE_INVALID_CALL, quillmere_shutdown());
    });
    EXPECT_EQ(0, told(entry).number);
    EXPECT_EQ(QUILLMERE_OK, quillmere_close(database));
}

TEST_F(ShowTest, RefusesASecondWindow) {
    const HostApplication<QApplication> host;
    quillmere_entry* other = nullptr;
    ASSERT_EQ(QUILLMERE_OK, quillmere_create(&other));
    prepare(other);
    showAnd([&] {
        for (quillmere_entry* each : {entry, other}) {
            std::int32_t untouched = -1;
            EXPECT_EQ(QUILLMERE_INVALID_CALL, quillmere_show(each, &untouched));
            EXPECT_EQ("维护窗口已经打开，现在不能执行此操作。", told(each).description);
            EXPECT_EQ(-1, untouched);
        }
    });
    EXPECT_EQ(QUILLMERE_OK, quillmere_release(other));
}

TEST_F(ShowTest, TakesPropertiesForTheNextTimeWhileTheWindowIsOpen) {
    const HostApplication<QApplication> host;
    showAnd([&] { EXPECT_EQ(QUILLMERE_OK, quillmere_set_ZZtype(entry, 5)); });
    std::int16_t type = 0;
    EXPECT_EQ(QUILLMERE_OK, quillmere_get_ZZtype(entry, &type));
    EXPECT_EQ(5, type);
}

TEST_F(ShowTest, MakesAnApplicationWhereThereIsNoneAndEndsItOnShutdown) {
    ASSERT_EQ(nullptr, QCoreApplication::instance());
    ASSERT_EQ(QUILLMERE_OK, quillmere_close(database));
    EXPECT_NE("", refusal(QUILLMERE_NOT_OPEN));
    EXPECT_NE(nullptr, QCoreApplication::instance());
    EXPECT_EQ(QUILLMERE_OK, quillmere_shutdown());
    EXPECT_EQ(nullptr, QCoreApplication::instance());
    EXPECT_NE("", refusal(QUILLMERE_NOT_OPEN));
    EXPECT_NE(nullptr, QCoreApplication::instance());
}

TEST_F(ShowTest, FailsWithARegisterThatWasNeverSet) {
    quillmere_entry* other = nullptr;
    ASSERT_EQ(QUILLMERE_OK, quillmere_create(&other));
    EXPECT_EQ(QUILLMERE_NOT_OPEN, quillmere_show(other, &saved));
    EXPECT_EQ(QUILLMERE_NOT_OPEN, told(other).number);
    EXPECT_EQ(QUILLMERE_OK, quillmere_release(other));
}

TEST_F(ShowTest, WorksAgainAfterAFailure) {
    const HostApplication<QApplication> host;
    ASSERT_EQ(QUILLMERE_OK, quillmere_close(database));
    (void)refusal(QUILLMERE_NOT_OPEN);
    ASSERT_EQ(QUILLMERE_OK, quillmere_open(file.path().c_str(), &database));
    prepare(entry);
    showAnd([] {});
    EXPECT_EQ(0, saved);
}

TEST_F(ShowTest, RefusesNoPlaceForItsResultBeforeAnythingShows) {
    EXPECT_EQ(QUILLMERE_INVALID_CALL, quillmere_show(entry, nullptr));
    EXPECT_EQ("参数 saved 为空（NULL）。", told(entry).description);
    EXPECT_EQ(nullptr, QCoreApplication::instance());
}

TEST_F(ShowTest, IsRefusedOnAnotherThread) {
    const HostApplication<QApplication> host;
    std::string description;
    std::thread([&] { description = refusal(QUILLMERE_INVALID_CALL); }).join();
    EXPECT_EQ("只能在界面线程中显示窗口。", description);
}

TEST_F(ShowTest, TheApplicationIsNotEndedOnAnotherThread) {
    ASSERT_EQ(QUILLMERE_OK, quillmere_close(database));
    (void)refusal(QUILLMERE_NOT_OPEN);
    quillmere_status status = QUILLMERE_OK;
    std::thread([&] { status = quillmere_shutdown(); }).join();
    EXPECT_EQ(QUILLMERE_INVALID_CALL, status);
    EXPECT_NE(nullptr, QCoreApplication::instance());
}

TEST_F(ShowTest, IsRefusedBesideABareCoreApplication) {
    const HostApplication<QCoreApplication> host;
    EXPECT_EQ("当前程序只有 QCoreApplication，不能显示窗口。请创建 QApplication。",
              refusal(QUILLMERE_INVALID_CALL));
}

TEST_F(ShowTest, IsRefusedWithoutADisplay) {
    const Variable display("DISPLAY", ":nowhere");
    const Variable wayland("WAYLAND_DISPLAY", "nowhere");
    for (const char* plugins : {"xcb", "wayland", "wayland-egl;xcb", "xcb:option", ""}) {
        const Variable platform("QT_QPA_PLATFORM", plugins);
        EXPECT_EQ("没有可以使用的显示器，不能显示窗口。", refusal(QUILLMERE_INVALID_CALL)) << plugins;
        EXPECT_EQ(nullptr, QCoreApplication::instance()) << plugins;
    }
}

TEST_F(ShowTest, ShutdownWithoutAnApplicationDoesNothing) {
    EXPECT_EQ(QUILLMERE_OK, quillmere_shutdown());
    EXPECT_EQ(QUILLMERE_OK, quillmere_shutdown());
}

} // namespace
} // namespace quillmere::cinterface
