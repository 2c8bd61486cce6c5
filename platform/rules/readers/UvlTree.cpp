#include "rules/readers/UvlTree.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <optional>

namespace trellis {

namespace {

constexpr int NameExpected = 60702;
constexpr int BadName = 60708;
constexpr int SecondFeature = 60709;
constexpr int SecondRoot = 60710;
constexpr int BadIndentation = 60711;
constexpr int GroupExpected = 60712;
constexpr int FeatureExpected = 60713;
constexpr int GroupIsEmpty = 60714;
constexpr int BadCardinality = 60715;
constexpr int HasValue = 60716;
constexpr int HasCopies = 60717;
constexpr int AttributesExpected = 60718;

using Kind = UvlGroup::Kind;

struct GroupWord {
    std::string_view word;
    Kind kind;
};

constexpr GroupWord groupWords[] = {{"mandatory", Kind::Mandatory},
                                    {"optional", Kind::Optional},
                                    {"alternative", Kind::ExactlyOne},
                                    {"or", Kind::AtLeastOne}};
constexpr std::string_view valueTypes[] = {"Integer", "Real", "String"};

constexpr std::size_t Unbounded = std::numeric_limits<std::size_t>::max();

const GroupWord* WordOf(const UvlToken& token) {
    const auto* word = std::ranges::find(groupWords, token.text, &GroupWord::word);
    return token.kind == UvlToken::Kind::Name && word != std::end(groupWords) ? word : nullptr;
}

bool HasCleanName(UvlTokens& tokens) {
    const auto isControl = [](char octet) {
        const auto code = static_cast<unsigned char>(octet);
        return code < 0x20 || code == 0x7f;
    };
    const std::string_view name = tokens.Here().text;
    if (!tokens.Here().IsName())
        tokens.Fail(NameExpected);
    else if (name.find_first_not_of(' ') == std::string_view::npos || std::ranges::any_of(name, isControl))
        tokens.Fail(BadName);
    else
        return true;
    return false;
}

std::optional<std::size_t> NumberOf(std::string_view text) {
    std::size_t number = 0;
    const auto [end, fault] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (fault != std::errc() || end != text.data() + text.size())
        return {};
    return number;
}

struct Cardinality {
    std::size_t least = 0;
    std::size_t most = 0;
};

// "1", "*", "1..3", "1..*".
std::optional<Cardinality> CardinalityOf(std::string_view text) {
    const std::size_t dots = text.find("..");
    const std::string_view first = text.substr(0, dots);
    const std::string_view last = dots == std::string_view::npos ? first : text.substr(dots + 2);
    const std::optional<std::size_t> most = last == "*" ? Unbounded : NumberOf(last);
    const std::optional<std::size_t> least =
        dots == std::string_view::npos && last == "*" ? 0 : NumberOf(first);
    if (!least || !most)
        return {};
    return Cardinality{*least, *most};
}

// What a cardinality over `count` features comes to, if it is one of the simple kinds.
std::optional<Kind> KindOf(Cardinality cardinality, std::size_t count) {
    const bool isOpen = cardinality.most >= count;
    if (isOpen && cardinality.least <= 1)
        return cardinality.least == 0 ? Kind::Optional : Kind::AtLeastOne;
    if (isOpen && cardinality.least == count)
        return Kind::Mandatory;
    if (cardinality.most == 1 && cardinality.least <= 1)
        return cardinality.least == 0 ? Kind::AtMostOne : Kind::ExactlyOne;
    return {};
}

} // namespace

int UvlTree::Find(std::string_view name) const {
    const auto place = _places.find(name);
    return place == _places.end() ? None : place->second;
}

void UvlTree::Read(const UvlLine& line) {
    const bool fits = CloseTo(line);
    if (!_open.empty() && _open.back().level == Level::Bad)
        return;
    UvlTokens tokens(line, _problems);
    Open open;
    if (fits)
        open = ReadLine(tokens, line);
    else
        tokens.Fail(BadIndentation, {});
    open.indentation = line.indentation;
    _open.push_back(open);
}

// Closes all lines under which this one cannot stand; false when its indentation is that of none of them.
bool UvlTree::CloseTo(const UvlLine& line) {
    int closed = line.indentation;
    for (; !_open.empty() && _open.back().indentation >= line.indentation; _open.pop_back())
        closed = _open.back().indentation;
    return closed == line.indentation;
}

UvlTree::Open UvlTree::ReadLine(UvlTokens& tokens, const UvlLine& line) {
    if (!_open.empty() && _open.back().level == Level::Feature)
        return ReadGroup(tokens, line, _open.back().feature);
    if (WordOf(tokens.Here()) || tokens.Here().Is("[")) {
        tokens.Fail(FeatureExpected);
        return {};
    }
    return ReadFeature(tokens, line);
}

UvlTree::Open UvlTree::ReadGroup(UvlTokens& tokens, const UvlLine& line, int father) {
    UvlGroup group;
    group.line = line.number;
    if (const GroupWord* word = WordOf(tokens.Here())) {
        group.kind = word->kind;
        group.word = word->word;
        tokens.Advance();
    } else if (tokens.Here().Is("[")) {
        group.word = line.text.substr(0, line.text.find(']') + 1);
        while (!tokens.Here().Is("]") && tokens.Here().kind != UvlToken::Kind::End)
            tokens.Advance();
        tokens.Advance();
    }
    if (group.word.empty() || tokens.Here().kind != UvlToken::Kind::End) {
        tokens.Fail(GroupExpected);
        return {};
    }
    std::vector<UvlGroup>& groups = _features[static_cast<std::size_t>(father)].groups;
    groups.push_back(std::move(group));
    return {Level::Group, 0, father, groups.size() - 1};
}

UvlTree::Open UvlTree::ReadFeature(UvlTokens& tokens, const UvlLine& line) {
    std::string_view name;
    if (!ReadName(tokens, name) || !ReadRestOfFeature(tokens))
        return {};
    if (_open.empty() && !_features.empty()) {
        tokens.Fail(SecondRoot, {std::string(name), std::string(_features.front().name)});
        return {};
    }
    const int place = static_cast<int>(_features.size());
    const auto [other, isNew] = _places.emplace(name, place);
    if (!isNew) {
        const int known = _features[static_cast<std::size_t>(other->second)].line;
        tokens.Fail(SecondFeature, {std::string(name), std::to_string(known)});
        return {};
    }
    _features.push_back({name, line.number, {}});
    if (!_open.empty()) {
        const Open& group = _open.back();
        _features[static_cast<std::size_t>(group.feature)].groups[group.group].features.push_back(place);
    }
    return {Level::Feature, 0, place, 0};
}

// A name, perhaps behind its type.
bool UvlTree::ReadName(UvlTokens& tokens, std::string_view& name) {
    const UvlToken first = tokens.Here();
    if (!HasCleanName(tokens))
        return false;
    name = first.text;
    tokens.Advance();
    const bool isValue = std::ranges::find(valueTypes, name) != std::end(valueTypes);
    const bool isType = first.kind == UvlToken::Kind::Name && (isValue || name == "Boolean");
    if (!isType || !tokens.Here().IsName())
        return true;
    if (isValue) {
        tokens.Fail(HasValue, {std::string(tokens.Here().text)});
        return false;
    }
    if (!HasCleanName(tokens))
        return false;
    name = tokens.Here().text;
    tokens.Advance();
    return true;
}

// Attributes say nothing about what goes together.
bool UvlTree::ReadRestOfFeature(UvlTokens& tokens) {
    if (tokens.Here().IsWord("cardinality")) {
        tokens.Fail(HasCopies);
        return false;
    }
    if (tokens.Here().Is("{"))
        tokens.SkipBraces();
    if (tokens.Here().kind == UvlToken::Kind::End)
        return true;
    tokens.Fail(AttributesExpected);
    return false;
}

void UvlTree::Finish() {
    if (!_problems.IsEmpty())
        return;
    for (UvlFeature& feature : _features)
        for (UvlGroup& group : feature.groups)
            Resolve(group);
    _isWhole = _problems.IsEmpty();
}

void UvlTree::Resolve(UvlGroup& group) {
    if (group.features.empty()) {
        _problems.Note(group.line, GroupIsEmpty, {std::string(group.word)});
        return;
    }
    if (!group.word.starts_with('['))
        return;
    std::string bounds(group.word.substr(1, group.word.size() - 2));
    std::erase_if(bounds, [](char sign) { return sign == ' ' || sign == '\t'; });
    const std::optional<Cardinality> cardinality = CardinalityOf(bounds);
    const std::optional<Kind> kind = cardinality ? KindOf(*cardinality, group.features.size()) : std::nullopt;
    if (!kind)
        _problems.Note(group.line, BadCardinality, {std::string(group.word)});
    else
        group.kind = *kind;
}

} // namespace trellis
