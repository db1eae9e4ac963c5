#include "adapters/sqlite/SqliteError.h"

#include "platform/Error.h"
#include "platform/text/Text.h"

#include <sqlite3.h>

#include <algorithm>
#include <array>
#include <string>

namespace quillmere::sqlite {

namespace {

struct Description {
    int code;
    Failure failure;
    std::string_view text;
};

constexpr std::string_view statementFailed = "语句执行失败";

/// Extended codes stand before the primary code that they belong to.
constexpr std::array descriptions{
    Description{SQLITE_CONSTRAINT_UNIQUE, Failure::ConstraintFailed, "数据重复，违反唯一性约束"},
    Description{SQLITE_CONSTRAINT_PRIMARYKEY, Failure::ConstraintFailed, "数据重复，违反唯一性约束"},
    Description{SQLITE_CONSTRAINT_NOTNULL, Failure::ConstraintFailed, "必填数据为空"},
    Description{SQLITE_CONSTRAINT_CHECK, Failure::ConstraintFailed, "数据不符合检查条件"},
    Description{SQLITE_CONSTRAINT, Failure::ConstraintFailed, "数据违反约束"},
    Description{SQLITE_BUSY, Failure::Unspecified, "数据库正被其他程序使用，请稍后再试"},
    Description{SQLITE_LOCKED, Failure::Unspecified, "数据库正被其他程序使用，请稍后再试"},
    Description{SQLITE_READONLY, Failure::Unspecified, "数据库是只读的，不能写入"},
    Description{SQLITE_FULL, Failure::Unspecified, "磁盘已满，数据没有保存"},
    Description{SQLITE_IOERR, Failure::Unspecified, "读写数据库文件失败"},
    Description{SQLITE_CORRUPT, Failure::Unspecified, "数据库文件已损坏"},
    Description{SQLITE_NOTADB, Failure::Unspecified, "文件不是数据库"},
    Description{SQLITE_CANTOPEN, Failure::Unspecified, "打不开数据库文件"},
    Description{SQLITE_NOMEM, Failure::Unspecified, "内存不足"},
};

constexpr Description otherwise{SQLITE_ERROR, Failure::StatementFailed, statementFailed};

const Description& find(int code) {
    constexpr int primaryMask = 0xff;
    for (const int wanted : {code, code & primaryMask}) {
        const auto found = std::find_if(descriptions.begin(), descriptions.end(),
                                        [wanted](const Description& entry) { return entry.code == wanted; });
        if (found != descriptions.end()) return *found;
    }
    return otherwise;
}

std::string withReason(std::string_view text, std::string_view reason) {
    return std::string(text).append("：").append(reason);
}

} // namespace

void raiseLatest(sqlite3* database, int code) {
    const auto& description = find(code);
    // The engine repeats a piece of the statement, whatever bytes that holds.
    const std::string reason = text::encode(text::decode(sqlite3_errmsg(database)));
    throw Error(description.failure, withReason(description.text, reason), "SQLite");
}

void raiseStatementFailed(std::string_view reason) {
    throw Error(Failure::StatementFailed, withReason(statementFailed, reason), "SQLite");
}

} // namespace quillmere::sqlite
