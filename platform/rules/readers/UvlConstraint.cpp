#include "rules/readers/UvlConstraint.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace trellis {

namespace {

using Kind = UvlConstraint::Kind;

constexpr int OperandExpected = 60719;
constexpr int OperatorExpected = 60720;
constexpr int UnknownFeature = 60721;
constexpr int NestedTooDeep = 60722;
constexpr int TooLarge = 60723;

struct Connective {
    std::string_view sign;
    Kind kind;
};

// From the one that binds least.
constexpr Connective connectives[] = {
    {"<=>", Kind::Equals}, {"=>", Kind::Implies}, {"|", Kind::Or}, {"&", Kind::And}};

bool IsChain(Kind kind) {
    return kind == Kind::And || kind == Kind::Or;
}

void AppendParts(UvlConstraint& chain, UvlConstraint part) {
    chain.terms += part.terms;
    if (part.kind == chain.kind) {
        chain.levels = std::max(chain.levels, part.levels);
        std::ranges::move(part.parts, std::back_inserter(chain.parts));
        return;
    }
    chain.levels = std::max(chain.levels, part.levels + 1);
    chain.parts.push_back(std::move(part));
}

} // namespace

std::optional<UvlConstraint> UvlConstraintParser::Read() {
    UvlConstraint constraint = ReadBinary(0);
    if (!_hasFailed && _tokens.Here().kind != UvlToken::Kind::End)
        Failed(OperatorExpected);
    if (_hasFailed)
        return {};
    return constraint;
}

UvlConstraint UvlConstraintParser::ReadBinary(int level) {
    if (level == static_cast<int>(std::size(connectives)))
        return ReadUnary();
    UvlConstraint left = ReadBinary(level + 1);
    while (!_hasFailed && _tokens.Take(connectives[level].sign))
        left = Joined(connectives[level].kind, std::move(left), ReadBinary(level + 1));
    return left;
}

UvlConstraint UvlConstraintParser::ReadUnary() {
    bool isNegated = false;
    while (_tokens.Take("!"))
        isNegated = !isNegated;
    UvlConstraint constraint;
    if (_tokens.Here().Is("(")) {
        constraint = ReadBracket();
    } else {
        if (!_tokens.Here().IsName())
            return Failed(OperandExpected);
        constraint.feature = _tree.Find(_tokens.Here().text);
        if (constraint.feature == UvlTree::None && _tree.IsWhole())
            return Failed(UnknownFeature);
        _tokens.Advance();
    }
    if (!isNegated || _hasFailed)
        return constraint;
    UvlConstraint negation{Kind::Not, 0, {}, constraint.levels + 1, constraint.terms};
    negation.parts.push_back(std::move(constraint));
    return Checked(std::move(negation));
}

UvlConstraint UvlConstraintParser::ReadBracket() {
    if (_openBrackets == MostLevels)
        return Failed(NestedTooDeep, {std::to_string(MostLevels)});
    ++_openBrackets;
    _tokens.Advance();
    UvlConstraint constraint = ReadBinary(0);
    --_openBrackets;
    if (!_hasFailed && !_tokens.Take(")"))
        return Failed(OperatorExpected);
    return constraint;
}

UvlConstraint UvlConstraintParser::Joined(Kind kind, UvlConstraint left, UvlConstraint right) {
    if (IsChain(kind) && left.kind == kind) {
        AppendParts(left, std::move(right));
        return Checked(std::move(left));
    }
    UvlConstraint whole{kind, 0, {}, std::max(left.levels, right.levels) + 1, left.terms + right.terms};
    if (IsChain(kind)) {
        whole.terms = 0;
        AppendParts(whole, std::move(left));
        AppendParts(whole, std::move(right));
        return Checked(std::move(whole));
    }
    if (kind == Kind::Equals)
        whole.terms *= 2;
    whole.parts.push_back(std::move(left));
    whole.parts.push_back(std::move(right));
    return Checked(std::move(whole));
}

UvlConstraint UvlConstraintParser::Checked(UvlConstraint constraint) {
    if (_hasFailed)
        return constraint;
    if (constraint.levels > MostLevels)
        return Failed(NestedTooDeep, {std::to_string(MostLevels)});
    if (constraint.terms > MostTerms)
        return Failed(TooLarge, {std::to_string(MostTerms)});
    return constraint;
}

UvlConstraint UvlConstraintParser::Failed(int number) {
    _tokens.Fail(number);
    _hasFailed = true;
    return {};
}

UvlConstraint UvlConstraintParser::Failed(int number, const std::vector<std::string>& parameters) {
    _tokens.Fail(number, parameters);
    _hasFailed = true;
    return {};
}

} // namespace trellis
