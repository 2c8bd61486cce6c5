#pragma once

#include "toolkit/DialogButtons.h"
#include "toolkit/LayoutTypes.h"

#include "motif/MotifNative.h"

#include <array>

namespace trellis {

class Theme;
class TextMeasure;

// MotifButtonRow: the buttons of a dialog or message box, as children of a native template message box. They
// stand at the right end of their row, equally wide.
class MotifButtonRow {
public:
    // The box itself, unmanaged, with all four buttons. Return and Escape are the toolkit's matter, so the box
    // knows of no default button.
    static Widget MakeBox(const char* name, Widget parent);
    MotifButtonRow(Widget box, const Theme& theme, const TextMeasure& measure);

    // `dialog` owns the buttons; the default one stands out when it can be pressed.
    void Mirror(const DialogButtons& buttons, const ZOLDialog& dialog, ZOLDialogButton defaultButton);
    // The room that the buttons need, without any around them.
    LayoutSize GetSize(const DialogButtons& buttons, const ZOLDialog& dialog) const;
    void Place(const DialogButtons& buttons, const ZOLDialog& dialog, const LayoutRectangle& row);
    // The native button; which is behind a native button, or None.
    Widget GetWidget(ZOLDialogButton button) const { return _widgets[static_cast<std::size_t>(button)]; }
    ZOLDialogButton GetButton(Widget widget) const;

private:
    int ButtonWidth(const DialogButtons& buttons, const ZOLDialog& dialog) const;
    void Dress(Widget widget, bool standsOut);

    const Theme& _theme;
    const TextMeasure& _measure;
    std::array<Widget, 5> _widgets = {};
};

} // namespace trellis
