#include "TwoClerks.h"

#include "platform/Error.h"
#include "platform/data/ObservedConnections.h"
#include "platform/text/Text.h"
#include "platform/ui/ScreenlessDesktop.h"
#include "quillmere/IUserCtrl.h"

#include <array>
#include <csignal>
#include <stdexcept>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

namespace quillmere::postgresql {

namespace {

constexpr std::string_view statementMark = "SQL ";
constexpr std::string_view boxMark = "BOX ";
constexpr std::string_view failureMark = "FAILURE ";

/// The clerk's side, in her own process.
class AtWork final : public ui::ScreenlessPerson {
public:
    AtWork(int line, const ClerksWork& work) : line_(line), work_(work), desktop_(*this) {
        ui::useDesktop(&desktop_);
    }

    void work(const OpenOptions& register_) {
        IUserCtrl host;
        host.setConnection(std::make_shared<data::RecordingConnection>(
            open(register_), [this](std::string_view sql) { waitBefore(sql); }));
        host.setOperationType(work_.operationType);
        host.setZZtype(2);
        host.setPersonID(work_.personID);
        (void)host.ShowPersonWh();
    }

    void tell(std::string_view mark, std::string_view text) const {
        const std::string told = std::string(mark) + text::replaceAll(std::string(text), "\n", " ") + "\n";
        // Nobody listens any more: there is nothing left to do here.
        if (write(line_, told.data(), told.size()) < 0) _exit(1);
    }

    ui::Answer answer(const ui::MessageBox& box) override {
        tell(boxMark, box.title + "|" + box.text);
        return box.buttons == ui::Buttons::Ok ? ui::Answer::Ok : ui::Answer::Yes;
    }
    void work(ui::Form& form) override {
        work_.work(dynamic_cast<frmPersonWh&>(form));
        if (form.isOpen()) form.closeByFrame();
    }
    std::string choose(const ui::FileDialog& /*dialog*/) override { return {}; }

private:
    void waitBefore(std::string_view sql) const {
        tell(statementMark, sql);
        char go = 0;
        if (read(line_, &go, 1) != 1) _exit(1);
    }

    int line_;
    const ClerksWork& work_;
    ui::ScreenlessDesktop desktop_;
};

[[noreturn]] void workAndLeave(int line, const OpenOptions& register_, const ClerksWork& work) {
    AtWork clerk(line, work);
    try {
        clerk.work(register_);
    } catch (const std::exception& failure) {
        clerk.tell(failureMark, failure.what());
    }
    // No destructor runs: what this process has from the test's own is not its to close.
    _exit(0);
}

} // namespace

Clerk::Clerk(const OpenOptions& register_, const ClerksWork& work) {
    std::array<int, 2> ends{};
    if (socketpair(AF_UNIX, SOCK_STREAM, 0, ends.data()) != 0) throw std::runtime_error("no socket pair");
    process_ = fork();
    if (process_ == 0) {
        close(ends[0]);
        workAndLeave(ends[1], register_, work);
    }
    close(ends[1]);
    line_ = ends[0];
    listen();
}

Clerk::~Clerk() {
    close(line_);
    if (!home_) kill(process_, SIGKILL);
    waitpid(process_, nullptr, 0);
}

void Clerk::workUntil(std::string_view beginning) {
    while (!next_.empty() && !next_.starts_with(beginning))
        runOne();
    EXPECT_FALSE(next_.empty()) << "no statement came that begins so: " << beginning;
}

void Clerk::runOne() {
    ASSERT_FALSE(home_);
    ASSERT_EQ(write(line_, "g", 1), 1);
    listen();
}

void Clerk::finish() {
    while (!home_)
        runOne();
}

void Clerk::listen() {
    for (;;) {
        const std::string told = hearLine();
        if (told.starts_with(statementMark)) {
            next_ = told.substr(statementMark.size());
            return;
        }
        if (told.starts_with(boxMark)) boxes_.push_back(told.substr(boxMark.size()));
        if (told.starts_with(failureMark)) failure_ = told.substr(failureMark.size());
        if (told.empty()) {
            home_ = true;
            next_.clear();
            return;
        }
    }
}

std::string Clerk::hearLine() {
    std::size_t end = heard_.find('\n');
    while (end == std::string::npos) {
        std::array<char, 4096> piece{};
        const ssize_t size = read(line_, piece.data(), piece.size());
        if (size <= 0) return {};
        heard_.append(piece.data(), static_cast<std::size_t>(size));
        end = heard_.find('\n');
    }
    const std::string line = heard_.substr(0, end);
    heard_.erase(0, end + 1);
    return line;
}

} // namespace quillmere::postgresql
