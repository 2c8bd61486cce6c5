#include "toolkit/CallbackScope.h"

#include "toolkit/BusyCursor.h"
#include "toolkit/DestructionQueue.h"

namespace trellis {

namespace {
int openScopes = 0;
} // namespace

CallbackScope::CallbackScope() {
    ++openScopes;
}

// The objects are freed inside the scope: a destructor that asks for further destruction is served by the
// same walk, and none that dispatches starts another.
CallbackScope::~CallbackScope() {
    if (openScopes == 1) {
        BusyCursor::Set(false);
        DestructionQueue::Instance().FreeAll();
    }
    --openScopes;
}

int CallbackScope::Depth() {
    return openScopes;
}

void CallbackScope::FreeGivenUp() {
    const CallbackScope scope;
}

} // namespace trellis
