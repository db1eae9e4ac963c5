// The structure of a photo file, over any bytes.

#include "support/Fuzzing.h"

#include "platform/ui/Jpeg.h"
#include "scenario/Jpeg.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using quillmere::fuzz::hold;
    using quillmere::ui::isJpeg;
    const std::string content = quillmere::fuzz::Input(data, size).rest();
    const bool passes = isJpeg(content);
    hold(!passes || (content.size() > 8 && content.starts_with("\xFF\xD8")), "a JPEG begins with its marker");
    // From the start of the scan on nothing is looked at.
    hold(!passes || isJpeg(content + "\xFF\xD8"), "what stands behind does not matter");
    for (std::size_t cut = 0; !passes && cut < content.size() && cut < 64; ++cut)
        hold(!isJpeg(content.substr(0, cut)), "a file that is none is none when it breaks off");

    const auto made = quillmere::scenario::makeJpeg(size);
    hold(made.has_value() == (size >= 141), "a picture needs 141 bytes");
    hold(!made || (made->size() == size && isJpeg(*made)), "a picture that is made passes");
    return 0;
}
