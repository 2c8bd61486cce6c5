#include "motif/MotifComboPeer.h"

#include "toolkit/ZOLDlgCombo.h"

#include <Xm/ComboBox.h>
#include <Xm/TextF.h>

#include <algorithm>
#include <memory>
#include <vector>

namespace trellis {

MotifComboPeer::MotifComboPeer(MotifView& view, ZOLDlgCombo& combo) : MotifPeer(view, combo), _combo(combo) {}

Widget MotifComboPeer::Build(Widget parent) {
    Widget combo =
        XtVaCreateWidget(_combo.GetName().ConvertToChar(), xmComboBoxWidgetClass, parent, XmNcomboBoxType,
                         _combo.IsEditable() ? XmDROP_DOWN_COMBO_BOX : XmDROP_DOWN_LIST, XmNpositionMode,
                         XmZERO_BASED, nullptr);
    Connect<&MotifComboPeer::Chosen>(combo, XmNselectionCallback);
    if (_combo.IsEditable())
        Connect<&MotifComboPeer::Typed>(XtNameToWidget(combo, "*Text"), XmNvalueChangedCallback);
    OpensMenu(combo);
    return combo;
}

Widget MotifComboPeer::GetField() const {
    return XtNameToWidget(GetWidget(), "*Text");
}

void MotifComboPeer::Mirror() {
    MotifPeer::Mirror();
    MirrorLines();
    const std::unique_ptr<char, decltype(&XtFree)> shown(XmTextFieldGetString(GetField()), &XtFree);
    if (shown.get() != _combo.GetField().Bytes())
        XmTextFieldSetString(GetField(), MotifQuirks::Name(_combo.GetField().ConvertToChar()));
}

// The list shows one line at least, or it cannot be sized.
void MotifComboPeer::MirrorLines() {
    std::vector<std::unique_ptr<MotifQuirks::Text>> texts;
    std::vector<XmString> items;
    for (int line = 0; line < _combo.GetLineCount(); ++line) {
        ZOLUnicodeString text;
        _combo.GetLine(text, line);
        texts.push_back(std::make_unique<MotifQuirks::Text>(text));
        items.push_back(texts.back()->Get());
    }
    const int count = _combo.GetLineCount();
    XtVaSetValues(GetWidget(), XmNitems, items.data(), XmNitemCount, count, XmNvisibleItemCount,
                  std::clamp(count, 1, std::max(1, _combo.GetVisibleTextHeight())), nullptr);
    if (_combo.GetSelect() >= 0)
        XtVaSetValues(GetWidget(), XmNselectedPosition, _combo.GetSelect(), nullptr);
}

void MotifComboPeer::Chosen(Widget, XtPointer callData) {
    const auto* chosen = static_cast<XmComboBoxCallbackStruct*>(callData);
    if (chosen->event) // else the field lost the keyboard
        _combo.UserSelect(chosen->item_position);
}

// The combo itself sets the field as well, without an event.
void MotifComboPeer::Typed(Widget field, XtPointer callData) {
    if (!static_cast<XmAnyCallbackStruct*>(callData)->event)
        return;
    const std::unique_ptr<char, decltype(&XtFree)> text(XmTextFieldGetString(field), &XtFree);
    _combo.UserEditField(text.get());
}

} // namespace trellis
