#pragma once

namespace trellis {

// The app-defaults file as it is built in, for screens to which no other was installed.
extern const char* const appDefaults;

} // namespace trellis
