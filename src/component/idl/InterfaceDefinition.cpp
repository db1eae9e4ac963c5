#include "component/idl/InterfaceDefinition.h"

#include "component/automation/GuidText.h"
#include "component/idl/Interfaces.h"
#include "component/server/ServerClasses.h"

namespace quillmere::component {

namespace {

std::string_view typeName(Type type) {
    switch (type) {
    case Type::Integer16:
        return "short";
    case Type::Integer32:
        return "long";
    case Type::Boolean:
        return "VARIANT_BOOL";
    case Type::Text:
        return "BSTR";
    case Type::Object:
        return "IDispatch*";
    case Type::Any:
        return "VARIANT";
    case Type::Nothing:
        break;
    }
    return "void";
}

std::string attributes(const Member& member) {
    std::string text = "[id(" + std::to_string(member.id) + ")";
    if (member.access == Access::Get) text += ", propget";
    if (member.access == Access::Put) text += ", propput";
    if (member.access == Access::PutRef) text += ", propputref";
    return text + "] ";
}

std::string parameterText(const Parameter& parameter) {
    // Only a VARIANT can say that it was left out.
    const Type type = parameter.optional ? Type::Any : parameter.type;
    return std::string(parameter.optional ? "[in, optional] " : "[in] ") + std::string(typeName(type)) + " " +
           std::string(parameter.name);
}

bool gives(const Member& member) {
    return member.type != Type::Nothing && (member.access == Access::Get || member.access == Access::Method);
}

std::string dualMember(const Member& member) {
    std::string parameters;
    if (member.parameter.type != Type::Nothing) parameters = parameterText(member.parameter);
    if (gives(member)) {
        if (!parameters.empty()) parameters += ", ";
        parameters += "[out, retval] " + std::string(typeName(member.type)) + "* result";
    }
    return attributes(member) + "HRESULT " + std::string(member.name) + "(" + parameters + ");";
}

std::string lateBoundMember(const Member& member) {
    const std::string_view result = typeName(gives(member) ? member.type : Type::Nothing);
    const std::string parameters =
        member.parameter.type == Type::Nothing ? "" : parameterText(member.parameter);
    return attributes(member) + std::string(result) + " " + std::string(member.name) + "(" + parameters +
           ");";
}

std::string interfaceText(const InterfaceRow& row) {
    const std::string id = "    [uuid(" + guidText(row.id) + ")";
    std::string text = row.dual ? id + ", object, dual, oleautomation]\n    interface " +
                                      std::string(row.name) + " : IDispatch {\n"
                                : id + "]\n    dispinterface " + std::string(row.name) +
                                      " {\n    properties:\n    methods:\n";
    for (const Member& member : row.members)
        text += "        " + (row.dual ? dualMember(member) : lateBoundMember(member)) + "\n";
    return text + "    };\n\n";
}

std::string classText(const ServerClass& row, const std::vector<InterfaceRow>& interfaces) {
    std::string_view word = "dispinterface ";
    for (const InterfaceRow& each : interfaces) {
        if (each.name == row.defaultInterface && each.dual) word = "interface ";
    }
    return "    [uuid(" + guidText(classIdOf(row)) + ")]\n    coclass " + std::string(row.name) +
           " { [default] " + std::string(word) + std::string(row.defaultInterface) + "; };\n";
}

} // namespace

std::string interfaceDefinition() {
    const auto interfaces = interfaceRows();
    std::string text = "// Written by quillmere-idl from the tables of members and classes.\n\n"
                       "import \"oaidl.idl\";\n\n"
                       "[uuid(" +
                       guidText(libraryId) +
                       "), version(1.0)]\n"
                       "library Quillmere {\n"
                       "    importlib(\"stdole2.tlb\");\n\n";
    for (const InterfaceRow& row : interfaces)
        text += interfaceText(row);
    for (const ServerClass& row : serverClasses())
        text += classText(row, interfaces);
    return text + "}\n";
}

} // namespace quillmere::component
