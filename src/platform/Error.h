#pragma once

#include <exception>
#include <string>
#include <string_view>

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

/// The fixed Chinese description of a failure; the user reads it in message boxes.
[[nodiscard]] std::string_view descriptionOf(Failure failure);

/// Every run-time failure of the system. `what()` is the description.
class Error : public std::exception {
public:
    /// A failure with its fixed description.
    explicit Error(Failure failure, std::string source = "Quillmere");

    /// A failure with a description of its own, for example an engine's message.
    Error(Failure failure, std::string description, std::string source);

    [[nodiscard]] int number() const { return number_; }
    [[nodiscard]] const std::string& source() const { return source_; }
    [[nodiscard]] const std::string& description() const { return description_; }
    [[nodiscard]] const char* what() const noexcept override { return description_.c_str(); }

private:
    int number_;
    std::string source_;
    std::string description_;
};

} // namespace quillmere
