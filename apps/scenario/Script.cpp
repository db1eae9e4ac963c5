#include "scenario/Script.h"

#include "scenario/Stop.h"

#include <algorithm>

namespace quillmere::scenario {

namespace {

constexpr std::string_view blanks = " \t";

char escaped(char letter) {
    switch (letter) {
    case 'n':
        return '\n';
    case 'r':
        return '\r';
    case 't':
        return '\t';
    case '"':
    case '\\':
        return letter;
    default:
        throw Stop{std::string("unknown escape \\") + letter};
    }
}

/// Takes a quotation off the front of `rest`, which begins with its quote.
std::string takeQuoted(std::string_view& rest) {
    std::string word;
    for (std::size_t i = 1; i < rest.size(); ++i) {
        if (rest[i] == '"') {
            rest.remove_prefix(i + 1);
            if (!rest.empty() && blanks.find(rest.front()) == std::string_view::npos) {
                throw Stop{"no blank behind a closing quote"};
            }
            return word;
        }
        if (rest[i] == '\\' && i + 1 < rest.size()) {
            word += escaped(rest[++i]);
        } else {
            word += rest[i];
        }
    }
    throw Stop{"a quotation does not end"};
}

std::string takePlain(std::string_view& rest) {
    const std::size_t end = std::min(rest.find_first_of(blanks), rest.size());
    std::string word(rest.substr(0, end));
    if (word.find('"') != std::string::npos) throw Stop{"a quote in the middle of an argument"};
    rest.remove_prefix(end);
    return word;
}

std::string_view withoutLineEnd(std::string_view line) {
    if (line.ends_with('\r')) line.remove_suffix(1);
    return line;
}

bool isCommand(std::string_view line) {
    const std::size_t first = line.find_first_not_of(blanks);
    return first != std::string_view::npos && line[first] != '#';
}

} // namespace

Words splitWords(std::string_view line) {
    Words words;
    while (true) {
        const std::size_t start = line.find_first_not_of(blanks);
        if (start == std::string_view::npos) return words;
        line.remove_prefix(start);
        words.push_back(line.front() == '"' ? takeQuoted(line) : takePlain(line));
    }
}

Script::Script(std::string_view text) {
    constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
    if (text.starts_with(byteOrderMark)) text.remove_prefix(byteOrderMark.size());
    for (int number = 1; !text.empty(); ++number) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        const std::string_view line = withoutLineEnd(text.substr(0, end));
        if (isCommand(line)) lines_.push_back({number, std::string(line)});
        text.remove_prefix(std::min(end + 1, text.size()));
    }
}

std::optional<Script::Line> Script::next() {
    if (position_ == lines_.size()) return std::nullopt;
    last_ = lines_[position_].number;
    return lines_[position_++];
}

} // namespace quillmere::scenario
