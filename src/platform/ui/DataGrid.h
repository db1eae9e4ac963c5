#pragma once

#include "platform/data/Recordset.h"
#include "platform/ui/Alignment.h"
#include "platform/ui/Control.h"

#include <memory>
#include <vector>

namespace quillmere::ui {

/// A read-only grid over a recordset: its rows are the recordset's, its current row the cursor.
class DataGrid : public Control {
public:
    struct Column {
        std::string heading;
        /// Twips.
        int width = 2000;
        bool visible = true;
        Alignment alignment = Alignment::Left;
    };

    explicit DataGrid(std::string name) : Control(Kind::DataGrid, std::move(name)) {}
    ~DataGrid() override;

    /// Shows the recordset's columns and rows; none for an empty pointer.
    void setDataSource(std::shared_ptr<data::Recordset> source);
    [[nodiscard]] const std::shared_ptr<data::Recordset>& DataSource() const { return source_; }

    [[nodiscard]] const std::vector<Column>& columns() const { return columns_; }
    /// Raise SubscriptOutOfRange for a column that is not there.
    void setColumnWidth(std::size_t column, int twips);
    void setColumnVisible(std::size_t column, bool visible);
    void setColumnHeading(std::size_t column, std::string heading);
    void setColumnAlignment(std::size_t column, Alignment alignment);

    [[nodiscard]] std::size_t rowCount() const;
    /// What a cell shows; nulls show nothing. Row and column from 0.
    [[nodiscard]] std::string cellText(std::size_t row, std::size_t column) const;
    /// From 1; 0 when there is none.
    [[nodiscard]] int currentRow() const;

    /// A person clicks a row, from 1: the focus comes here, then the cursor moves, unless it stands
    /// there. False when there is no such row or the focus was refused.
    bool clickRow(int row);

    [[nodiscard]] std::optional<std::string> property(std::string_view name) const override;

protected:
    /// Without a source there is nothing to stand on.
    [[nodiscard]] bool isFocusKind() const override { return source_ != nullptr; }
    void personKeyDown(const KeyStroke& stroke) override;

private:
    [[nodiscard]] bool hasRows() const { return source_ && source_->State() == 1; }
    void goTo(int row);

    std::shared_ptr<data::Recordset> source_;
    std::vector<Column> columns_;
};

} // namespace quillmere::ui
