#include "scenario/Runner.h"

#include <exception>
#include <iostream>

int main(int count, char** arguments) {
    try {
        const std::vector<std::string> words(arguments + 1, arguments + count);
        return static_cast<int>(quillmere::scenario::runProgram(words, std::cout, std::cerr));
    } catch (const std::exception& failure) {
        std::cerr << failure.what() << '\n';
        return static_cast<int>(quillmere::scenario::Status::Stopped);
    }
}
