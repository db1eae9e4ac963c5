#pragma once

#include <QEventLoop>

#include <exception>

namespace quillmere::qt {

/// One modal show: a window or a message box that works until it is ended. Sessions nest. A failure in
/// an event must not cross the native loop; it is kept here, ends the loop and goes on from `run`.
class ModalSession {
public:
    ModalSession();
    ModalSession(const ModalSession&) = delete;
    ModalSession& operator=(const ModalSession&) = delete;
    ~ModalSession();

    /// Works until ended; throws the failure of the session, if there was one.
    void run();
    void end();

    /// Gives a failure to the innermost session. Where none is open it is told on stderr.
    static void carry(std::exception_ptr failure) noexcept;
    /// Whether the innermost session has been given one.
    [[nodiscard]] static bool isFailing();

private:
    QEventLoop loop_;
    std::exception_ptr failure_;
    ModalSession* outer_;
    bool ended_ = false;
};

} // namespace quillmere::qt
