#include "Register.h"

namespace quillmere::bench {

std::vector<std::string> Register::ask(const std::string& query) const {
    const data::RowSet rows = connection->query(query);
    std::vector<std::string> answers;
    for (std::size_t row = 0; row < rows.rowCount(); ++row)
        answers.push_back(rows.at(row, std::size_t{0}).toText());
    return answers;
}

std::size_t Register::count(const std::string& query) const {
    return static_cast<std::size_t>(connection->query(query).at(0, std::size_t{0}).toLong());
}

} // namespace quillmere::bench
