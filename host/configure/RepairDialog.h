#pragma once

#include "configure/SelectionReasons.h"
#include "toolkit/ZOLDlgDialog.h"

class ZOLDlgSelectorList;

namespace trellis {

// RepairDialog: tells why choices cannot stand together, and lets a person take one of the ways out of it. Made, asked
// once and given up.
class RepairDialog : public ZOLDlgDialog {
    ZOL_META_OBJECT(RepairDialog, ZOLDlgDialog)
public:
    RepairDialog(ZOLDialog* father, const SelectionReasons& reasons);

    ZOLString GetResourceFilename(int level) const override;
    // Waits; what is to be given up, or nothing.
    SelectionReasons::Parameters Ask();

private:
    void BuildRepairs();
    ZOLUnicodeString LineOf(const SelectionReasons::Parameters& repair) const;
    ZOLUnicodeString Text(const char* key, const ZOLListValZOLUnicodeString& parameters = {}) const;
    void ChoiceCB(ZOLCommand*, ZOLNotification*, void*);

    std::vector<SelectionReasons::Parameters> _repairs;
    ZOLDlgSelectorList* _list = nullptr;
};

} // namespace trellis
