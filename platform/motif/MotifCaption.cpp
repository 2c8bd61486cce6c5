#include "motif/MotifCaption.h"

#include "motif/MotifQuirks.h"

#include <Xm/Label.h>

namespace trellis {

MotifCaption::MotifCaption(MotifView& view, Widget surface, const char* name)
    : _face(view, Face::Caption),
      _label(XtVaCreateWidget(name, xmLabelWidgetClass, surface, XmNrecomputeSize, False, nullptr)) {
    XtAddCallback(_label, MotifQuirks::Name(XmNdestroyCallback), &MotifCaption::GoneCB, this);
}

MotifCaption::~MotifCaption() {
    if (_label)
        XtRemoveCallback(_label, MotifQuirks::Name(XmNdestroyCallback), &MotifCaption::GoneCB, this);
}

void MotifCaption::GoneCB(Widget, XtPointer caption, XtPointer) {
    static_cast<MotifCaption*>(caption)->_label = nullptr;
}

void MotifCaption::Show(const ZOLUnicodeString& text, bool isSensitive, char mnemonic) {
    if (!_label)
        return;
    Face face;
    face.text = text.Bytes();
    face.isSensitive = isSensitive;
    face.mnemonic = mnemonic;
    _face.Show(_label, face);
}

void MotifCaption::Place(const LayoutRectangle& place) {
    if (!_label)
        return;
    MotifQuirks::Configure(_label, place.x, place.y, place.width, place.height);
    _face.Fit(_label);
}

void MotifCaption::SetManaged(bool isManaged) {
    if (_label)
        MotifQuirks::SetManaged(_label, isManaged);
}

void MotifCaption::Destroy() {
    if (_label)
        XtDestroyWidget(_label);
}

} // namespace trellis
