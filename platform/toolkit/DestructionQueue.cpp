#include "toolkit/DestructionQueue.h"

#include "toolkit/ZOLCommand.h"

#include <utility>

namespace trellis {

DestructionQueue& DestructionQueue::Instance() {
    static DestructionQueue queue;
    return queue;
}

void DestructionQueue::Add(ZOLCommand& command) {
    _waiting.emplace_back(&command);
}

void DestructionQueue::FreeAll() {
    while (!_waiting.empty()) {
        const std::vector<WeakCommand> given = std::exchange(_waiting, {});
        for (const WeakCommand& waiting : given)
            if (ZOLCommand* command = waiting.Get())
                command->FreeGivenUp();
    }
}

} // namespace trellis
