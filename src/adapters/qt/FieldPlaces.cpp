#include "adapters/qt/FieldPlaces.h"

#include <algorithm>

namespace quillmere::qt {

namespace {

/// Deals out places row by row, around the corner.
class Dealer {
public:
    Dealer(int columns, bool corner)
        : columns_(columns), cornerRows_(corner ? (columns > 1 ? cornerRows : 1) : 0) {
        if (corner && columns == 1) row_ = 1;
    }

    FieldPlace next() {
        const FieldPlace place{row_, column_};
        if (++column_ >= columnsIn(row_)) newRow();
        return place;
    }

    /// The first of two rows that no field stands in yet.
    FieldPlace wholeRows() {
        if (column_ != 0) newRow();
        const int first = std::max(row_, cornerRows_);
        row_ = first + 2;
        return {first, 0};
    }

private:
    [[nodiscard]] int columnsIn(int row) const {
        return columns_ > 1 && row < cornerRows_ ? columns_ - 1 : columns_;
    }

    void newRow() {
        ++row_;
        column_ = 0;
    }

    int columns_;
    int cornerRows_;
    int row_ = 0;
    int column_ = 0;
};

} // namespace

std::vector<FieldPlace> placesFor(const std::vector<bool>& wide, int columns, bool corner) {
    Dealer dealer(columns, corner);
    std::vector<FieldPlace> places;
    places.reserve(wide.size());
    for (const bool isWide : wide)
        places.push_back(isWide ? dealer.wholeRows() : dealer.next());
    return places;
}

} // namespace quillmere::qt
