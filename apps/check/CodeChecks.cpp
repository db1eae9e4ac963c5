#include "check/CheckGroup.h"
#include "check/CodeTables.h"
#include "check/Examples.h"
#include "check/RegisterView.h"

#include "platform/Error.h"
#include "platform/text/Text.h"

#include <algorithm>
#include <set>
#include <string>

namespace quillmere::check {

namespace {

constexpr FindingKind tableMissing{
    .id = "code-table-missing",
    .title = "代码表不存在，或者缺少列",
    .effect = "读取代码名称的语句失败：打开已有的记录或者表格时窗口关闭；选择代码的窗口是空的。",
    .remedy = "建立这张代码表，列为 dmcod、dmcpt、dmhnd、dmattr；字段不是代码时，清空它的 CodeTable。",
    .failure = Failure::StatementFailed};

constexpr FindingKind undescribed{.id = "code-table-undescribed",
                                  .level = Level::Note,
                                  .title = "代码表没有名称",
                                  .effect = "选择代码的窗口标题显示为“代码帮助窗口”，不显示代码表的名称。",
                                  .remedy = "在 s_CodeTableDefine 中给它登记一行。"};

constexpr FindingKind levelsMissing{
    .id = "code-levels-missing",
    .level = Level::Warning,
    .title = "代码表没有级别",
    .effect = "选择代码的窗口里没有代码树，只能在“录入查询”页里查找。",
    .remedy = "在 s_CodeLevDefine 中给每一级登记一行，bit 是这一级代码的全长；不分级的代码表也要登记一行。"};

constexpr FindingKind levelsInvalid{
    .id = "code-levels-invalid",
    .level = Level::Warning,
    .title = "代码表的级别长度不对",
    .effect = "bit 为空、不是 16 位整数，或者没有逐级加长：下级代码找不到上级，代码树乱挂或者残缺。",
    .remedy = "bit 填每一级代码的全长（不是增加的长度），按 levelnum 逐级加长，例如 2、4、6。"};

constexpr FindingKind lengthInNoLevel{.id = "code-length",
                                      .level = Level::Warning,
                                      .title = "代码的长度不属于任何一级",
                                      .effect = "这个代码不出现在代码树里，只能在“录入查询”页里找到。",
                                      .remedy = "改正代码，或者在 s_CodeLevDefine 中补上这一级。"};

constexpr FindingKind orphan{.id = "code-orphan",
                             .level = Level::Warning,
                             .title = "代码的上级不存在",
                             .effect = "这个代码在代码树里挂到前一个代码的上级下面，录入人员会在错误的地方看"
                                       "到它；前面没有上级时，它根本不出现。",
                             .remedy = "补上它的上级代码，或者改正这个代码。"};

constexpr FindingKind duplicate{
    .id = "code-duplicate",
    .level = Level::Warning,
    .title = "代码重复",
    .effect =
        "代码树里只出现第一个，后一个的可选标志却落在它上面；按代码显示名称时，显示哪一个由数据库决定。",
    .remedy = "删去多余的一行，或者改用另外的代码。"};

constexpr FindingKind withoutCaption{
    .id = "code-without-caption",
    .level = Level::Note,
    .title = "代码没有名称",
    .effect = "选择代码时从来看不到它；已经存下这个代码的记录显示为代码本身，在表格里显示为空白。",
    .remedy = "填写 dmcpt，或者删去这一行。"};

constexpr FindingKind noneChoosable{
    .id = "code-none-choosable",
    .level = Level::Warning,
    .title = "代码表里没有可以选的代码",
    .effect = "代码全部是标题（dmattr 为 false 或空）：双击以后什么也选不了，必填的字段永远填不上。",
    .remedy = "把可以选的代码的 dmattr 改为 true。"};

constexpr const FindingKind* kinds[] = {&tableMissing,  &undescribed,     &levelsMissing,
                                        &levelsInvalid, &lengthInNoLevel, &orphan,
                                        &duplicate,     &withoutCaption,  &noneChoosable};

/// The lengths of the codes, level by level.
struct Levels {
    std::vector<std::size_t> lengths;
    bool isValid = true;
};

Levels readLevels(data::Connection& connection, const std::string& table) {
    const data::RowSet rows =
        connection.query("select bit from s_CodeLevDefine where dmgrp ='" + table + "' order by levelnum");
    Levels levels;
    for (std::size_t row = 0; row < rows.rowCount(); ++row) {
        std::int16_t length = 0;
        try {
            length = rows.at(row, 0).toInteger16();
        } catch (const Error&) {
            // As a length of 0 it is no valid one.
        }
        const std::size_t above = levels.lengths.empty() ? 0 : levels.lengths.back();
        if (length <= 0 || static_cast<std::size_t>(length) <= above) levels.isValid = false;
        levels.lengths.push_back(length > 0 ? static_cast<std::size_t>(length) : 0);
    }
    return levels;
}

struct Code {
    std::string code;
    std::string caption;
    bool isChoosable = false;
};

std::vector<Code> readCodes(data::Connection& connection, const std::string& table) {
    const data::RowSet rows =
        connection.query("select dmcod,dmcpt,iif(dmattr is null,false,dmattr) as dmattr from " + table +
                         " where dmcod<>'' order by dmcod");
    std::vector<Code> codes;
    for (std::size_t row = 0; row < rows.rowCount(); ++row) {
        codes.push_back(
            {rows.at(row, 0).toTextOrEmpty(), rows.at(row, 1).toTextOrEmpty(), rows.at(row, 2).toBoolean()});
    }
    return codes;
}

/// The checks of one code table that is there.
class TableChecks {
public:
    TableChecks(const RegisterView& view, std::string table, Report& report)
        : connection_(view.connection())
        , table_(std::move(table))
        , report_(report)
        , levels_(readLevels(connection_, table_))
        , codes_(readCodes(connection_, table_)) {}

