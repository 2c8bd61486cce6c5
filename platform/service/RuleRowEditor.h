#pragma once

#include "service/ConfigurationMemory.h"

namespace trellis {

// Changes of the rows of rules and matrices, below all questions of rights. They keep content and memory in step.

// Whether a text may name a rule: at most 40 characters; else sets 60400 (name).
bool IsRuleName(const ZOLUnicodeString& name, ZOLGYRError& error);

// With the rows of what it names.
RecordOf<ConfigRuleRow> AddRuleRow(ConfigurationMemory& memory, ItemContent& content, ConfigRuleRow row);
RecordOf<CompatibilityMatrixRow> AddMatrixRow(ConfigurationMemory& memory, ItemContent& content,
                                              CompatibilityMatrixRow row);
// What a rule names, anew after its text changed.
void SetReferenceRows(ConfigurationMemory& memory, const StoredRecord<ConfigRuleRow>& rule,
                      ZOLGYRError& error);
void SetColumnRows(ConfigurationMemory& memory, ItemContent& content, std::int64_t matrix,
                   const std::vector<std::int64_t>& categories, ZOLGYRError& error);
// Puts a row behind the others of a matrix, or in none for 0.
void PutIntoMatrix(ConfigurationMemory& memory, const RecordOf<ConfigItemRow>& dictionary,
                   const RecordOf<ConfigRuleRow>& rule, std::int64_t matrix, ZOLGYRError& error);

void RemoveRuleRows(ConfigurationMemory& memory, const std::vector<RecordOf<ConfigRuleRow>>& rules,
                    ZOLGYRError& error);
// A matrix with its columns and rows.
void RemoveMatrixRows(ConfigurationMemory& memory, ItemContent& content,
                      const RecordOf<CompatibilityMatrixRow>& matrix, ZOLGYRError& error);

} // namespace trellis
