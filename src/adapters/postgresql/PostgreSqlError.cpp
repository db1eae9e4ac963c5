#include "adapters/postgresql/PostgreSqlError.h"

#include "platform/Error.h"

#include <libpq-fe.h>

#include <algorithm>
#include <array>
#include <string>

namespace quillmere::postgresql {

namespace {

struct Description {
    /// A code of the server, or the two signs of its class.
    std::string_view code;
    Failure failure;
    std::string_view text;
};

constexpr std::string_view statementFailed = "语句执行失败";
constexpr std::string_view busy = "数据库正被其他程序使用，请稍后再试";
constexpr std::string_view unfit = "数据不符合检查条件";

/// Codes stand before the class that they belong to.
constexpr std::array descriptions{
    Description{"23505", Failure::ConstraintFailed, "数据重复，违反唯一性约束"},
    Description{"23502", Failure::ConstraintFailed, "必填数据为空"},
    Description{"23514", Failure::ConstraintFailed, unfit},
    Description{"23", Failure::ConstraintFailed, "数据违反约束"},
    // A value that its column cannot hold.
    Description{"22P02", Failure::ConstraintFailed, unfit},
    Description{"22001", Failure::ConstraintFailed, unfit},
    Description{"22003", Failure::ConstraintFailed, unfit},
    Description{"40", Failure::Unspecified, busy},
    Description{"55P03", Failure::Unspecified, busy},
    Description{"25006", Failure::Unspecified, "数据库是只读的，不能写入"},
    Description{"42501", Failure::Unspecified, "没有权限执行这项操作"},
    Description{"57014", Failure::Unspecified, "语句已被取消"},
    Description{"53100", Failure::Unspecified, "磁盘已满，数据没有保存"},
    Description{"53200", Failure::Unspecified, "内存不足"},
    Description{"53", Failure::Unspecified, "数据库服务器资源不足"},
    Description{"58", Failure::Unspecified, "读写数据库文件失败"},
    Description{"XX001", Failure::Unspecified, "数据库文件已损坏"},
    Description{"XX002", Failure::Unspecified, "数据库文件已损坏"},
};

constexpr Description otherwise{"", Failure::StatementFailed, statementFailed};

const Description& find(std::string_view code) {
    const auto found = std::ranges::find_if(
        descriptions, [code](const Description& entry) { return code.starts_with(entry.code); });
    return found == descriptions.end() ? otherwise : *found;
}

/// The message on one line, as descriptions are.
std::string oneLine(std::string_view message) {
    message = message.substr(0, message.find_last_not_of("\r\n ") + 1);
    std::string line;
    for (const char character : message) {
        const bool breaks = character == '\n' || character == '\r' || character == '\t';
        if (!breaks) {
            line += character;
        } else if (!line.empty() && line.back() != ' ') {
            line += ' ';
        }
    }
    return line;
}

[[noreturn]] void raise(Failure failure, std::string_view text, std::string_view reason) {
    throw Error(failure, std::string(text).append("：").append(oneLine(reason)), "PostgreSQL");
}

} // namespace

void raiseFailed(const pg_result* result) {
    const char* code = PQresultErrorField(result, PG_DIAG_SQLSTATE);
    const char* message = PQresultErrorField(result, PG_DIAG_MESSAGE_PRIMARY);
    const Description& description = find(code == nullptr ? "" : code);
    raise(description.failure, description.text, message == nullptr ? PQresultErrorMessage(result) : message);
}

void raiseUnreachable(const pg_conn* connection) {
    raise(Failure::Unspecified, "连接不上数据库服务器", PQerrorMessage(connection));
}

void raiseLost(const pg_conn* connection) {
    raise(Failure::Unspecified, "与数据库服务器的连接已断开", PQerrorMessage(connection));
}

void raiseStatementFailed(std::string_view reason) {
    raise(Failure::StatementFailed, statementFailed, reason);
}

void raiseUnusable(std::string_view description) {
    throw Error(Failure::Unspecified, std::string(description), "PostgreSQL");
}

} // namespace quillmere::postgresql
