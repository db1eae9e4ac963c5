#include "check/Arguments.h"

#include <array>

namespace quillmere::check {

namespace {

struct OptionRow {
    std::string_view word;
    bool Arguments::*flag;
};

constexpr std::array options{OptionRow{"--json", &Arguments::json}, OptionRow{"--list", &Arguments::list},
                             OptionRow{"--help", &Arguments::help}, OptionRow{"-h", &Arguments::help}};

bool setFlag(Arguments& arguments, std::string_view word) {
    for (const OptionRow& option : options) {
        if (option.word != word) continue;
        arguments.*option.flag = true;
        return true;
    }
    return false;
}

} // namespace

Arguments parseArguments(const std::vector<std::string>& words) {
    Arguments arguments;
    const auto refuse = [&arguments](std::string complaint) {
        if (arguments.complaint.empty()) arguments.complaint = std::move(complaint);
    };
    for (const std::string& word : words) {
        if (setFlag(arguments, word)) continue;
        if (word.starts_with("-"))
            refuse("没有这个选项：" + word);
        else if (!arguments.database.empty())
            refuse("一次只能检查一个登记库");
        else
            arguments.database = word;
    }
    if (arguments.database.empty() && !arguments.help && !arguments.list) refuse("没有写要检查的登记库");
    return arguments;
}

std::string_view helpText() {
    return "用法：quillmere-check DATABASE [--json]\n"
           "      quillmere-check --list [--json]\n"
           "      quillmere-check --help\n"
           "\n"
           "像系统运行时那样读一个登记库的编目和数据，把将来会失败的、会不声不响出错的地方都列出来：\n"
           "在哪张表、哪一行，会发生什么，该怎么办。只读，不修改登记库。\n"
           "\n"
           "  DATABASE   登记库文件，或者 postgresql:URI（需要带 PostgreSQL 支持的程序）\n"
           "  --json     按 JSON 输出，供程序使用\n"
           "  --list     列出所有能查出的问题，不检查登记库\n"
           "  --help     显示本说明\n"
           "\n"
           "退出码：\n"
           "  0   没有问题，或者只有提示\n"
           "  1   有警告，没有错误\n"
           "  2   有错误\n"
           "  3   登记库打不开、读不下去，或者命令行写错了\n";
}

} // namespace quillmere::check
