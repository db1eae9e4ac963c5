#include "scenario/Paths.h"

#include "scenario/Scene.h"

#include "metadata/Globals.h"
#include "panels/A1ctrlUser.h"
#include "platform/text/Text.h"
#include "platform/ui/Form.h"
#include "shell/frmPersonWh.h"

#include <array>
#include <optional>

namespace quillmere::scenario {

namespace {

std::string show(bool value) { return value ? "true" : "false"; }
std::string show(std::int16_t value) { return std::to_string(value); }
std::string show(std::int32_t value) { return std::to_string(value); }
std::string show(const data::Value& value) {
    return value.isBoolean() ? show(value.toBoolean()) : value.toTextOrEmpty();
}

/// One name below a root of paths, and how its value is read off the object behind the root.
template <class T>
struct Property {
    std::string_view name;
    std::string (*read)(const T& object);
};

constexpr std::array windowProperties{
    Property<frmPersonWh>{"personID", [](const frmPersonWh& window) { return window.personID; }},
    Property<frmPersonWh>{"OperationType",
                          [](const frmPersonWh& window) { return show(window.OperationType); }},
    Property<frmPersonWh>{"IsSaved", [](const frmPersonWh& window) { return show(window.IsSaved); }},
    Property<frmPersonWh>{"WhState", [](const frmPersonWh& window) { return show(window.WhState()); }},
    Property<frmPersonWh>{"ProjectStage", [](const frmPersonWh& window) { return window.ProjectStage(); }},
    Property<frmPersonWh>{"panel",
                          [](const frmPersonWh& window) {
                              const A1ctrlUser* panel = window.GetUserCtrl();
                              return panel == nullptr ? std::string() : std::string(panel->row().className);
                          }},
};

constexpr std::array infoProperties{
    Property<cWhInfo>{"id", [](const cWhInfo& info) { return show(info.id); }},
    Property<cWhInfo>{"personID", [](const cWhInfo& info) { return info.personID; }},
    Property<cWhInfo>{"TabId", [](const cWhInfo& info) { return info.TabId; }},
    Property<cWhInfo>{"IsMult", [](const cWhInfo& info) { return show(info.IsMult); }},
    Property<cWhInfo>{"IsChange", [](const cWhInfo& info) { return show(info.IsChange); }},
    Property<cWhInfo>{"FldOrder", [](const cWhInfo& info) { return info.FldOrder; }},
};

constexpr std::array fieldProperties{
    Property<cFieldItem>{"FldExplain", [](const cFieldItem& field) { return field.FldExplain; }},
    Property<cFieldItem>{"FldOrder", [](const cFieldItem& field) { return field.FldOrder; }},
    Property<cFieldItem>{"FldWidth", [](const cFieldItem& field) { return show(field.FldWidth); }},
    Property<cFieldItem>{"Check", [](const cFieldItem& field) { return field.Check; }},
    Property<cFieldItem>{"Style", [](const cFieldItem& field) { return field.Style; }},
    Property<cFieldItem>{"IsNUll", [](const cFieldItem& field) { return show(field.IsNUll); }},
    Property<cFieldItem>{"Dmcpt", [](const cFieldItem& field) { return field.Dmcpt; }},
    Property<cFieldItem>{"Dmcod", [](const cFieldItem& field) { return show(field.Dmcod); }},
    Property<cFieldItem>{"CodeTable", [](const cFieldItem& field) { return field.CodeTable; }},
    Property<cFieldItem>{"FieldLength", [](const cFieldItem& field) { return field.FieldLength; }},
    Property<cFieldItem>{"FieldType", [](const cFieldItem& field) { return field.FieldType; }},
    Property<cFieldItem>{"ItemDesc", [](const cFieldItem& field) { return field.ItemDesc; }},
    Property<cFieldItem>{"ItemName", [](const cFieldItem& field) { return field.ItemName; }},
    Property<cFieldItem>{"TblName", [](const cFieldItem& field) { return field.TblName; }},
};

using Found = std::optional<std::string>;

template <class T, std::size_t count>
Found readProperty(const std::array<Property<T>, count>& properties, const T& object, std::string_view name) {
    for (const Property<T>& property : properties) {
        if (text::equalsNoCase(property.name, name)) return property.read(object);
    }
    return std::nullopt;
}

Found readWidget(const ui::Form& form, const std::string& name, const std::string& property) {
    const ui::Control* widget = form.findDeep(name);
    return widget == nullptr ? std::nullopt : widget->property(property);
}

const A1ctrlUser& panelOnShow() {
    const A1ctrlUser* panel = frmPersonWh::defaultInstance().GetUserCtrl();
    if (panel == nullptr) throw Stop{"no panel is on show"};
    return *panel;
}

Found readWindow(const Scene& scene, const std::string& name) {
    if (!text::equalsNoCase(name, "focus")) {
        return readProperty(windowProperties, frmPersonWh::defaultInstance(), name);
    }
    if (scene.forms.empty()) return std::string();
    const ui::Control* focused = scene.front().ActiveControl();
    return focused == nullptr ? std::string() : focused->name();
}

Found readGlobal(const Scene& /*scene*/, const std::string& name) {
    if (text::equalsNoCase(name, "gZZType")) return show(gZZType);
    if (text::equalsNoCase(name, "gZZYear")) return gZZYear;
    return std::nullopt;
}

Found readInfo(const Scene& /*scene*/, const std::string& name) {
    return readProperty(infoProperties, panelOnShow().WhInfo, name);
}

/// `name` is a field's key and a property, with a dot between them.
Found readField(const Scene& /*scene*/, const std::string& name) {
    const std::size_t dot = name.rfind('.');
    if (dot == std::string::npos) return std::nullopt;
    const auto fields = panelOnShow().FieldItems;
    const cFieldItem* field = fields ? fields->find(name.substr(0, dot)) : nullptr;
    return field == nullptr ? std::nullopt : readProperty(fieldProperties, *field, name.substr(dot + 1));
}

Found readForm(const Scene& scene, const std::string& name) {
    if (text::equalsNoCase(name, "caption")) return scene.front().Caption();
    return std::nullopt;
}

Found readRows(const Scene& scene, const std::string& name) {
    if (text::equalsNoCase(name, "count")) return std::to_string(scene.rowsRead);
    return std::nullopt;
}

Found readToolbar(const Scene& /*scene*/, const std::string& name) {
    return readWidget(frmPersonWh::defaultInstance(), "TbMain", name);
}

struct Root {
    std::string_view name;
    Found (*read)(const Scene& scene, const std::string& rest);
};

constexpr std::array roots{
    Root{"window", readWindow},   Root{"global", readGlobal}, Root{"info", readInfo},
    Root{"field", readField},     Root{"form", readForm},     Root{"rows", readRows},
    Root{"toolbar", readToolbar},
};

Found readAnyWidget(const Scene& scene, const std::string& name, const std::string& property) {
    Found value;
    if (!scene.forms.empty()) value = readWidget(scene.front(), name, property);
    // Behind a dialog the window is still there to be looked at.
    return value ? value : readWidget(frmPersonWh::defaultInstance(), name, property);
}

Found find(const Scene& scene, const std::string& path) {
    const std::size_t dot = path.find('.');
    if (dot == std::string::npos) return std::nullopt;
    const std::string first = path.substr(0, dot);
    const std::string rest = path.substr(dot + 1);
    for (const Root& root : roots) {
        if (text::equalsNoCase(root.name, first)) return root.read(scene, rest);
    }
    return readAnyWidget(scene, first, rest);
}

} // namespace

std::string readPath(const Scene& scene, const std::string& path) {
    const Found value = find(scene, path);
    if (!value) throw Stop{"there is nothing at " + path};
    return *value;
}

} // namespace quillmere::scenario
