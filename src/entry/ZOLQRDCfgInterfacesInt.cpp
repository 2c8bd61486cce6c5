#include "entry/ZOLQRDCfgInterfacesInt.h"

#include "entry/FunctionRight.h"
#include "model/ZOLDMInstance.h"
#include "panels/ZOLGYRDlgError.h"
#include "service/ZOLQRDCfgBase.h"
#include "service/ZOLQRDCfgManager.h"
#include "values/OperationTrace.h"

#include <span>

using trellis::OperationTrace;

namespace {

constexpr int TraceLevel = 3;
constexpr int DateMilestone = 1;

constexpr int NotConfigurable = 20265;
constexpr int AlreadyConfigurable = 20267;
constexpr int SeveralInstances = 20269;
constexpr int OnlyInstanceNotConfigurable = 20295;
constexpr int AskWithEffectivities = 20296;
constexpr int NoDictionary = 20297;
constexpr int AskDeleteDictionary = 50060;
constexpr int NotInThisBuild = 60001;

std::span<ZOLDMInstance> Instances(int count, ZOLDMInstance* instances) {
    return {instances, count > 0 ? static_cast<std::size_t>(count) : 0};
}

ZOLUnicodeString DisplayName(const ZOLDMInstance& instance) {
    return instance.GetNameInstance(1, 1, " ", "$BOM_NAVIG");
}

void SetNotInThisBuild(ZOLGYRError& error, const char* operation) {
    error.Set(NotInThisBuild);
    error.Add(operation);
}

// Sets the refusal of a right as the code. False when it was refused.
bool RightHolds(const char* function, const ZOLDMInstance& instance, ZOLGYRError& error) {
    const int refusal = trellis::RefusedRight(instance, function);
    if (refusal > 0)
        error.Set(refusal);
    return refusal <= 0;
}

bool RightHoldsOnAll(const char* function, std::span<ZOLDMInstance> instances, ZOLGYRError& error) {
    for (const ZOLDMInstance& instance : instances)
        if (!RightHolds(function, instance, error))
            return false;
    return true;
}

// Every instance must be configurable; the first that is not sets its code.
bool AllConfigurable(ZOLQRDCfgManager& manager, std::span<ZOLDMInstance> instances, ZOLGYRError& error) {
    for (const ZOLDMInstance& instance : instances) {
        ZOLQRDConfigurableObject object;
        manager.GetConfigurableObject(instance, object, error);
        if (error.GetCode() != 0)
            return false;
    }
    return true;
}

// One configurable instance is enough: the walk ends at it, and the code of the last call stands.
bool AnyConfigurable(ZOLQRDCfgManager& manager, std::span<ZOLDMInstance> instances, ZOLGYRError& error) {
    for (const ZOLDMInstance& instance : instances) {
        error.Clear();
        ZOLQRDConfigurableObject object;
        manager.GetConfigurableObject(instance, object, error);
        if (error.GetCode() == 0)
            return true;
    }
    return error.GetCode() == 0;
}

// Treats every instance that is configurable, in order, until `treat` answers false. An instance that is not
// configurable is passed over in silence; the only one is reported by its name. False when the work ended early.
template <class Treat>
bool TreatConfigurable(ZOLQRDCfgManager& manager, std::span<ZOLDMInstance> instances, ZOLGYRError& error,
                       Treat treat) {
    for (ZOLDMInstance& instance : instances) {
        ZOLGYRError local;
        ZOLQRDConfigurableObject object;
        manager.GetConfigurableObject(instance, object, local);
        if (local.GetCode() == 0) {
            if (!treat(instance, object))
                return false;
        } else if (instances.size() == 1) {
            error.Add(DisplayName(instance));
            error.Set(OnlyInstanceNotConfigurable);
            return false;
        }
    }
    return true;
}

bool UserAgrees(ZOLDialog* parent, int question, const ZOLDMInstance& instance) {
    ZOLGYRError local;
    local.Set(question, 0);
    local.Add(DisplayName(instance));
    return ZOLGYRDlgError::Display(parent, local, 1) == 1;
}

bool HasEffectivities(const ZOLQRDConfigurableObject& object) {
    const ZOLIQrdConfigItem_var item = object.GetConfigItem();
    if (item == NULL_var)
        return false;
    ZOLListVal<ZOLIQrdEffectivity_var> effectivities;
    item->GetEffectivities(effectivities);
    return effectivities.Size() > 0;
}

} // namespace

void ZOLQRDCfgInterfacesInt::Usage(ZOLDialog*, ZOLListValZOLUnicodeString&, ZOLDMInstance&,
                                   ZOLGYRError& error) {
    const OperationTrace trace("ZOLQRDCfgInterfacesInt::Usage", TraceLevel, error);
    SetNotInThisBuild(error, "Usage");
}

