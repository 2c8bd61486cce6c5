#pragma once

#include <string>
#include <sys/types.h>

// VirtualScreen: an X server without a screen of its own, for as long as this lives, and a person at it: what
// it sends are real events of the server.
class VirtualScreen {
public:
    // Aborts where no server can be started.
    VirtualScreen();
    ~VirtualScreen();
    VirtualScreen(const VirtualScreen&) = delete;
    VirtualScreen& operator=(const VirtualScreen&) = delete;

    const std::string& GetDisplay() const { return _display; }
    void Click(int rootX, int rootY, unsigned int button = 1);
    // A key of the server's keyboard by its name, such as "Return" or "a".
    void Press(const char* key);

private:
    pid_t _server = 0;
    std::string _display;
    void* _connection = nullptr;
};
