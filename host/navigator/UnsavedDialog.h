#pragma once

#include "toolkit/ZOLDlgDialog.h"

class ZOLDlgMultiList;

namespace trellis {

class StructureEdit;

// UnsavedDialog: lists what is not saved yet, and the edits of links that wait for their commit: what happened, to what
// kind of object, to which. Made, asked once and given up.
class UnsavedDialog : public ZOLDlgDialog {
    ZOL_META_OBJECT(UnsavedDialog, ZOLDlgDialog)
public:
    UnsavedDialog(ZOLDialog* father, const StructureEdit& edit);

    ZOLString GetResourceFilename(int level) const override;
    enum class Answer { Close, Save, Discard };
    Answer Ask();

private:
    void Append(const ZOLUnicodeString& change, const ZOLUnicodeString& kind, const ZOLUnicodeString& object);
    ZOLUnicodeString Text(const char* key) const;

    ZOLDlgMultiList* _list;
};

} // namespace trellis
