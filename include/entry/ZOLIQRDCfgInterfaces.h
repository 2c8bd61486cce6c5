#pragma once

#include "values/ZOLListVal.h"
#include "values/ZOLUnicodeString.h"

class ZOLDialog;
class ZOLDMInstance;
class ZOLGYRError;

// ZOLIQRDCfgInterfaces: the requests that a host may put to the configuration module, one operation each. A host
// loads the module, finds its factory by the name "TRELLIS" in ZOLDictionary, calls it once, and keeps the object
// as long as any panel of the module lives.
//
// The parent is the dialog above which anything is shown; null is the host's top window. Instances are passed as a
// count and the first of an array. The result is the code in the carrier, which the caller shows (0 is success,
// mode -1 a message of success); SetDefaultCH alone shows its own error. Operations marked "clears" empty the
// carrier on entry; all others must be given a clean one.
class ZOLIQRDCfgInterfaces {
public:
    // The links that use a part, within the assemblies whose identifiers are given, with their effectivities.
    virtual void Usage(ZOLDialog* parent, ZOLListValZOLUnicodeString& assemblies, ZOLDMInstance& part,
                       ZOLGYRError& error) = 0;
    // Makes a part configurable and saves. Clears. 20267 when it is so already; the number of the right "Set" when
    // that is refused and the privilege is below 2.
    virtual void SetConfigurable(ZOLDialog* parent, ZOLDMInstance& part, ZOLGYRError& error) = 0;
    // Takes configurability from parts, asking 20296 for each that has effectivities, and saves once. Clears. 20295
    // with the name when the only part is not configurable (among several it is passed over); the number of the
    // right "Unset" when that is refused and the privilege is below 10, which ends the work before the save.
    virtual void UnSetConfigurable(ZOLDialog* parent, int count, ZOLDMInstance* parts,
                                   ZOLGYRError& error) = 0;
    // Opens the panel that validates modifications.
    virtual void Validate(ZOLDialog* parent, ZOLGYRError& error) = 0;
    // Lists the links of a part with their effectivities.
    virtual void PartCfgAnalysis(ZOLDialog* parent, ZOLDMInstance& part, ZOLGYRError& error) = 0;
    // Opens the panel of allowed effectivity types. The right "Set" is asked of every part (privilege 2).
    virtual void AvailableTypes(ZOLDialog* parent, int count, ZOLDMInstance* parts, ZOLGYRError& error) = 0;
    // Opens the panel of a part's default config handler; shows its own error.
    virtual void SetDefaultCH(ZOLDialog* parent, ZOLDMInstance& part, ZOLGYRError& error) = 0;
    // Opens the config handler panel on one configurable part or on none. Clears. 20269 for several parts, 20265
    // for one that is not configurable.
    virtual void SetConfigHandler(ZOLDialog* parent, int count, ZOLDMInstance* parts, ZOLGYRError& error) = 0;
    // Opens the panel of planned effectivities; the parts are not used.
    virtual void PlannedEffectivity(ZOLDialog* parent, int count, ZOLDMInstance* parts,
                                    ZOLGYRError& error) = 0;
    // Opens the dictionary manager. Clears. The first part that is not configurable stops it with its code.
    virtual void OpenCategoryManager(ZOLDialog* parent, int count, ZOLDMInstance* parts,
                                     ZOLGYRError& error) = 0;
    // Opens the rule manager. A part that is not configurable stops it with its code, one without a dictionary with
    // 20297 and its name.
    virtual void OpenRuleManager(ZOLDialog* parent, int count, ZOLDMInstance* parts, ZOLGYRError& error) = 0;
    // Deletes the dictionaries of parts, asking 50060 for each, and saves once. Clears. 20295 with the name when the
    // only part is not configurable; 20297 with the name for a part without a dictionary, which does not stop the
    // others but, while it stands, the save; the number of the right "DeleteOptionDictionary" when that is refused
    // and the privilege is below 10.
    virtual void DeleteDictionary(ZOLDialog* parent, int count, ZOLDMInstance* parts, ZOLGYRError& error) = 0;
    // Reads the dictionaries of parts from the import repository. Clears. 50213 (mode -1) on success.
    virtual void ImportDictionary(ZOLDialog* parent, int count, ZOLDMInstance* parts, ZOLGYRError& error) = 0;
    // Opens the milestone manager, for dates with type 1, else for ranges. Clears. One configurable part is enough;
    // the right "ManageDateMilestone" or "ManageRangeMilestone" is asked of all, whatever the privilege.
    virtual void OpenMilestoneManager(ZOLDialog* parent, int count, ZOLDMInstance* parts, ZOLGYRError& error,
                                      int milestoneType) = 0;
    // Deletes all milestones of parts, of dates with type 1, else of ranges. Clears. 50098 with the name for a part
    // that has none; the number of the right "DeleteDateMilestone" or "DeleteRangeMilestone", whatever the privilege.
    virtual void DeleteMilestones(ZOLDialog* parent, int count, ZOLDMInstance* parts, ZOLGYRError& error,
                                  int milestoneType) = 0;
    // Opens the panel that promotes and demotes modifications; the parts are not used.
    virtual void ModifyStatus(ZOLDialog* parent, int count, ZOLDMInstance* parts, ZOLGYRError& error) = 0;
    // Opens the database cleaner; nothing without parts. Clears. One configurable part is enough; the right
    // "CleanAssembly" is asked of all, whatever the privilege.
    virtual void CleanDatabase(ZOLDialog* parent, int count, ZOLDMInstance* parts, ZOLGYRError& error) = 0;

    // Last, so that the operations above keep their slots.
    virtual ~ZOLIQRDCfgInterfaces() = default;
};

// The name under which the module's factory is found, and the factory's type. The caller owns what it makes.
inline constexpr const char* TrellisModuleName = "TRELLIS";
using TrellisFactory = ZOLIQRDCfgInterfaces* (*)();