void ZOLQRDCfgInterfacesInt::SetConfigurable(ZOLDialog*, ZOLDMInstance& part, ZOLGYRError& error) {
    const OperationTrace trace("ZOLQRDCfgInterfacesInt::SetConfigurable", TraceLevel, error);
    error.Clear();
    if (!RightHolds("Set", part, error))
        return;
    ZOLQRDCfgManager* manager = ZOLQRDCfgManager::CurrentCfgManager(error);
    if (error.GetCode() != 0)
        return;
    ZOLQRDConfigurableObject object;
    manager->GetConfigurableObject(part, object, error);
    if (error.GetCode() != NotConfigurable) {
        error.Set(AlreadyConfigurable);
        return;
    }
    error.Clear();
    manager->SetConfigurable(part, error);
    // Saved without a look at the code: what another panel left unsaved goes along, and a refusal stands.
    manager->Save(error);
}

void ZOLQRDCfgInterfacesInt::UnSetConfigurable(ZOLDialog* parent, int count, ZOLDMInstance* parts,
                                               ZOLGYRError& error) {
    const OperationTrace trace("ZOLQRDCfgInterfacesInt::UnSetConfigurable", TraceLevel, error);
    error.Clear();
    ZOLQRDCfgManager* manager = ZOLQRDCfgManager::CurrentCfgManager(error);
    if (error.GetCode() != 0 || count < 1)
        return;
    const auto unset = [&](ZOLDMInstance& part, const ZOLQRDConfigurableObject& object) {
        if (!RightHolds("Unset", part, error))
            return false;
        if (!HasEffectivities(object) || UserAgrees(parent, AskWithEffectivities, part))
            ZOLQRDCfgBase::UnsetConfigurable(part, error);
        return error.GetCode() == 0;
    };
    if (TreatConfigurable(*manager, Instances(count, parts), error, unset))
        manager->Save(error);
}

void ZOLQRDCfgInterfacesInt::Validate(ZOLDialog*, ZOLGYRError& error) {
    SetNotInThisBuild(error, "Validate");
}

void ZOLQRDCfgInterfacesInt::PartCfgAnalysis(ZOLDialog*, ZOLDMInstance&, ZOLGYRError& error) {
    const OperationTrace trace("ZOLQRDCfgInterfacesInt::PartCfgAnalysis", TraceLevel, error);
    SetNotInThisBuild(error, "PartCfgAnalysis");
}

void ZOLQRDCfgInterfacesInt::AvailableTypes(ZOLDialog*, int count, ZOLDMInstance* parts, ZOLGYRError& error) {
    if (RightHoldsOnAll("Set", Instances(count, parts), error))
        SetNotInThisBuild(error, "AvailableTypes");
}

void ZOLQRDCfgInterfacesInt::SetDefaultCH(ZOLDialog* parent, ZOLDMInstance&, ZOLGYRError& error) {
    SetNotInThisBuild(error, "SetDefaultCH");
    ZOLGYRDlgError::Display(parent, error, 0);
}

void ZOLQRDCfgInterfacesInt::SetConfigHandler(ZOLDialog*, int count, ZOLDMInstance* parts,
                                              ZOLGYRError& error) {
    const OperationTrace trace("ZOLQRDCfgInterfacesInt::SetConfigHandler", TraceLevel, error);
    error.Clear();
    if (count != 0 && count != 1) {
        error.Set(SeveralInstances);
        return;
    }
    if (count == 1) {
        ZOLQRDCfgManager* manager = ZOLQRDCfgManager::CurrentCfgManager(error);
        if (error.GetCode() != 0 || !AllConfigurable(*manager, Instances(count, parts), error))
            return;
    }
    SetNotInThisBuild(error, "SetConfigHandler");
}

void ZOLQRDCfgInterfacesInt::PlannedEffectivity(ZOLDialog*, int, ZOLDMInstance*, ZOLGYRError& error) {
    SetNotInThisBuild(error, "PlannedEffectivity");
}

void ZOLQRDCfgInterfacesInt::OpenCategoryManager(ZOLDialog*, int count, ZOLDMInstance* parts,
                                                 ZOLGYRError& error) {
    const OperationTrace trace("ZOLQRDCfgInterfacesInt::OpenCategoryManager", TraceLevel, error);
    error.Clear();
    ZOLQRDCfgManager* manager = ZOLQRDCfgManager::CurrentCfgManager(error);
    if (error.GetCode() != 0 || !AllConfigurable(*manager, Instances(count, parts), error))
        return;
    SetNotInThisBuild(error, "OpenCategoryManager");
}

