#include "faults/Rehearsal.h"

#include "binding/FieldEvents.h"
#include "panels/A1ctrlUser.h"
#include "platform/convert/Clock.h"
#include "platform/ui/CommandButton.h"
#include "quillmere/IUserCtrl.h"
#include "support/ScriptedPerson.h"

namespace quillmere::test {

namespace {

constexpr std::string_view statementMark = "SQL ";
constexpr std::string_view boxMark = "BOX ";

/// The register in which deeds are rehearsed.
TestDatabase& theRegister() {
    struct Made : TestDatabase {
        Made() { makeSmallRegister(engine()); }
    };
    static Made made;
    return made;
}

Lines textsOf(const ui::ControlHost& host, bool valueWidgetsOnly) {
    Lines texts;
    for (const auto& control : host.Controls()) {
        if (valueWidgetsOnly && !isValueWidget(control->name())) continue;
        texts.push_back(control->name() + "=" + control->property("Text").value_or(""));
    }
    return texts;
}

Lines marked(const Lines& story, std::string_view mark) {
    Lines found;
    for (const std::string& line : story)
        if (line.starts_with(mark)) found.push_back(line.substr(mark.size()));
    return found;
}

} // namespace

Lines statementsOf(const Lines& story) { return marked(story, statementMark); }
Lines boxesOf(const Lines& story) { return marked(story, boxMark); }

Rehearsal::Rehearsal(const Deed& deed) : deed_(deed), desktop_(*this) {
    ui::useDesktop(&desktop_);
    clock::fix(convert::DateTime{2026, 11, 21, 9, 30, 0});
    theRegister().run("begin");
    for (const char* statement : deed.rows)
        theRegister().run(statement);
    theRegister().clearStatements();
    connection_ =
        std::make_shared<data::RecordingConnection>(theRegister().connection(), [this](std::string_view sql) {
            if (told_ != nullptr) told_->push_back(std::string(statementMark).append(sql));
        });
}

Rehearsal::~Rehearsal() {
    theRegister().failing().failOff();
    theRegister().run("rollback");
    clock::fix(std::nullopt);
    ui::useDesktop(nullptr);
}

std::optional<Error> Rehearsal::play() {
    auto failure = run(deed_.operationType, std::string(deed_.id));
    if (!paused_) pause();
    theRegister().failing().failOff();
    told_ = nullptr;
    seen.rowsAtTheEnd = allRows(theRegister().engine());
    return failure;
}

std::optional<Error> Rehearsal::reopen(const std::string& id) {
    reopening_ = true;
    told_ = &seen.opening;
    auto failure = run(4, id);
    told_ = nullptr;
    return failure;
}

std::optional<Error> Rehearsal::run(std::int16_t operationType, std::string id) {
    IUserCtrl host;
    host.setConnection(around ? around(connection_) : connection_);
    host.setOperationType(operationType);
    host.setZZtype(deed_.zzType);
    host.setPersonID(std::move(id));
    try {
        (void)host.ShowPersonWh();
    } catch (const Error& failure) {
        return failure;
    }
    return std::nullopt;
}

ui::Answer Rehearsal::answer(const ui::MessageBox& box) {
    if (told_ != nullptr) told_->push_back(std::string(boxMark) + "[" + box.title + "] " + box.text);
    return box.buttons == ui::Buttons::Ok ? ui::Answer::Ok : ui::Answer::Yes;
}

void Rehearsal::work(ui::Form& form) {
    if (form.name() != "frmPersonWh")
        workOnEditor(form);
    else if (!reopening_)
        workOnWindow();
    if (form.isOpen()) form.closeByFrame();
}

void Rehearsal::workOnWindow() {
    frmPersonWh& window = frmPersonWh::defaultInstance();
    deed_.prepare(window);
    for (const std::string& statement : beforehand)
        theRegister().run(statement);
    look(seen.before);
    if (!acts) return;
    told_ = &seen.story;
    if (failAt > 0) theRegister().failing().failAfter(failAt, "断线");
    deed_.act(window);
    const bool triedAgain = paused_;
    if (!paused_) pause();
    if (actsAgain && !triedAgain && window.isOpen()) deed_.act(window);
}

void Rehearsal::workOnEditor(ui::Form& editor) {
    deed_.fill(editor);
    auto& button = controlOf<ui::CommandButton>(editor, deed_.saveButton);
    seen.behind.typed = textsOf(editor, false);
    editor.click(button);
    if (!editor.isOpen()) return;
    seen.behind.editorOpen = true;
    seen.behind.kept = textsOf(editor, false);
    pause();
    if (actsAgain) editor.click(button);
}

void Rehearsal::pause() {
    paused_ = true;
    theRegister().failing().failOff();
    look(seen.behind);
    told_ = &seen.rest;
}

void Rehearsal::look(Sight& sight) const {
    const frmPersonWh& window = frmPersonWh::defaultInstance();
    sight.isSaved = window.IsSaved;
    sight.whState = window.WhState();
    sight.rows = allRows(theRegister().engine());
    const A1ctrlUser* panel = window.GetUserCtrl();
    sight.panel = panel == nullptr ? "(none)" : panel->name();
    if (panel == nullptr) return;
    sight.isChange = panel->WhInfo.IsChange;
    sight.texts = textsOf(*panel, true);
}

} // namespace quillmere::test
