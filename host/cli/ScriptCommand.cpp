#include "cli/Commands.h"

#include "cli/DriverVerbs.h"
#include "cli/HostVerbs.h"
#include "cli/ScriptParser.h"
#include "cli/ScriptRunner.h"
#include "session/MessageOutput.h"

#include <fmt/format.h>

#include <fstream>
#include <iostream>
#include <memory>
#include <sstream>

namespace trellis {

namespace {

constexpr int ScriptUnreadable = 60620;

std::vector<ScriptVerb> AllVerbs(HostSession& session) {
    std::vector<ScriptVerb> verbs = HostVerbs(session);
    for (ScriptVerb& verb : DriverVerbs())
        verbs.push_back(std::move(verb));
    return verbs;
}

// "-" is the standard input.
bool ReadScript(const std::string& file, std::string& script) {
    std::ostringstream text;
    if (file == "-") {
        text << std::cin.rdbuf();
    } else {
        std::ifstream stream(file);
        // A folder opens, but its first read fails.
        if (!stream || (stream.peek(), stream.bad()))
            return false;
        text << stream.rdbuf();
    }
    script = text.str();
    return true;
}

ExitCode PlayScript(HostSession& session, const std::string& file) {
    std::string script;
    if (!ReadScript(file, script)) {
        ZOLGYRError error;
        error.Set(ScriptUnreadable, 0, {file});
        MessageOutput::Print(error);
        return ExitCode::EnvironmentFailed;
    }
    std::vector<ZOLGYRError> problems;
    const std::vector<ScriptLine> lines = ScriptParser::Parse(script, problems);
    MessageOutput::Print(problems);
    if (!problems.empty())
        return ExitCode::WrongUse;
    if (!session.OpenDatabase())
        return ExitCode::EnvironmentFailed;
    ScriptRunner runner(AllVerbs(session), std::cout);
    const ExitCode code = runner.Run(lines, problems);
    std::cout << std::flush;
    MessageOutput::Print(problems);
    return code;
}

void ListVerbs(HostSession& session) {
    for (const ScriptVerb& verb : AllVerbs(session))
        fmt::print("{} {}\n", verb.name, verb.arguments);
    fmt::print("expect NUMBER...|nothing\n");
}

} // namespace

void DeclareScriptCommand(CLI::App& program, Job& job) {
    struct Arguments {
        std::string file;
        bool verbs = false;
    };
    const auto arguments = std::make_shared<Arguments>();
    CLI::App& script =
        *program.add_subcommand("script", "play a script of a user's actions, and print what comes up");
    auto* file = script.add_option("FILE", arguments->file, "the script; - is the standard input");
    auto* verbs = script.add_flag("--verbs", arguments->verbs, "list the verbs instead");
    file->excludes(verbs);
    script.callback([&job, arguments, &script] {
        if (arguments->file.empty() && !arguments->verbs)
            throw CLI::RequiredError(script.get_name() + ": FILE");
        job = [arguments](HostSession& session) {
            if (!arguments->verbs)
                return PlayScript(session, arguments->file);
            ListVerbs(session);
            return ExitCode::Fine;
        };
    });
}

} // namespace trellis
