// Random small models: what the categories and rules that are read allow is what the feature tree and its
// constraints allow, for every choice of features.

#include "rules/language/RuleParser.h"
#include "rules/language/RuleWriter.h"
#include "rules/readers/ModelMeaning.h"
#include "rules/readers/UvlReader.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <functional>

namespace trellis::test {
namespace {

constexpr int MostFeatures = 9;

std::string NameOf(int feature) {
    return "f" + std::to_string(feature);
}

struct Group {
    std::string word;
    int least = 0;
    int most = 0;
    std::vector<int> features;
};

struct Tree {
    std::vector<std::vector<Group>> groups; // of each feature
};

Group MakeGroup(int first, int count) {
    Group group{"", 0, count, {}};
    for (int i = 0; i < count; ++i)
        group.features.push_back(first + i);
    const std::string size = std::to_string(count);
    switch (*rc::gen::inRange(0, 8)) {
    case 0:
        return {"mandatory", count, count, group.features};
    case 1:
        return {"optional", 0, count, group.features};
    case 2:
        return {"alternative", 1, 1, group.features};
    case 3:
        return {"or", 1, count, group.features};
    case 4:
        return {"[0..1]", 0, 1, group.features};
    case 5:
        return {"[1..*]", 1, count, group.features};
    case 6:
        return {"[" + size + ".." + size + "]", count, count, group.features};
    default:
        return {"[0.." + size + "]", 0, count, group.features};
    }
}

Tree MakeTree() {
    Tree tree{{{}}};
    while (static_cast<int>(tree.groups.size()) < MostFeatures) {
        const int size = static_cast<int>(tree.groups.size());
        const int count = *rc::gen::inRange(1, std::min(4, MostFeatures - size) + 1);
        const int father = *rc::gen::inRange(0, size);
        tree.groups[static_cast<std::size_t>(father)].push_back(MakeGroup(size, count));
        tree.groups.resize(tree.groups.size() + static_cast<std::size_t>(count));
        if (*rc::gen::inRange(0, 20) == 0)
            break;
    }
    return tree;
}

std::string TextOf(const Tree& tree, int feature, const std::string& indentation) {
    std::string text = indentation + NameOf(feature) + "\n";
    for (const Group& group : tree.groups[static_cast<std::size_t>(feature)]) {
        text += indentation + " " + group.word + "\n";
        for (const int child : group.features)
            text += TextOf(tree, child, indentation + "  ");
    }
    return text;
}

bool Holds(const Tree& tree, int chosen) {
    const auto isChosen = [chosen](int feature) { return (chosen >> feature & 1) != 0; };
    for (std::size_t father = 0; father < tree.groups.size(); ++father)
        for (const Group& group : tree.groups[father]) {
            const auto count = std::ranges::count_if(group.features, isChosen);
            const bool fits = count >= group.least && count <= group.most;
            if (isChosen(static_cast<int>(father)) ? !fits : count > 0)
                return false;
        }
    return isChosen(0);
}

// A constraint as text, how strongly it binds (4: most), and whether it holds.
struct Constraint {
    std::string text;
    int binding = 4;
    std::function<bool(int chosen)> holds;
};

std::string Bracketed(const Constraint& part, bool isNeeded) {
    return isNeeded || *rc::gen::inRange(0, 4) == 0 ? "(" + part.text + ")" : part.text;
}

Constraint MakeConstraint(int features, int depth) {
    const int kind = depth == 0 ? 0 : *rc::gen::inRange(0, 6);
    if (kind == 0) {
        const int feature = *rc::gen::inRange(0, features);
        return {NameOf(feature), 4, [feature](int chosen) { return (chosen >> feature & 1) != 0; }};
    }
    const Constraint left = MakeConstraint(features, depth - 1);
    if (kind == 5)
        return {"!" + Bracketed(left, left.binding < 4), 4,
                [left](int chosen) { return !left.holds(chosen); }};
    const Constraint right = MakeConstraint(features, depth - 1);
    const int binding = kind - 1;
    constexpr const char* signs[] = {" <=> ", " => ", "|", " & "};
    return {Bracketed(left, left.binding < binding) + signs[binding] +
                Bracketed(right, right.binding <= binding),
            binding, [left, right, binding](int chosen) {
                const bool a = left.holds(chosen);
                const bool b = right.holds(chosen);
                const bool results[] = {a == b, !a || b, a || b, a && b};
                return results[binding];
            }};
}

// Reads the text of a model over features f0, f1, ... and compares all choices of them.
void CheckMeaning(const std::string& text, int features, const std::function<bool(int chosen)>& isAllowed) {
    const ModelReading reading = UvlReader::Read(text);
    RC_LOG() << text << Described(reading.model);
    RC_ASSERT(Problems(reading) == "");
    for (int chosen = 0; chosen < 1 << features; ++chosen) {
        Choice choice;
        for (int feature = 0; feature < features; ++feature)
            if ((chosen >> feature & 1) != 0)
                choice.insert(NameOf(feature));
        RC_ASSERT(Allows(reading.model, choice) == isAllowed(chosen));
    }
    const RuleWriter writer(RuleWords::Neutral());
    for (const ModelRule& rule : reading.model.rules)
        RC_ASSERT(RuleParser(writer.Directive(rule.term), RuleWords::Neutral()).Directive() == rule.term);
}

RC_GTEST_PROP(UvlMeaningTest, TheModelAllowsWhatTreeAndConstraintsAllow, ()) {
    const Tree tree = MakeTree();
    const int features = static_cast<int>(tree.groups.size());
    std::vector<Constraint> constraints;
    std::string text = "features\n" + TextOf(tree, 0, " ") + "constraints\n";
    for (int count = *rc::gen::inRange(0, 4); count > 0; --count) {
        constraints.push_back(MakeConstraint(features, *rc::gen::inRange(0, 3)));
        text += " " + constraints.back().text + "\n";
    }
    CheckMeaning(text, features, [&](int chosen) {
        return Holds(tree, chosen) &&
               std::ranges::all_of(
                   constraints, [chosen](const Constraint& constraint) { return constraint.holds(chosen); });
    });
}

RC_GTEST_PROP(UvlMeaningTest, AConstraintAllowsWhatItSays, ()) {
    constexpr int features = 5;
    for (int i = 0; i < 5; ++i) {
        const Constraint constraint = MakeConstraint(features, 5);
        CheckMeaning("features\n f0\n  optional\n   f1\n   f2\n   f3\n   f4\nconstraints\n " +
                         constraint.text,
                     features, [&](int chosen) { return (chosen & 1) != 0 && constraint.holds(chosen); });
    }
}

} // namespace
} // namespace trellis::test
