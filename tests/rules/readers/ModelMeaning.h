#pragma once

#include "rules/readers/VariabilityModel.h"

#include <set>
#include <string>

namespace trellis::test {

using Choice = std::set<std::string>; // names of options

// Whether the categories and rules of the model allow exactly these options.
bool Allows(const VariabilityModel& model, const Choice& chosen);

// "[Category] exclusive mandatory: Option, Option" and "name: if (a and b) then not c", a line for each.
std::string Described(const VariabilityModel& model);

// "LINE NUMBER, LINE NUMBER" of the problems.
std::string Problems(const ModelReading& reading);

} // namespace trellis::test
