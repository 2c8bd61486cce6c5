#pragma once

#include "toolkit/ZOLDialog.h"

// ZOLDlgMotif: the place in a dialog where a host embeds native widgets of its own.
class TRELLIS_API ZOLDlgMotif : public ZOLDialog {
    ZOL_META_OBJECT(ZOLDlgMotif, ZOLDialog)
public:
    ZOLDlgMotif(ZOLDialog* father, const ZOLString& name, unsigned long style = 0);

    // The native widget in which to build, and the application context of the loop. Null without a native
    // view, and the widget also before UpdateDisplay has realised it.
    void* GetFatherWidget();
    static void* GetXtAppContext();

    const char* GetKind() const override;
};
