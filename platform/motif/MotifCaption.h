#pragma once

#include "motif/MotifFace.h"
#include "toolkit/LayoutTypes.h"
#include "values/ZOLUnicodeString.h"

namespace trellis {

// MotifCaption: a line of text on a surface: a label, the title of a frame or of a field. Its native label goes
// with the surface.
class MotifCaption {
public:
    // Makes the label, unmanaged.
    MotifCaption(MotifView& view, Widget surface, const char* name);
    ~MotifCaption();
    MotifCaption(const MotifCaption&) = delete;
    MotifCaption& operator=(const MotifCaption&) = delete;

    // Null once it went with its surface.
    Widget GetWidget() const { return _label; }
    void Show(const ZOLUnicodeString& text, bool isSensitive, char mnemonic = 0);
    void Place(const LayoutRectangle& place);
    // The label itself was placed by somebody else.
    void Fit() { _face.Fit(_label); }
    void SetManaged(bool isManaged);
    // Takes the label off the surface.
    void Destroy();

private:
    static void GoneCB(Widget widget, XtPointer caption, XtPointer);

    MotifFace _face;
    Widget _label;
};

} // namespace trellis
