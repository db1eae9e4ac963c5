#pragma once

#include "component/automation/ComPtr.h"

#include <string>
#include <string_view>

/// The parts of the client's run. Each prints what it finds.
namespace quillmere::component::test {

/// A new object of the class, as the platform makes it for a script. Null, with `code` telling why, when
/// there is none.
[[nodiscard]] ComPtr<IDispatch> create(std::string_view programId, HRESULT& code);

/// Every class that is registered is created and released.
void tryClasses();
void tryMembers(IDispatch& entry);
void tryWrongCalls(IDispatch& entry);
void tryConnection(IDispatch& entry, const std::string& registerFile);
void tryWindow(IDispatch& entry);
void tryInterface(const ComPtr<IDispatch>& entry);
void tryTypeLibrary();

} // namespace quillmere::component::test
