// Prints how much room the classes of the public headers take in a host, and how they are told apart.

#include <quillmere/Connection.h>
#include <quillmere/Error.h>
#include <quillmere/IUserCtrl.h>
#include <quillmere/Journal.h>
#include <quillmere/Qt.h>

#include <cstddef>
#include <cstring>
#include <iostream>

namespace {

template <class Class>
void tell(const char* name) {
    std::cout << name << " size " << sizeof(Class) << " alignment " << alignof(Class) << '\n';
}

/// The place of a virtual function among those of its class: a pointer to one holds 1 and its distance from
/// the first.
template <class Function>
void tellPlace(const char* name, Function function) {
    std::ptrdiff_t words[2];
    static_assert(sizeof function == sizeof words);
    std::memcpy(words, &function, sizeof words);
    std::cout << name << " is entry " << (words[0] - 1) / static_cast<std::ptrdiff_t>(sizeof(void*)) << '\n';
}

} // namespace

int main() {
    tell<quillmere::IUserCtrl>("quillmere::IUserCtrl");
    tell<quillmere::Error>("quillmere::Error");
    tell<quillmere::data::Connection>("quillmere::data::Connection");
    tell<quillmere::data::RowSet>("quillmere::data::RowSet");
    tell<quillmere::data::Value>("quillmere::data::Value");
    tell<quillmere::JournalOptions>("quillmere::JournalOptions");
    tell<quillmere::qt::Toolkit>("quillmere::qt::Toolkit");
    tell<quillmere::qt::ToolkitOptions>("quillmere::qt::ToolkitOptions");
    tellPlace("quillmere::data::Connection::query", &quillmere::data::Connection::query);
    tellPlace("quillmere::data::Connection::execute", &quillmere::data::Connection::execute);
    tellPlace("quillmere::data::Connection::isOpen", &quillmere::data::Connection::isOpen);
    tellPlace("quillmere::data::Connection::close", &quillmere::data::Connection::close);
}
