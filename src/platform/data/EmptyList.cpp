#include "platform/data/EmptyList.h"

#include <cstddef>

namespace quillmere::data {

bool hasEmptyList(std::span<const Token> statement) {
    for (std::size_t i = 0; i + 2 < statement.size(); ++i) {
        const bool empty = statement[i + 1].isSign('(') && statement[i + 2].isSign(')');
        if (empty && statement[i].isWord("in")) return true;
    }
    return false;
}

} // namespace quillmere::data
