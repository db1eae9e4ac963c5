#pragma once

#include "sample/Months.h"
#include "sample/Pools.h"
#include "sample/Random.h"
#include "sample/Subject.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace quillmere::sample {

class RowMaker;

/// How a value goes into the statement: quoted, quoted with null for nothing, or as it stands.
enum class FieldLiteral { Text, Date, Bare };

/// What fills a field: one of the maker's ways, and what that way draws on.
struct Filling {
    std::string (RowMaker::*way)(const Filling&) = nullptr;
    /// The pool whose words are gone through, where one is.
    const std::vector<std::string>* guide = nullptr;
    /// The words or codes to choose from: a whole pool or code table, or those named.
    const std::vector<std::string>* words = nullptr;
    std::vector<std::string> named;
    /// Bounds of a number.
    int low = 0;
    int high = 0;
    /// Which bits of the set's chance choose the first word, so that pools don't move in step.
    unsigned shift = 0;
};

/// Reads "pool society" or "number 1 5". Raises BadArguments for a way that nobody knows, ItemNotFound for a
/// pool or code table that is not there.
[[nodiscard]] Filling parseFilling(std::string_view content, const Pools& pools);

/// Makes the values of the records of one set for one subject, row after row.
class RowMaker {
public:
    RowMaker(const Pools& pools, Random& random, const Subject& subject);

    /// Before the first row: how many rows will share the project's sums.
    void beginSet(std::size_t rows);
    /// Before each row: its stretch of time, the year it reports on, whether the set ends with it.
    void beginRow(Span span, int reportYear, bool last);
    /// The row's value; empty for a field left open.
    [[nodiscard]] std::string value(const Filling& filling) { return (this->*filling.way)(filling); }

    std::string start(const Filling&);
    std::string end(const Filling&);
    std::string openEnd(const Filling&);
    std::string month(const Filling&);
    std::string year(const Filling&);
    std::string report(const Filling&);
    std::string word(const Filling&);
    std::string named(const Filling&);
    std::string code(const Filling&);
    std::string total(const Filling&);
    std::string sponsored(const Filling&);
    std::string matching(const Filling&);
    std::string spent(const Filling&);
    std::string paid(const Filling&);
    std::string amount(const Filling&);
    std::string number(const Filling&);
    std::string price(const Filling&);
    std::string product(const Filling&);
    std::string flag(const Filling&);
    std::string name(const Filling&);
    std::string identity(const Filling&);
    std::string phone(const Filling&);
    std::string mail(const Filling&);
    std::string workplace(const Filling&);
    std::string unit(const Filling&);
    std::string field(const Filling&);
    std::string major(const Filling&);
    std::string title(const Filling&);
    std::string nothing(const Filling&);

private:
    /// Where the row stands in the filling's pool.
    [[nodiscard]] std::size_t placeIn(const Filling& filling) const;
    /// This row's part of a sum in hundredths, the parts of all rows making it up.
    [[nodiscard]] int partOf(int sum) const;
    /// The sum itself when the project is closed, three fifths of it while it runs.
    [[nodiscard]] int soFar(int sum) const;
    [[nodiscard]] std::string filledIn(const std::string& words) const;

    const Pools& pools_;
    Random& random_;
    const Subject& subject_;
    std::vector<int> weights_;
    std::uint64_t chance_ = 0;
    /// How many rows have been begun.
    std::size_t row_ = 0;
    Span span_;
    int report_ = 0;
    bool last_ = false;
    bool male_ = true;
    int number_ = 0;
    int price_ = 0;
};

} // namespace quillmere::sample
