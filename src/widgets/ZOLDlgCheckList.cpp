#include "widgets/ZOLDlgCheckList.h"

#include "model/ZOLDMTools.h"
#include "service/ZOLQRDCfgBase.h"
#include "toolkit/ZOLDlgCheckButton.h"
#include "toolkit/ZOLDlgContainer.h"
#include "toolkit/ZOLDlgFrame.h"
#include "toolkit/ZOLDlgLabel.h"
#include "toolkit/ZOLDlgPushButton.h"
#include "toolkit/ZOLDlgSeparator.h"

#include <utility>

namespace {

constexpr unsigned long OkCancelAboveFather = 0xe00;
constexpr unsigned long NoBorder = 0x80000;
constexpr int ListWidth = 480; // pixels at first
constexpr int ListHeight = 420;
// The lines go on beside each other before they are higher than a screen's coordinates reach (32767 pixels).
constexpr int LinesOfColumn = 500;
// A rule may have tens of thousands of characters, and no window is as wide as that.
constexpr int LongestLine = 120; // characters
constexpr int CutLine = 117;

ZOLUnicodeString AsItIs(const ZOLUnicodeString& text) {
    return text;
}

template <class Handle>
ZOLUnicodeString Described(const Handle& element) {
    const ZOLUnicodeString description = element->GetDescription();
    return description.IsEmpty() ? element->GetName() : element->GetName() + " (" + description + ")";
}

ZOLUnicodeString RuleText(const ZOLIQrdConfigRule_var& rule) {
    const ZOLUnicodeString described = Described(rule);
    return described.IsEmpty() ? rule->GetRuleString() : described;
}

} // namespace

ZOLDlgCheckList::ZOLDlgCheckList(ZOLDialog* father, const ZOLUnicodeString& title)
    : ZOLDlgDialog(father, "CheckListPanel", OkCancelAboveFather) {
    SetTitle(title);
    auto* main = new ZOLDlgFrame(this, "MainFrame", NoBorder);
    main->Attach4Sides();
    (new ZOLDlgLabel(main, "Title"))->SetTitle(title);
    (new ZOLDlgSeparator(main, "Separ"))->SetVisibility(ZOLHidden);
    auto* surround = new ZOLDlgFrame(main, "ContainerFrame");
    surround->Attach4Sides();
    _container = new ZOLDlgContainer(surround, "Container");
    _container->SetRectDimensions(ListWidth, ListHeight);
    _container->SetDefaultOrientation(1);
    auto* buttons = new ZOLDlgFrame(main, "ButtonFrame", NoBorder);
    buttons->SetDefaultOrientation(1);
    for (const auto& [name, method] :
         {std::pair("CheckAllButton", ZOL_CALLBACK(&ZOLDlgCheckList::CheckAllCB)),
          std::pair("UncheckAllButton", ZOL_CALLBACK(&ZOLDlgCheckList::UncheckAllCB))}) {
        auto* button = new ZOLDlgPushButton(buttons, name);
        AddAnalyseNotificationCB(button, button->GetPushBActivateNotification(), method);
    }
    for (ZOLNotification* end :
         {GetDiaOKNotification(), GetDiaCANCELNotification(), GetWindCloseNotification()})
        AddAnalyseNotificationCB(this, end, ZOL_CALLBACK(&ZOLDlgCheckList::CloseCB));
}

ZOLDlgCheckList::ZOLDlgCheckList(ZOLDialog* father, const ZOLUnicodeString& title,
                                 const ZOLListValZOLUnicodeString& list)
    : ZOLDlgCheckList(father, title) {
    _strings = list;
    _strings.QuickSort(&ZOLDMTools::CompareStrings);
    AddLines(_strings, &AsItIs);
}

ZOLDlgCheckList::ZOLDlgCheckList(ZOLDialog* father, const ZOLUnicodeString& title,
                                 const ZOLListValZOLIQrdCategory_var& list)
    : ZOLDlgCheckList(father, title) {
    _categories = list;
    _categories.QuickSort(&ZOLQRDCfgBase::CompareCategoryName);
    HideDuplicates();
    AddLines(_categories, &Described<ZOLIQrdCategory_var>);
}

ZOLDlgCheckList::ZOLDlgCheckList(ZOLDialog* father, const ZOLUnicodeString& title,
                                 const ZOLListValZOLIQrdConfigRule_var& list)
    : ZOLDlgCheckList(father, title) {
    _rules = list;
    _rules.QuickSort(&ZOLQRDCfgBase::CompareRuleName);
    AddLines(_rules, &RuleText);
}

