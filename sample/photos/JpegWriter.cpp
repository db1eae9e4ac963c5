#include "sample/photos/JpegWriter.h"

#include "platform/Error.h"

#include <csetjmp>
#include <cstdio>
#include <cstdlib>
#include <memory>

// The header wants FILE and size_t to be there.
#include <jpeglib.h>

namespace quillmere::sample {
namespace {

/// The library's errors, which by themselves would end the program. No exception may cross its frames, so
/// an error jumps back to where the compression began.
struct ErrorManager {
    jpeg_error_mgr common{};
    std::jmp_buf back{};
};

void jumpBack(j_common_ptr compressor) {
    auto* manager = reinterpret_cast<ErrorManager*>(compressor->err);
    std::longjmp(manager->back, 1); // NOLINT(cert-err52-cpp): see above
}

void say(j_common_ptr, int) {}

/// Compresses into `bytes`, which the caller frees. False on an error. Nothing in it has a destructor, since
/// the jump runs none.
bool compress(const Picture& picture, int quality, unsigned char** bytes, unsigned long* size) {
    jpeg_compress_struct compressor{};
    ErrorManager manager;
    compressor.err = jpeg_std_error(&manager.common);
    manager.common.error_exit = jumpBack;
    manager.common.emit_message = say;
    if (setjmp(manager.back) != 0) { // NOLINT(cert-err52-cpp): see above
        jpeg_destroy_compress(&compressor);
        return false;
    }
    jpeg_create_compress(&compressor);
    jpeg_mem_dest(&compressor, bytes, size);
    compressor.image_width = static_cast<JDIMENSION>(picture.width());
    compressor.image_height = static_cast<JDIMENSION>(picture.height());
    compressor.input_components = 3;
    compressor.in_color_space = JCS_RGB;
    jpeg_set_defaults(&compressor);
    jpeg_set_quality(&compressor, quality, TRUE);
    jpeg_start_compress(&compressor, TRUE);
    const std::size_t rowLength = static_cast<std::size_t>(picture.width()) * 3;
    while (compressor.next_scanline < compressor.image_height) {
        // The library only reads the row, but takes it as one that it may write.
        auto* row = const_cast<JSAMPROW>(picture.bytes().data() + compressor.next_scanline * rowLength);
        jpeg_write_scanlines(&compressor, &row, 1);
    }
    jpeg_finish_compress(&compressor);
    jpeg_destroy_compress(&compressor);
    return true;
}

} // namespace

std::string jpegOf(const Picture& picture, int quality) {
    unsigned char* bytes = nullptr;
    unsigned long size = 0;
    const bool done = compress(picture, quality, &bytes, &size);
    const std::unique_ptr<unsigned char, void (*)(void*)> kept(bytes, std::free);
    if (!done) throw Error(Failure::Unspecified, "不能生成JPEG图像", "quillmere-sample");
    return {bytes, bytes + size};
}

} // namespace quillmere::sample
