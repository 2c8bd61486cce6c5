#include "rules/readers/UvlReader.h"

#include "rules/readers/UvlConstraintRules.h"
#include "rules/readers/UvlTreeRules.h"

#include <algorithm>
#include <utility>

namespace trellis {

namespace {

constexpr int NoFeatures = 60700;
constexpr int SectionExpected = 60701;
constexpr int SecondSection = 60703;
constexpr int ModelImported = 60707;
constexpr int TextBehindSection = 60724;

enum class Section { None, Namespace, Include, Imports, Features, Constraints };

struct SectionWord {
    std::string_view word;
    Section section;
};

constexpr SectionWord sectionWords[] = {{"namespace", Section::Namespace},
                                        {"include", Section::Include},
                                        {"imports", Section::Imports},
                                        {"features", Section::Features},
                                        {"constraints", Section::Constraints}};

// One text on its way to a model.
class Reading {
public:
    ModelReading Read(std::string_view text);

private:
    void ReadHeading(const UvlLine& line);
    void ReadContent(const UvlLine& line);
    void ReadConstraints();
    VariabilityModel MakeModel();

    ModelProblems _problems;
    UvlTree _tree{_problems};
    Section _section = Section::None;
    std::vector<Section> _seen;
    std::string_view _space;
    std::vector<UvlLine> _constraintLines; // read last: features may stand behind them
    std::vector<std::pair<int, UvlConstraint>> _constraints;
};

ModelReading Reading::Read(std::string_view text) {
    text = _problems.CheckText(text);
    if (!_problems.IsEmpty())
        return {{}, _problems.Take()};
    UvlLines lines(text, _problems);
    for (UvlLine line; lines.Next(line);) {
        if (line.indentation == 0)
            ReadHeading(line);
        else
            ReadContent(line);
    }
    _tree.Finish();
    ReadConstraints();
    if (_tree.Features().empty() && _problems.IsEmpty())
        _problems.Note(0, NoFeatures);
    if (!_problems.IsEmpty())
        return {{}, _problems.Take()};
    return {MakeModel(), {}};
}

void Reading::ReadHeading(const UvlLine& line) {
    UvlTokens tokens(line, _problems);
    const auto* heading = std::ranges::find(sectionWords, tokens.Here().text, &SectionWord::word);
    if (tokens.Here().kind != UvlToken::Kind::Name || heading == std::end(sectionWords)) {
        tokens.Fail(SectionExpected);
        _section = Section::Include;
        return;
    }
    _section = heading->section;
    if (std::ranges::find(_seen, _section) != _seen.end()) {
        tokens.Fail(SecondSection, {std::string(heading->word)});
        return;
    }
    _seen.push_back(_section);
    tokens.Advance();
    if (_section == Section::Namespace && tokens.Here().IsName()) {
        _space = tokens.Here().text;
        tokens.Advance();
    }
    if (tokens.Here().kind != UvlToken::Kind::End)
        tokens.Fail(TextBehindSection);
}

void Reading::ReadContent(const UvlLine& line) {
    switch (_section) {
    case Section::None:
    case Section::Namespace:
        UvlTokens(line, _problems).Fail(SectionExpected);
        _section = Section::Include;
        return;
    case Section::Include: // passed over, as is what stands under a heading that is not known
        return;
    case Section::Imports:
        _problems.Note(line.number, ModelImported, {std::string(line.text)});
        return;
    case Section::Features:
        _tree.Read(line);
        return;
    case Section::Constraints:
        _constraintLines.push_back(line);
        return;
    }
}

void Reading::ReadConstraints() {
    for (const UvlLine& line : _constraintLines) {
        if (_problems.IsFull())
            return;
        std::optional<UvlConstraint> constraint = UvlConstraintParser(line, _tree, _problems).Read();
        if (constraint)
            _constraints.emplace_back(line.number, std::move(*constraint));
    }
}

VariabilityModel Reading::MakeModel() {
    UvlTreeRules rules(_tree, _space);
    const UvlConstraintRules forms([&rules](int feature) { return rules.ReferenceOf(feature); });
    for (const auto& [line, constraint] : _constraints)
        for (DirectiveTerm& term : forms.Of(constraint))
            rules.AddRule("constraints " + std::to_string(line), line, std::move(term));
    return rules.TakeModel();
}

} // namespace

ModelReading UvlReader::Read(std::string_view text) {
    return Reading().Read(text);
}

} // namespace trellis
