#pragma once

#include "values/TrellisApi.h"

// Ends the process with "<function>: <reason>" on the standard error. For mistakes of a programmer only, such as
// a list index out of range; nothing that a user types or a database holds may lead here.
[[noreturn]] TRELLIS_API void ContractBreach(const char* function, const char* reason);
