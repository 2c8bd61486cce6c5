#include "toolkit/ZOLDlgMenuBar.h"

#include "toolkit/DialogDescription.h"
#include "toolkit/LayoutMetrics.h"
#include "toolkit/TextMeasure.h"
#include "toolkit/ZOLDlgWindow.h"

#include <algorithm>

using trellis::DialogDescription;
using trellis::LayoutMetrics;

ZOLDlgMenuBar::ZOLDlgMenuBar(ZOLDlgWindow* father, const ZOLString& name, unsigned long style)
    : ZOLDialog(father, name, style) {}

const ZOLDlgMenuBar* ZOLDlgMenuBar::Find(const ZOLDialog& window) {
    for (const ZOLDialog* child : window.GetChildren()) {
        const auto* bar = dynamic_cast<const ZOLDlgMenuBar*>(child);
        if (bar && bar->GetVisibility() == ZOLShown)
            return bar;
    }
    return nullptr;
}

const char* ZOLDlgMenuBar::GetKind() const {
    return "menu bar";
}

void ZOLDlgMenuBar::DescribeTo(DialogDescription& description) const {
    std::string line = GetKind();
    for (const ZOLDialog* menu : GetChildren()) {
        if (!menu->IsOnScreen())
            continue;
        line += ' ' + DialogDescription::Quoted(menu->GetTitle());
        if (!menu->IsSensitive())
            line += " greyed";
    }
    description.Line(line);
}

trellis::LayoutSize ZOLDlgMenuBar::GetNaturalSize(const trellis::TextMeasure& measure) const {
    int width = 0;
    for (const ZOLDialog* menu : GetChildren())
        if (menu->GetVisibility() == ZOLShown)
            width += measure.GetTextWidth(menu->GetTitle()) + 2 * LayoutMetrics(measure).MenuMargin();
    return {width, LayoutMetrics(measure).LineOfText()};
}
