#pragma once

// The platform's automation: its texts, values, interfaces and result codes. Where the platform has headers
// of its own, these are used; elsewhere the same binary shapes are defined here under the same names.

#ifdef _WIN32
#include <windows.h>
// In this order.
#include <oleauto.h>
#include <olectl.h>
#else
#include "component/automation/linux/Functions.h"
#include "component/automation/linux/Interfaces.h"
#endif
