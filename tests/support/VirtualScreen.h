#pragma once

#include <string>
#include <sys/types.h>

// VirtualScreen: an X server without a screen of its own, for as long as this lives.
class VirtualScreen {
public:
    // Aborts where no server can be started.
    VirtualScreen();
    ~VirtualScreen();
    VirtualScreen(const VirtualScreen&) = delete;
    VirtualScreen& operator=(const VirtualScreen&) = delete;

    const std::string& GetDisplay() const { return _display; }

private:
    pid_t _server = 0;
    std::string _display;
};
