#include "panels/frmC04.h"

#include "binding/KeyFilter.h"
#include "metadata/Globals.h"
#include "panels/FrameInUse.h"
#include "panels/frmC04Checks.h"
#include "panels/frmC04Statements.h"
#include "platform/data/Connection.h"
#include "platform/ui/CommandButton.h"
#include "platform/ui/Label.h"
#include "platform/ui/MaskEdBox.h"
#include "platform/ui/TextBox.h"

#include <algorithm>

namespace quillmere {

namespace {

constexpr ui::Rect dialogSize{0, 0, 6900, 3000};
constexpr ui::Rect frameSize{0, 120, 6420, 2760};
constexpr int frameInUseLeft = 240;
constexpr int betweenFrames = 6660;

} // namespace

frmC04::frmC04() : Form("frmC04", "") {
    int left = frameInUseLeft;
    for (const RowFrameRow& row : rowFrames()) {
        build(row, left);
        left += betweenFrames;
    }
}

frmC04& frmC04::defaultInstance() {
    static frmC04 shared;
    return shared;
}

void frmC04::build(const RowFrameRow& row, int left) {
    auto& box = add<ui::Frame>(std::string(row.frame));
    box.setGeometry({left, frameSize.top, frameSize.width, frameSize.height});
    for (const RowInputRow& inputRow : row.inputs)
        buildInput(inputRow, box);
    auto& saving = add<ui::CommandButton>(std::string(row.saveButton), "保存(&S)");
    auto& leaving = add<ui::CommandButton>(std::string(row.cancelButton), "取消(&C)");
    saving.setContainer(&box);
    leaving.setContainer(&box);
    saving.Click.connect([this, &row] { save(row); });
    leaving.Click.connect([this] { unload(); });
}

void frmC04::buildInput(const RowInputRow& row, ui::Frame& frame) {
    const std::string name(row.name);
    add<ui::Label>("lbl" + name, std::string(row.caption)).setContainer(&frame);
    if (row.kind == RowInput::Month || row.kind == RowInput::Year) {
        const bool month = row.kind == RowInput::Month;
        auto& box = add<ui::MaskEdBox>(name, month ? "####年##月" : "####", month ? "yyyy年mm月" : "####");
        box.setContainer(&frame);
        box.GotFocus.connect([&box] { box.setSelStart(0); });
        return;
    }
    auto& box = add<ui::TextBox>(name);
    box.setContainer(&frame);
    box.setMultiLine(row.kind == RowInput::LongText);
    if (row.kind != RowInput::Amount) return;
    install(KeyFilter::Decimal, box);
    box.setAlignment(ui::Alignment::Right);
    add<ui::Label>("lblUnit" + name, "万元").setContainer(&frame);
}

void frmC04::setInput(std::string_view name, std::string text) {
    ui::Control& box = input(name);
    if (auto* masked = dynamic_cast<ui::MaskEdBox*>(&box); masked != nullptr) {
        masked->setText(std::move(text));
    } else if (auto* plain = dynamic_cast<ui::TextBox*>(&box); plain != nullptr) {
        plain->setText(std::move(text));
    }
}

void frmC04::emptyInputs() {
    for (const auto& control : Controls()) {
        if (auto* masked = dynamic_cast<ui::MaskEdBox*>(control.get()); masked != nullptr) {
            masked->setText(masked->emptyText());
        } else if (auto* plain = dynamic_cast<ui::TextBox*>(control.get()); plain != nullptr) {
            plain->setText({});
        }
    }
}

ui::Frame& frmC04::frame(const RowFrameRow& row) const { return static_cast<ui::Frame&>(*find(row.frame)); }

ui::Control& frmC04::input(std::string_view name) const {
    ui::Control* control = find(name);
    if (control == nullptr) throw Error(Failure::ItemNotFound);
    return *control;
}

std::string frmC04::text(std::string_view inputName) const {
    return input(inputName).property("Text").value_or("");
}

void frmC04::onLoad() {
    emptyInputs();
    setGeometry(dialogSize);
    setCaption(FormCaption);
    const auto frames = rowFrames();
    const bool known = std::ranges::find(frames, FrameNo, &RowFrameRow::number) != frames.end();
    int designed = frameInUseLeft;
    for (const RowFrameRow& row : frames) {
        const int chosen = row.number == FrameNo ? frameInUseLeft : offScreen;
        moveFrame(frame(row), known ? chosen : designed);
        designed += betweenFrames;
    }
}

void frmC04::onActivate() {
    for (const RowFrameRow& row : rowFrames()) {
        if (row.number == FrameNo) input(row.inputs.front().name).SetFocus();
    }
}

void frmC04::save(const RowFrameRow& row) {
    bool passed = false;
    const bool wrote = reporting(row.failure, [&] {
        passed = passesChecks(row);
        if (passed) write(row);
    });
    if (passed && wrote) unload();
}

bool frmC04::passesChecks(const RowFrameRow& row) const {
    for (const RowCheckRow& check : row.checks) {
        if (!hasFault(text(check.input), check.fault)) continue;
        ui::desktop().msgBox({.text = std::string(check.message),
                              .title = "注意",
                              .buttons = ui::Buttons::Ok,
                              .icon = check.icon});
        input(check.focus).SetFocus();
        return false;
    }
    return true;
}

void frmC04::write(const RowFrameRow& row) const {
    const RowTexts texts = [this](std::string_view name) { return text(name); };
    if (EditMode == adding) {
        gConn().execute(insertStatement(row, KeyA00, texts, nextSequence(row)));
    } else if (EditMode == modifying) {
        gConn().execute(updateStatement(row, KeyA00, texts, this->*row.changed));
    }
}

} // namespace quillmere
