#pragma once

#include "panels/frmC04Frames.h"
#include "platform/ui/Form.h"
#include "platform/ui/Frame.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace quillmere {

/// The row editor of schedules and budgets: four frames, of which it shows the one for the row at
/// hand. It writes straight to the database and tells its caller nothing; the caller sets the public
/// members, loads it, fills the inputs for a row under change, shows it modally and reads its own rows
/// anew.
class frmC04 : public ui::Form {
public:
    frmC04();

    /// The one editor that all panels share.
    [[nodiscard]] static frmC04& defaultInstance();

    static constexpr std::int16_t adding = 1;
    static constexpr std::int16_t modifying = 2;

    std::string KeyA00;
    /// Anything else than adding or modifying writes nothing.
    std::int16_t EditMode = 0;
    /// Number of the row under change, of frame 1, of frames 2 and 3, and of frame 4.
    std::string SeqC0499;
    std::string SeqP0399;
    std::string SeqP0299;
    /// Both take effect when the form is loaded.
    std::string FormCaption;
    std::string FrameNo;

    /// Fills an input, on the loaded form. Raises ItemNotFound.
    void setInput(std::string_view name, std::string text);

protected:
    /// Every load begins with the size and the frames as they were designed, and with empty inputs.
    void onLoad() override;
    void onActivate() override;

private:
    void build(const RowFrameRow& row, int left);
    void buildInput(const RowInputRow& row, ui::Frame& frame);
    void emptyInputs();
    [[nodiscard]] ui::Frame& frame(const RowFrameRow& row) const;
    [[nodiscard]] ui::Control& input(std::string_view name) const;
    [[nodiscard]] std::string text(std::string_view inputName) const;

    /// Checks, writes and closes; stays open when a check refuses or the writing fails.
    void save(const RowFrameRow& row);
    /// Tells of the first check that refuses and puts the focus where it belongs. True when none does.
    [[nodiscard]] bool passesChecks(const RowFrameRow& row) const;
    void write(const RowFrameRow& row) const;
};

} // namespace quillmere
