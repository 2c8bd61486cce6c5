#pragma once

#include "toolkit/WeakCommand.h"

#include <vector>

namespace trellis {

// DestructionQueue: the commands that are given up and wait for the outermost callback to return. One that is
// deleted by somebody else meanwhile drops out.
class DestructionQueue {
public:
    static DestructionQueue& Instance();

    void Add(ZOLCommand& command);
    // Frees all that wait, in the order in which they were given up, also what is given up meanwhile.
    void FreeAll();

private:
    std::vector<WeakCommand> _waiting;
};

} // namespace trellis
