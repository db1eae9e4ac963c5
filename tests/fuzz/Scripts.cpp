// Scenario files, up to where something would be done: lines, words, keys, counts.

#include "support/Fuzzing.h"

#include "scenario/KeyNames.h"
#include "scenario/Numbers.h"
#include "scenario/Script.h"
#include "scenario/Stop.h"

#include <algorithm>

namespace {

namespace fuzz = quillmere::fuzz;
using namespace quillmere::scenario;
using fuzz::hold;

template <class Read>
bool reads(const Read& read) {
    try {
        read();
    } catch (const Stop& stop) {
        hold(!stop.reason.empty(), "a script stops for a reason");
        return false;
    }
    return true;
}

std::string quoted(const std::string& word) {
    std::string text = "\"";
    for (const char letter : word) {
        if (letter == '"' || letter == '\\') text += '\\';
        text += letter;
    }
    return text + '"';
}

void areReadBack(const Words& words) {
    std::string line;
    for (const std::string& word : words)
        line += quoted(word) + " \t";
    Words again;
    hold(reads([&] { again = splitWords(line); }) && again == words, "words in quotes are the same words");
}

void hasMeaning(const std::string& word) {
    (void)reads([&] { (void)parseKey(word); });
    (void)reads([&] {
        const int count = parseCount(word);
        hold(count >= 1, "counting begins with 1");
        hold(word.find_first_not_of("0123456789+") == std::string::npos, "a count is written in digits");
    });
    (void)reads([&] {
        const int number = parseNumber(word, -3, 12);
        hold(number >= -3 && number <= 12, "a number lies within its bounds");
    });
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text = fuzz::Input(data, size).rest();
    const auto most = std::ranges::count(text, '\n') + 1;
    Script script(text);
    int last = 0;
    while (const auto line = script.next()) {
        hold(line->number > last && line->number <= most, "lines are numbered as in the file");
        hold(script.lastNumber() == line->number, "the script knows where it is");
        hold(text.find(line->text) != std::string::npos && line->text.find('\n') == std::string::npos,
             "a line is a line of the file");
        last = line->number;
        Words words;
        if (!reads([&] { words = splitWords(line->text); })) continue;
        hold(!words.empty(), "a command line has a command");
        areReadBack(words);
        for (const std::string& word : words)
            hasMeaning(word);
    }
    return 0;
}
