#include "session/ModuleOperation.h"

#include "panels/ZOLGYRDlgError.h"
#include "toolkit/CallbackScope.h"
#include "values/ZOLGYRError.h"

namespace trellis {

namespace {

using Interface = ZOLIQRDCfgInterfaces;
using Parts = ModuleOperation::Parts;

constexpr int DateMilestone = 1;
constexpr int RangeMilestone = 2;

ModuleOperation OnSelection(const char* name,
                            void (Interface::*operation)(ZOLDialog*, int, ZOLDMInstance*, ZOLGYRError&)) {
    return {name, false, [operation](Interface& module, ZOLDialog* parent, Parts& parts, ZOLGYRError& error) {
                (module.*operation)(parent, static_cast<int>(parts.size()), parts.data(), error);
            }};
}

ModuleOperation OnOnePart(const char* name,
                          void (Interface::*operation)(ZOLDialog*, ZOLDMInstance&, ZOLGYRError&)) {
    return {name, true, [operation](Interface& module, ZOLDialog* parent, Parts& parts, ZOLGYRError& error) {
                (module.*operation)(parent, parts.front(), error);
            }};
}

ModuleOperation OnMilestones(const char* name, int type,
                             void (Interface::*operation)(ZOLDialog*, int, ZOLDMInstance*, ZOLGYRError&,
                                                          int)) {
    return {name, false,
            [operation, type](Interface& module, ZOLDialog* parent, Parts& parts, ZOLGYRError& error) {
                (module.*operation)(parent, static_cast<int>(parts.size()), parts.data(), error, type);
            }};
}

} // namespace

const std::vector<ModuleOperation>& ModuleOperation::All() {
    static const std::vector<ModuleOperation> operations = {
        {"Usage", true,
         [](Interface& module, ZOLDialog* parent, Parts& parts, ZOLGYRError& error) {
             ZOLListValZOLUnicodeString everywhere;
             module.Usage(parent, everywhere, parts.front(), error);
         }},
        OnOnePart("SetConfigurable", &Interface::SetConfigurable),
        OnSelection("UnSetConfigurable", &Interface::UnSetConfigurable),
        {"Validate", false,
         [](Interface& module, ZOLDialog* parent, Parts&, ZOLGYRError& error) {
             module.Validate(parent, error);
         }},
        OnOnePart("PartCfgAnalysis", &Interface::PartCfgAnalysis),
        OnSelection("AvailableTypes", &Interface::AvailableTypes),
        OnOnePart("SetDefaultCH", &Interface::SetDefaultCH),
        OnSelection("SetConfigHandler", &Interface::SetConfigHandler),
        OnSelection("PlannedEffectivity", &Interface::PlannedEffectivity),
        OnSelection("OpenCategoryManager", &Interface::OpenCategoryManager),
        OnSelection("OpenRuleManager", &Interface::OpenRuleManager),
        OnSelection("DeleteDictionary", &Interface::DeleteDictionary),
        OnSelection("ImportDictionary", &Interface::ImportDictionary),
        OnMilestones("OpenMilestoneManagerDate", DateMilestone, &Interface::OpenMilestoneManager),
        OnMilestones("OpenMilestoneManagerRange", RangeMilestone, &Interface::OpenMilestoneManager),
        OnMilestones("DeleteMilestonesDate", DateMilestone, &Interface::DeleteMilestones),
        OnMilestones("DeleteMilestonesRange", RangeMilestone, &Interface::DeleteMilestones),
        OnSelection("ModifyStatus", &Interface::ModifyStatus),
        OnSelection("CleanDatabase", &Interface::CleanDatabase),
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
