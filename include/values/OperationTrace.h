#pragma once

#include "values/ZOLGYRTrace.h"

namespace trellis {

// OperationTrace: the trace of an operation that reports through a carrier; its end line is written on every way
// out. The carrier must outlive it.
class OperationTrace {
public:
    OperationTrace(const char* method, int level, const ZOLGYRError& error)
        : _trace(method, level, 0), _error(error) {}
    ~OperationTrace() { _trace.OutEnd(_error); }
    OperationTrace(const OperationTrace&) = delete;
    OperationTrace& operator=(const OperationTrace&) = delete;

private:
    ZOLGYRTrace _trace;
    const ZOLGYRError& _error;
};

} // namespace trellis
