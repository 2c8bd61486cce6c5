#include "rules/engine/RandomRules.h"

#include "rules/engine/UnitTrail.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <optional>
#include <set>
#include <string>

using namespace trellis;

namespace {

using Literals = std::set<Literal>;

// One more literal that follows from a clause or a group by these, which may be the negation of one of them; NoMore
// where nothing does.
constexpr Literal NoMore = -1;

Literal NextByClause(const ClauseStore& store, const Literals& known) {
    for (int clause = 0; clause < store.ClauseCount(); ++clause) {
        std::vector<Literal> open;
        for (Literal literal : store.Clause(clause))
            if (!known.contains(Negated(literal)))
                open.push_back(literal);
        if (open.empty())
            return store.Clause(clause).empty() ? NoMore : store.Clause(clause).front();
        if (open.size() == 1 && !known.contains(open.front()))
            return open.front();
    }
    return NoMore;
}

Literal NextByGroup(const ClauseStore& store, const Literals& known) {
    for (int group = 0; group < store.GroupCount(); ++group)
        for (int one : store.Group(group))
            for (int other : store.Group(group))
                if (one != other && known.contains(MakeLiteral(one, true)) &&
                    !known.contains(MakeLiteral(other, false)))
                    return MakeLiteral(other, false);
    return NoMore;
}

// All that follows step by step; nothing on a contradiction.
std::optional<Literals> Closure(const ClauseStore& store, const std::vector<Literal>& assumptions) {
    Literals known(assumptions.begin(), assumptions.end());
    const auto clashes = [&](Literal literal) { return known.contains(Negated(literal)); };
    while (std::none_of(known.begin(), known.end(), clashes)) {
        Literal next = NextByClause(store, known);
        if (next == NoMore)
            next = NextByGroup(store, known);
        if (next == NoMore)
            return known;
        known.insert(next);
    }
    return std::nullopt;
}

} // namespace

TEST(UnitTrailTest, PinsWhatFollowsStepByStepAndForgetsItWithItsLevel) {
    std::mt19937 random(11);
    int levelCount = 0;
    for (unsigned seed = 0; seed < 400 && !HasFailure(); ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        const RuleClauses clauses(RandomRules(seed).Model());
        const ClauseStore store(clauses, RuleSetting({}, clauses));
        UnitTrail trail(store);
        if (trail.Start() == UnitTrail::Outcome::Contradiction)
            continue;
        std::vector<Literal> assumptions;
        for (int count = 0; count < 20; ++count) {
            trail.PopTo(random() % (assumptions.size() + 1));
            assumptions.resize(trail.LevelCount());
            assumptions.push_back(
                static_cast<Literal>(random() % (2U * static_cast<unsigned>(store.OptionCount()))));
            const auto outcome = trail.PushLevel(assumptions.back());
            const auto expected = Closure(store, assumptions);
            ASSERT_EQ(outcome == UnitTrail::Outcome::Settled, expected.has_value());
            if (!expected) {
                assumptions.pop_back();
                trail.PopTo(assumptions.size());
                continue;
            }
            ++levelCount;
            EXPECT_EQ(Literals(trail.Pinned().begin(), trail.Pinned().end()), *expected);
        }
    }
    EXPECT_GT(levelCount, 1000);
}
