#include "cinterface/Program.h"

#include <array>
#include <cstdio>

#include <sys/wait.h>

namespace quillmere::cinterface {

Ended run(const std::string& command) {
    Ended ended;
    FILE* pipe = popen((command + " 2>&1").c_str(), "r");
    if (pipe == nullptr) return ended;
    std::array<char, 4096> part{};
    for (std::size_t size = 1; size > 0;) {
        size = fread(part.data(), 1, part.size(), pipe);
        ended.output.append(part.data(), size);
    }
    const int status = pclose(pipe);
    ended.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    return ended;
}

} // namespace quillmere::cinterface
