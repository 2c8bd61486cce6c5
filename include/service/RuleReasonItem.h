#pragma once

#include "service/ZOLIQrdCompatibilityMatrix.h"

namespace trellis {

// RuleReasonItem: one thing that stands behind what the rules decided: a rule, a property of a category, or a choice of
// the user. Never another deduction.
struct TRELLIS_API RuleReasonItem {
    enum class Kind { Choice, Directive, Package, Matrix, ExclusiveCategory, MandatoryCategory };

    Kind kind = Kind::Choice;
    ZOLUnicodeString name; // of the rule, matrix or category; empty for a choice, and for a rule without name
    ZOLUnicodeString text; // of the rule, or of the choice as a rule would name it; empty for others
    ZOLIQrdConfigRule_var rule;            // of Directive and Package
    ZOLIQrdCompatibilityMatrix_var matrix; // of Matrix

    // The reason in one line for people, as in: rule "R12": if ("A") then "B".
    ZOLUnicodeString Line() const;
};

} // namespace trellis
