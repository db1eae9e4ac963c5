#include "clerk/RandomClerk.h"

#include "binding/FieldEvents.h"
#include "clerk/OddTexts.h"
#include "metadata/Globals.h"
#include "panels/A1ctrlUser.h"
#include "platform/convert/Clock.h"
#include "platform/text/Text.h"
#include "platform/ui/DataGrid.h"
#include "quillmere/IUserCtrl.h"
#include "shell/ControlsByPrefix.h"
#include "shell/frmPersonWh.h"
#include "support/PhotoFolder.h"

#include <algorithm>
#include <fstream>

namespace quillmere::test {

namespace {

/// Files that a clerk may choose as a photo, and things that are none.
std::vector<std::string> makeFiles(const std::filesystem::path& folder) {
    constexpr std::size_t largest = 307200;
    const auto write = [&](const char* name, const std::string& content) {
        std::ofstream(folder / name, std::ios::binary) << content;
        return (folder / name).string();
    };
    const std::string whole = jpegOf();
    return {"",
            folder.string(),
            (folder / "missing.jpg").string(),
            write("whole.jpg", whole),
            write("cut.jpg", whole.substr(0, whole.size() / 2)),
            write("empty.jpg", ""),
            write("text.jpg", "no picture"),
            write("largest.jpg", jpegOf(largest)),
            write("larger.jpg", jpegOf(largest + 1))};
}

void refuse(bool allowed, const std::string& what) {
    if (!allowed) throw Finding(what);
}

constexpr const char* brokenLine = "断线";

bool isPanel(const ui::Control& control) { return text::startsWithNoCase(control.name(), "A1ctrlUser"); }

bool isAscii(const std::string& text) {
    return std::ranges::all_of(text, [](char character) { return (character & 0x80) == 0; });
}

} // namespace

RandomClerk::RandomClerk(const Options& options)
    : options_(options)
    , chance_(options.seed)
    , diary_(options.trace)
    , hands_(chance_, diary_)
    , desktop_(*this)
    , files_(makeFiles(options.folder)) {
    frmPersonWh::releaseDefaultInstance();
    ui::useDesktop(&desktop_);
    clock::fix(convert::DateTime{2026, 11, 21, 9, 30, 0});
    gZZType = 0;
    gZZYear.clear();
}

RandomClerk::~RandomClerk() {
    ui::useDesktop(nullptr);
    clock::fix(std::nullopt);
    gZZType = 0;
    gZZYear.clear();
    publishConnection(nullptr);
}

Outcome RandomClerk::work() {
    while (!isDone())
        maintain();
    outcome_.steps = diary_.steps();
    outcome_.changes = register_.connection()->changes();
    return outcome_;
}

void RandomClerk::maintain() {
    const ClerksRegister::Rows before = register_.rows();
    touched_.clear();
    ++outcome_.runs;
    try {
        open();
    } catch (const Error& error) {
        ++outcome_.failures;
        diary_.write("failed: " + error.description());
        checkFailure(error);
    }
    register_.failing().failOff();
    const frmPersonWh& window = frmPersonWh::defaultInstance();
    refuse(!window.isLoaded() && window.GetUserCtrl() == nullptr, "a run has ended and left the window");
    refuse(desktop_.front() == nullptr, "a run has ended and left a dialog");
    checkOthers(before);
}

void RandomClerk::open() {
    static const std::vector<int> types{0, 0, 1, 2, 3, 4, 4, 4, 4, 4, 7};
    static const std::vector<std::string> stages{"01", "01", "02", "03"};
    const auto identities = register_.identities();
    std::string id = chance_.pick(identities);
    if (chance_.chance(5)) id = "nobody";
    register_.engine().execute("update P01 set P0123='" + chance_.pick(stages) + "' where A00='" + id + "'");
    IUserCtrl host;
    host.setConnection(register_.connection());
    host.setPersonID(id);
    host.setOperationType(static_cast<std::int16_t>(chance_.pick(types)));
    host.setZZtype(static_cast<std::int16_t>(chance_.between(1, 7)));
    host.setUnitCode(chance_.chance(20) ? "01" : "");
    host.setPhotoPath(chance_.chance(90) ? options_.folder.string() : (options_.folder / "missing").string());
    touched_.insert(id);
    diary_.write("opens " + id + " type " + std::to_string(host.OperationType()) + " zz " +
                 std::to_string(host.ZZtype()));
    if (host.ShowPersonWh()) ++outcome_.saved;
}

void RandomClerk::work(ui::Form& form) {
    if (auto* window = dynamic_cast<frmPersonWh*>(&form); window != nullptr)
        workOnWindow(*window);
    else
        workOnDialog(form);
    if (form.isOpen()) form.closeByFrame();
}

void RandomClerk::workOnWindow(frmPersonWh& window) {
    checkWindow(window);
    for (int left = chance_.between(20, 400); left > 0 && window.isOpen() && !isDone(); --left) {
        // A removed panel lives until its event ends, so that of a reload has another address.
        const A1ctrlUser* before = window.GetUserCtrl();
        breakLine();
        hands_.act(window);
        touched_.insert(window.personID);
        const A1ctrlUser* panel = window.GetUserCtrl();
        refuse(panel == before || panel == nullptr || !panel->WhInfo.IsChange, "edits right behind a reload");
        checkWindow(window);
    }
}

void RandomClerk::breakLine() {
    if (chance_.below(200) != 0) return;
    const int coming = chance_.between(1, 30);
    diary_.write("statement " + std::to_string(coming) + " from here fails");
    register_.failing().failAfter(coming, brokenLine);
}

void RandomClerk::workOnDialog(ui::Form& dialog) {
    outcome_.shown.insert(dialog.name());
    for (int left = chance_.between(1, 25); left > 0 && dialog.isOpen() && !isDone(); --left) {
        hands_.act(dialog);
        checkForm(dialog);
    }
}

void RandomClerk::checkForm(const ui::Form& form) const {
    const ui::Control* active = form.ActiveControl();
    refuse(active == nullptr || (!active->isRemoved() && active->canTakeFocus()),
           "the focus is on what cannot have it: " + (active == nullptr ? "" : active->name()));
    for (const ui::Control* control : withinReach(form)) {
        const std::string shownText = control->property("Text").value_or("");
        refuse(text::encode(text::decode(shownText)) == shownText,
               control->name() + " holds ill-formed text");
    }
}

void RandomClerk::checkWindow(const frmPersonWh& window) {
    checkForm(window);
    const auto panels = std::ranges::count_if(window.Controls(), [](const auto& c) { return isPanel(*c); });
    refuse(panels <= 1, "more than one panel");
    const A1ctrlUser* panel = window.GetUserCtrl();
    if (panel == nullptr || !window.isOpen()) return;
    outcome_.shown.insert(panel->name());
    refuse(panel->WhInfo.personID == window.personID, "the panel is about another identity than the window");
    refuse(panel->FieldItems != nullptr, "a panel without fields");
    refuse(panel->WhInfo.id >= 0 && (panel->WhInfo.IsMult || panel->WhInfo.id == 0), "a number of no record");
    for (const auto& control : panel->Controls()) {
        const auto* grid = dynamic_cast<const ui::DataGrid*>(control.get());
        refuse(grid == nullptr || grid->currentRow() <= static_cast<int>(grid->rowCount()),
               "a row that is not there");
        if (isValueWidget(control->name())) (void)panel->FieldItems->Item(fieldKey(control->name()));
    }
}

void RandomClerk::checkFailure(const Error& error) const {
    const std::string& failed = register_.connection()->failed();
    // A search text that was pasted with a quote, or is too long to be a pattern: the search of the
    // code selector has no handler.
    const bool search = failed.starts_with("select dmcod,dmcpt,iif(dmhnd");
    refuse(search || error.description() == brokenLine,
           "the run failed: " + error.description() + " in " + shown(failed));
    refuse(!isAscii(error.description()), "a failure that a clerk cannot read: " + error.description());
}

void RandomClerk::checkOthers(const ClerksRegister::Rows& before) {
    ClerksRegister::Rows then = before;
    ClerksRegister::Rows now = register_.rows();
    for (const std::string& id : touched_) {
        then.erase(id);
        now.erase(id);
    }
    refuse(then == now, "rows of others have changed");
}

ui::Answer RandomClerk::answer(const ui::MessageBox& box) {
    ++outcome_.boxes;
    diary_.write("box [" + box.title + "] " + shown(box.text));
    refuse(!isAscii(box.text), "a box that a clerk cannot read: " + box.text);
    if (box.buttons == ui::Buttons::Ok) return ui::Answer::Ok;
    return chance_.chance(60) ? ui::Answer::Yes : ui::Answer::No;
}

std::string RandomClerk::choose(const ui::FileDialog& /*dialog*/) {
    const std::string& file = chance_.pick(files_);
    diary_.write("chooses " + file);
    return file;
}

} // namespace quillmere::test
