#include "cinterface/DeclaredFunctions.h"
#include "cinterface/Host.h"

#include <algorithm>
#include <array>
#include <vector>

namespace quillmere::cinterface {
namespace {

/// A function with arguments that are good but for the first, the handle.
struct Row {
    const char* function;
    quillmere_status (*call)(void* handle);
};

quillmere_entry* asEntry(void* handle) { return static_cast<quillmere_entry*>(handle); }

template <quillmere_status (*set)(quillmere_entry*, std::int64_t)>
quillmere_status setNumber(void* handle) {
    return set(asEntry(handle), 1);
}

template <quillmere_status (*get)(quillmere_entry*, std::int16_t*)>
quillmere_status getNumber(void* handle) {
    std::int16_t value = 0;
    return get(asEntry(handle), &value);
}

template <quillmere_status (*set)(quillmere_entry*, const char*)>
quillmere_status setText(void* handle) {
    return set(asEntry(handle), "");
}

template <quillmere_status (*get)(quillmere_entry*, const char**)>
quillmere_status getText(void* handle) {
    const char* value = nullptr;
    return get(asEntry(handle), &value);
}

quillmere_status setConnection(void* handle) { return quillmere_set_Connection(asEntry(handle), nullptr); }

quillmere_status getConnection(void* handle) {
    quillmere_database* database = nullptr;
    return quillmere_get_Connection(asEntry(handle), &database);
}

quillmere_status show(void* handle) {
    std::int32_t saved = 0;
    return quillmere_show(asEntry(handle), &saved);
}

const std::vector<Row> entryRows{
    {"quillmere_release", [](void* handle) { return quillmere_release(asEntry(handle)); }},
    {"quillmere_set_Connection", setConnection},
    {"quillmere_get_Connection", getConnection},
    {"quillmere_set_OperationType", setNumber<quillmere_set_OperationType>},
    {"quillmere_get_OperationType", getNumber<quillmere_get_OperationType>},
    {"quillmere_set_ZZtype", setNumber<quillmere_set_ZZtype>},
    {"quillmere_get_ZZtype", getNumber<quillmere_get_ZZtype>},
    {"quillmere_set_PersonType", setNumber<quillmere_set_PersonType>},
    {"quillmere_get_PersonType", getNumber<quillmere_get_PersonType>},
    {"quillmere_set_PhotoPath", setText<quillmere_set_PhotoPath>},
    {"quillmere_get_PhotoPath", getText<quillmere_get_PhotoPath>},
    {"quillmere_set_personID", setText<quillmere_set_personID>},
    {"quillmere_get_personID", getText<quillmere_get_personID>},
    {"quillmere_set_UnitCode", setText<quillmere_set_UnitCode>},
    {"quillmere_get_UnitCode", getText<quillmere_get_UnitCode>},
    {"quillmere_set_SkinPath", setText<quillmere_set_SkinPath>},
    {"quillmere_get_SkinPath", getText<quillmere_get_SkinPath>},
    {"quillmere_show", show},
};

const Row databaseRow{"quillmere_close",
                      [](void* handle) { return quillmere_close(static_cast<quillmere_database*>(handle)); }};

void* released() {
    quillmere_entry* entry = nullptr;
    EXPECT_EQ(QUILLMERE_OK, quillmere_create(&entry));
    EXPECT_EQ(QUILLMERE_OK, quillmere_release(entry));
    return entry;
}

void expectRefused(const Row& row, void* handle) {
    EXPECT_EQ(QUILLMERE_WRONG_HANDLE, row.call(handle)) << row.function;
    const Told failure = told(nullptr);
    EXPECT_EQ(QUILLMERE_WRONG_HANDLE, failure.number) << row.function;
    EXPECT_EQ("Quillmere", failure.source) << row.function;
    EXPECT_NE("", failure.description) << row.function;
}

TEST(WrongHandle, IsRefusedByEveryFunctionOfAnEntry) {
    const RegisterFile file;
    quillmere_database* database = nullptr;
    ASSERT_EQ(QUILLMERE_OK, quillmere_open(file.path().c_str(), &database));
    int stray = 0;
    const std::array<void*, 4> wrong{nullptr, released(), database, &stray};
    for (const Row& row : entryRows)
        for (void* handle : wrong)
            expectRefused(row, handle);
    EXPECT_EQ(QUILLMERE_OK, quillmere_close(database));
}

TEST(WrongHandle, IsRefusedByTheFunctionOfADatabase) {
    quillmere_entry* entry = nullptr;
    ASSERT_EQ(QUILLMERE_OK, quillmere_create(&entry));
    int stray = 0;
    for (void* handle : std::array<void*, 4>{nullptr, released(), entry, &stray})
        expectRefused(databaseRow, handle);
    EXPECT_EQ(QUILLMERE_OK, quillmere_release(entry));
}

TEST(WrongHandle, HasARowForEveryFunctionWithAHandle) {
    std::vector<std::string> tried{databaseRow.function};
    for (const Row& row : entryRows)
        tried.emplace_back(row.function);
    std::sort(tried.begin(), tried.end());
    EXPECT_EQ(functionsBeginningWith({"quillmere_entry* entry", "quillmere_database* database"}), tried);
}

TEST(WrongHandle, IsToldByTheStatusWhenItsFailureIsAskedFor) {
    quillmere_database* none = nullptr;
    ASSERT_EQ(QUILLMERE_INVALID_CALL, quillmere_open(nullptr, &none));
    std::int32_t number = -1;
    EXPECT_EQ(QUILLMERE_WRONG_HANDLE, quillmere_failure(released(), &number, nullptr, nullptr));
    EXPECT_EQ(-1, number);
}

TEST(WrongHandle, OfSomethingReleasedNeverComesBack) {
    const void* old = released();
    for (int i = 0; i < 1000; ++i)
        EXPECT_NE(old, released());
}

} // namespace
} // namespace quillmere::cinterface
