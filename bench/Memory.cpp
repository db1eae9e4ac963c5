#include "Memory.h"

#include <fstream>
#include <string>

namespace quillmere::bench {

Memory memoryNow() {
    Memory memory;
    std::ifstream status("/proc/self/status");
    for (std::string word; status >> word;) {
        if (word == "VmRSS:") status >> memory.resident;
        if (word == "VmHWM:") status >> memory.peak;
    }
    return memory;
}

} // namespace quillmere::bench
