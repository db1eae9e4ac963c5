#include "support/PhotoFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iterator>

namespace quillmere::test {

namespace fs = std::filesystem;

std::string jpegOf(std::size_t size) {
    using namespace std::string_view_literals;
    constexpr std::size_t factors = 64;
    std::string picture("\xFF\xD8\xFF\xDB\x00\x43\x00"sv);
    picture += std::string(factors, '\x01');
    picture += "\xFF\xC0\x00\x0B\x08\x00\x08\x00\x08\x01\x01\x11\x00"
               "\xFF\xC4\x00\x14\x00\x01\x00\x00\x00\x00\x00\x00\x00\x00\x00\x00\x00\x00\x00\x00\x00\x00"
               "\xFF\xC4\x00\x14\x10\x01\x00\x00\x00\x00\x00\x00\x00\x00\x00\x00\x00\x00\x00\x00\x00\x00"
               "\xFF\xDA\x00\x08\x01\x01\x00\x00\x3F\x00\x3F\xFF\xD9"sv;
    picture.resize(std::max(picture.size(), size), '.');
    return picture;
}

PhotoFolder::PhotoFolder() {
    const auto* test = testing::UnitTest::GetInstance()->current_test_info();
    std::string name = "quillmere-" + std::string(test->test_suite_name()) + "-" + test->name();
    std::ranges::replace(name, '/', '-');
    folder_ = fs::path(testing::TempDir()) / name;
    fs::remove_all(folder_);
    fs::create_directories(folder_);
}

PhotoFolder::~PhotoFolder() {
    std::error_code ignored;
    fs::permissions(folder_, fs::perms::owner_all, ignored);
    fs::remove_all(folder_, ignored);
}

std::string PhotoFolder::write(std::string_view file, std::string_view content) const {
    std::ofstream(folder_ / file, std::ios::binary) << content;
    return (folder_ / file).string();
}

bool PhotoFolder::has(std::string_view file) const { return fs::exists(folder_ / file); }

std::string PhotoFolder::content(std::string_view file) const {
    std::ifstream stream(folder_ / file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

} // namespace quillmere::test
