#include "cli/Commands.h"

#include "cli/MessageOutput.h"
#include "model/StructureImport.h"
#include "service/DictionaryImport.h"

#include <fmt/format.h>

#include <iostream>
#include <memory>

namespace trellis {

namespace {

constexpr int FileHasProblems = 60203;
constexpr int FileUnreadable = 60202;

void PrintProblems(const std::vector<ImportProblem>& problems) {
    for (const ImportProblem& problem : problems) {
        const std::string place = problem.line > 0 ? fmt::format("line {}: ", problem.line) : "";
        std::cerr << place << MessageOutput::Line(problem.error) << '\n';
    }
}

// What is wrong with the file is a problem found; all else that fails lies around it.
ExitCode Verdict(const ZOLGYRError& error) {
    MessageOutput::Print(error);
    if (error.GetCode() == 0)
        return ExitCode::Fine;
    return error.GetCode() == FileUnreadable ? ExitCode::EnvironmentFailed : ExitCode::FoundProblem;
}

ExitCode ImportStructure(HostSession& session, const std::string& file) {
    if (!session.OpenDatabase())
        return ExitCode::EnvironmentFailed;
    ZOLGYRError error;
    ImportReport report;
    StructureImport::ReadFile(file, report, error);
    PrintProblems(report.problems);
    if (error.GetCode() == 0)
        fmt::print("parts: {} new, {} changed; links: {} new, {} changed\n", report.newParts,
                   report.changedParts, report.newLinks, report.changedLinks);
    return Verdict(error);
}

ExitCode ImportDictionary(HostSession& session, const std::string& file, const std::string& product) {
    if (!session.OpenDatabase())
        return ExitCode::EnvironmentFailed;
    ZOLGYRError error;
    DictionaryImportReport report;
    DictionaryImport::ReadFile(file, product, report, error);
    PrintProblems(report.problems);
    if (error.GetCode() == 0)
        fmt::print("categories: {} new, {} changed; options: {} new, {} changed\n", report.newCategories,
                   report.changedCategories, report.newOptions, report.changedOptions);
    return Verdict(error);
}

} // namespace

void DeclareImportCommands(CLI::App& program, Job& job) {
    struct Arguments {
        std::string file;
        std::string product;
    };
    const auto arguments = std::make_shared<Arguments>();

    CLI::App& import =
        *program.add_subcommand("import", "bring data of a file into the database, whole or not at all");
    import.require_subcommand(1);

    CLI::App& structure = *import.add_subcommand("structure", "parts and links, from CSV or JSON");
    structure.add_option("FILE", arguments->file, "the file, .csv or .json")->required();
    structure.callback([&job, arguments] {
        job = [arguments](HostSession& session) { return ImportStructure(session, arguments->file); };
    });

    CLI::App& dictionary = *import.add_subcommand("dictionary", "categories and options, from CSV or JSON");
    dictionary.add_option("FILE", arguments->file, "the file, .csv or .json")->required();
    dictionary.add_option("--product", arguments->product, "number of the configurable part, or: corporate")
        ->type_name("NUMBER")
        ->required();
    dictionary.callback([&job, arguments] {
        job = [arguments](HostSession& session) {
            return ImportDictionary(session, arguments->file, arguments->product);
        };
    });
}

} // namespace trellis
