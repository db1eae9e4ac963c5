#pragma once

#include "TestServer.h"
#include "shell/frmPersonWh.h"

#include <sys/types.h>

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace quillmere::postgresql {

/// What a clerk does: the window that is opened, and the work in it.
struct ClerksWork {
    std::int16_t operationType = 4;
    std::string personID;
    std::function<void(frmPersonWh& window)> work;
};

/// A clerk at a machine of her own: a process with a window and a connection of its own. It stands still
/// before each statement until it is told to go on, so that two clerks meet where a test wants them to.
/// Questions are answered with Yes.
class Clerk {
public:
    Clerk(const OpenOptions& register_, const ClerksWork& work);
    /// A clerk who has not finished is sent home where she stands.
    ~Clerk();
    Clerk(const Clerk&) = delete;
    Clerk& operator=(const Clerk&) = delete;

    /// Works until the next statement begins so; it has not run yet. Fails the test when there is none.
    void workUntil(std::string_view beginning);
    /// Runs the statement before which the clerk stands, and stands before the next.
    void runOne();
    /// Works to the end.
    void finish();

    /// The statement that comes next, empty at the end.
    [[nodiscard]] const std::string& next() const { return next_; }
    /// "title|text" of each message box so far.
    [[nodiscard]] const std::vector<std::string>& boxes() const { return boxes_; }
    /// What came out of the window as a failure, empty for nothing.
    [[nodiscard]] const std::string& failure() const { return failure_; }

private:
    /// Takes what the process tells, up to the next statement or to the end.
    void listen();
    [[nodiscard]] std::string hearLine();

    pid_t process_ = -1;
    int line_ = -1;
    std::string heard_;
    std::string next_;
    std::vector<std::string> boxes_;
    std::string failure_;
    bool home_ = false;
};

} // namespace quillmere::postgresql
