#include "copy/Program.h"

#include <exception>
#include <iostream>
#include <unistd.h>

int main(int count, char** arguments) {
    try {
        const std::vector<std::string> words(arguments + (count > 0 ? 1 : 0), arguments + count);
        std::ostream* const terminal = isatty(STDERR_FILENO) == 1 ? &std::cerr : nullptr;
        return static_cast<int>(quillmere::copy::runProgram(words, {std::cout, std::cerr, terminal}));
    } catch (const std::exception& failure) {
        std::cerr << "quillmere-copy：" << failure.what() << '\n';
        return static_cast<int>(quillmere::copy::Status::Failed);
    }
}
