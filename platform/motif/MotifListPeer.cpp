#include "motif/MotifListPeer.h"

#include "motif/MotifView.h"
#include "toolkit/ZOLDlgMultiList.h"

#include <X11/keysym.h>

#include <algorithm>
#include <cstdlib>

namespace trellis {

namespace {

constexpr int WheelRows = 3;
constexpr int WheelPixels = 40;
constexpr int DragReach = 6; // pixels after which a press on a header becomes a drag

struct KeyMeaning {
    KeySym symbol;
    ListKey key;
};

constexpr KeyMeaning Keys[] = {
    {XK_Up, ListKey::Up},
    {XK_KP_Up, ListKey::Up},
    {XK_Down, ListKey::Down},
    {XK_KP_Down, ListKey::Down},
    {XK_Page_Up, ListKey::PageUp},
    {XK_KP_Page_Up, ListKey::PageUp},
    {XK_Page_Down, ListKey::PageDown},
    {XK_KP_Page_Down, ListKey::PageDown},
    {XK_Home, ListKey::Home},
    {XK_KP_Home, ListKey::Home},
    {XK_End, ListKey::End},
    {XK_KP_End, ListKey::End},
};

ListModifiers ModifiersOf(unsigned state) {
    return {(state & ShiftMask) != 0, (state & ControlMask) != 0};
}

} // namespace

MotifListPeer::MotifListPeer(MotifView& view, ZOLDlgList& list)
    : MotifCanvasPeer(view, list),
      _list(list),
      _columnsOfModel(dynamic_cast<ZOLDlgMultiList*>(&list)),
      _content(list),
      _painter(view.GetTheme(), Text()),
      _cursor(list.AllowsSeveral()) {}

Widget MotifListPeer::Build(Widget parent) {
    Widget outer = MotifCanvasPeer::Build(parent);
    OpensMenu(Canvas());
    return outer;
}

LayoutRectangle MotifListPeer::GetMenuPlace() const {
    const int position = _order.PositionOf(_cursor.Row());
    const int header = _painter.HeaderHeight(_content);
    const int below = position < 0 ? 0 : position - _scroll.First() + 1;
    return {_painter.CellPadding(), std::clamp(header + below * _painter.RowHeight(), 0, CanvasSize().height),
            1, 1};
}

std::vector<int> MotifListPeer::Selected() const {
    const int* rows = nullptr;
    int count = 0;
    _list.GetSelect(rows, count);
    return {rows, rows + count};
}

LayoutSize MotifListPeer::ContentSize() {
    UpdateContent();
    _columns.Update(_content, Text().CharacterWidth(), _painter.CellPadding(), 0);
    return {_columns.TotalWidth(), _painter.HeaderHeight(_content) + _order.Count() * _painter.RowHeight()};
}

void MotifListPeer::UpdateContent() {
    _order.Update(_content);
    _scroll.SetCount(_order.Count());
    _cursor.Follow(_order, Selected());
}

void MotifListPeer::Fit(LayoutSize canvas) {
    _columns.Update(_content, Text().CharacterWidth(), _painter.CellPadding(), canvas.width);
    _scrolledX = std::clamp(_scrolledX, 0, std::max(_columns.TotalWidth() - canvas.width, 0));
    _scroll.SetPage(_painter.PageOf(_content, canvas.height));
    if (_dragColumn >= static_cast<int>(_columns.Placed().size()))
        EndDrag(); // the column went meanwhile
    FollowModel();
}

// The first line that the program sets wins over where the user had scrolled to.
void MotifListPeer::FollowModel() {
    if (!_columnsOfModel || _columnsOfModel->GetFirstLine() == _knownFirstLine)
        return;
    _knownFirstLine = _columnsOfModel->GetFirstLine();
    _scroll.SetFirst(_order.PositionOf(_knownFirstLine));
}

void MotifListPeer::TellFirstLine() {
    if (!_columnsOfModel || _order.Count() == 0)
        return;
    _knownFirstLine = _order.RowAt(_scroll.First());
    _columnsOfModel->SetFirstLine(_knownFirstLine);
}

MotifCanvasPeer::Range MotifListPeer::RangeOf(Axis axis) {
    if (axis == Axis::Horizontal)
        return {_scrolledX, CanvasSize().width, _columns.TotalWidth(), WheelPixels, WheelPixels};
    return {_scroll.First(), _scroll.Page(), _order.Count(), 1, WheelRows};
}

void MotifListPeer::ScrollTo(Axis axis, int first) {
    if (axis == Axis::Horizontal) {
        _scrolledX = std::clamp(first, 0, std::max(_columns.TotalWidth() - CanvasSize().width, 0));
        return;
    }
    _scroll.SetFirst(first);
    TellFirstLine();
}

ZOLUnicodeString MotifListPeer::CutTextAt(const LayoutPoint& place) const {
    return _painter.CutTextAt(Picture(), place);
}

ListPicture MotifListPeer::Picture() const {
    const bool isPressed = _drag == Drag::PressesHeader || _drag == Drag::MovesColumn;
    return {_content,      _order,          _columns,
            CanvasSize(),  _scroll.First(), _scrolledX,
            _cursor.Row(), HasKeyboard(),   isPressed ? _dragColumn : -1,
            _dropPosition};
}

void MotifListPeer::Paint(cairo_t* context) {
    _painter.Paint(context, Picture());
}

void MotifListPeer::Pressed(const Mouse& mouse) {
    const ListHit hit = _painter.HitAt(Picture(), mouse.place);
    if (hit.kind == ListHit::Row) {
        PressedRow(mouse, hit.row);
        return;
    }
    if (mouse.button != Button1 || hit.column < 0)
        return;
    _drag = hit.kind == ListHit::Border ? Drag::ResizesColumn : Drag::PressesHeader;
    _dragColumn = hit.column;
    _dragStart = mouse.place.x + _scrolledX;
    Repaint();
}

// The third button opens a menu for what is selected, so it selects only what was not.
void MotifListPeer::PressedRow(const Mouse& mouse, int position) {
    const int row = _order.RowAt(position);
    if (mouse.button == Button3 && _content.IsSelected(row))
        return;
    if (mouse.button != Button1 && mouse.button != Button3)
        return;
    const ListModifiers modifiers = mouse.button == Button1 ? ModifiersOf(mouse.state) : ListModifiers{};
    const ListCursor::Selection selection = _cursor.Click(position, modifiers, _order, Selected());
    if (mouse.isDouble && mouse.button == Button1 && _columnsOfModel)
        _columnsOfModel->UserActivate(row);
    else
        Apply(selection);
}

void MotifListPeer::Moved(const Mouse& mouse) {
    const int x = mouse.place.x + _scrolledX;
    if (_drag == Drag::ResizesColumn) {
        const PlacedColumn& column = _columns.Placed()[static_cast<std::size_t>(_dragColumn)];
        _columns.Resize(_dragColumn, x - column.x);
        Refresh();
    } else if (_drag == Drag::MovesColumn ||
               (_drag == Drag::PressesHeader && std::abs(x - _dragStart) > DragReach)) {
        _drag = Drag::MovesColumn;
        _dropPosition = _columns.DropPositionAt(x);
        Repaint();
    }
}

void MotifListPeer::Released(const Mouse& mouse) {
    if (mouse.button != Button1 || _drag == Drag::Nothing)
        return;
    if (_drag == Drag::MovesColumn)
        _columns.Move(_dragColumn, _dropPosition);
    if (_drag == Drag::PressesHeader)
        _order.SortBy(_columns.Placed()[static_cast<std::size_t>(_dragColumn)].column);
    EndDrag();
    UpdateContent();
    _scroll.Reveal(_order.PositionOf(_cursor.Row()));
    TellFirstLine();
    Refresh();
}

void MotifListPeer::EndDrag() {
    _drag = Drag::Nothing;
    _dragColumn = _dropPosition = -1;
}

void MotifListPeer::Typed(const Key& key) {
    const auto* meaning = std::find_if(std::begin(Keys), std::end(Keys),
                                       [&](const KeyMeaning& entry) { return entry.symbol == key.symbol; });
    const bool isControl = (key.state & ControlMask) != 0;
    if (meaning != std::end(Keys))
        MoveCursor(meaning->key, ModifiersOf(key.state));
    else if (key.symbol == XK_space)
        Apply(_cursor.Toggle(Selected()));
    else if (isControl && (key.symbol == XK_a || key.symbol == XK_A))
        Apply(_cursor.All(_order));
    else if (!isControl && (key.state & Mod1Mask) == 0)
        Search(key);
}

void MotifListPeer::MoveCursor(ListKey key, ListModifiers modifiers) {
    Apply(_cursor.Move(key, modifiers, _scroll.Page(), _order));
}

void MotifListPeer::Search(const Key& key) {
    if (key.text.empty() || static_cast<unsigned char>(key.text.front()) <= ' ' || _columns.Placed().empty())
        return;
    const int found = _typeAhead.Find(key.text, key.milliseconds, _content, _order,
                                      _columns.Placed().front().column, _order.PositionOf(_cursor.Row()));
    if (found >= 0)
        Apply(_cursor.MoveTo(found, {}, _order));
}

void MotifListPeer::Apply(const ListCursor::Selection& selection) {
    _scroll.Reveal(_order.PositionOf(_cursor.Row()));
    TellFirstLine();
    Refresh();
    if (selection)
        _list.UserSelect(*selection);
}

} // namespace trellis
