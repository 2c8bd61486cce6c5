#pragma once

#include "toolkit/ZOLDlgDialog.h"

class ZOLDlgEditor;

namespace trellis {

// RenameDialog: asks for the name of a link. Made, asked once and given up.
class RenameDialog : public ZOLDlgDialog {
    ZOL_META_OBJECT(RenameDialog, ZOLDlgDialog)
public:
    RenameDialog(ZOLDialog* father, const ZOLUnicodeString& name);

    ZOLString GetResourceFilename(int level) const override;
    // Waits for the user; true when a name was given, perhaps an empty one.
    bool Ask(ZOLUnicodeString& name);

private:
    ZOLDlgEditor* _name;
};

} // namespace trellis
