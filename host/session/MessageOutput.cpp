#include "session/MessageOutput.h"

#include <algorithm>
#include <cstdlib>
#include <iostream>

namespace trellis {

std::string MessageOutput::Line(const ZOLGYRError& error) {
    ZOLUnicodeString text;
    error.GetLongMsg(text);
    const char* kind = error.IsNotice() ? "note " : "error ";
    return kind + std::to_string(std::abs(error.GetCode())) + ": " + text.Bytes();
}

void MessageOutput::Print(const ZOLGYRError& error) {
    if (error.GetCode() != 0)
        std::cerr << "trellis: " << Line(error) << '\n';
}

void MessageOutput::Print(const std::vector<ZOLGYRError>& errors) {
    for (const ZOLGYRError& error : errors)
        Print(error);
}

bool MessageOutput::AnyError(const std::vector<ZOLGYRError>& errors) {
    return std::any_of(errors.begin(), errors.end(),
                       [](const ZOLGYRError& error) { return !error.IsNotice(); });
}

} // namespace trellis
