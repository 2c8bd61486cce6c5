#include "navigator/NavigatorMenus.h"

namespace trellis {

const std::vector<NavigatorMenu>& NavigatorMenu::Operations() {
    static const std::vector<NavigatorMenu> menus = {
        {"Part", {"SetConfigurable", "UnSetConfigurable", "AvailableTypes", "", "PartCfgAnalysis", "Usage"}},
        {"Dictionary",
         {"ConfigureItem", "", "OpenCategoryManager", "OpenRuleManager", "", "ImportDictionary",
          "DeleteDictionary"}},
        {"Milestones",
         {"OpenMilestoneManagerDate", "OpenMilestoneManagerRange", "", "DeleteMilestonesDate",
          "DeleteMilestonesRange"}},
        {"Handlers", {"SetConfigHandler", "SetDefaultCH"}},
        {"Modifications", {"PlannedEffectivity", "Validate", "ModifyStatus", "", "CleanDatabase"}},
    };
    return menus;
}

const std::vector<NavigatorMenu>& NavigatorMenu::Bar() {
    static const std::vector<NavigatorMenu> bar = [] {
        std::vector<NavigatorMenu> menus = {
            {"FileMenu", {"SaveItem", "DiscardItem", "UnsavedItem", "", "LeaveItem"}},
            {"EditMenu",
             {"CopyItem", "CutItem", "PasteItem", "", "MoveItem", "ReplaceItem", "RenameItem", "RemoveItem",
              "TakeBackItem", "", "FindNextItem", "FindPreviousItem"}},
            {"ViewMenu", {"OpenBranchItem", "CloseBranchItem", "RefreshItem", "", "SavePictureItem"}}};
        menus.insert(menus.end(), Operations().begin(), Operations().end());
        menus.push_back({"HelpMenu", {"ContentsItem"}});
        return menus;
    }();
    return bar;
}

const std::vector<const char*>& NavigatorMenu::OfNode() {
    static const std::vector<const char*> items = {
        "CopyItem",   "CutItem",    "PasteItem",    "", "MoveItem",       "ReplaceItem",
        "RenameItem", "RemoveItem", "TakeBackItem", "", "OpenBranchItem", "CloseBranchItem"};
    return items;
}

} // namespace trellis
