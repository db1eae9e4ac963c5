#include "journal/Program.h"

#include <exception>
#include <iostream>

int main(int count, char** arguments) {
    try {
        const std::vector<std::string> words(arguments + (count > 0 ? 1 : 0), arguments + count);
        return static_cast<int>(quillmere::recovery::runProgram(words, std::cout, std::cerr));
    } catch (const std::exception& failure) {
        std::cerr << "quillmere-journal：" << failure.what() << '\n';
        return static_cast<int>(quillmere::recovery::Status::Failed);
    }
}
