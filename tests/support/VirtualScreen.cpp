#include "support/VirtualScreen.h"

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
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
        dup2(open("/dev/null", O_WRONLY), STDERR_FILENO); // it tells of each display number that is taken
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
    if (number.empty()) {
        std::fprintf(stderr, "Xvfb cannot be started\n");
        std::abort();
    }
}

VirtualScreen::~VirtualScreen() {
    kill(_server, SIGTERM);
    waitpid(_server, nullptr, 0);
}
