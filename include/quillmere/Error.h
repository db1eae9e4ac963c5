#pragma once

#include <exception>
#include <memory>
#include <string>

namespace quillmere {

/// The run-time failures that the system knows by number. The numbers are those of the automation
/// platform that hosts were written for, so that a host can tell failures apart as it always did.
enum class Failure : int {
    InvalidCall = 5,
    Overflow = 6,
    SubscriptOutOfRange = 9,
    TypeMismatch = 13,
    FileNotFound = 53,
    PermissionDenied = 70,
    PathAccess = 75,
    PathNotFound = 76,
    ObjectNotSet = 91,
    InvalidUseOfNull = 94,
    CannotCreateObject = 429,
    MemberNotFound = 438,
    KeyAlreadyUsed = 457,
    InvalidPicture = 481,
    BadArguments = 3001,
    NoCurrentRecord = 3021,
    ItemNotFound = 3265,
    ObjectClosed = 3704,
    InvalidConnection = 3709,
    StatementFailed = -2147217900,
    ConstraintFailed = -2147217873,
    Unspecified = -2147467259,
};

/// Every run-time failure of the system. `what()` is the description.
class Error : public std::exception {
public:
    /// A failure with its fixed description.
    explicit Error(Failure failure, std::string source = "Quillmere");

    /// A failure with a description of its own, for example an engine's message.
    Error(Failure failure, std::string description, std::string source);

    /// Copies share what they tell.
    /// @{
    Error(const Error&) noexcept;
    Error& operator=(const Error&) noexcept;
    /// @}
    ~Error() override;

    /// One of Failure, or an engine's own number.
    [[nodiscard]] int number() const noexcept;
    /// Where the failure comes from, for example "SQLite".
    [[nodiscard]] const std::string& source() const noexcept;
    /// Chinese, ready to be shown.
    /// @{
    [[nodiscard]] const std::string& description() const noexcept;
    [[nodiscard]] const char* what() const noexcept override;
    /// @}

private:
    struct Details;
    // Shared, since what is thrown must not fail to be copied.
    std::shared_ptr<const Details> details_;
};

} // namespace quillmere
