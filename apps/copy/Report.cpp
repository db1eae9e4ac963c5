#include "copy/Report.h"

#include "platform/text/Text.h"

#include <iomanip>
#include <ostream>

namespace quillmere::copy {

void writeSummary(std::ostream& out, const Summary& summary) {
    std::size_t rows = 0;
    for (const CopiedTable& table : summary.tables) {
        out << std::left << std::setw(20) << table.name << std::right << std::setw(12) << table.digest.rows()
            << " 行  内容 " << table.digest.shown() << "  一致\n";
        rows += table.digest.rows();
    }
    if (!summary.added.empty())
        out << "原登记库中没有、按交付的结构建成空表的：" << text::join(summary.added, "、") << '\n';
    if (!summary.leftBehind.empty()) out << "没有复制的：" << text::join(summary.leftBehind, "、") << '\n';
    out << summary.tables.size() << " 张表，" << rows << " 行，行数和内容都与原登记库一致。\n";
}

} // namespace quillmere::copy
