#include "adapters/journal/Entry.h"

#include "platform/convert/PlainNumber.h"
#include "platform/data/Value.h"

#include <array>
#include <charconv>
#include <cstddef>
#include <utility>
#include <variant>
#include <vector>

namespace quillmere::journal {

namespace {

/// "name length", the text itself in a line of its own; the length counts its bytes.
void addField(std::string& text, std::string_view name, std::string_view content) {
    text.append(name).append(" ").append(std::to_string(content.size())).append("\n");
    text.append(content).append("\n");
}

void addNumber(std::string& text, std::string_view name, std::uint64_t number) {
    if (number != 0) addField(text, name, std::to_string(number));
}

/// The shortest text that gives the very number back.
std::string realText(double number) {
    std::array<char, 32> digits{};
    const auto written = std::to_chars(digits.data(), digits.data() + digits.size(), number);
    return {digits.data(), written.ptr};
}

/// The letter of the value's kind with the value behind it.
struct ValueText {
    std::string operator()(data::Null) const { return "n"; }
    std::string operator()(bool value) const { return value ? "b1" : "b0"; }
    std::string operator()(std::int64_t value) const { return "i" + std::to_string(value); }
    std::string operator()(double value) const { return "r" + realText(value); }
    std::string operator()(const std::string& value) const { return "t" + value; }
};

std::optional<data::Value> readValue(std::string_view text) {
    if (text.empty()) return std::nullopt;
    const std::string_view content = text.substr(1);
    switch (text.front()) {
    case 'n':
        return data::Value();
    case 'b':
        return data::Value(content == "1");
    case 'i':
        if (const auto number = convert::plainNumber<std::int64_t>(content)) return data::Value(*number);
        return std::nullopt;
    case 'r':
        if (const auto number = convert::plainNumber<double>(content)) return data::Value(*number);
        return std::nullopt;
    case 't':
        return data::Value(content);
    default:
        return std::nullopt;
    }
}

struct Field {
    std::string_view name;
    std::string_view content;
};

/// Takes the first field off `text`; nothing when it begins with none.
std::optional<Field> takeField(std::string_view& text) {
    const std::size_t blank = text.find(' ');
    const std::size_t end = text.find('\n');
    if (blank == std::string_view::npos || end == std::string_view::npos || blank > end) return std::nullopt;
    const auto length = convert::plainNumber<std::size_t>(text.substr(blank + 1, end - blank - 1));
    if (!length || *length >= text.size() - end - 1 || text[end + 1 + *length] != '\n') return std::nullopt;
    const Field field{text.substr(0, blank), text.substr(end + 1, *length)};
    text.remove_prefix(end + 2 + *length);
    return field;
}

/// Gathers what the fields of an entry tell.
class EntryReader {
public:
    [[nodiscard]] bool take(const Field& field) {
        if (field.name == "column") {
            columns_.emplace_back(field.content);
        } else if (field.name == "value") {
            const auto value = readValue(field.content);
            if (!value) return false;
            values_.push_back(*value);
        } else if (field.name == "kind") {
            const auto kind = kindOf(field.content);
            if (!kind) return false;
            entry_.kind = *kind;
        } else if (std::string* text = textField(field.name)) {
            *text = field.content;
        } else if (std::uint64_t* number = numberField(field.name)) {
            *number = convert::plainNumber<std::uint64_t>(field.content).value_or(0);
        }
        return true;
    }

    [[nodiscard]] std::optional<Entry> finish() {
        if (columns_.empty() ? !values_.empty() : values_.size() % columns_.size() != 0) return std::nullopt;
        const std::size_t width = columns_.size();
        entry_.rows = data::RowSet(std::move(columns_));
        for (auto first = values_.begin(); first != values_.end();
             first += static_cast<std::ptrdiff_t>(width))
            entry_.rows.addRow({first, first + static_cast<std::ptrdiff_t>(width)});
        return std::move(entry_);
    }

private:
    std::string* textField(std::string_view name) {
        if (name == "time") return &entry_.time;
        if (name == "who") return &entry_.who;
        if (name == "table") return &entry_.table;
        if (name == "statement") return &entry_.statement;
        return name == "trouble" ? &entry_.trouble : nullptr;
    }
    std::uint64_t* numberField(std::string_view name) {
        if (name == "statement-left-out") return &entry_.statementBytesLeftOut;
        return name == "rows-left-out" ? &entry_.rowsLeftOut : nullptr;
    }

    Entry entry_;
    std::vector<std::string> columns_;
    std::vector<data::Value> values_;
};

std::string valueText(const data::Value& value) { return std::visit(ValueText(), value.raw()); }

} // namespace

std::size_t sizeOf(const std::vector<data::Value>& row) {
    constexpr std::size_t around = sizeof "value 1234567\n\n";
    std::size_t size = 0;
    for (const data::Value& value : row) {
        const auto* const text = std::get_if<std::string>(&value.raw());
        size += around + (text != nullptr ? text->size() : sizeof(double));
    }
    return size;
}

std::string textOf(const Entry& entry) {
    std::string text;
    addField(text, "time", entry.time);
    addField(text, "who", entry.who);
    addField(text, "kind", wordOf(entry.kind));
    addField(text, "table", entry.table);
    addField(text, "statement", entry.statement);
    addNumber(text, "statement-left-out", entry.statementBytesLeftOut);
    addNumber(text, "rows-left-out", entry.rowsLeftOut);
    if (!entry.trouble.empty()) addField(text, "trouble", entry.trouble);
    if (entry.rows.empty()) return text;
    for (const std::string& column : entry.rows.columns())
        addField(text, "column", column);
    for (std::size_t row = 0; row < entry.rows.rowCount(); ++row) {
        for (const data::Value& value : entry.rows.row(row))
            addField(text, "value", valueText(value));
    }
    return text;
}

std::string textOf(const Outcome& outcome) {
    std::string text;
    addField(text, "entry", std::to_string(outcome.entry));
    if (outcome.failure) addField(text, "failure", *outcome.failure);
    return text;
}

std::optional<Entry> readEntry(std::string_view text) {
    EntryReader reader;
    while (!text.empty()) {
        const auto field = takeField(text);
        if (!field || !reader.take(*field)) return std::nullopt;
    }
    return reader.finish();
}

std::optional<Outcome> readOutcome(std::string_view text) {
    Outcome outcome;
    while (!text.empty()) {
        const auto field = takeField(text);
        if (!field) return std::nullopt;
        if (field->name == "entry")
            outcome.entry = convert::plainNumber<std::uint64_t>(field->content).value_or(0);
        if (field->name == "failure") outcome.failure = std::string(field->content);
    }
    if (outcome.entry == 0) return std::nullopt;
    return outcome;
}

} // namespace quillmere::journal
