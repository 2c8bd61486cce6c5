#include "cli/Commands.h"

#include "cli/BillOfMaterial.h"
#include "cli/ProductDictionary.h"
#include "cli/RuleReasonForms.h"
#include "cli/SelectionReport.h"
#include "service/OptionQuery.h"
#include "session/KeptSelection.h"
#include "session/MessageOutput.h"

#include <iostream>
#include <memory>

namespace trellis {

namespace {

constexpr int NoStructure = 60633;
constexpr int NoSuchOption = 60749;

struct Arguments {
    std::string product;
    std::vector<std::string> selected;
    std::vector<std::string> rejected;
    std::string selection; // file to begin with
    std::string keep;      // file to write
    std::string why;
    bool repairs = false;
    bool bom = false;
    int levels = BillOfMaterial::AllLevels;
};

// What the words mean; each that means nothing is told.
class Choices {
public:
    Choices(const ZOLIQrdConfigItem_var& dictionary, const Arguments& arguments) : _dictionary(dictionary) {
        if (!arguments.selection.empty())
            Open(arguments.selection);
        for (const std::string& word : arguments.selected)
            Take(word, false, given);
        for (const std::string& word : arguments.rejected)
            Take(word, true, given);
        if (!arguments.why.empty())
            Take(arguments.why, false, asked);
    }

    std::vector<ZOLParameter> given;
    std::vector<ZOLParameter> asked;
    std::vector<ZOLGYRError> problems;
    ZOLListValZOLUnicodeString ignoredCategories; // means nothing to the rules, and is kept

private:
    void Open(const std::string& file) {
        ZOLGYRError error;
        auto kept = KeptSelection::Read(file, error);
        if (!kept) {
            problems.push_back(error);
            return;
        }
        for (const ZOLParameter& unknown : kept->TakeOutUnknown({_dictionary})) {
            error.Set(NoSuchOption, 0, {unknown.GetCategory() + "." + unknown.GetOption()});
            problems.push_back(error);
        }
        given = kept->choices;
        ignoredCategories = kept->ignoredCategories;
    }

    void Take(const std::string& word, bool isNot, std::vector<ZOLParameter>& list) {
        ZOLGYRError error;
        const auto option = OptionQuery::ByWord(_dictionary, word, error);
        if (!option) {
            problems.push_back(error);
            return;
        }
        ZOLParameter parameter(option->GetCategory(), option->GetOption(), isNot);
        parameter.SetCategoryExclusivity(option->GetCategoryExclusivity());
        list.push_back(parameter);
    }

    ZOLIQrdConfigItem_var _dictionary;
};

void PrintText(const ProductDictionary& product, RuleSelection& selection, const Choices& choices,
               const Arguments& arguments) {
    SelectionReport report(selection);
    report.Print(std::cout, arguments.repairs);
    for (const ZOLParameter& option : choices.asked)
        report.PrintWhy(option, std::cout);
    if (!arguments.bom || selection.HasConflict())
        return;
    std::cout << "\nBill of material\n";
    BillOfMaterial(product.part, arguments.levels, selection).Print(std::cout);
}

void PrintJson(const ProductDictionary& product, RuleSelection& selection, const Choices& choices,
               const Arguments& arguments) {
    SelectionReport report(selection);
    nlohmann::ordered_json json = report.Json(arguments.repairs);
    for (const ZOLParameter& option : choices.asked)
        json["why"] = report.JsonOfWhy(option);
    if (arguments.bom && !selection.HasConflict())
        json["bill of material"] = BillOfMaterial(product.part, arguments.levels, selection).Json();
    RuleReasonForms::Print(json);
}

ExitCode Configure(HostSession& session, const Arguments& arguments) {
    if (!session.OpenDatabase())
        return ExitCode::EnvironmentFailed;
    ZOLGYRError error;
    const ProductDictionary product = ProductDictionary::OfWord(arguments.product, error);
    if (error.GetCode() == 0 && arguments.bom && product.part.GetCoid() == 0)
        error.Set(NoStructure, {ZOLUnicodeString(arguments.product)});
    if (error.GetCode() != 0) {
        MessageOutput::Print(error);
        return ExitCode::WrongUse;
    }
    const Choices choices(product.dictionary, arguments);
    if (!choices.problems.empty()) {
        MessageOutput::Print(choices.problems);
        return ExitCode::WrongUse;
    }
    if (!arguments.keep.empty()) {
        const KeptSelection kept = {arguments.product, choices.given, choices.ignoredCategories};
        if (!kept.Write(arguments.keep, error)) {
            MessageOutput::Print(error);
            return ExitCode::EnvironmentFailed;
        }
    }
    RuleSelection selection(product.dictionary, choices.given);
    (session.Options().json ? PrintJson : PrintText)(product, selection, choices, arguments);
    return selection.HasConflict() ? ExitCode::FoundProblem : ExitCode::Fine;
}

} // namespace

void DeclareConfigureCommand(CLI::App& program, Job& job) {
    const auto arguments = std::make_shared<Arguments>();
    CLI::App& command = *program.add_subcommand(
        "configure", "choose and reject options, and print what follows by the rules");
    command
        .add_option("--product", arguments->product,
                    "number, id or name of the configurable part, or: corporate")
        ->type_name("PART")
        ->required();
    command.add_option("--select", arguments->selected, "options to choose: OPTION or CATEGORY.OPTION")
        ->type_name("OPTION");
    command.add_option("--reject", arguments->rejected, "options to reject")->type_name("OPTION");
    command
        .add_option("--selection", arguments->selection,
                    "file of a selection that was kept; --select and --reject add to it")
        ->type_name("FILE");
    command.add_option("--keep", arguments->keep, "file in which all that is chosen and rejected is kept")
        ->type_name("FILE");
    command.add_option("--why", arguments->why, "why this option is in its state")->type_name("OPTION");
    command.add_flag("--repairs", arguments->repairs, "what can be given up, where choices are in conflict");
    CLI::Option* bom = command.add_flag("--bom", arguments->bom, "the parts that the selection needs, too");
    command.add_option("--levels", arguments->levels, "how many levels of parts; none: all")
        ->check(CLI::NonNegativeNumber)
        ->needs(bom);
    command.callback([&job, arguments] {
        job = [arguments](HostSession& session) { return Configure(session, *arguments); };
    });
}

} // namespace trellis
