#pragma once

#include "service/ConfigurationMemory.h"

namespace trellis {

// Who may change what in a dictionary. Each answers true, or sets the refusal: a number of RightTable with
// the user's name, or 60402 with category and owner.

// Add to it or take from it.
bool MayChangeDictionary(ConfigurationMemory& memory, const RecordOf<ConfigItemRow>& dictionary,
                         ZOLGYRError& error);
// Change a category, or what is in it. Beside the owners, whoever is given the corporate dictionary by name
// may: a rename there reaches the dictionaries of all parts.
bool MayChangeCategory(ConfigurationMemory& memory, const RecordOf<ConfigItemRow>& dictionary,
                       const CategoryRow& category, ZOLGYRError& error);
// Change an option, by its category. Effectivities on links are guarded by the operations that write them.
bool MayChangeEffectivity(ConfigurationMemory& memory, const RecordOf<ConfigItemRow>& item,
                          const EffectivityRow& effectivity, ZOLGYRError& error);
// Change a rule or a matrix, add one, take one away: the right on rules, and for one that is there its owner. `name` and
// owners are those of the object; empty owners belong to nobody and bind nobody.
bool MayChangeRules(ConfigurationMemory& memory, const RecordOf<ConfigItemRow>& dictionary,
                    ZOLGYRError& error);
bool MayChangeRule(ConfigurationMemory& memory, const RecordOf<ConfigItemRow>& dictionary,
                   const ConfigRuleRow& rule, ZOLGYRError& error);
bool MayChangeMatrix(ConfigurationMemory& memory, const RecordOf<ConfigItemRow>& dictionary,
                     const CompatibilityMatrixRow& matrix, ZOLGYRError& error);
// Whether right and owner allow it, without the way of the corporate dictionary.
bool OwnsCategory(ConfigurationMemory& memory, const RecordOf<ConfigItemRow>& dictionary,
                  const CategoryRow& category, ZOLGYRError& error);

} // namespace trellis
