#include "motif/VirtualScreen.h"

#include <X11/Xlib.h>
#include <X11/extensions/XTest.h>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

VirtualScreen::VirtualScreen() {
    int ends[2];
    if (pipe(ends) != 0)
        std::abort();
    _server = fork();
    if (_server == 0) {
        // A test that crashes takes its server with it.
        prctl(PR_SET_PDEATHSIG, SIGKILL);
        close(ends[0]);
        const std::string number = std::to_string(ends[1]);
        execlp("Xvfb", "Xvfb", "-displayfd", number.c_str(), "-screen", "0", "1280x900x24", "-nolisten",
               "tcp", static_cast<char*>(nullptr));
        _exit(127);
    }
    close(ends[1]);
    // The server writes the number of its display once it takes connections.
    std::string number;
    for (char digit = 0; read(ends[0], &digit, 1) == 1 && digit != '\n';)
        number += digit;
    close(ends[0]);
    _display = ":" + number;
    _connection = number.empty() ? nullptr : XOpenDisplay(_display.c_str());
    if (!_connection) {
        std::fprintf(stderr, "Xvfb cannot be started\n");
        std::abort();
    }
}

VirtualScreen::~VirtualScreen() {
    XCloseDisplay(static_cast<Display*>(_connection));
    kill(_server, SIGTERM);
    waitpid(_server, nullptr, 0);
}

void VirtualScreen::Click(int rootX, int rootY, unsigned int button) {
    auto* display = static_cast<Display*>(_connection);
    XTestFakeMotionEvent(display, -1, rootX, rootY, CurrentTime);
    XTestFakeButtonEvent(display, button, True, CurrentTime);
    XTestFakeButtonEvent(display, button, False, CurrentTime);
    XSync(display, False);
}

void VirtualScreen::Press(const char* key) {
    auto* display = static_cast<Display*>(_connection);
    const KeyCode code = XKeysymToKeycode(display, XStringToKeysym(key));
    XTestFakeKeyEvent(display, code, True, CurrentTime);
    XTestFakeKeyEvent(display, code, False, CurrentTime);
    XSync(display, False);
}
