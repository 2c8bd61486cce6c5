#include "cli/Commands.h"

#include "model/StructureImport.h"
#include "service/DictionaryImport.h"
#include "service/ModelImport.h"
#include "service/RuleImport.h"
#include "session/MessageOutput.h"

#include <fmt/format.h>

#include <unistd.h>

#include <iostream>
#include <memory>

namespace trellis {

namespace {

constexpr int FileUnreadable = 60202;
constexpr int StoreUnreachable = 20901;
constexpr int StoreNotWritten = 20903;

struct Arguments {
    std::string file;
    std::string product;
    bool replaces = false;
};

// How far an import is, on one line of a terminal that is written over and gone in the end. It holds no
// colour and no control sequence but the carriage return, so every terminal shows it. A pipe or a file gets
// nothing.
class ProgressLine {
public:
    ~ProgressLine() { Write(""); }

    // Must not outlive this.
    ProgressCB Callback() {
        if (isatty(STDERR_FILENO) == 0)
            return {};
        return [this](const ZOLUnicodeString& text, std::int64_t done, std::int64_t of) {
            Write(fmt::format("{}: {} of {}", text.Bytes(), done, of));
        };
    }

private:
    void Write(const std::string& line) {
        if (line.empty() && _length == 0)
            return;
        std::cerr << fmt::format("\r{:<{}}\r", line, _length) << line << std::flush;
        _length = line.size();
    }

    std::size_t _length = 0; // of what stands there now
};

void PrintProblems(const std::vector<ImportProblem>& problems) {
    for (const ImportProblem& problem : problems) {
        const std::string place = problem.line > 0 ? fmt::format("line {}: ", problem.line) : "";
        std::cerr << place << MessageOutput::Line(problem.error) << '\n';
    }
}

// What cannot be read or written lies around the job; all else that fails is a problem found.
ExitCode Verdict(const ZOLGYRError& error) {
    MessageOutput::Print(error);
    switch (error.GetCode()) {
    case 0:
        return ExitCode::Fine;
    case FileUnreadable:
    case StoreUnreachable:
    case StoreNotWritten:
        return ExitCode::EnvironmentFailed;
    default:
        return ExitCode::FoundProblem;
    }
}

// Opens the database and has `read` import into it; `tell` prints what was done.
template <class Report, class Read, class Tell>
ExitCode Import(HostSession& session, const Read& read, const Tell& tell) {
    if (!session.OpenDatabase())
        return ExitCode::EnvironmentFailed;
    ZOLGYRError error;
    Report report;
    {
        ProgressLine line;
        read(report, error, line.Callback());
    }
    PrintProblems(report.problems);
    if (error.GetCode() == 0)
        tell(report);
    return Verdict(error);
}

ExitCode ImportStructure(HostSession& session, const Arguments& arguments) {
    return Import<ImportReport>(
        session,
        [&](ImportReport& report, ZOLGYRError& error, const ProgressCB& progress) {
            StructureImport::ReadFile(arguments.file, report, error, progress);
        },
        [](const ImportReport& report) {
            fmt::print("parts: {} new, {} changed; links: {} new, {} changed\n", report.newParts,
                       report.changedParts, report.newLinks, report.changedLinks);
        });
}

ExitCode ImportDictionary(HostSession& session, const Arguments& arguments) {
    return Import<DictionaryImportReport>(
        session,
        [&](DictionaryImportReport& report, ZOLGYRError& error, const ProgressCB& progress) {
            DictionaryImport::ReadFile(arguments.file, arguments.product, report, error, progress);
        },
        [](const DictionaryImportReport& report) {
            fmt::print("categories: {} new, {} changed; options: {} new, {} changed\n", report.newCategories,
                       report.changedCategories, report.newOptions, report.changedOptions);
        });
}

ExitCode ImportModel(HostSession& session, const Arguments& arguments) {
    return Import<ModelImportReport>(
        session,
        [&](ModelImportReport& report, ZOLGYRError& error, const ProgressCB& progress) {
            ModelImport::ReadFile(arguments.file, arguments.product, report, error, progress);
        },
        [](const ModelImportReport& report) {
            fmt::print("new: {} categories, {} options, {} rules\n", report.categories, report.options,
                       report.rules);
        });
}

ExitCode ImportRules(HostSession& session, const Arguments& arguments) {
    const auto others = arguments.replaces ? RuleImport::Others::Remove : RuleImport::Others::Keep;
    return Import<RuleImportReport>(
        session,
        [&](RuleImportReport& report, ZOLGYRError& error, const ProgressCB& progress) {
            RuleImport::ReadFile(arguments.file, arguments.product, others, report, error, progress);
        },
        [](const RuleImportReport& report) {
            fmt::print("rules: {} new, {} changed; matrices: {} new, {} changed; removed: {}\n",
                       report.newRules, report.changedRules, report.newMatrices, report.changedMatrices,
                       report.removed);
        });
}

using ArgumentsPtr = std::shared_ptr<Arguments>;
using ImportJob = ExitCode (*)(HostSession&, const Arguments&);

CLI::App& DeclareImport(CLI::App& import, const char* name, const char* description, const char* file,
                        const ArgumentsPtr& arguments, Job& job, ImportJob run) {
    CLI::App& command = *import.add_subcommand(name, description);
    command.add_option("FILE", arguments->file, file)->required();
    command.callback([&job, arguments, run] {
        job = [arguments, run](HostSession& session) { return run(session, *arguments); };
    });
    return command;
}

// An import into the dictionary of a product.
CLI::App& DeclareProductImport(CLI::App& import, const char* name, const char* description, const char* file,
                               const ArgumentsPtr& arguments, Job& job, ImportJob run) {
    CLI::App& command = DeclareImport(import, name, description, file, arguments, job, run);
    command.add_option("--product", arguments->product, "number of the configurable part, or: corporate")
        ->type_name("NUMBER")
        ->required();
    return command;
}

} // namespace

void DeclareImportCommands(CLI::App& program, Job& job) {
    const auto arguments = std::make_shared<Arguments>();
    CLI::App& import =
        *program.add_subcommand("import", "bring data of a file into the database, whole or not at all");
    import.require_subcommand(1);
    DeclareImport(import, "structure", "parts and links, from CSV or JSON", "the file, .csv or .json",
                  arguments, job, ImportStructure);
    DeclareProductImport(import, "dictionary", "categories and options, from CSV or JSON",
                         "the file, .csv or .json", arguments, job, ImportDictionary);
    DeclareProductImport(import, "model", "a variability model into an empty dictionary",
                         "the file: .cnf or .dimacs, or UVL", arguments, job, ImportModel);
    DeclareProductImport(import, "rules", "rules, packages and matrices of a dictionary",
                         "the file, as export writes it", arguments, job, ImportRules)
        .add_flag("--replace", arguments->replaces,
                  "remove the rules and matrices that the file does not name");
}

} // namespace trellis
