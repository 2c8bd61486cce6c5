#pragma once

#include "values/ZOLGYRError.h"

namespace trellis {

// FailureTrace: the carrier of an operation that has none to give its failure to. What stands in it at the
// end goes to the trace, one line with the name of the operation, the number and its text.
class FailureTrace {
public:
    // The name must outlive it.
    explicit FailureTrace(const char* method) : _method(method) {}
    ~FailureTrace();
    FailureTrace(const FailureTrace&) = delete;
    FailureTrace& operator=(const FailureTrace&) = delete;

    operator ZOLGYRError&() { return _error; }
    int GetCode() const { return _error.GetCode(); }

private:
    const char* _method;
    ZOLGYRError _error;
};

} // namespace trellis
