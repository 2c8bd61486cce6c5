#pragma once

#include "values/TrellisApi.h"

#include <memory>

class ZOLCommand;

namespace trellis {

// WeakCommand: a pointer to a command that becomes null when the command is destroyed.
class TRELLIS_API WeakCommand {
public:
    WeakCommand() = default;
    WeakCommand(ZOLCommand* command);

    ZOLCommand* Get() const;

private:
    std::weak_ptr<ZOLCommand*> _command;
};

} // namespace trellis
