#include "Calling.h"
#include "ServerFolder.h"

#include "component/loader/CreateObject.h"
#include "component/loader/LoadedServer.h"
#include "component/server/ServerClasses.h"

#include <gtest/gtest.h>

#include <dlfcn.h>
#include <malloc.h>

#include <algorithm>
#include <cctype>
#include <fstream>
#include <sstream>

// The server as a file: what it exports, how it is loaded and unloaded, and how it answers.

namespace quillmere::component::test {
namespace {

bool isMapped(std::string_view name) {
    std::ifstream maps("/proc/self/maps");
    for (std::string line; std::getline(maps, line);) {
        if (line.find(name) != std::string::npos) return true;
    }
    return false;
}

std::vector<std::string> exportsOf(const std::string& file) {
    const Outcome nm = run(std::string(NM) + " -D --defined-only '" + file + "'");
    EXPECT_EQ(nm.code, 0) << nm.output;
    std::vector<std::string> names;
    std::istringstream lines(nm.output);
    for (std::string line; std::getline(lines, line);)
        names.push_back(line.substr(line.rfind(' ') + 1));
    std::ranges::sort(names);
    return names;
}

TEST(Server, ExportsTheFourOfAnInProcessServerAndNothingElse) {
    EXPECT_EQ(exportsOf(SERVER), (std::vector<std::string>{"DllCanUnloadNow", "DllGetClassObject",
                                                           "DllRegisterServer", "DllUnregisterServer"}));
}

TEST(Server, GivesAFactoryForItsClassesAlone) {
    void* module = dlopen(SERVER, RTLD_NOW | RTLD_LOCAL);
    ASSERT_NE(module, nullptr) << dlerror();
    using GetClassObject = HRESULT (*)(REFCLSID, REFIID, void**);
    const auto get = reinterpret_cast<GetClassObject>(dlsym(module, "DllGetClassObject"));
    const auto canUnload = reinterpret_cast<HRESULT (*)()>(dlsym(module, "DllCanUnloadNow"));
    ASSERT_NE(get, nullptr);
    ASSERT_NE(canUnload, nullptr);

    const CLSID entry = classIdOf(serverClasses()[0]);
    void* object = module;
    EXPECT_EQ(get(GUID{}, IID_IClassFactory, &object), CLASS_E_CLASSNOTAVAILABLE);
    EXPECT_EQ(object, nullptr);
    EXPECT_EQ(get(entry, IID_IDispatch, &object), E_NOINTERFACE);
    EXPECT_EQ(get(entry, IID_IClassFactory, nullptr), E_POINTER);
    EXPECT_EQ(canUnload(), S_OK);
    {
        ComPtr<IClassFactory> factory;
        EXPECT_EQ(get(entry, IID_IClassFactory, factory.putVoid()), S_OK);
        EXPECT_EQ(canUnload(), S_FALSE) << "a factory lives";
        ComPtr<IDispatch> object2;
        EXPECT_EQ(factory->CreateInstance(nullptr, IID_IDispatch, object2.putVoid()), S_OK);
        factory->LockServer(1);
        factory = {};
        EXPECT_EQ(canUnload(), S_FALSE) << "an object lives";
        EXPECT_EQ(get(entry, IID_IClassFactory, factory.putVoid()), S_OK);
        object2 = {};
        factory->LockServer(0);
    }
    EXPECT_EQ(canUnload(), S_OK);
    dlclose(module);
}

/// Loads the server, works with an object of each kind, and unloads it.
void useOnce(const std::string& database) {
    {
        const auto host = createObject("quillmere.iuserctrl");
        put(*host.get(), "personID", Variant::of("甲"));
        const auto connection = objectOf(call(*host.get(), "Connection"));
        call(*connection.get(), "Open", list(Variant::of(std::string_view(database))));
        const auto rows = objectOf(call(*connection.get(), "Execute", list(Variant::of("select 1 as one"))));
        EXPECT_FALSE(toBoolean(call(*rows.get(), "EOF").get()));
        EXPECT_EQ(invokeName(*host.get(), "ShowPersonWh", DISPATCH_METHOD).code, DISP_E_EXCEPTION);
        const auto panel = createObject("QUILLMERE.A1CTRLUSERP03");
        EXPECT_EQ(toText(call(*panel.get(), "Name").get()), "A1ctrlUserP03");
    }
    freeUnusedServers();
}

TEST(Server, IsLoadedAndUnloadedAHundredTimesWithoutGrowth) {
    const ServerFolder folder;
    const std::string database = (folder.home().path() / "register.db").string();
    makeLeastRegister(database)->close();
    const auto inUse = [] { return mallinfo2().uordblks; };
    std::size_t early = 0;
    for (int time = 1; time <= 100; ++time) {
        useOnce(database);
        ASSERT_FALSE(isMapped("quillmere-server.so")) << time;
        if (time == 10) early = inUse();
    }
#ifndef QUILLMERE_SANITIZED // the sanitizer keeps its own heap, and looks for leaks itself
    EXPECT_LE(inUse(), early + 4096);
#else
    (void)early;
#endif
}

TEST(Server, StaysWhileAnObjectOfItLives) {
    const ServerFolder folder;
    auto host = createObject("Quillmere.IUserCtrl");
    freeUnusedServers();
    EXPECT_TRUE(isMapped("quillmere-server.so"));
    put(*host.get(), "UnitCode", Variant::of("01"));
    EXPECT_EQ(toText(call(*host.get(), "UnitCode").get()), "01");
    host = {};
    freeUnusedServers();
    EXPECT_FALSE(isMapped("quillmere-server.so"));
}

TEST(Server, CreatesEachOfItsClassesByProgramId) {
    const ServerFolder folder;
    for (const ServerClass& row : serverClasses()) {
        std::string programId = programIdOf(row);
        std::ranges::transform(programId, programId.begin(),
                               [](unsigned char letter) { return static_cast<char>(std::toupper(letter)); });
        EXPECT_TRUE(createObject(programId)) << programId;
    }
    freeUnusedServers();
}

} // namespace
} // namespace quillmere::component::test
