#pragma once

#include <quillmere.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>
#include <string>

namespace quillmere::cinterface {

struct Told {
    std::int32_t number = 0;
    std::string source;
    std::string description;
};

/// What the library tells of the last call on the handle; null for calls without one.
Told told(const void* handle);

/// A sample register in a file of its own; the file goes with the object.
class RegisterFile {
public:
    RegisterFile();
    ~RegisterFile();
    RegisterFile(const RegisterFile&) = delete;
    RegisterFile& operator=(const RegisterFile&) = delete;

    [[nodiscard]] std::string path() const { return folder_ / "人才.db"; }
    [[nodiscard]] std::string folder() const { return folder_; }
    /// The first person of the register.
    [[nodiscard]] const std::string& person() const { return person_; }

private:
    std::filesystem::path folder_;
    std::string person_;
};

/// An entry object for each test, and nothing else: no register, no application.
class EntryTest : public testing::Test {
protected:
    EntryTest() { EXPECT_EQ(QUILLMERE_OK, quillmere_create(&entry)); }
    ~EntryTest() override {
        quillmere_release(entry);
        EXPECT_EQ(QUILLMERE_OK, quillmere_shutdown());
    }
    EntryTest(const EntryTest&) = delete;
    EntryTest& operator=(const EntryTest&) = delete;

    quillmere_entry* entry = nullptr;
};

/// With a register that the entry works on: everything there is of the first person.
class RegisterTest : public EntryTest {
protected:
    RegisterTest() {
        EXPECT_EQ(QUILLMERE_OK, quillmere_open(file.path().c_str(), &database));
        prepare(entry);
    }
    ~RegisterTest() override { quillmere_close(database); }
    RegisterTest(const RegisterTest&) = delete;
    RegisterTest& operator=(const RegisterTest&) = delete;

    void prepare(quillmere_entry* each) const {
        EXPECT_EQ(QUILLMERE_OK, quillmere_set_Connection(each, database));
        EXPECT_EQ(QUILLMERE_OK, quillmere_set_OperationType(each, 4));
        EXPECT_EQ(QUILLMERE_OK, quillmere_set_ZZtype(each, 1));
        EXPECT_EQ(QUILLMERE_OK, quillmere_set_personID(each, file.person().c_str()));
    }

    RegisterFile file;
    quillmere_database* database = nullptr;
};

} // namespace quillmere::cinterface