ZOLDlgCheckList::ZOLDlgCheckList(ZOLDialog* father, const ZOLUnicodeString& title,
                                 const ZOLListValZOLIQrdCompatibilityMatrix_var& list)
    : ZOLDlgCheckList(father, title) {
    _matrices = list;
    _matrices.QuickSort(&ZOLQRDCfgBase::CompareMatrixName);
    AddLines(_matrices, &Described<ZOLIQrdCompatibilityMatrix_var>);
}

ZOLString ZOLDlgCheckList::GetResourceFilename(int level) const {
    return level == 0 ? "ZOLDlgCheckList" : ZOLDlgDialog::GetResourceFilename(level - 1);
}

// Takes the categories that have the name of the one before them out of the sorted list.
void ZOLDlgCheckList::HideDuplicates() {
    for (const ZOLIQrdCategory_var& category : std::exchange(_categories, {})) {
        const int line = _categories.Size();
        if (line == 0 || _categories[line]->GetName() != category->GetName()) {
            _categories.Append(category);
            continue;
        }
        _hiddenCategories.Append(category);
        _linesOfHidden.Append(line);
    }
}

template <class T>
void ZOLDlgCheckList::AddLines(const ZOLListVal<T>& elements, ZOLUnicodeString (*textOf)(const T&)) {
    for (const T& element : elements)
        AddLine(textOf(element));
}

void ZOLDlgCheckList::AddLine(ZOLUnicodeString text) {
    text.Replace("\n", " ");
    if (_buttons.Size() % LinesOfColumn == 0)
        _column = new ZOLDlgFrame(_container, "ListFrame", NoBorder);
    auto* button = new ZOLDlgCheckButton(_column, "EltCheck");
    if (text.GetLengthInChar() > LongestLine) {
        button->SetToolTip(text);
        text = text.SubString(0, CutLine) + "...";
    }
    button->SetTitle(text);
    _buttons.Append(button);
}

void ZOLDlgCheckList::CheckAll(int state) {
    for (ZOLDlgCheckButton* button : _buttons)
        button->SetState(state);
}

void ZOLDlgCheckList::SetChecked(const ZOLListVal<int>& positions) {
    CheckAll(ZOLOff);
    for (const int position : positions)
        if (position >= 1 && position <= _buttons.Size())
            _buttons[position]->SetState(ZOLOn);
}

bool ZOLDlgCheckList::IsChecked(int line) const {
    return _buttons[line]->IsOn();
}

template <class T>
void ZOLDlgCheckList::Collect(const ZOLListVal<T>& elements, ZOLListVal<T>& checked) const {
    checked.RemoveAll();
    for (int line = 1; line <= elements.Size(); ++line)
        if (IsChecked(line))
            checked.Append(elements[line]);
}

void ZOLDlgCheckList::GetChecked(ZOLListValZOLUnicodeString& checked) const {
    Collect(_strings, checked);
}

void ZOLDlgCheckList::GetChecked(ZOLListValZOLIQrdCategory_var& checked) const {
    checked.RemoveAll();
    int hidden = 1;
    for (int line = 1; line <= _categories.Size(); ++line) {
        const bool isChecked = IsChecked(line);
        if (isChecked)
            checked.Append(_categories[line]);
        for (; hidden <= _hiddenCategories.Size() && _linesOfHidden[hidden] == line; ++hidden)
            if (isChecked)
                checked.Append(_hiddenCategories[hidden]);
    }
}

void ZOLDlgCheckList::GetChecked(ZOLListValZOLIQrdConfigRule_var& checked) const {
    Collect(_rules, checked);
}

void ZOLDlgCheckList::GetChecked(ZOLListValZOLIQrdCompatibilityMatrix_var& checked) const {
    Collect(_matrices, checked);
}

void ZOLDlgCheckList::GetList(ZOLListValZOLIQrdCategory_var& list) const {
    list = _categories;
    list.Append(_hiddenCategories);
}

void ZOLDlgCheckList::CheckAllCB(ZOLCommand*, ZOLNotification*, void*) {
    CheckAll(ZOLOn);
}

void ZOLDlgCheckList::UncheckAllCB(ZOLCommand*, ZOLNotification*, void*) {
    CheckAll(ZOLOff);
}

void ZOLDlgCheckList::CloseCB(ZOLCommand*, ZOLNotification* notification, void*) {
    if (SendNotification(nullptr, notification))
        return;
    SetVisibility(ZOLHidden);
    RequestDelayedDestruction();
}
