#include "cli/Commands.h"

#include "cli/ProductDictionary.h"
#include "service/RuleExport.h"
#include "service/ZOLRuleHandler.h"
#include "session/MessageOutput.h"
#include "session/WholeFile.h"

#include <iostream>
#include <memory>

namespace trellis {

namespace {

constexpr int UnreadableRules = 60632;

struct Arguments {
    std::string file; // empty or "-": the standard output
    std::string product;
};

// Rules that bind nothing are written as they are, and an import would refuse them: whoever exports should know.
void TellUnreadable(const ZOLIQrdConfigItem_var& dictionary) {
    const std::size_t count = ZOLRuleHandler(dictionary).RulesLeftOut().size();
    ZOLGYRError notice;
    if (count > 0)
        notice.Set(UnreadableRules, -1, {std::to_string(count)});
    MessageOutput::Print(notice);
}

ExitCode ExportRules(HostSession& session, const Arguments& arguments) {
    if (!session.OpenDatabase())
        return ExitCode::EnvironmentFailed;
    ZOLGYRError error;
    const ProductDictionary product = ProductDictionary::OfWord(arguments.product, error);
    if (error.GetCode() != 0) {
        MessageOutput::Print(error);
        return ExitCode::WrongUse;
    }
    TellUnreadable(product.dictionary);
    const std::string text = RuleExport::Text(product.dictionary);
    if (arguments.file.empty() || arguments.file == "-")
        std::cout << text << std::flush;
    else
        WholeFile::Write(arguments.file, text, error);
    MessageOutput::Print(error);
    return error.GetCode() == 0 ? ExitCode::Fine : ExitCode::EnvironmentFailed;
}

} // namespace

void DeclareExportCommands(CLI::App& program, Job& job) {
    const auto arguments = std::make_shared<Arguments>();
    CLI::App& command = *program.add_subcommand("export", "write data of the database to a file");
    command.require_subcommand(1);
    CLI::App& rules = *command.add_subcommand("rules", "rules, packages and matrices, as import reads them");
    rules.add_option("FILE", arguments->file, "the file; none or -: the standard output");
    rules
        .add_option("--product", arguments->product,
                    "number, id or name of the configurable part, or: corporate")
        ->type_name("PART")
        ->required();
    rules.callback([&job, arguments] {
        job = [arguments](HostSession& session) { return ExportRules(session, *arguments); };
    });
}

} // namespace trellis
