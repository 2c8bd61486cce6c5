#pragma once

#include "rules/engine/RuleQuestion.h"

namespace trellis {

// What holds exactly where a directive, a package or a matrix is not fulfilled.
RuleFormula ViolationOf(const RuleModel& model, RuleReason rule);

} // namespace trellis
