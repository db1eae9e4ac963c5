// A host that knows the component by its names alone, as a script of the platform does: creates the entry
// object by program id, opens its connection, and maintains one record.
//
//     name-host REGISTER IDENTITY TYPE [OPERATION]

#include "component/automation/Calls.h"
#include "component/automation/Conversions.h"
#include "component/loader/CreateObject.h"

#include <quillmere/Error.h>

#include <cstdlib>
#include <exception>
#include <iostream>
#include <string>

using namespace quillmere::component;

namespace {

bool maintain(int argc, char** argv) {
    const auto host = createObject("Quillmere.IUserCtrl");
    const auto connection = objectOf(call(*host.get(), "Connection"));
    put(*connection.get(), "ConnectionString", Variant::of(argv[1]));
    call(*connection.get(), "Open");
    put(*host.get(), "personID", Variant::of(argv[2]));
    put(*host.get(), "ZZtype", Variant::of(argv[3])); // a text, made a number on its way
    put(*host.get(), "OperationType", argc > 4 ? Variant::of(argv[4]) : Variant::of(std::int16_t{4}));
    const bool saved = toBoolean(call(*host.get(), "ShowPersonWh").get());
    call(*connection.get(), "Close");
    return saved;
}

} // namespace

int main(int argc, char** argv) {
    if (argc < 4) {
        std::cerr << "usage: name-host REGISTER IDENTITY TYPE [OPERATION]\n";
        return 2;
    }
    try {
        std::cout << (maintain(argc, argv) ? "saved\n" : "nothing saved\n");
        return EXIT_SUCCESS;
    } catch (const quillmere::Error& failure) {
        std::cerr << failure.number() << " " << failure.source() << ": " << failure.description() << '\n';
        return EXIT_FAILURE;
    } catch (const std::exception& failure) {
        std::cerr << failure.what() << '\n';
        return EXIT_FAILURE;
    }
}
