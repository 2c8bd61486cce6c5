#include "cli/SelectionReport.h"

#include "cli/RuleReasonForms.h"
#include "cli/TextWrap.h"

#include <fmt/format.h>

namespace trellis {

namespace {

using State = RuleSelection::State;
using Category = RuleSelection::Category;
using Option = RuleSelection::Option;
using Forms = RuleReasonForms;

constexpr int Indent = 2;
constexpr int Hanging = 6;
// A reason is looked for anew for each option, which takes a moment in a large dictionary.
constexpr int MostReasons = 200;

struct StateWord {
    State state;
    const char* word;
};

constexpr StateWord StateWords[] = {{State::Chosen, "chosen by you"},
                                    {State::Rejected, "rejected by you"},
                                    {State::Follows, "chosen by the rules"},
                                    {State::Excluded, "rejected by the rules"},
                                    {State::Open, "open"}};

const char* WordOf(State state) {
    for (const StateWord& known : StateWords)
        if (known.state == state)
            return known.word;
    return "";
}

// A category must still be decided when it needs an option and has none.
bool IsNeeded(const Category& category) {
    return category.isMandatory && !category.HasChoice();
}

std::string Line(const Category& category, const std::vector<const Option*>& options) {
    std::vector<std::string> words = {category.name.Bytes() + ":"};
    for (const Option* option : options)
        words.push_back(option->parameter.GetOption().Bytes() + (option == options.back() ? "" : ","));
    return TextWrap::Wrapped(words, Indent, Hanging);
}

// Prints the line, under the title if it is the first.
class Section {
public:
    Section(std::string title, std::ostream& output) : _title(std::move(title)), _output(output) {}

