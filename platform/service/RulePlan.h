#pragma once

#include "service/RuleFile.h"
#include "service/RuleImport.h"
#include "service/ZOLQRDCfgManager.h"

#include <map>
#include <string>
#include <vector>

namespace trellis {

// RulePlan: what a file of rules without problems comes to on a dictionary.
class RulePlan {
public:
    RulePlan(RuleFile& file, ZOLQRDCfgManager& manager, const ZOLIQrdConfigItem_var& dictionary,
             RuleImportReport& report);

    // Carries it out, unsaved, and counts. Stops at the first code; but every row that the service refuses as one that
    // is there already is noted in the file instead.
    void Apply(RuleImport::Others others, const ProgressCB& progress, ZOLGYRError& error);

private:
    void Match();
    void RemoveOthers(ZOLGYRError& error);
    void RemoveRows(const ZOLIQrdCompatibilityMatrix_var& matrix, ZOLGYRError& error);
    void ApplyRule(const RuleFileRule& rule, const ZOLIQrdConfigRule_var& stored, ZOLGYRError& error);
    // The matrix with its columns, without rows; null when it is as the file says.
    ZOLIQrdCompatibilityMatrix_var ApplyMatrix(const RuleFileMatrix& matrix, ZOLGYRError& error);
    void AddRow(const RuleFileMatrix& matrix, const RuleFileRule& row,
                const ZOLIQrdCompatibilityMatrix_var& stored, ZOLGYRError& error);
    bool IsSame(const RuleFileMatrix& matrix, const ZOLIQrdCompatibilityMatrix_var& stored) const;

    RuleFile& _file;
    ZOLQRDCfgManager& _manager;
    ZOLIQrdConfigItem_var _dictionary;
    RuleImportReport& _report;
    std::vector<ZOLIQrdConfigRule_var> _matches; // the stored rule of each rule of the file; null: it is new
    std::map<std::string, ZOLIQrdCompatibilityMatrix_var> _matrices; // of the dictionary, by name
    std::vector<ZOLIQrdConfigRule_var> _otherRules;                  // of the dictionary alone
    std::vector<ZOLIQrdCompatibilityMatrix_var> _otherMatrices;
};

} // namespace trellis
