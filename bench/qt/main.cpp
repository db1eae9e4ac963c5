// What the Qt toolkit takes for the work that a clerk waits for: a panel, another panel, a long list, a
// large tree. Prints the times; exits with 1 when what was built is not all there.

#include "QtPanels.h"

#include <cstdio>
#include <exception>

int main() {
    try {
        // Nothing may open on the screen of whoever measures.
        quillmere::bench::measureQtPanels("offscreen");
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "quillmere-bench-qt: %s\n", failure.what());
        return 1;
    }
    return 0;
}
