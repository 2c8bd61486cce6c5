#pragma once

#include "motif/FacePainter.h"
#include "motif/MotifNative.h"

namespace trellis {

class MotifView;

// MotifFace: shows a face on a native label, button, or button without a window. It is painted into a picture
// on the server that the widget carries: native widgets write with one font only, without the scripts that it
// lacks, and without joining or turning letters.
//
// Around the face the native widget keeps room for the ring that tells that it has the keyboard.
class MotifFace {
public:
    MotifFace(MotifView& view, Face::Kind kind);
    ~MotifFace();
    MotifFace(const MotifFace&) = delete;
    MotifFace& operator=(const MotifFace&) = delete;

    // Brings the picture of the widget up to date; cheap when nothing has changed. The face's kind and size are
    // taken from here and from the widget.
    void Show(Widget widget, Face face);
    // The face fits the widget again after that one was sized anew; nothing before Show.
    void Fit(Widget widget);

private:
    Pixmap Painted(Widget widget, bool isPressed);
    void Free(Pixmap picture);
    void Carry(Widget widget);
    int RingWidth() const { return _kind == Face::Caption ? 0 : 2; }

    MotifView& _view;
    Face::Kind _kind;
    Face _shown;
    Pixmap _picture = 0;
    Pixmap _second = 0; // of push buttons: pressed; of what is greyed: the same once more
};

} // namespace trellis
