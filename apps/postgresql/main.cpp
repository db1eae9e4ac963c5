#include "postgresql/Administration.h"

#include <exception>
#include <iostream>
#include <string>
#include <vector>

int main(int count, char** arguments) {
    try {
        const std::vector<std::string> words(arguments + 1, arguments + count);
        return static_cast<int>(quillmere::postgresql::administer(words, std::cout, std::cerr));
    } catch (const std::exception& failure) {
        std::cerr << "quillmere-postgresql: " << failure.what() << '\n';
        return static_cast<int>(quillmere::postgresql::Outcome::Failed);
    }
}
