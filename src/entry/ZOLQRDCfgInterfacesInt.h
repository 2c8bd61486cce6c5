#pragma once

#include "entry/ZOLIQRDCfgInterfaces.h"
#include "values/TrellisApi.h"

// ZOLQRDCfgInterfacesInt: the door of the module. Each operation decides by rights and by the state of the parts
// whether a request may go on, then calls the service or opens the panel that does the work. It holds no state.
class TRELLIS_API ZOLQRDCfgInterfacesInt final : public ZOLIQRDCfgInterfaces {
public:
    void Usage(ZOLDialog* parent, ZOLListValZOLUnicodeString& assemblies, ZOLDMInstance& part,
               ZOLGYRError& error) override;
    void SetConfigurable(ZOLDialog* parent, ZOLDMInstance& part, ZOLGYRError& error) override;
    void UnSetConfigurable(ZOLDialog* parent, int count, ZOLDMInstance* parts, ZOLGYRError& error) override;
    void Validate(ZOLDialog* parent, ZOLGYRError& error) override;
    void PartCfgAnalysis(ZOLDialog* parent, ZOLDMInstance& part, ZOLGYRError& error) override;
    void AvailableTypes(ZOLDialog* parent, int count, ZOLDMInstance* parts, ZOLGYRError& error) override;
    void SetDefaultCH(ZOLDialog* parent, ZOLDMInstance& part, ZOLGYRError& error) override;
    void SetConfigHandler(ZOLDialog* parent, int count, ZOLDMInstance* parts, ZOLGYRError& error) override;
    void PlannedEffectivity(ZOLDialog* parent, int count, ZOLDMInstance* parts, ZOLGYRError& error) override;
    void OpenCategoryManager(ZOLDialog* parent, int count, ZOLDMInstance* parts, ZOLGYRError& error) override;
    void OpenRuleManager(ZOLDialog* parent, int count, ZOLDMInstance* parts, ZOLGYRError& error) override;
    void DeleteDictionary(ZOLDialog* parent, int count, ZOLDMInstance* parts, ZOLGYRError& error) override;
    void ImportDictionary(ZOLDialog* parent, int count, ZOLDMInstance* parts, ZOLGYRError& error) override;
    void OpenMilestoneManager(ZOLDialog* parent, int count, ZOLDMInstance* parts, ZOLGYRError& error,
                              int milestoneType) override;
    void DeleteMilestones(ZOLDialog* parent, int count, ZOLDMInstance* parts, ZOLGYRError& error,
                          int milestoneType) override;
    void ModifyStatus(ZOLDialog* parent, int count, ZOLDMInstance* parts, ZOLGYRError& error) override;
    void CleanDatabase(ZOLDialog* parent, int count, ZOLDMInstance* parts, ZOLGYRError& error) override;
};
