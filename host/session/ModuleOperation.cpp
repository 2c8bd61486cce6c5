#include "session/ModuleOperation.h"

#include "panels/ZOLGYRDlgError.h"
#include "toolkit/CallbackScope.h"
#include "values/ZOLGYRError.h"

#include <limits>

namespace trellis {

namespace {

using Interface = ZOLIQRDCfgInterfaces;
using Parts = ModuleOperation::Parts;

constexpr int DateMilestone = 1;
constexpr int RangeMilestone = 2;

constexpr std::size_t Any = std::numeric_limits<std::size_t>::max();

ModuleOperation OnSelection(const char* name, std::size_t fewest,
                            void (Interface::*operation)(ZOLDialog*, int, ZOLDMInstance*, ZOLGYRError&)) {
    return {name, fewest, Any,
            [operation](Interface& module, ZOLDialog* parent, Parts& parts, ZOLGYRError& error) {
                (module.*operation)(parent, static_cast<int>(parts.size()), parts.data(), error);
            }};
}

ModuleOperation OnOnePart(const char* name,
                          void (Interface::*operation)(ZOLDialog*, ZOLDMInstance&, ZOLGYRError&)) {
    return {name, 1, 1, [operation](Interface& module, ZOLDialog* parent, Parts& parts, ZOLGYRError& error) {
                (module.*operation)(parent, parts.front(), error);
            }};
}

ModuleOperation OnMilestones(const char* name, int type,
                             void (Interface::*operation)(ZOLDialog*, int, ZOLDMInstance*, ZOLGYRError&,
                                                          int)) {
    return {name, 1, Any,
            [operation, type](Interface& module, ZOLDialog* parent, Parts& parts, ZOLGYRError& error) {
                (module.*operation)(parent, static_cast<int>(parts.size()), parts.data(), error, type);
            }};
}

} // namespace

const std::vector<ModuleOperation>& ModuleOperation::All() {
    static const std::vector<ModuleOperation> operations = {
        {"Usage", 1, 1,
         [](Interface& module, ZOLDialog* parent, Parts& parts, ZOLGYRError& error) {
             ZOLListValZOLUnicodeString everywhere;
             module.Usage(parent, everywhere, parts.front(), error);
         }},
        OnOnePart("SetConfigurable", &Interface::SetConfigurable),
        OnSelection("UnSetConfigurable", 1, &Interface::UnSetConfigurable),
        {"Validate", 0, Any,
         [](Interface& module, ZOLDialog* parent, Parts&, ZOLGYRError& error) {
             module.Validate(parent, error);
         }},
        OnOnePart("PartCfgAnalysis", &Interface::PartCfgAnalysis),
        OnSelection("AvailableTypes", 1, &Interface::AvailableTypes),
        OnOnePart("SetDefaultCH", &Interface::SetDefaultCH),
        OnSelection("SetConfigHandler", 0, &Interface::SetConfigHandler),
        OnSelection("PlannedEffectivity", 0, &Interface::PlannedEffectivity),
        OnSelection("OpenCategoryManager", 0, &Interface::OpenCategoryManager),
        OnSelection("OpenRuleManager", 0, &Interface::OpenRuleManager),
        OnSelection("DeleteDictionary", 1, &Interface::DeleteDictionary),
        OnSelection("ImportDictionary", 1, &Interface::ImportDictionary),
        OnMilestones("OpenMilestoneManagerDate", DateMilestone, &Interface::OpenMilestoneManager),
        OnMilestones("OpenMilestoneManagerRange", RangeMilestone, &Interface::OpenMilestoneManager),
        OnMilestones("DeleteMilestonesDate", DateMilestone, &Interface::DeleteMilestones),
        OnMilestones("DeleteMilestonesRange", RangeMilestone, &Interface::DeleteMilestones),
        OnSelection("ModifyStatus", 0, &Interface::ModifyStatus),
        OnSelection("CleanDatabase", 1, &Interface::CleanDatabase),
    };
    return operations;
}

const ModuleOperation* ModuleOperation::Find(const std::string& name) {
    for (const ModuleOperation& operation : All())
        if (name == operation.name)
            return &operation;
    return nullptr;
}

ZOLUnicodeString ModuleOperation::Run(ZOLIQRDCfgInterfaces& module, ZOLDialog* parent, Parts parts) const {
    const CallbackScope scope;
    ZOLGYRError error;
    call(module, parent, parts, error);
    // SetDefaultCH has shown its own.
    if (error.GetCode() != 0 && std::string(name) != "SetDefaultCH")
        ZOLGYRDlgError::Display(parent, error, 0);
    ZOLUnicodeString text;
    error.GetLongMsg(text);
    return text;
}

} // namespace trellis
