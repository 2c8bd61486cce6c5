#include "support/Program.h"

#include "support/TemporaryFolder.h"

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace trellis::test {

namespace {

void Redirect(const std::string& file, int flags, int descriptor) {
    const int opened = open(file.c_str(), flags, 0600);
    dup2(opened, descriptor);
    close(opened);
}

[[noreturn]] void BecomeProgram(const std::vector<std::string>& arguments,
                                const std::map<std::string, std::string>& environment,
                                const TemporaryFolder& folder) {
    Redirect(folder.Path("in"), O_RDONLY, STDIN_FILENO);
    Redirect(folder.Path("out"), O_WRONLY | O_CREAT | O_TRUNC, STDOUT_FILENO);
    Redirect(folder.Path("err"), O_WRONLY | O_CREAT | O_TRUNC, STDERR_FILENO);
    setenv("HOME", folder.Path("home").c_str(), 1);
    for (const char* name : {"DISPLAY", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "TRELLIS_SITE_FOLDER"})
        unsetenv(name);
    for (const auto& [name, value] : environment)
        value.empty() ? unsetenv(name.c_str()) : setenv(name.c_str(), value.c_str(), 1);
    std::vector<char*> argv{const_cast<char*>(TRELLIS_PROGRAM)};
    for (const std::string& argument : arguments)
        argv.push_back(const_cast<char*>(argument.c_str()));
    argv.push_back(nullptr);
    execv(TRELLIS_PROGRAM, argv.data());
    _exit(127);
}

} // namespace

ProgramResult Program::Run(const std::vector<std::string>& arguments, const std::string& input) const {
    const TemporaryFolder folder;
    folder.Write("in", input);
    const pid_t child = fork();
    if (child == 0)
        BecomeProgram(arguments, environment, folder);
    int status = 0;
    waitpid(child, &status, 0);
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, TemporaryFolder::Read(folder.Path("out")),
            TemporaryFolder::Read(folder.Path("err"))};
}

} // namespace trellis::test
