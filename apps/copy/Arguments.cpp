#include "copy/Arguments.h"

namespace quillmere::copy {

Arguments parseArguments(const std::vector<std::string>& words) {
    Arguments arguments;
    std::vector<std::string> names;
    for (const std::string& word : words) {
        if (word == "--help" || word == "-h")
            arguments.help = true;
        else if (!word.starts_with("-"))
            names.push_back(word);
        else if (arguments.complaint.empty())
            arguments.complaint = "没有这个选项：" + word;
    }
    if (arguments.help || !arguments.complaint.empty()) return arguments;
    if (names.size() != 2) {
        arguments.complaint = "要写原登记库和目标，一共两个";
        return arguments;
    }
    arguments.source = names[0];
    arguments.target = names[1];
    return arguments;
}

std::string_view helpText() {
    return "用法：quillmere-copy SOURCE TARGET\n"
           "      quillmere-copy --help\n"
           "\n"
           "把一个登记库的全部表复制到另一个数据库，可以从 SQLite 到 PostgreSQL，也可以反过来。复制完\n"
           "把每张表的行数和内容核对一遍，一致以后目标才成为登记库；中途失败，目标上什么也不留下。\n"
           "原登记库只读，不修改；复制期间别人可以继续录入，复制的是开始那一刻的内容。\n"
           "\n"
           "  SOURCE     原登记库：登记库文件，或者 postgresql:URI（需要带 PostgreSQL 支持的程序）\n"
           "  TARGET     目标：还不存在的文件，或者模式 data 是空的数据库 postgresql:URI\n"
           "  --help     显示本说明\n"
           "\n"
           "密码写在 PGPASSWORD 或者密码文件里。照片是文件，不在登记库里，要另外复制。\n"
           "\n"
           "退出码：\n"
           "  0   已经复制，核对一致\n"
           "  1   没有复制\n"
           "  2   命令行写错了\n";
}

} // namespace quillmere::copy
