// Writes the interface definition of the server to standard output.

#include "component/idl/InterfaceDefinition.h"

#include <iostream>

int main() {
    std::cout << quillmere::component::interfaceDefinition() << std::flush;
    return std::cout ? 0 : 1;
}
