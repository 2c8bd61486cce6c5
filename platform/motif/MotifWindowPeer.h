#pragma once

#include "motif/MotifButtonRow.h"
#include "motif/MotifShellPeer.h"

#include <optional>

class ZOLDlgDialog;
class ZOLDlgWindow;

namespace trellis {

// MotifWindowPeer: shows a window, with its row of buttons when it is a dialog.
class MotifWindowPeer : public MotifShellPeer {
public:
    MotifWindowPeer(MotifView& view, ZOLDlgWindow& window);
    void Mirror() override;
    void Close() override;

protected:
    void BuildContent(Widget shell) override;
    Widget GetSurface() const override { return _surface; }
    LayoutSize LayOut(LayoutSize size) override;
    bool StaysAbove() const override;

private:
    void Pressed(Widget button, XtPointer);

    ZOLDlgWindow& _window;
    ZOLDlgDialog* _asDialog;
    std::optional<MotifButtonRow> _buttons;
    Widget _box = nullptr;
    Widget _surface = nullptr;
};

} // namespace trellis
