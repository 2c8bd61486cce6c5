#pragma once

#include "service/DictionaryRecord.h"
#include "service/ZOLQRDCfgManager.h"

#include <string>
#include <unordered_map>
#include <vector>

namespace trellis {

// DictionaryPlan: what the records of a file come to on a dictionary. It is checked as a whole before
// anything is changed, and every fault is noted with its line.
class DictionaryPlan {
public:
    explicit DictionaryPlan(DictionaryFile& file);

    // Checks against what the dictionary holds; a null handle is an empty dictionary. True when no problem
    // stands.
    bool Fits(ZOLQRDCfgManager& manager, const ZOLIQrdConfigItem_var& dictionary);
    // Carries it out, unsaved, and counts. Stops at the first code.
    void Apply(ZOLQRDCfgManager& manager, const ZOLIQrdConfigItem_var& dictionary,
               DictionaryImportReport& report, const ProgressCB& progress, ZOLGYRError& error);

private:
    using Records = std::unordered_map<std::string, const DictionaryRecord*>;

    void CheckTexts(const DictionaryRecord& record);
    void TakeIn(const DictionaryRecord& record);
    void CheckDefaults();
    void ApplyCategory(ZOLQRDCfgManager& manager, const ZOLIQrdConfigItem_var& dictionary,
                       const DictionaryRecord& record, DictionaryImportReport& report, ZOLGYRError& error);
    void ApplyOption(ZOLQRDCfgManager& manager, const ZOLIQrdConfigItem_var& dictionary,
                     const DictionaryRecord& record, DictionaryImportReport& report, ZOLGYRError& error);
    void ApplyDefaults(ZOLGYRError& error);

    DictionaryFile& _file;
    Records _categories; // of the file, by name
    Records _options;
    std::unordered_map<std::string, ZOLIQrdCategory_var> _known; // categories of the dictionary, by name
    std::unordered_map<std::string, ZOLIQrdEffectivity_var> _knownOptions;
    std::unordered_map<std::string, std::string> _categoryOfKnown; // of an option, by name
};

} // namespace trellis