void ZOLQRDCfgInterfacesInt::OpenRuleManager(ZOLDialog*, int count, ZOLDMInstance* parts,
                                             ZOLGYRError& error) {
    const OperationTrace trace("ZOLQRDCfgInterfacesInt::OpenRuleManager", TraceLevel, error);
    ZOLQRDCfgManager* manager = ZOLQRDCfgManager::CurrentCfgManager(error);
    if (error.GetCode() != 0)
        return;
    for (const ZOLDMInstance& part : Instances(count, parts)) {
        ZOLQRDConfigurableObject object;
        manager->GetConfigurableObject(part, object, error);
        if (error.GetCode() != 0)
            return;
        if (object.GetDictionary() == NULL_var) {
            error.Set(NoDictionary);
            error.Add(DisplayName(part));
            return;
        }
    }
    SetNotInThisBuild(error, "OpenRuleManager");
}

void ZOLQRDCfgInterfacesInt::DeleteDictionary(ZOLDialog* parent, int count, ZOLDMInstance* parts,
                                              ZOLGYRError& error) {
    const OperationTrace trace("ZOLQRDCfgInterfacesInt::DeleteDictionary", TraceLevel, error);
    error.Clear();
    ZOLQRDCfgManager* manager = ZOLQRDCfgManager::CurrentCfgManager(error);
    if (error.GetCode() != 0 || count < 1)
        return;
    const auto remove = [&](ZOLDMInstance& part, const ZOLQRDConfigurableObject& object) {
        if (object.GetDictionary() == NULL_var) {
            // Does not stop the others, but while it stands nothing is saved.
            error.Set(NoDictionary);
            error.Add(DisplayName(part));
            return true;
        }
        if (!RightHolds("DeleteOptionDictionary", part, error))
            return false;
        if (!UserAgrees(parent, AskDeleteDictionary, part))
            return true;
        manager->DeleteDictionary(part, error);
        return error.GetCode() == 0;
    };
    if (TreatConfigurable(*manager, Instances(count, parts), error, remove) && error.GetCode() == 0)
        manager->Save(error);
}

void ZOLQRDCfgInterfacesInt::ImportDictionary(ZOLDialog*, int, ZOLDMInstance*, ZOLGYRError& error) {
    const OperationTrace trace("ZOLQRDCfgInterfacesInt::ImportDictionary", TraceLevel, error);
    error.Clear();
    SetNotInThisBuild(error, "ImportDictionary");
}

void ZOLQRDCfgInterfacesInt::OpenMilestoneManager(ZOLDialog*, int count, ZOLDMInstance* parts,
                                                  ZOLGYRError& error, int milestoneType) {
    const OperationTrace trace("ZOLQRDCfgInterfacesInt::OpenMilestoneManager", TraceLevel, error);
    error.Clear();
    ZOLQRDCfgManager* manager = ZOLQRDCfgManager::CurrentCfgManager(error);
    if (error.GetCode() != 0)
        return;
    const std::span<ZOLDMInstance> instances = Instances(count, parts);
    const char* right = milestoneType == DateMilestone ? "ManageDateMilestone" : "ManageRangeMilestone";
    if (AnyConfigurable(*manager, instances, error) && RightHoldsOnAll(right, instances, error))
        SetNotInThisBuild(error, "OpenMilestoneManager");
}

void ZOLQRDCfgInterfacesInt::DeleteMilestones(ZOLDialog*, int count, ZOLDMInstance* parts, ZOLGYRError& error,
                                              int milestoneType) {
    const OperationTrace trace("ZOLQRDCfgInterfacesInt::DeleteMilestones", TraceLevel, error);
    error.Clear();
    ZOLQRDCfgManager::CurrentCfgManager(error);
    if (error.GetCode() != 0)
        return;
    const char* right = milestoneType == DateMilestone ? "DeleteDateMilestone" : "DeleteRangeMilestone";
    if (RightHoldsOnAll(right, Instances(count, parts), error))
        SetNotInThisBuild(error, "DeleteMilestones");
}

void ZOLQRDCfgInterfacesInt::ModifyStatus(ZOLDialog*, int, ZOLDMInstance*, ZOLGYRError& error) {
    SetNotInThisBuild(error, "ModifyStatus");
}

void ZOLQRDCfgInterfacesInt::CleanDatabase(ZOLDialog*, int count, ZOLDMInstance* parts, ZOLGYRError& error) {
    const OperationTrace trace("ZOLQRDCfgInterfacesInt::CleanDatabase", TraceLevel, error);
    error.Clear();
    const std::span<ZOLDMInstance> instances = Instances(count, parts);
    if (instances.empty())
        return;
    ZOLQRDCfgManager* manager = ZOLQRDCfgManager::CurrentCfgManager(error);
    if (error.GetCode() != 0)
        return;
    if (AnyConfigurable(*manager, instances, error) && RightHoldsOnAll("CleanAssembly", instances, error))
        SetNotInThisBuild(error, "CleanDatabase");
}
