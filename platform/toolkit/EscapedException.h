#pragma once

#include "toolkit/CallbackScope.h"

#include <exception>

namespace trellis {

// Traces an exception that left a callback, and shows it to the user as 60101 with its text.
void ReportEscapedException(const char* text);

// Runs a callback; an exception that leaves it ends here, so that the loop goes on.
template <class Callback>
void GuardCallback(const Callback& callback) {
    try {
        callback();
    } catch (const std::exception& exception) {
        ReportEscapedException(exception.what());
    } catch (...) {
        ReportEscapedException("");
    }
}

} // namespace trellis
