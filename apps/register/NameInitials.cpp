#include "register/NameInitials.h"

#include <QString>

#include <algorithm>
#include <vector>

namespace quillmere::host {

namespace {

struct Reading {
    char16_t character;
    char16_t letter;
};

/// How a character is read in names when the table has its other reading.
constexpr std::array secondReadings{
    Reading{u'单', u's'}, Reading{u'仇', u'q'}, Reading{u'解', u'x'}, Reading{u'查', u'z'},
    Reading{u'区', u'o'}, Reading{u'尉', u'y'}, Reading{u'种', u'c'}, Reading{u'乐', u'y'},
    Reading{u'覃', u'q'}, Reading{u'覃', u't'}, Reading{u'谌', u'c'}, Reading{u'谌', u's'},
    Reading{u'朴', u'p'}, Reading{u'盖', u'g'}, Reading{u'缪', u'm'}, Reading{u'盛', u's'},
    Reading{u'晟', u's'}, Reading{u'晟', u'c'}, Reading{u'茜', u'q'}, Reading{u'茜', u'x'},
    Reading{u'朝', u'z'}, Reading{u'朝', u'c'}, Reading{u'行', u'h'}, Reading{u'行', u'x'},
    Reading{u'长', u'z'}, Reading{u'曾', u'c'}, Reading{u'厦', u's'}, Reading{u'俟', u'q'},
    Reading{u'万', u'm'}, Reading{u'芮', u'r'}, Reading{u'重', u'c'}, Reading{u'重', u'z'},
};

constexpr char16_t firstCharacter = 0x4E00;
constexpr char16_t lastCharacter = 0x9FFF;

/// The letter of each character of the block that holds all of them; 0 for one without.
std::vector<char16_t> letterByCharacter() {
    std::vector<char16_t> letters(lastCharacter - firstCharacter + 1);
    for (const InitialRow& row : initialRows) {
        for (const char16_t character : row.characters)
            letters[static_cast<std::size_t>(character - firstCharacter)] = row.letter;
    }
    return letters;
}

bool begins(char16_t character, char16_t letter) {
    static const std::vector<char16_t> letters = letterByCharacter();
    if (character < firstCharacter || character > lastCharacter)
        return QChar(character).toLower() == QChar(letter);
    if (letters[static_cast<std::size_t>(character - firstCharacter)] == letter) return true;
    return std::ranges::any_of(secondReadings, [&](const Reading& reading) {
        return reading.character == character && reading.letter == letter;
    });
}

bool isPassedOver(QChar character) { return character.isSpace() || character.isPunct(); }

bool matchesFrom(QStringView name, QStringView letters) {
    qsizetype matched = 0;
    for (const QChar character : name) {
        if (matched == letters.size()) break;
        if (isPassedOver(character)) continue;
        if (!begins(character.unicode(), letters[matched].toLower().unicode())) return false;
        ++matched;
    }
    return matched == letters.size();
}

} // namespace

bool areInitials(QStringView search) {
    return !search.isEmpty() && std::ranges::all_of(search, [](QChar character) {
        const char16_t lower = character.toLower().unicode();
        return lower >= u'a' && lower <= u'z';
    });
}

bool matchesInitials(QStringView name, QStringView letters) {
    for (qsizetype start = 0; start + letters.size() <= name.size(); ++start) {
        if (matchesFrom(name.mid(start), letters)) return true;
    }
    return false;
}

} // namespace quillmere::host
