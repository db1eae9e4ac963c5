#include "register/CommandLine.h"

namespace quillmere::host {

namespace {

/// "1366x768" as a size; an invalid one for anything else.
QSize sizeOf(const QString& text) {
    const QStringList sides = text.split(u'x');
    if (sides.size() != 2) return {};
    const QSize size(sides[0].toInt(), sides[1].toInt());
    return size.isEmpty() ? QSize() : size;
}

} // namespace

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
        } else if (word == u"--panels") {
            valueInto(line.panels);
        } else if (word == u"--skin") {
            valueInto(line.skin);
        } else if (word == u"--size") {
            QString size;
            valueInto(size);
            line.size = sizeOf(size);
            if (!line.size.isValid()) refuse(QStringLiteral("--size 后面应是 宽x高，例如 1366x768"));
        } else if (word == u"--journal") {
            valueInto(line.journal);
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
    if (!line.tour.isEmpty() && !line.panels.isEmpty())
        refuse(QStringLiteral("--tour 和 --panels 不能同时用"));
    if (line.isUnattended() && !line.journal.isEmpty())
        refuse(QStringLiteral("--journal 不能和 --tour、--panels 同时用"));
    if (line.panels.isEmpty() && (!line.skin.isEmpty() || line.size.isValid()))
        refuse(QStringLiteral("--skin 和 --size 只能和 --panels 同时用"));
    return line;
}

QString helpText() {
    return QStringLiteral("用法：quillmere-register [DATABASE] [--unit CODE] [--journal FILE]\n"
                          "      quillmere-register [DATABASE] [--unit CODE] --tour DIR | --panels DIR "
                          "[--skin FILE] [--size WxH]\n"
                          "      quillmere-register --help\n"
                          "\n"
                          "  DATABASE        登记库文件；不写时打开上一次的，没有上一次的就请您选择\n"
                          "  --unit CODE     局级单位代码，保存时人员的主管部门必须是它；不写时不限\n"
                          "  --journal FILE  修改和删除之前的内容记入恢复日志 FILE，误删的可以用\n"
                          "                  quillmere-journal 找回；不写时不记\n"
                          "  --tour DIR      自动演示各个窗口，把截图存入 DIR；在登记库的副本上进行，\n"
                          "                  没有写 DATABASE 时用新做的样例库\n"
                          "  --panels DIR    把每个面板的截图存入 DIR，并做一页总览 index.html；登记库同上\n"
                          "  --skin FILE     截图时窗口用的皮肤文件；不写时用浅色皮肤\n"
                          "  --size WxH      截图时窗口的大小；不写时高到能看全每个面板\n"
                          "  --help          显示本说明\n");
}

} // namespace quillmere::host
