#pragma once

#include "panels/A1ctrlUser.h"

namespace quillmere {

/// The panel of a person's master record, of a specialist or of a skilled worker: it shows the
/// person's photo and has a button that replaces it.
class PersonPanel final : public A1ctrlUser {
public:
    PersonPanel(const PanelRow& row, std::string name, PanelWindow& window);

private:
    void cmdAddPhoto_Click();
    void updatePhoto();
};

} // namespace quillmere
