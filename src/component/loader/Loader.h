#pragma once

#include "component/automation/Automation.h"

extern "C" {

/// Creates an object by program id; see createObject. A failure leaves its description with the thread.
__attribute__((visibility("default"))) HRESULT QuillmereCreateObject(const OLECHAR* programId, REFIID iid,
                                                                     void** object);
/// Unloads the servers of which no object is left.
__attribute__((visibility("default"))) void QuillmereFreeUnusedServers();
}
