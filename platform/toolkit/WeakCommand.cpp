#include "toolkit/WeakCommand.h"

#include "toolkit/ZOLCommand.h"

namespace trellis {

WeakCommand::WeakCommand(ZOLCommand* command) {
    if (!command)
        return;
    if (!command->_self)
        command->_self = std::make_shared<ZOLCommand*>(command);
    _command = command->_self;
}

ZOLCommand* WeakCommand::Get() const {
    const auto command = _command.lock();
    return command ? *command : nullptr;
}

} // namespace trellis
