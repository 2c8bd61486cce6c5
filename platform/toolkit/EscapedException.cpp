#include "toolkit/EscapedException.h"

#include "toolkit/ErrorBox.h"
#include "values/ZOLGYRError.h"
#include "values/ZOLGYRTrace.h"

#include <string>

namespace trellis {

namespace {
constexpr int callbackFailed = 60101;
}

void ReportEscapedException(const char* text) {
    ZOLGYRTrace::Note(std::string("a callback ended with an exception: ") + text);
    ZOLGYRError error;
    error.Set(callbackFailed, 0);
    if (*text)
        error.Add(text);
    ShowError(nullptr, error, false);
}

} // namespace trellis
