#pragma once

#include "rules/readers/UvlText.h"

#include <string_view>
#include <unordered_map>
#include <vector>

namespace trellis {

struct UvlGroup {
    enum class Kind { Mandatory, Optional, AtMostOne, ExactlyOne, AtLeastOne };

    Kind kind = Kind::Mandatory;
    std::string_view word; // as the file calls it: mandatory, or, [1..*]
    int line = 0;
    std::vector<int> features;
};

// A feature: with it stands what its groups ask for, and none of these features stands without it.
struct UvlFeature {
    std::string_view name;
    int line = 0;
    std::vector<UvlGroup> groups;
};

// UvlTree: the features of a model, read line by line. A feature stands behind its father; the first is the
// root. The tree points into the text.
class UvlTree {
public:
    static constexpr int None = -1;

    explicit UvlTree(ModelProblems& problems) : _problems(problems) {}

    // Takes a line of the section of features. Lines under a bad line are passed over.
    void Read(const UvlLine& line);
    // To be called behind the last line: notes groups without features and those that cannot be told.
    void Finish();

    // Whether it was read to its end without a problem; else a feature that is not found may be one of a bad
    // line.
    bool IsWhole() const { return _isWhole; }
    const std::vector<UvlFeature>& Features() const { return _features; }
    // Its place among the features, or None.
    int Find(std::string_view name) const;

private:
    enum class Level { Feature, Group, Bad };
    // An open line, under which others may stand.
    struct Open {
        Level level = Level::Bad;
        int indentation = 0;
        int feature = None; // the feature, or that of the group
        std::size_t group = 0;
    };

    bool CloseTo(const UvlLine& line);
    Open ReadLine(UvlTokens& tokens, const UvlLine& line);
    Open ReadGroup(UvlTokens& tokens, const UvlLine& line, int father);
    Open ReadFeature(UvlTokens& tokens, const UvlLine& line);
    bool ReadName(UvlTokens& tokens, std::string_view& name);
    bool ReadRestOfFeature(UvlTokens& tokens);
    void Resolve(UvlGroup& group);

    ModelProblems& _problems;
    std::vector<UvlFeature> _features;
    std::unordered_map<std::string_view, int> _places;
    std::vector<Open> _open;
    bool _isWhole = false;
};

} // namespace trellis
