#include "component/controls/LonePanel.h"

#include "panels/PanelFactory.h"

namespace quillmere::component {

LonePanel::LonePanel(std::string_view className) : Form("", ""), toolbar_(add<ui::Toolbar>("TbMain")) {
    for (const char* key : {"Add", "Delete", "Save"})
        toolbar_.addButton(key, key).setEnabled(false);
    auto created = createPanel(className, *this);
    panel_ = created.get();
    place(std::move(created));
}

} // namespace quillmere::component
