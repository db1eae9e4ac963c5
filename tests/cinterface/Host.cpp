#include "cinterface/Host.h"

#include "adapters/sqlite/SqliteConnection.h"
#include "sample/SampleRegister.h"

#include <stdlib.h>

namespace quillmere::cinterface {

Told told(const void* handle) {
    Told result;
    const char* source = nullptr;
    const char* description = nullptr;
    EXPECT_EQ(QUILLMERE_OK, quillmere_failure(handle, &result.number, &source, &description));
    result.source = source;
    result.description = description;
    return result;
}

RegisterFile::RegisterFile() {
    std::string pattern = std::filesystem::temp_directory_path() / "quillmere-c-XXXXXX";
    folder_ = mkdtemp(pattern.data());
    const auto connection = sqlite::open({.path = path(), .create = true});
    sample::build(*connection, {.persons = 1, .units = 0});
    person_ = connection->query("select A00 from A01").at(0, 0).toTextOrEmpty();
}

RegisterFile::~RegisterFile() { std::filesystem::remove_all(folder_); }

} // namespace quillmere::cinterface
