#include "scenario/Transcript.h"

#include "platform/text/Text.h"

namespace quillmere::scenario {

void Transcript::line(std::string_view text) {
    if (silent_) return;
    out_ << text::replaceAll(text::replaceAll(text, "\r", "\\r"), "\n", "\\n") << '\n';
}

} // namespace quillmere::scenario
