#include "motif/MotifFocus.h"

#include "motif/MotifPeer.h"
#include "motif/MotifView.h"
#include "toolkit/ZOLDlgRadioButton.h"

#include <algorithm>

namespace trellis {

namespace {

// Part of a widget with the keyboard may be a widget of its own.
bool Holds(Widget stop, Widget focus) {
    for (; focus && !XtIsShell(focus); focus = XtParent(focus))
        if (focus == stop)
            return true;
    return false;
}

} // namespace

std::vector<Widget> MotifFocus::StopsIn(const ZOLDialog& dialog) const {
    std::vector<Widget> stops;
    if (const MotifPeer* peer = _view.FindPeer(dialog))
        peer->CollectStops(stops);
    return stops;
}

void MotifFocus::Step(const ZOLDialog& window, int direction) const {
    const std::vector<Widget> stops = StopsIn(window);
    const MotifPeer* shell = _view.FindPeer(window);
    if (stops.empty() || !shell)
        return;
    Widget focus = XmGetFocusWidget(shell->GetWidget());
    const auto count = static_cast<std::ptrdiff_t>(stops.size());
    const auto found =
        std::find_if(stops.begin(), stops.end(), [focus](Widget stop) { return Holds(stop, focus); });
    const std::ptrdiff_t from = found != stops.end() ? found - stops.begin() : direction > 0 ? -1 : count;
    // One that the native side refuses, as one outside the window, is passed by.
    for (std::ptrdiff_t i = 1; i <= count; ++i) {
        const std::ptrdiff_t at = ((from + i * direction) % count + count) % count;
        if (XmProcessTraversal(stops[static_cast<std::size_t>(at)], XmTRAVERSE_CURRENT))
            return;
    }
}

bool MotifFocus::Enter(const ZOLDialog& dialog) const {
    const std::vector<Widget> stops = StopsIn(dialog);
    return std::any_of(stops.begin(), stops.end(),
                       [](Widget stop) { return XmProcessTraversal(stop, XmTRAVERSE_CURRENT); });
}

std::vector<ZOLDlgRadioButton*> MotifFocus::GroupOf(const ZOLDialog& dialog) {
    std::vector<ZOLDlgRadioButton*> group;
    if (!dialog.GetOwner())
        return group;
    for (ZOLDialog* sibling : dialog.GetOwner()->GetChildren())
        if (auto* radio = dynamic_cast<ZOLDlgRadioButton*>(sibling);
            radio && radio->IsOnScreen() && radio->IsSensitive())
            group.push_back(radio);
    return group;
}

bool MotifFocus::IsStop(const ZOLDialog& dialog) {
    if (!dynamic_cast<const ZOLDlgRadioButton*>(&dialog))
        return true;
    const std::vector<ZOLDlgRadioButton*> group = GroupOf(dialog);
    const auto on = std::find_if(group.begin(), group.end(), [](const auto* radio) { return radio->IsOn(); });
    return &dialog == (on != group.end() ? *on : group.empty() ? nullptr : group.front());
}

bool MotifFocus::StepInGroup(ZOLDialog& dialog, int direction) const {
    const std::vector<ZOLDlgRadioButton*> group = GroupOf(dialog);
    const auto found = std::find(group.begin(), group.end(), &dialog);
    if (found == group.end())
        return false;
    const auto count = static_cast<std::ptrdiff_t>(group.size());
    const std::ptrdiff_t next = (found - group.begin() + direction + count) % count;
    ZOLDlgRadioButton& radio = *group[static_cast<std::size_t>(next)];
    if (const MotifPeer* peer = _view.FindPeer(radio))
        XmProcessTraversal(peer->GetWidget(), XmTRAVERSE_CURRENT);
    radio.UserToggle();
    return true;
}

} // namespace trellis