    void run() {
        const auto definition =
            connection_.query("select codtbldsc from s_CodeTableDefine where dmgrp ='" + table_ + "' ");
        if (definition.empty() || definition.at(0, 0).toTextOrEmpty().empty())
            report_.add(undescribed, "s_CodeTableDefine", {{"dmgrp", table_}});
        if (std::ranges::none_of(codes_, &Code::isChoosable)) report_.add(noneChoosable, table_, {});
        tell(withoutCaption, [](const Code& code) { return code.caption.empty(); });
        std::set<std::string> seen;
        tell(duplicate, [&](const Code& code) { return !seen.insert(text::lower(code.code)).second; });
        checkLevels();
    }

private:
    void checkLevels() {
        if (levels_.lengths.empty())
            report_.add(levelsMissing, "s_CodeLevDefine", {{"dmgrp", table_}});
        else if (!levels_.isValid)
            report_.add(levelsInvalid, "s_CodeLevDefine", {{"dmgrp", table_}});
        else
            checkPlaces();
    }

    void checkPlaces() {
        std::set<std::string> known;
        for (const Code& code : codes_)
            known.insert(text::lower(code.code));
        const auto levelOf = [this](const Code& code) {
            return std::ranges::find(levels_.lengths, text::length(code.code));
        };
        tell(lengthInNoLevel, [&](const Code& code) { return levelOf(code) == levels_.lengths.end(); });
        tell(orphan, [&](const Code& code) {
            const auto level = levelOf(code);
            if (level == levels_.lengths.begin() || level == levels_.lengths.end()) return false;
            return !known.contains(text::lower(text::left(code.code, *std::prev(level))));
        });
    }

    /// One finding for all the codes that have a fault.
    template <class Fault>
    void tell(const FindingKind& kind, Fault hasFault) {
        Examples examples;
        for (const Code& code : codes_)
            if (hasFault(code)) examples.add(code.code + " " + code.caption);
        if (!examples.empty()) report_.add(kind, table_, {}, examples.text("个代码"));
    }

    data::Connection& connection_;
    std::string table_;
    Report& report_;
    Levels levels_;
    std::vector<Code> codes_;
};

void run(const RegisterView& view, Report& report) {
    for (const CodeTableInUse& codes : codeTablesInUse(view)) {
        if (isUsable(view, codes.table))
            TableChecks(view, codes.table, report).run();
        else
            report.add(tableMissing, codes.table, {}, "用在 " + codes.firstField + " 等字段上");
    }
}

} // namespace

CheckGroup codeChecks() { return {kinds, run}; }

} // namespace quillmere::check
