#pragma once

#include "toolkit/ZOLDlgDialog.h"

class ZOLDlgEditor;

namespace trellis {

// FileDialog: asks for the name of a file. Made, asked once and given up. Its texts are those of the resource file that is
// named: the window, the field, and a line that tells what the name decides.
class FileDialog : public ZOLDlgDialog {
    ZOL_META_OBJECT(FileDialog, ZOLDlgDialog)
public:
    // name: of the dialog in its resource file; proposed: what stands in the field at first.
    FileDialog(ZOLDialog* father, const char* name, const char* resourceFile, const std::string& proposed);

    ZOLString GetResourceFilename(int level) const override;
    // Waits for the user; true when a file was named. A relative path is one of the home folder.
    bool Ask(ZOLUnicodeString& path);

private:
    const char* _resourceFile;
    ZOLDlgEditor* _path;
};

} // namespace trellis
