#pragma once

#include "rules/language/RuleTerm.h"
#include "values/ImportProblem.h"

#include <string>
#include <vector>

namespace trellis {

// A variability model as a dictionary holds it: categories with options, and directive rules.

struct ModelOption {
    std::string name;        // 1 to 40 code points, unique in the model
    std::string description; // the whole name, where it had to be shortened
};

// Of a mandatory category at least one option stands, of an exclusive one at most one.
struct ModelCategory {
    std::string name; // as that of an option; a category and an option may be called the same
    std::string description;
    bool isExclusive = false;
    bool isMandatory = false;
    std::vector<ModelOption> options; // at least one
};

struct ModelRule {
    std::string name; // as that of an option
    int line = 0;     // where it comes from in the file, from 1
    DirectiveTerm term;
};

struct VariabilityModel {
    std::vector<ModelCategory> categories;
    std::vector<ModelRule> rules;
};

// What a reader makes of a text. The model is empty when problems stand.
struct ModelReading {
    VariabilityModel model;
    std::vector<ImportProblem> problems; // in order of lines, at most one for each, at most 100
};

} // namespace trellis
