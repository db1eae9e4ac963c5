#include "support/Typing.h"

#include "platform/text/Text.h"

namespace quillmere::test {

void typeText(ui::Form& form, std::string_view text) {
    for (const char32_t character : text::decode(text))
        form.typeCharacter(character);
}

} // namespace quillmere::test
