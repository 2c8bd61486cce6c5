#pragma once

#include <string>
#include <vector>

namespace trellis {

// A rule by names, as people write it and as it is stored.

// An option as a rule names it. Without a category it means the option of that name, whatever its category; an
// empty option is the empty cell of a row.
struct OptionReference {
    std::string category;
    std::string option;

    friend bool operator==(const OptionReference&, const OptionReference&) = default;
    friend auto operator<=>(const OptionReference&, const OptionReference&) = default;
};

// An expression over options: a reference, or a connective over parts. Not has exactly one part, And and Or have at
// least two.
struct RuleTerm {
    enum class Kind { Reference, Not, And, Or };

    Kind kind = Kind::Reference;
    OptionReference reference; // of Reference
    std::vector<RuleTerm> parts;

    static RuleTerm Of(OptionReference reference) { return {Kind::Reference, std::move(reference), {}}; }
    static RuleTerm Not(RuleTerm part) { return {Kind::Not, {}, {std::move(part)}}; }

    friend bool operator==(const RuleTerm&, const RuleTerm&) = default;
};

// "if (condition) then consequence".
struct DirectiveTerm {
    RuleTerm condition;
    RuleTerm consequence;

    friend bool operator==(const DirectiveTerm&, const DirectiveTerm&) = default;
};

// One reference of a package or a row.
struct SignedReference {
    OptionReference reference;
    bool isChosen = true;

    friend bool operator==(const SignedReference&, const SignedReference&) = default;
};

} // namespace trellis
