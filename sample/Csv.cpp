#include "sample/Csv.h"

#include "platform/Error.h"

#include <algorithm>
#include <utility>

namespace quillmere::sample {
namespace {

class Reader {
public:
    Reader(std::string_view text, std::string_view name) : text_(text), name_(name) {}

    [[nodiscard]] bool atEnd() const { return position_ == text_.size(); }
    [[nodiscard]] std::size_t line() const { return line_; }

    std::vector<std::string> record() {
        std::vector<std::string> fields;
        fields.push_back(field());
        while (!atEnd() && text_[position_] == ',') {
            ++position_;
            fields.push_back(field());
        }
        endOfRecord();
        return fields;
    }

    [[noreturn]] void fail(std::size_t line, std::string_view reason) const {
        throw Error(Failure::BadArguments,
                    std::string(name_) + " 第" + std::to_string(line) + "行：" + std::string(reason), "Csv");
    }

private:
    std::string field() {
        if (!atEnd() && text_[position_] == '"') return quotedField();
        const std::size_t end = std::min(text_.find_first_of(",\r\n", position_), text_.size());
        const std::string_view value = text_.substr(position_, end - position_);
        if (value.find('"') != std::string_view::npos) fail(line_, "未加引号的字段里有引号");
        position_ = end;
        return std::string(value);
    }

    std::string quotedField() {
        const std::size_t startLine = line_;
        std::string value;
        for (++position_; !atEnd(); ++position_) {
            const char c = text_[position_];
            if (c == '\n') ++line_;
            if (c != '"') {
                value += c;
                continue;
            }
            if (position_ + 1 == text_.size() || text_[position_ + 1] != '"') {
                ++position_;
                return value;
            }
            ++position_;
            value += '"';
        }
        fail(startLine, "引号没有结束");
    }

    void endOfRecord() {
        if (atEnd()) return;
        if (text_[position_] == '\r') ++position_;
        if (atEnd() || text_[position_] != '\n') {
            const bool afterReturn = position_ > 0 && text_[position_ - 1] == '\r';
            fail(line_, afterReturn ? "回车后面没有换行" : "引号后面应该是逗号或行尾");
        }
        ++position_;
        ++line_;
    }

    std::string_view text_;
    std::string_view name_;
    std::size_t position_ = 0;
    std::size_t line_ = 1;
};

} // namespace

CsvTable::CsvTable(std::vector<std::string> columns, std::vector<std::vector<std::string>> rows)
    : columns_(std::move(columns)), rows_(std::move(rows)) {}

std::size_t CsvTable::column(std::string_view name) const {
    const auto found = std::find(columns_.begin(), columns_.end(), name);
    if (found == columns_.end()) throw Error(Failure::ItemNotFound, "没有列 " + std::string(name), "Csv");
    return static_cast<std::size_t>(found - columns_.begin());
}

CsvTable parseCsv(std::string_view text, std::string_view name) {
    Reader reader(text, name);
    if (reader.atEnd()) reader.fail(1, "没有内容");
    if (text.substr(0, 3) == "\xEF\xBB\xBF") reader.fail(1, "不应有字节顺序标记");
    std::vector<std::string> columns = reader.record();
    std::vector<std::vector<std::string>> rows;
    while (!reader.atEnd()) {
        const std::size_t line = reader.line();
        rows.push_back(reader.record());
        if (rows.back().size() != columns.size()) reader.fail(line, "字段个数与首行不同");
    }
    return {std::move(columns), std::move(rows)};
}

} // namespace quillmere::sample
