// How ZOLDlgMultiList is described and how large it is.

#include "toolkit/DialogDescription.h"
#include "toolkit/LayoutMetrics.h"
#include "toolkit/TextMeasure.h"
#include "toolkit/ZOLDlgMultiList.h"

using trellis::LayoutMetrics;

void ZOLDlgMultiList::DescribeTo(trellis::DialogDescription& description) const {
    description.Line(IsSensitive() ? GetKind() : std::string(GetKind()) + " greyed");
    const trellis::DialogDescription::Indent indent(description);
    const auto line = [this](std::string text, const auto& textOfColumn) {
        const char* separator = " ";
        for (int column = 0; column < GetColumnCount(); ++column) {
            if (GetColumnVisibility(column) != ZOLShown)
                continue;
            text += separator + trellis::DialogDescription::Quoted(textOfColumn(column));
            separator = " | ";
        }
        return text;
    };
    description.Line(line("columns", [this](int column) { return GetColumnTitle(column); }));
    for (int row = 0; row < GetLineCount(); ++row)
        description.Line(line(IsSelect(row) ? "row selected" : "row", [this, row](int column) {
            ZOLUnicodeString text;
            GetColumnItem(column, text, row);
            return text;
        }));
}

trellis::LayoutSize ZOLDlgMultiList::GetNaturalSize(const trellis::TextMeasure& measure) const {
    int characters = 0;
    int columns = 0;
    for (const Column& column : _columns) {
        if (!column.isVisible || (_visibleColumns > 0 && columns == _visibleColumns))
            continue;
        characters += column.width;
        ++columns;
    }
    const LayoutMetrics metrics(measure);
    const int width = characters * measure.GetCharacterWidth() + columns * 2 * metrics.CellMargin();
    const int lines = _visibleLines + 1; // the titles stand above the lines
    return {width + metrics.ScrollBar(), lines * measure.GetRowHeight() + metrics.ScrollBar()};
}
