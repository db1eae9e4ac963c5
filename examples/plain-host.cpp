// A host without a window of its own: opens a register and maintains one record.
//
//     plain-host REGISTER IDENTITY TYPE [PHOTO-FOLDER]

#include <quillmere/IUserCtrl.h>
#include <quillmere/Qt.h>
#include <quillmere/Sqlite.h>

#include <cstdlib>
#include <exception>
#include <iostream>

int main(int argc, char** argv) {
    if (argc < 4) {
        std::cerr << "usage: plain-host REGISTER IDENTITY TYPE [PHOTO-FOLDER]\n";
        return EXIT_FAILURE;
    }
    try {
        const quillmere::qt::Toolkit toolkit; // makes the application, since the process has none
        quillmere::IUserCtrl entry;
        entry.setConnection(quillmere::openSqlite(argv[1]));
        entry.setOperationType(4); // maintain everything there is
        entry.setPersonID(argv[2]);
        entry.setZZtype(static_cast<std::int16_t>(std::atoi(argv[3])));
        if (argc > 4) entry.setPhotoPath(argv[4]);
        const bool saved = entry.ShowPersonWh(); // blocks until the window is closed
        std::cout << (saved ? "saved\n" : "nothing saved\n");
        return EXIT_SUCCESS;
    } catch (const std::exception& failure) {
        // A register that is missing, a broken connection, a faulty catalogue: told in Chinese.
        std::cerr << failure.what() << '\n';
        return EXIT_FAILURE;
    }
}
