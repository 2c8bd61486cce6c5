#include "cli/Commands.h"

#include "model/DatabaseSession.h"
#include "session/MessageOutput.h"
#include "site/ZOLIQrdSCManager.h"

#include <fmt/format.h>
#include <nlohmann/json.hpp>

#include <iostream>

namespace trellis {

namespace {

ExitCode CreateDatabase(HostSession& session) {
    ZOLGYRError error;
    const std::string file = session.DatabaseFile();
    const bool done = DatabaseSession::Create(file, error);
    MessageOutput::Print(error);
    if (!done)
        return ExitCode::EnvironmentFailed;
    fmt::print("made {}\n", file);
    return ExitCode::Fine;
}

ExitCode DescribeDatabase(HostSession& session) {
    if (!session.OpenDatabase())
        return ExitCode::EnvironmentFailed;
    ZOLGYRError error;
    const auto lines = DatabaseSession::Describe(error);
    MessageOutput::Print(error);
    if (error.GetCode() != 0)
        return ExitCode::EnvironmentFailed;
    nlohmann::ordered_json json;
    for (const auto& [word, value] : lines) {
        if (session.Options().json)
            json[word.Bytes()] = value.Bytes();
        else
            fmt::print("{:<20} {}\n", word.Bytes(), value.Bytes());
    }
    if (session.Options().json)
        std::cout << json.dump(2, ' ', false, nlohmann::json::error_handler_t::replace) << '\n';
    ZOLGYRError login;
    GetSecurityManager()->CheckLogin(login);
    if (login.IsNotice())
        MessageOutput::Print(login);
    return ExitCode::Fine;
}

ExitCode CheckDatabase(HostSession& session) {
    if (!session.OpenDatabase())
        return ExitCode::EnvironmentFailed;
    ZOLGYRError error;
    ZOLListValZOLUnicodeString problems;
    const bool looked = DatabaseSession::Check(problems, error);
    MessageOutput::Print(error);
    if (!looked)
        return ExitCode::EnvironmentFailed;
    for (const ZOLUnicodeString& problem : problems)
        fmt::print("{}\n", problem.Bytes());
    if (problems.Size() == 0)
        fmt::print("nothing is wrong\n");
    return problems.Size() == 0 ? ExitCode::Fine : ExitCode::FoundProblem;
}

} // namespace

void DeclareDatabaseCommands(CLI::App& database, Job& job) {
    database.add_subcommand("create", "make a new database")->callback([&job] { job = CreateDatabase; });
    database.add_subcommand("info", "print what a database is and holds")->callback([&job] {
        job = DescribeDatabase;
    });
    database.add_subcommand("check", "examine what is stored")->callback([&job] { job = CheckDatabase; });
}

} // namespace trellis
