#pragma once

#include "motif/ListColumns.h"
#include "motif/ListContent.h"
#include "motif/ListCursor.h"
#include "motif/ListOrder.h"
#include "motif/ListPainter.h"
#include "motif/ListScroll.h"
#include "motif/MotifCanvasPeer.h"
#include "motif/TypeAhead.h"

class ZOLDlgList;
class ZOLDlgMultiList;

namespace trellis {

// MotifListPeer: shows a list. How the user sorted it, and where columns were dragged, is kept here alone.
//
// Keys: arrows, Page Up and Down, Home and End move, with Shift up to there, with Ctrl without selecting;
// Space takes in or out; Ctrl with A takes all; letters search.
class MotifListPeer : public MotifCanvasPeer {
public:
    MotifListPeer(MotifView& view, ZOLDlgList& list);
    LayoutRectangle GetMenuPlace() const override;

protected:
    Widget Build(Widget parent) override;
    LayoutSize ContentSize() override;
    void Fit(LayoutSize canvas) override;
    Range RangeOf(Axis axis) override;
    void ScrollTo(Axis axis, int first) override;
    void Paint(cairo_t* context) override;
    ZOLUnicodeString CutTextAt(const LayoutPoint& place) const override;
    void Pressed(const Mouse& mouse) override;
    void Moved(const Mouse& mouse) override;
    void Released(const Mouse& mouse) override;
    void Typed(const Key& key) override;

private:
    // What the left button does between press and release.
    enum class Drag { Nothing, PressesHeader, MovesColumn, ResizesColumn };

    void UpdateContent();
    void FollowModel();
    void TellFirstLine();
    ListPicture Picture() const;
    std::vector<int> Selected() const;
    void PressedRow(const Mouse& mouse, int position);
    void MoveCursor(ListKey key, ListModifiers modifiers);
    void Search(const Key& key);
    void EndDrag();
    // Shows the cursor and selects; the last thing that a gesture does.
    void Apply(const ListCursor::Selection& selection);

    ZOLDlgList& _list;
    ZOLDlgMultiList* _columnsOfModel; // null for a plain list
    ListContent _content;
    ListPainter _painter;
    ListOrder _order;
    ListColumns _columns;
    ListScroll _scroll;
    ListCursor _cursor;
    TypeAhead _typeAhead;
    int _scrolledX = 0;
    int _knownFirstLine = 0; // of the model, when it was looked at last
    Drag _drag = Drag::Nothing;
    int _dragColumn = -1; // position
    int _dragStart = 0;   // pixels from the left end of the columns
    int _dropPosition = -1;
};

} // namespace trellis
