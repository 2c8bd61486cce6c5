#include "cli/Commands.h"

#include "model/PartQuery.h"
#include "session/MessageOutput.h"
#include "session/PartWord.h"
#include "session/StructureTree.h"

#include <nlohmann/json.hpp>

#include <iostream>
#include <memory>

namespace trellis {

namespace {

struct Arguments {
    std::string product;
    int levels = StructureTree::AllLevels;
};

ExitCode PrintTree(HostSession& session, const Arguments& arguments) {
    if (!session.OpenDatabase())
        return ExitCode::EnvironmentFailed;
    ZOLGYRError error;
    ZOLListValZOLDMInstance roots;
    if (arguments.product.empty())
        PartQuery::Roots(roots, error);
    else
        roots.Append(PartOfWord(arguments.product, error));
    MessageOutput::Print(error);
    if (error.GetCode() != 0)
        return ExitCode::FoundProblem;
    const StructureTree tree(roots, arguments.levels);
    if (session.Options().json)
        std::cout << tree.Json().dump(2, ' ', false, nlohmann::json::error_handler_t::replace) << '\n';
    else
        tree.Print(std::cout);
    return ExitCode::Fine;
}

} // namespace

void DeclareTreeCommand(CLI::App& program, Job& job) {
    const auto arguments = std::make_shared<Arguments>();
    CLI::App& tree = *program.add_subcommand("tree", "print a product structure with what is configurable");
    tree.add_option("--product", arguments->product,
                    "number, id or name of one part; none: all that nothing holds")
        ->type_name("PART");
    tree.add_option("--levels", arguments->levels, "how many levels of links below; none: all")
        ->check(CLI::NonNegativeNumber);
    tree.callback([&job, arguments] {
        job = [arguments](HostSession& session) { return PrintTree(session, *arguments); };
    });
}

} // namespace trellis