    void Print(const std::string& line) {
        if (!_title.empty())
            _output << '\n' << _title << '\n';
        _title.clear();
        _output << line;
    }

private:
    std::string _title;
    std::ostream& _output;
};

} // namespace

void SelectionReport::Print(std::ostream& output, bool withRepairs) {
    if (_selection.HasConflict()) {
        PrintState("Chosen", State::Chosen, output);
        PrintState("Rejected", State::Rejected, output);
        return PrintConflict(output, withRepairs);
    }
    int open = 0;
    for (const Category& category : _selection.Categories())
        open += !category.Of(State::Open).empty();
    output << fmt::format(
        "Options: {} chosen, {} more follow, {} rejected; categories with open options: {}\n",
        _selection.Count(State::Chosen), _selection.Count(State::Follows),
        _selection.Count(State::Rejected) + _selection.Count(State::Excluded), open);
    PrintState("Chosen by you", State::Chosen, output);
    PrintFollowing(output);
    PrintState("Rejected by you", State::Rejected, output);
    PrintState("Rejected by the rules", State::Excluded, output);
    PrintWanted(output);
    PrintOpen("Open, and a choice is needed", true, output);
    PrintOpen("Open", false, output);
}

void SelectionReport::PrintState(const char* title, State state, std::ostream& output) {
    Section section(title, output);
    for (const Category& category : _selection.Categories())
        if (const auto options = category.Of(state); !options.empty())
            section.Print(Line(category, options));
}

void SelectionReport::PrintFollowing(std::ostream& output) {
    Section section("Chosen by the rules", output);
    int count = 0;
    for (const Category& category : _selection.Categories())
        for (const Option* option : category.Of(State::Follows)) {
            section.Print(Line(category, {option}));
            if (++count <= MostReasons)
                output << TextWrap::Wrapped(Forms::Short(_selection.Why(*option)), Hanging, Hanging + 4);
        }
    if (count > MostReasons)
        output << fmt::format("  Reasons of the first {} only; --why OPTION tells each.\n", MostReasons);
}

void SelectionReport::PrintWanted(std::ostream& output) {
    Section section("Wanted by rules that are not fulfilled yet", output);
    for (const Category& category : _selection.Categories()) {
        std::vector<const Option*> wanted = category.Of(State::Open);
        std::erase_if(wanted, [](const Option* option) { return !option->isWanted; });
        if (!wanted.empty())
            section.Print(Line(category, wanted));
    }
}

void SelectionReport::PrintOpen(const char* title, bool isNeeded, std::ostream& output) {
    Section section(title, output);
    for (const Category& category : _selection.Categories())
        if (const auto options = category.Of(State::Open); !options.empty() && IsNeeded(category) == isNeeded)
            section.Print(Line(category, options));
}

void SelectionReport::PrintConflict(std::ostream& output, bool withRepairs) {
    const bool isOfRules = _selection.Conflict().empty();
    output << (isOfRules ? "\nThe rules contradict each other\n" : "\nThis cannot stand together\n");
    output << Forms::Lines(_selection.WhyConflict(), Indent);
    if (!withRepairs)
        return;
    const auto repairs = _selection.Repairs(MostRepairs);
    output << (repairs.empty() ? "\nNothing that you give up helps.\n"
                               : "\nEach of these, given up, lets the rest stand\n");
    for (const auto& repair : repairs)
        output << TextWrap::Wrapped(Forms::Text(repair), Indent, Hanging);
}

void SelectionReport::PrintWhy(const ZOLParameter& option, std::ostream& output) {
    const Option* found = _selection.Find(option.GetOption());
    if (!found || _selection.HasConflict())
        return;
    output << fmt::format("\n{} is {}", option.GetParameterString(0).Bytes(), WordOf(found->state));
    const RuleSelection::Reasons reasons = _selection.Why(*found);
    output << (reasons.empty() ? "\n" : ", because of\n") << Forms::Lines(reasons, Indent);
}

nlohmann::ordered_json SelectionReport::Json(bool withRepairs) {
    if (_selection.HasConflict())
        return {{"chosen", JsonOfState(State::Chosen)},
                {"rejected", JsonOfState(State::Rejected)},
                {"conflict", JsonOfConflict(withRepairs)}};
    return {{"chosen", JsonOfState(State::Chosen)},
            {"follows", JsonOfFollowing()},
            {"rejected", JsonOfState(State::Rejected)},
            {"excluded", JsonOfState(State::Excluded)},
            {"open", JsonOfOpen()},
            {"conflict", nullptr}};
}

nlohmann::ordered_json SelectionReport::JsonOfConflict(bool withRepairs) {
    nlohmann::ordered_json json = {{"choices", Forms::Json(_selection.Conflict())},
                                   {"reasons", Forms::Json(_selection.WhyConflict())}};
    if (!withRepairs)
        return json;
    json["repairs"] = nlohmann::ordered_json::array();
    for (const auto& repair : _selection.Repairs(MostRepairs))
        json["repairs"].push_back(Forms::Json(repair));
    return json;
}

nlohmann::ordered_json SelectionReport::JsonOfState(State state) {
    nlohmann::ordered_json json = nlohmann::ordered_json::array();
    for (const Category& category : _selection.Categories())
        for (const Option* option : category.Of(state))
            json.push_back(Forms::Json(option->parameter));
    return json;
}

nlohmann::ordered_json SelectionReport::JsonOfFollowing() {
    nlohmann::ordered_json json = nlohmann::ordered_json::array();
    for (const Category& category : _selection.Categories())
        for (const Option* option : category.Of(State::Follows)) {
            json.push_back(Forms::Json(option->parameter));
            if (json.size() <= MostReasons)
                json.back()["reasons"] = Forms::Json(_selection.Why(*option));
        }
    return json;
}

nlohmann::ordered_json SelectionReport::JsonOfOpen() {
    nlohmann::ordered_json json = nlohmann::ordered_json::array();
    for (const Category& category : _selection.Categories()) {
        nlohmann::ordered_json options = nlohmann::ordered_json::array();
        for (const Option* option : category.Of(State::Open))
            options.push_back(
                {{"option", option->parameter.GetOption().Bytes()}, {"wanted", option->isWanted}});
        if (!options.empty())
            json.push_back({{"category", category.name.Bytes()},
                            {"needed", IsNeeded(category)},
                            {"options", std::move(options)}});
    }
    return json;
}

nlohmann::ordered_json SelectionReport::JsonOfWhy(const ZOLParameter& option) {
    const Option* found = _selection.Find(option.GetOption());
    if (!found || _selection.HasConflict())
        return nullptr;
    nlohmann::ordered_json json = Forms::Json(found->parameter);
    json["state"] = WordOf(found->state);
    json["reasons"] = Forms::Json(_selection.Why(*found));
    return json;
}

} // namespace trellis
