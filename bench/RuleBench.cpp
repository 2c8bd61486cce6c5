// Measures the rule engine on models of real products against two roads through the solver alone, in one run and on
// the same decisions. All times are processor times.
#include "SolverRoads.h"
#include "Timing.h"

#include "rules/engine/RealModel.h"
#include "rules/engine/RuleEngine.h"

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <malloc.h>
#include <memory>
#include <numeric>
#include <optional>
#include <random>
#include <string>
#include <vector>

using namespace trellis;
using namespace trellis::bench;

namespace {

using Decisions = std::vector<RuleLiteral>;

constexpr std::size_t SessionCount = 30;
constexpr std::size_t DecisionCount = 8;
constexpr std::size_t MeasuredFrom = 5; // decisions that stand when a step is measured
constexpr std::size_t RoadSessions = 5;
constexpr int LargeModel =
    10000; // options; one session is enough for the roads, which take seconds for a step
constexpr std::size_t ReasonsPerSession = 5;
constexpr int Repeats = 20; // of what is quicker than looking at the clock
constexpr unsigned Seed = 7;

double AllocatedBytes() {
    const struct mallinfo2 allocated = mallinfo2();
    return static_cast<double>(allocated.uordblks + allocated.hblkhd);
}

Decisions First(const Decisions& decisions, std::size_t count) {
    return {decisions.begin(), decisions.begin() + static_cast<std::ptrdiff_t>(count)};
}

// An option that is free still, two times of three to choose it.
std::optional<RuleLiteral> Decide(RuleEngine& engine, const Decisions& decisions, std::mt19937& random) {
    std::vector<bool> isKnown(static_cast<std::size_t>(engine.Model().optionCount));
    for (const auto& literals : {decisions, engine.Play({decisions}).forced})
        for (const RuleLiteral& literal : literals)
            isKnown[static_cast<std::size_t>(literal.option)] = true;
    std::vector<int> free;
    for (int option = 0; option < engine.Model().optionCount; ++option)
        if (!isKnown[static_cast<std::size_t>(option)])
            free.push_back(option);
    if (free.empty())
        return std::nullopt;
    const int option = free[random() % free.size()];
    return RuleLiteral{option, random() % 3 != 0};
}

std::vector<Decisions> DecideSessions(const RuleModel& model) {
    RuleEngine engine(model);
    std::mt19937 random(Seed);
    std::vector<Decisions> sessions;
    while (sessions.size() < SessionCount) {
        Decisions decisions;
        while (decisions.size() < DecisionCount) {
            const auto decision = Decide(engine, decisions, random);
            if (!decision)
                break;
            decisions.push_back(*decision);
        }
        if (decisions.size() == DecisionCount)
            sessions.push_back(std::move(decisions));
    }
    return sessions;
}

struct Measures {
    double opening = 0;
    Times steps;
    Times back;
    Times conflicts;
    double bytes = 0;
    double reasonInSolves = 0;
    double plainStep = 0;
    double pooledStep = 0;
    bool areAlike = true;
};

void MeasureEngine(RuleEngine& engine, const std::vector<Decisions>& sessions, Measures& measures) {
    measures.opening = TimeOf([&] { engine.Play({}); });
    for (const Decisions& decisions : sessions) {
        for (std::size_t count = 0; count <= decisions.size(); ++count) {
            const RuleQuestion question{First(decisions, count)};
            const double time = TimeOf([&] { engine.Play(question); });
            if (count >= MeasuredFrom)
                measures.steps.push_back(time);
        }
        const RuleQuestion last{First(decisions, decisions.size() - 1)};
        const double time = TimeOf([&] {
            for (int repeat = 0; repeat < Repeats; ++repeat)
                engine.Play(last);
        });
        measures.back.push_back(time / Repeats);
        const std::vector<RuleLiteral> forced = engine.Play({decisions}).forced;
        RuleQuestion wrong{decisions};
        wrong.given.push_back(forced[forced.size() / 2]);
        wrong.given.back().isChosen = !wrong.given.back().isChosen;
        measures.conflicts.push_back(TimeOf([&] { engine.Play(wrong); }));
    }
}

// The time of minimal reasons in questions with the same assumptions that fail.
double ReasonInSolves(RuleEngine& engine, const std::vector<Decisions>& sessions) {
    Explanation explanation(engine.Clauses());
    const RuleSetting setting({}, engine.Clauses());
    double reasons = 0;
    double solves = 0;
    for (const Decisions& decisions : sessions) {
        std::vector<Literal> given;
        for (const RuleLiteral& literal : decisions)
            given.push_back(MakeLiteral(literal));
        const std::vector<RuleLiteral> forced = engine.Play({decisions}).forced;
        for (std::size_t place = 0; place < forced.size(); place += 1 + forced.size() / ReasonsPerSession) {
            const Explanation::Claim claim{setting, given, {{Negated(MakeLiteral(forced[place]))}}};
            explanation.Fails(claim);
            solves += TimeOf([&] { explanation.Fails(claim); });
            reasons += TimeOf([&] { explanation.Find(claim); });
        }
    }
    return solves > 0 ? reasons / solves : 0;
}

// Mean step of a road after so many decisions. Earlier steps are gone through where models are kept.
double RoadStep(PlainRoad& road, std::size_t firstStep, const std::vector<Decisions>& sessions,
                RuleEngine& engine, Measures& measures) {
    Times times;
    for (const Decisions& decisions : sessions) {
        for (std::size_t count = firstStep; count <= MeasuredFrom; ++count) {
            const Decisions given = First(decisions, count);
            std::vector<RuleLiteral> forced;
            const double time = TimeOf([&] { forced = road.Forced(given); });
            measures.areAlike = measures.areAlike && forced == engine.Play({given}).forced;
            if (count == MeasuredFrom)
                times.push_back(time);
        }
    }
    return Mean(times);
}

Measures Measure(const RuleModel& model) {
    std::vector<Decisions> sessions = DecideSessions(model);
    Measures measures;
    const double bytesBefore = AllocatedBytes();
    RuleEngine engine(model);
    MeasureEngine(engine, sessions, measures);
    measures.bytes = AllocatedBytes() - bytesBefore;
    sessions.resize(model.optionCount >= LargeModel ? 1 : RoadSessions);
    measures.reasonInSolves = ReasonInSolves(engine, sessions);
    PlainRoad plain(model);
    measures.plainStep = RoadStep(plain, MeasuredFrom, sessions, engine, measures);
    PooledRoad pooled(model);
    measures.pooledStep = RoadStep(pooled, 0, sessions, engine, measures);
    return measures;
}

void Print(const std::string& name, const RuleModel& model, const Measures& measures) {
    const double step = Mean(measures.steps);
    const double rules = static_cast<double>(model.directives.size() + model.categories.size());
    std::printf(
        "| %s | %d | %.0f | %.1f | %.3f | %.3f | %.3f | %.1f | 1/%.0f | %.1f | 1/%.0f | 1/%.0f | %.1f | "
        "%.0f | %.0f |%s\n",
        name.c_str(), model.optionCount, rules, measures.opening, step, Percentile(measures.steps, 95),
        Mean(measures.conflicts), measures.plainStep, measures.plainStep / step, measures.pooledStep,
        measures.pooledStep / step, step / Mean(measures.back), measures.reasonInSolves,
        measures.bytes / model.optionCount, measures.bytes / rules,
        measures.areAlike ? "" : " THE ROADS DIFFER");
    std::fflush(stdout);
}

} // namespace

// Of the files found, those with a name that has the argument in it.
int main(int argc, char** argv) {
    const std::vector<std::filesystem::path> files = RealModelFiles();
    if (files.empty())
        std::printf(
            "No models in the folder models of TRELLIS_DATA, or of ../shared/data beside the checkout.\n");
    std::printf("| model | options | rules | opening ms | step ms | p95 ms | conflict ms | A ms | step/A | C "
                "ms | step/C | "
                "back/step | "
                "reason in solves | bytes per option | bytes per rule |\n"
                "|---|---|---|---|---|---|---|---|---|---|---|---|---|---|---|\n");
    for (const std::filesystem::path& file : files) {
        const std::string name = file.filename().string();
        if (argc > 1 && name.find(argv[1]) == std::string::npos)
            continue;
        const auto model = ReadRealModel(file);
        if (!model) {
            std::printf("%s cannot be read.\n", name.c_str());
            return 1;
        }
        Print(name.substr(0, name.find(".uvl")), *model, Measure(*model));
    }
    return files.empty() ? 1 : 0;
}
