#pragma once

#include "service/ConfigurationMemory.h"
#include "values/ZOLQRDCfgEffectivity.h"

namespace trellis {

// Changes of the rows of an item, below all questions of rights. They keep content and memory in step.

// Whether a text may name a category or an option: 1 to 40 characters; else sets 60400 (name).
bool IsDictionaryName(const ZOLUnicodeString& name, ZOLGYRError& error);
// 60301: the object was removed or unloaded.
void RefuseDead(const StoredObject& object, ZOLGYRError& error);

// The content of a dictionary that stands; null for none, with 60301 for a removed one, 60403 for an item that is none,
// or the number of a failed read.
ItemContent* DictionaryContent(ConfigurationMemory& memory, const RecordOf<ConfigItemRow>& dictionary,
                               ZOLGYRError& error);

RecordOf<CategoryRow> AddCategoryRow(ConfigurationMemory& memory, ItemContent& content, CategoryRow row);
RecordOf<EffectivityRow> AddOptionRow(ConfigurationMemory& memory, ItemContent& content,
                                      const CategoryRow& category, const std::string& name,
                                      const std::string& description);
RecordOf<EffectivityRow> AddEffectivityRows(ConfigurationMemory& memory, ItemContent& content,
                                            const ZOLQRDCfgEffectivity& term);

void SetDefaultRows(ConfigurationMemory& memory, ItemContent& content, std::int64_t category,
                    const std::vector<std::int64_t>& options, ZOLGYRError& error);
void SetPackOptionRows(ConfigurationMemory& memory, ItemContent& content, std::int64_t effectivity,
                       const ZOLListValZOLUnicodeString& options, ZOLGYRError& error);
void TakeOutOfCategory(ConfigurationMemory& memory, ItemContent& content,
                       const RecordOf<EffectivityRow>& option, ZOLGYRError& error);

// An option or effectivity with its defaults, package, attributes and places on links.
void RemoveEffectivityRows(ConfigurationMemory& memory, ItemContent& content,
                           const RecordOf<EffectivityRow>& effectivity, ZOLGYRError& error);
// A category with its options and defaults.
void RemoveCategoryRows(ConfigurationMemory& memory, ItemContent& content,
                        const RecordOf<CategoryRow>& category, ZOLGYRError& error);
// An item with all that is in it.
void RemoveItemRows(ConfigurationMemory& memory, ItemContent& content, ZOLGYRError& error);

} // namespace trellis
