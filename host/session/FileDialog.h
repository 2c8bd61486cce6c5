#pragma once

#include "toolkit/ZOLDlgDialog.h"

class ZOLDlgEditor;

namespace trellis {

// PictureDialog: asks for the file into which the outline is saved as a picture. Made, asked once and given up.
class PictureDialog : public ZOLDlgDialog {
    ZOL_META_OBJECT(PictureDialog, ZOLDlgDialog)
public:
    explicit PictureDialog(ZOLDialog* father);

    ZOLString GetResourceFilename(int level) const override;
    // Waits for the user; true when a file was named. A relative path is one of the home folder.
    bool Ask(ZOLUnicodeString& path);

private:
    ZOLDlgEditor* _path;
};

} // namespace trellis
