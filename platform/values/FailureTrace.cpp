#include "values/FailureTrace.h"

#include "values/ZOLGYRTrace.h"

#include <string>

namespace trellis {

FailureTrace::~FailureTrace() {
    if (_error.GetCode() == 0)
        return;
    ZOLUnicodeString message;
    _error.GetLongMsg(message);
    ZOLGYRTrace::Note(std::string(_method) + ": " + std::to_string(_error.GetCode()) + " " + message.Bytes());
}

} // namespace trellis
