#include "register/CommandLine.h"

namespace quillmere::host {

CommandLine parseCommandLine(const QStringList& words) {
    CommandLine line;
    const auto refuse = [&line](const QString& complaint) {
        if (line.complaint.isEmpty()) line.complaint = complaint;
    };
    for (qsizetype i = 0; i < words.size(); ++i) {
        const QString& word = words[i];
        const auto valueInto = [&](QString& target) {
            if (i + 1 == words.size() || words[i + 1].isEmpty())
                return refuse(word + QStringLiteral(" 后面缺少内容"));
            target = words[++i];
        };
        if (word == u"--help" || word == u"-h") {
            line.help = true;
        } else if (word == u"--tour") {
            valueInto(line.tour);
        } else if (word == u"--unit") {
            valueInto(line.unitCode);
        } else if (word.startsWith(u'-')) {
            refuse(QStringLiteral("没有这个选项：") + word);
        } else if (!line.database.isEmpty()) {
            refuse(QStringLiteral("只能打开一个登记库"));
        } else {
            line.database = word;
        }
    }
    return line;
}

QString helpText() {
    return QStringLiteral("用法：quillmere-register [DATABASE] [--unit CODE] [--tour DIR] [--help]\n"
                          "\n"
                          "  DATABASE     登记库文件；不写时打开上一次的，没有上一次的就请您选择\n"
                          "  --unit CODE  局级单位代码，保存时人员的主管部门必须是它；不写时不限\n"
                          "  --tour DIR   自动演示各个窗口，把截图存入 DIR；在登记库的副本上进行，\n"
                          "               没有写 DATABASE 时用新做的样例库\n"
                          "  --help       显示本说明\n");
}

} // namespace quillmere::host
