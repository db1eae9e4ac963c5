// The file that tells hosts where the in-process server is.

#include "support/Fuzzing.h"

#include "component/automation/GuidText.h"
#include "component/registration/RegistrationText.h"
#include "platform/text/Text.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    namespace fuzz = quillmere::fuzz;
    using namespace quillmere::component;
    using fuzz::hold;
    const std::string text = fuzz::Input(data, size).rest();

    if (const auto id = parseGuid(text))
        hold(quillmere::text::upper(text) == guidText(*id), "an id is written as it was read");

    Registration read;
    if (const auto failure = fuzz::failureOf([&] { read = parseRegistration(text); })) {
        hold(failure == quillmere::Failure::InvalidCall, "a file is readable or refused");
        return 0;
    }
    hold(read.server.starts_with('/') && read.server.find('\n') == std::string::npos,
         "a server is an absolute path");
    const Registration again = parseRegistration(registrationText(read));
    hold(again.server == read.server && again.classes.size() == read.classes.size(),
         "what was read is read again");
    for (std::size_t i = 0; i < read.classes.size(); ++i) {
        const RegisteredClass& row = read.classes[i];
        hold(again.classes[i].programId == row.programId &&
                 guidText(again.classes[i].classId) == guidText(row.classId),
             "class by class");
        hold(read.find(row.programId) != nullptr, "a class is found by its name");
    }
    return 0;
}
