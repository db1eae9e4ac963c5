#include "journal/Arguments.h"

#include "platform/convert/DateTime.h"
#include "platform/convert/Format.h"
#include "platform/convert/PlainNumber.h"

#include <algorithm>
#include <array>
#include <optional>

namespace quillmere::recovery {

namespace {

struct CommandRow {
    std::string_view word;
    Command command;
};

constexpr std::array commands{CommandRow{"list", Command::List}, CommandRow{"show", Command::Show},
                              CommandRow{"restore", Command::Restore}};

struct FlagRow {
    std::string_view word;
    Command command;
    bool Arguments::*flag;
};

constexpr std::array flags{FlagRow{"--dry-run", Command::Restore, &Arguments::dryRun},
                           FlagRow{"--anyway", Command::Restore, &Arguments::anyway}};

struct ValueRow {
    std::string_view word;
    Command command;
    std::string Arguments::*value;
};

constexpr std::array values{ValueRow{"--table", Command::List, &Arguments::table},
                            ValueRow{"--identity", Command::List, &Arguments::identity},
                            ValueRow{"--since", Command::List, &Arguments::since}};

std::optional<std::uint64_t> entryNumber(std::string_view word) {
    const auto number = convert::plainNumber<std::uint64_t>(word);
    return number == std::uint64_t{0} ? std::nullopt : number;
}

/// Reads the words one after the other.
class Parser {
public:
    explicit Parser(const std::vector<std::string>& words) : words_(words) {}

    Arguments parse() {
        for (const std::string& word : words_)
            if (word == "--help" || word == "-h") arguments_.help = true;
        if (arguments_.help) return arguments_;
        if (words_.empty()) return refused("要写做什么：list、show 或者 restore");
        const auto* const row = std::ranges::find(commands, words_.front(), &CommandRow::word);
        if (row == commands.end()) return refused("没有这个命令：" + words_.front());
        arguments_.command = row->command;
        for (next_ = 1; next_ < words_.size() && arguments_.complaint.empty();)
            takeWord(words_[next_++]);
        if (arguments_.complaint.empty()) takeNames();
        if (arguments_.complaint.empty()) readSince();
        return arguments_;
    }

private:
    Arguments refused(const std::string& complaint) {
        arguments_.complaint = complaint;
        return arguments_;
    }

    void takeWord(const std::string& word) {
        if (!word.starts_with("-")) {
            names_.push_back(word);
            return;
        }
        for (const FlagRow& row : flags) {
            if (row.word != word || row.command != arguments_.command) continue;
            arguments_.*row.flag = true;
            return;
        }
        for (const ValueRow& row : values) {
            if (row.word != word || row.command != arguments_.command) continue;
            if (next_ == words_.size() || words_[next_].empty()) {
                refused(word + " 后面缺少内容");
                return;
            }
            arguments_.*row.value = words_[next_++];
            return;
        }
        refused("没有这个选项：" + word);
    }

    void takeNames() {
        if (names_.empty()) {
            refused("没有写恢复日志文件");
            return;
        }
        arguments_.file = names_.front();
        const bool restores = arguments_.command == Command::Restore;
        const std::size_t end = names_.size() - (restores && names_.size() > 1 ? 1 : 0);
        if (restores && end < names_.size()) arguments_.database = names_.back();
        for (std::size_t i = 1; i < end; ++i) {
            const auto number = entryNumber(names_[i]);
            if (!number) {
                refused("不是记录的序号：" + names_[i]);
                return;
            }
            arguments_.entries.push_back(*number);
        }
        checkCount();
    }

    void checkCount() {
        const std::size_t count = arguments_.entries.size();
        if (arguments_.command == Command::List && count != 0) refused("list 只要一个恢复日志文件");
        if (arguments_.command == Command::Show && count != 1) refused("show 要写恢复日志文件和一个序号");
        if (arguments_.command == Command::Restore && count == 0)
            refused("restore 要写恢复日志文件、一个或几个序号和登记库");
    }

    void readSince() {
        if (arguments_.since.empty()) return;
        const auto moment = convert::parseDate(arguments_.since);
        if (moment)
            arguments_.since = convert::format(*moment, "yyyy-mm-dd hh:nn:ss");
        else
            refused("不是日期或时间：" + arguments_.since);
    }

    const std::vector<std::string>& words_;
    std::size_t next_ = 0;
    std::vector<std::string> names_;
    Arguments arguments_;
};

} // namespace

Arguments parseArguments(const std::vector<std::string>& words) { return Parser(words).parse(); }

std::string_view helpText() {
    return "用法：quillmere-journal list FILE [--table TABLE] [--identity ID] [--since TIME]\n"
           "      quillmere-journal show FILE ENTRY\n"
           "      quillmere-journal restore FILE ENTRY... REGISTER [--dry-run] [--anyway]\n"
           "      quillmere-journal --help\n"
           "\n"
           "恢复日志里有登记库每一次修改和删除之前的行。list 列出这些记录，show 显示其中一条，restore "
           "把其中\n"
           "的行写回登记库：误删的、取消了的修改弄丢的，都可以找回来。写回之前登记库里的行也先记入 FILE，\n"
           "所以恢复本身也可以撤回。\n"
           "\n"
           "  FILE           恢复日志文件，连同它之前的 FILE.1 一起读\n"
           "  ENTRY          记录的序号，list 的第一列\n"
           "  REGISTER       登记库：登记库文件，或者 postgresql:URI（需要带 PostgreSQL 支持的程序）\n"
           "  --table TABLE  只列这张表的\n"
           "  --identity ID  只列这个人员、单位或者项目的（A00）\n"
           "  --since TIME   只列这个时间以后的，例如 2026-11-21 或者 \"2026-11-21 09:30\"\n"
           "  --dry-run      只说要做什么，不修改登记库\n"
           "  --anyway       只有序号不同的同样记录已经在登记库里，也再恢复一条\n"
           "  --help         显示本说明\n"
           "\n"
           "退出码：\n"
           "  0   已经完成；restore：每一行都恢复了，或者本来就在\n"
           "  1   恢复日志或者登记库读不了，没有这条记录，或者有的行没有恢复\n"
           "  2   命令行写错了\n";
}

} // namespace quillmere::recovery
