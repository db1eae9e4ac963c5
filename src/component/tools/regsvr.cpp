// Registers a server for this user, or takes its registration back.
//
//     quillmere-regsvr [-u] SERVER

#include "component/loader/LoadedServer.h"

#include <cstdlib>
#include <exception>
#include <filesystem>
#include <iostream>
#include <string_view>

int main(int argc, char** argv) {
    const bool remove = argc == 3 && std::string_view(argv[1]) == "-u";
    if (argc != 2 && !remove) {
        std::cerr << "usage: quillmere-regsvr [-u] SERVER\n";
        return 2;
    }
    try {
        const quillmere::component::LoadedServer server(std::filesystem::absolute(argv[argc - 1]).string());
        if (remove)
            server.unregisterServer();
        else
            server.registerServer();
        return EXIT_SUCCESS;
    } catch (const std::exception& failure) {
        std::cerr << failure.what() << '\n';
        return EXIT_FAILURE;
    }
}
