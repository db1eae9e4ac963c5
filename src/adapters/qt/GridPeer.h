#pragma once

#include "adapters/qt/ControlPeer.h"
#include "adapters/qt/GridModel.h"

class QTableView;

namespace quillmere::qt {

/// A read-only table; its selected row is the cursor of the recordset.
class GridPeer final : public ControlPeer {
public:
    GridPeer(FormPeer& form, ui::Control& control);

    bool keyPressed(QKeyEvent& event) override;
    bool mousePressed(QMouseEvent& event, QWidget& target) override;

protected:
    void mirror(ui::Property property) override;

private:
    [[nodiscard]] QTableView& table() const;
    void showColumns();
    void setWidths();
    void showCurrentRow();
    [[nodiscard]] int rowsOnPage() const;

    GridModel* model_;
    bool drawnByPerson_ = false;
};

} // namespace quillmere::qt
