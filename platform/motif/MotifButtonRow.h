#pragma once

#include "motif/MotifFace.h"
#include "toolkit/DialogButtons.h"
#include "toolkit/LayoutTypes.h"

#include "motif/MotifNative.h"

#include <array>
#include <memory>

namespace trellis {

class MotifView;

// MotifButtonRow: the buttons of a dialog or message box, as children of a native template message box.
class MotifButtonRow {
public:
    // The box itself, unmanaged, with all four buttons. Return and Escape are the toolkit's matter, so the box
    // knows of no default button.
    static Widget MakeBox(const char* name, Widget parent);
    MotifButtonRow(MotifView& view, Widget box);

    // `dialog` owns the buttons; the default one stands out when it can be pressed.
    void Mirror(const DialogButtons& buttons, const ZOLDialog& dialog, ZOLDialogButton defaultButton);
    // The room that the buttons need, without any around them.
    LayoutSize GetSize(const DialogButtons& buttons, const ZOLDialog& dialog) const;
    void Place(const DialogButtons& buttons, const ZOLDialog& dialog, const LayoutRectangle& row);
    // The native button; which is behind a native button, or None.
    Widget GetWidget(ZOLDialogButton button) const { return _widgets[static_cast<std::size_t>(button)]; }
    ZOLDialogButton GetButton(Widget widget) const;

private:
    MotifView& _view;
    std::array<Widget, 5> _widgets = {};
    std::array<std::unique_ptr<MotifFace>, 5> _faces;
};

} // namespace trellis
