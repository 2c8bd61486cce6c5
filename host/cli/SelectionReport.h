#pragma once

#include "cli/RuleSelection.h"

#include <nlohmann/json_fwd.hpp>

#include <ostream>

namespace trellis {

// SelectionReport: a selection with what follows from it, in sections for people, or as one object for programs.
class SelectionReport {
public:
    // How many ways out of a conflict are told at most.
    static constexpr int MostRepairs = 10;

    explicit SelectionReport(RuleSelection& selection) : _selection(selection) {}

    void Print(std::ostream& output, bool withRepairs);
    void PrintWhy(const ZOLParameter& option, std::ostream& output);
    nlohmann::ordered_json Json(bool withRepairs);
    nlohmann::ordered_json JsonOfWhy(const ZOLParameter& option);

private:
    using State = RuleSelection::State;

    void PrintConflict(std::ostream& output, bool withRepairs);
    void PrintState(const char* title, State state, std::ostream& output);
    void PrintFollowing(std::ostream& output);
    void PrintOpen(const char* title, bool isNeeded, std::ostream& output);
    void PrintWanted(std::ostream& output);
    nlohmann::ordered_json JsonOfConflict(bool withRepairs);
    nlohmann::ordered_json JsonOfState(State state);
    nlohmann::ordered_json JsonOfFollowing();
    nlohmann::ordered_json JsonOfOpen();

    RuleSelection& _selection;
};

} // namespace trellis
