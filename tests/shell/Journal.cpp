#include "shell/Journal.h"

#include "platform/ui/Desktop.h"
#include "platform/ui/Label.h"
#include "platform/ui/Skin.h"
#include "platform/ui/Toolbar.h"
#include "platform/ui/VerticalMenu.h"

#include <algorithm>
#include <cstddef>

namespace quillmere::test {

namespace {

std::string onOff(bool on) { return on ? "on" : "off"; }

} // namespace

Journal::Journal(ScriptedPerson& person, ui::Form& form) : person_(person), form_(form), desktop_(*this) {
    ui::useDesktop(&desktop_);
    form_.setHostView(this);
}

Journal::~Journal() {
    form_.setHostView(nullptr);
    for (const auto& control : form_.Controls())
        control->setView(nullptr);
    ui::useDesktop(&person_.desktop());
}

std::shared_ptr<data::Connection> Journal::over(std::shared_ptr<data::Connection> target) {
    return std::make_shared<data::RecordingConnection>(
        std::move(target), [this](std::string_view sql) { write("SQL " + std::string(sql)); });
}

std::vector<std::string> Journal::statements() const {
    constexpr std::string_view mark = "SQL ";
    std::vector<std::string> found;
    for (const std::string& line : lines_) {
        if (line.starts_with(mark)) found.push_back(line.substr(mark.size()));
    }
    return found;
}

std::vector<std::string> Journal::before(std::string_view line) const {
    return {lines_.begin(), std::ranges::find(lines_, line)};
}

std::vector<std::string> Journal::after(std::string_view line) const {
    const auto found = std::ranges::find(lines_, line);
    if (found == lines_.end()) return {};
    return {found + 1, lines_.end()};
}

int Journal::count(std::string_view beginning) const {
    return static_cast<int>(
        std::ranges::count_if(lines_, [&](const std::string& line) { return line.starts_with(beginning); }));
}

ui::Answer Journal::answer(const ui::MessageBox& box) {
    write("BOX [" + box.title + "] " + box.text);
    return person_.answer(box);
}

void Journal::seeOpened(ui::Form& form) {
    write("OPENED " + form.name());
    person_.seeOpened(form);
}

void Journal::added(ui::Control& control) {
    write("+ " + control.name());
    followers_.push_back(std::make_unique<Follower>(*this, control));
    control.setView(followers_.back().get());
}

void Journal::removed(ui::Control& control) {
    control.setView(nullptr);
    write("- " + control.name());
}

void Journal::Follower::changed(ui::Property property) {
    if (auto* menu = dynamic_cast<ui::VerticalMenu*>(&control_); menu && menu->OpenGroup() != openGroup_) {
        openGroup_ = menu->OpenGroup();
        journal_.write("OpenGroup " + std::to_string(openGroup_));
    } else if (control_.name() == "labPersonName" && property == ui::Property::Caption) {
        journal_.write("name " + control_.property("Caption").value_or("?"));
    } else if (control_.name() == "frmCtrl" && property == ui::Property::Enabled) {
        journal_.write("frmCtrl " + onOff(control_.Enabled()));
    } else if (auto* skin = dynamic_cast<ui::Skin*>(&control_); skin && skin->isApplied()) {
        journal_.write("skin " + skin->path());
    } else if (auto* bar = dynamic_cast<ui::Toolbar*>(&control_); bar && property == ui::Property::Items) {
        if (bar->buttons().size() < 6) return;
        journal_.write("toolbar Add " + onOff(bar->Buttons("Add").Enabled()) + ", Delete " +
                       onOff(bar->Buttons("Delete").Enabled()));
    }
}

} // namespace quillmere::test
