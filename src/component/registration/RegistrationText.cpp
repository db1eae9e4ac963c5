#include "component/registration/RegistrationText.h"

#include "component/automation/GuidText.h"
#include "platform/Error.h"
#include "platform/text/Text.h"

#include <algorithm>

namespace quillmere::component {

namespace {

constexpr std::string_view firstLine = "quillmere-registration 1";
constexpr std::string_view serverWord = "server ";
constexpr std::string_view classWord = "class ";
constexpr std::size_t guidLength = 36;

[[noreturn]] void refuse() {
    throw Error(Failure::InvalidCall, "组件的注册文件已损坏，请重新注册。", "Quillmere");
}

RegisteredClass parseClass(std::string_view line) {
    // class <id> <program id>
    if (line.size() < guidLength + 2 || line[guidLength] != ' ') refuse();
    const auto id = parseGuid(line.substr(0, guidLength));
    if (!id) refuse();
    return {std::string(line.substr(guidLength + 1)), *id};
}

} // namespace

const RegisteredClass* Registration::find(std::string_view programId) const {
    const auto found = std::ranges::find_if(
        classes, [&](const RegisteredClass& row) { return text::equalsNoCase(row.programId, programId); });
    return found == classes.end() ? nullptr : &*found;
}

std::string registrationText(const Registration& registration) {
    // A path of two lines would read as something else.
    if (registration.server.find('\n') != std::string::npos) throw Error(Failure::PathAccess);
    std::string text = std::string(firstLine) + "\n";
    text += std::string(serverWord) + registration.server + "\n";
    for (const RegisteredClass& row : registration.classes)
        text += std::string(classWord) + guidText(row.classId) + " " + row.programId + "\n";
    return text;
}

Registration parseRegistration(std::string_view text) {
    Registration result;
    // A file that was cut off ends within a line.
    if (!text.ends_with('\n')) refuse();
    const auto lines = text::split(text.substr(0, text.size() - 1), "\n");
    if (lines.size() < 2 || lines[0] != firstLine) refuse();
    if (!lines[1].starts_with(serverWord)) refuse();
    result.server = lines[1].substr(serverWord.size());
    if (!result.server.starts_with('/')) refuse();
    for (std::size_t at = 2; at < lines.size(); ++at) {
        const std::string_view line = lines[at];
        if (!line.starts_with(classWord)) refuse();
        result.classes.push_back(parseClass(line.substr(classWord.size())));
    }
    return result;
}

} // namespace quillmere::component
