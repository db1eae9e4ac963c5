#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quillmere::sqlite {

/// A query without the texts that its condition compares with: `select a from t where b='x' and c=1` is the
/// shape `select a from t where b=? and c=1` with the text `x`. The records of all persons are read by
/// queries of a few shapes, and only a shape has to be compiled.
struct QueryShape {
    std::string sql;
    std::vector<std::string> texts;
};

/// The shape of a statement; the statement as it stands, without texts, when it is no plain query or when a
/// text in another place might mean something else.
[[nodiscard]] QueryShape shapeOf(std::string_view sql);

} // namespace quillmere::sqlite
