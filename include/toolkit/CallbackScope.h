#pragma once

#include "values/TrellisApi.h"

class ZOLCommand;

namespace trellis {

// CallbackScope: the time in which one callback runs. Scopes nest; when the outermost ends, what was given up
// by RequestDelayedDestruction meanwhile is freed. Every dispatch and every verb of the driver opens one; a
// host opens one around each operation that it calls, so that pointers to panels given up in it stay valid
// until it returns.
class TRELLIS_API CallbackScope {
public:
    CallbackScope();
    ~CallbackScope();
    CallbackScope(const CallbackScope&) = delete;
    CallbackScope& operator=(const CallbackScope&) = delete;

    // How many scopes are open.
    static int Depth();
    // What was given up outside any callback is freed with the next scope, or here. Nothing happens while a
    // scope is open.
    static void FreeGivenUp();
};

} // namespace trellis
