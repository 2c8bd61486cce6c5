#include "cli/CommandLine.h"

#include "cli/Commands.h"

#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>

#include <clocale>

namespace trellis {

namespace {

const char* const Description =
    "trellis - variant configuration for product structures\n"
    "Dictionaries of categories and options, and which link of a structure is valid for which variant.";

const char* const Footer =
    "Results go to the standard output, messages to the standard error. Exit codes: 0 fine, 1 the job found "
    "a problem,\n"
    "2 wrong use, 3 the environment failed. Settings: trellis config. Guide: docs/guide.";

void DeclareOptions(CLI::App& program, HostOptions& options) {
    program.footer(Footer);
    program.set_version_flag("--version", std::string("trellis ") + TRELLIS_VERSION);
    program.add_option("--database", options.database, "file of the database to work on")->type_name("FILE");
    program.add_option("--set", options.settings, "declare a setting for this run")
        ->type_name("KEY=VALUE")
        ->expected(1)
        ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll);
    program.add_option("--display", options.display, "X display of the windows")->type_name("NAME");
    program.add_option("--font-size", options.fontSize, "size of the font of the windows, in points")
        ->type_name("POINTS")
        ->check(CLI::Range(6.0, 40.0, "6 to 40"));
    program.add_option("--font", options.fontFamily, "font of the windows")->type_name("FAMILY");
    program.add_flag("--json", options.json, "write results for programs to read");
    program.fallthrough();
}

void DeclareGalleryCommand(CLI::App& program, const WindowJobs& windows, Job& job) {
    CLI::App& command =
        *program.add_subcommand("gallery", "show every widget of the toolkit, for authors of panels");
    command.preparse_callback([&windows, &job](std::size_t) { job = windows.gallery; });
    command.add_flag_callback(
        "--describe", [&windows, &job] { job = windows.describeGallery; },
        "write what it shows instead; needs no display");
}

ExitCode Start(HostOptions options, const Job& job) {
    HostSession session(std::move(options));
    return session.LoadSettings() ? job(session) : ExitCode::EnvironmentFailed;
}

} // namespace

int CommandLine::Run(int argc, const char* const* argv, const WindowJobs& windows) {
    std::setlocale(LC_CTYPE, "");
    HostOptions options;
    Job job = windows.navigator;
    CLI::App program(Description, "trellis");
    DeclareOptions(program, options);
    program.require_subcommand(0, 1);
    DeclareConfigureCommand(program, job);
    DeclareCheckCommand(program, job);
    DeclareImportCommands(program, job);
    DeclareExportCommands(program, job);
    DeclareTreeCommand(program, job);
    DeclareScriptCommand(program, job);
    CLI::App& database = *program.add_subcommand("db", "make, examine and administer a database");
    database.require_subcommand(1);
    DeclareDatabaseCommands(database, job);
    DeclarePeopleCommands(database, job);
    DeclareConfigCommand(program, job);
    DeclareGalleryCommand(program, windows, job);
    try {
        program.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        return program.exit(error) == 0 ? static_cast<int>(ExitCode::Fine)
                                        : static_cast<int>(ExitCode::WrongUse);
    }
    return static_cast<int>(Start(std::move(options), job));
}

} // namespace trellis
