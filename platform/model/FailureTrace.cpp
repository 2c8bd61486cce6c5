#include "model/FailureTrace.h"

#include "values/ZOLGYRTrace.h"

namespace trellis {

FailureTrace::~FailureTrace() {
    if (_error.GetCode() == 0)
        return;
    ZOLGYRTrace trace(_method, 3, 0);
    ZOLUnicodeString message;
    _error.GetLongMsg(message);
    trace.GetLigne().GetStream() << trace.Indent(trace.GetIndent()) << _method << " " << message.Bytes();
    trace.Out();
}

} // namespace trellis
