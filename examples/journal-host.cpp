// A host that keeps what its clerk changes and deletes: the plain host, with a journal around its connection.
//
//     journal-host REGISTER JOURNAL IDENTITY TYPE

#include <quillmere/IUserCtrl.h>
#include <quillmere/Journal.h>
#include <quillmere/Qt.h>
#include <quillmere/Sqlite.h>

#include <cstdlib>
#include <exception>
#include <iostream>

int main(int argc, char** argv) {
    if (argc < 5) {
        std::cerr << "usage: journal-host REGISTER JOURNAL IDENTITY TYPE\n";
        return EXIT_FAILURE;
    }
    try {
        quillmere::JournalOptions options;
        options.file = argv[2];
        options.who = "window 3";
        options.complain = [](const std::string& words) { std::cerr << words << '\n'; };

        const quillmere::qt::Toolkit toolkit;
        quillmere::IUserCtrl entry;
        entry.setConnection(quillmere::journaled(quillmere::openSqlite(argv[1]), options));
        entry.setOperationType(4);
        entry.setPersonID(argv[3]);
        entry.setZZtype(static_cast<std::int16_t>(std::atoi(argv[4])));
        return entry.ShowPersonWh() ? EXIT_SUCCESS : EXIT_FAILURE;
    } catch (const std::exception& failure) {
        std::cerr << failure.what() << '\n';
        return EXIT_FAILURE;
    }
}
