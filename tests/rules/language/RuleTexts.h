#pragma once

#include "rules/language/RuleTerm.h"

#include <rapidcheck.h>

namespace trellis {

// Random names as bad as people make them: quotation marks, brackets, keywords, points, other scripts, texts that look
// like a rule, wide characters.
inline rc::Gen<std::string> HostileNames() {
    return rc::gen::oneOf(
        rc::gen::elementOf(std::vector<std::string>{"and",
                                                    "or",
                                                    "not",
                                                    "if",
                                                    "then",
                                                    "NOT",
                                                    "\"",
                                                    "\"\"",
                                                    "A\"B",
                                                    "\".\"",
                                                    ".",
                                                    "(",
                                                    ")",
                                                    "not (",
                                                    " ",
                                                    "if (\"A\") then \"B\"",
                                                    "line\nfeed",
                                                    "tab\t",
                                                    "\xd7\xa9\xd7\x9c\xd7\x95\xd7\x9d",
                                                    "\xd8\xa7\xd9\x84\xd9\x84\xd9\x88\xd9\x86",
                                                    "\xe6\xbc\xa2\xe5\xad\x97",
                                                    "\xf0\x9f\x9a\xb2",
                                                    "\xff\xfe",
                                                    "%1",
                                                    "{x}",
                                                    "\\",
                                                    "'"}),
        rc::gen::nonEmpty(rc::gen::string<std::string>()));
}

inline rc::Gen<OptionReference> References() {
    return rc::gen::build<OptionReference>(
        rc::gen::set(&OptionReference::category,
                     rc::gen::oneOf(rc::gen::just(std::string()), HostileNames())),
        rc::gen::set(&OptionReference::option, HostileNames()));
}

// A term in which no And stands right in an And, and no Or in an Or, as the parser gives them.
inline rc::Gen<RuleTerm> Terms(int depth, RuleTerm::Kind parent = RuleTerm::Kind::Reference) {
    using Kind = RuleTerm::Kind;
    const auto reference = rc::gen::map(References(), &RuleTerm::Of);
    if (depth == 0)
        return reference;
    const auto chain = [=](Kind kind) {
        return rc::gen::map(
            rc::gen::resize(3, rc::gen::container<std::vector<RuleTerm>>(3, Terms(depth - 1, kind))),
            [kind](std::vector<RuleTerm> parts) {
                return RuleTerm{kind, {}, std::move(parts)};
            });
    };
    const auto negation = rc::gen::map(Terms(depth - 1, Kind::Not), &RuleTerm::Not);
    if (parent == Kind::And)
        return rc::gen::oneOf(reference, negation, chain(Kind::Or));
    if (parent == Kind::Or)
        return rc::gen::oneOf(reference, negation, chain(Kind::And));
    return rc::gen::oneOf(reference, negation, chain(Kind::And), chain(Kind::Or));
}

} // namespace trellis
