#include "toolkit/ZOLDialog.h"

#include "toolkit/DialogDescription.h"
#include "toolkit/DialogRegistry.h"
#include "toolkit/OpenQuestions.h"
#include "toolkit/ToolkitView.h"
#include "toolkit/ZOLDlgWindow.h"
#include "toolkit/ZOLGYRResource.h"
#include "values/ContractBreach.h"

#include <utility>

using trellis::DialogRegistry;
using trellis::ToolkitView;

ZOLDialog::ZOLDialog(ZOLDialog* owner, const ZOLString& name, unsigned long style)
    : ZOLCommand(DialogRegistry::Instance().Present(owner), name),
      _owner(DialogRegistry::Instance().Present(owner)),
      _style(style),
      _number(DialogRegistry::Instance().Enter(*this)),
      _visibilityNotification("ZOLDlgVisibilityNotification") {
    AddRef(); // the tree's reference
    if (!_owner)
        return;
    _owner->_children.push_back(this);
    _owner->MarkChanged(); // this one itself has no class yet
    // A panel may go on building what it has given up already.
    if (_owner->IsBeingDestroyed())
        ZOLDialog::GiveUp();
}

ZOLDialog::~ZOLDialog() {
    if (ToolkitView* view = ToolkitView::Current())
        view->Destroyed(*this);
    for (ZOLDialog* child : std::exchange(_children, {})) {
        child->_owner = nullptr;
        child->Release();
    }
    TakeOutOfOwner();
    DialogRegistry::Instance().Leave(*this);
}

void ZOLDialog::TakeOutOfOwner() {
    if (!_owner)
        return;
    std::erase(_owner->_children, this);
    _owner->MarkChanged();
    _owner = nullptr;
}

void ZOLDialog::GiveUp() {
    ZOLCommand::GiveUp();
    _visibility = ZOLHidden;
    trellis::OpenQuestions::Instance().Answer(*this, 0); // nobody could answer it any more
    MarkChanged();
    for (ZOLDialog* child : _children)
        if (!child->IsBeingDestroyed())
            child->GiveUp();
}

void ZOLDialog::FreeGivenUp() {
    TakeOutOfOwner();
    Release();
}

ZOLString ZOLDialog::GetResourceFilename(int) const {
    return {};
}

bool ZOLDialog::FindResource(const ZOLString& key, ZOLUnicodeString& value) const {
    for (const ZOLDialog* dialog = this; dialog; dialog = dialog->_owner)
        for (int level = 0;; ++level) {
            const ZOLString file = dialog->GetResourceFilename(level);
            if (file.IsEmpty())
                break;
            if (ZOLGYRResource(file).GetValue(key, value))
                return true;
        }
    return false;
}

int ZOLDialog::GetResourceValueFromKey(const ZOLString& key, ZOLUnicodeString& value) const {
    return FindResource(key, value) ? 1 : 0;
}

int ZOLDialog::GetResourceValueFromKey(const ZOLString& key, ZOLUnicodeString& value,
                                       const ZOLListVal<ZOLUnicodeString>& parameters) const {
    if (!FindResource(key, value))
        return 0;
    value = ZOLGYRResource::Fill(value, parameters);
    return 1;
}

void ZOLDialog::SetTitle(const ZOLUnicodeString& title) {
    _title = title;
    MarkChanged();
}

ZOLUnicodeString ZOLDialog::GetTitle() const {
    if (_title)
        return *_title;
    ZOLUnicodeString title;
    if (FindResource(std::string(GetName().View()) + ".Title", title))
        return title;
    return GetFallbackTitle();
}

ZOLUnicodeString ZOLDialog::GetFallbackTitle() const {
    return {};
}

// A view asks when the pointer rests: there is nothing to mirror.
void ZOLDialog::SetToolTip(const ZOLUnicodeString& text) {
    _toolTip = text;
}

ZOLUnicodeString ZOLDialog::GetToolTip() const {
    ZOLUnicodeString text;
    if (_toolTip)
        return *_toolTip;
    FindResource(std::string(GetName().View()) + ".ToolTip", text);
    return text;
}

void ZOLDialog::SetVisibility(int visibility) {
    if (IsBeingDestroyed())
        return;
    _visibility = visibility == ZOLShown ? ZOLShown : ZOLHidden;
    MarkChanged();
}

void ZOLDialog::SetSensitivity(int sensitivity) {
    _sensitivity = sensitivity == ZOLActive ? ZOLActive : ZOLGreyed;
    MarkChanged();
}

ZOLDlgWindow* ZOLDialog::GetFatherWindow() const {
    for (ZOLDialog* dialog = const_cast<ZOLDialog*>(this); dialog; dialog = dialog->_owner)
        if (auto* window = dynamic_cast<ZOLDlgWindow*>(dialog))
            return window;
    return nullptr;
}

void ZOLDialog::Reparent(ZOLDialog* owner) {
    if (!owner)
        ContractBreach("ZOLDialog::Reparent", "a dialog needs an owner");
    for (const ZOLDialog* ancestor = owner; ancestor; ancestor = ancestor->_owner)
        if (ancestor == this)
            ContractBreach("ZOLDialog::Reparent", "a dialog cannot own itself");
    const bool followsOwner = GetFather() == _owner;
    TakeOutOfOwner();
    _owner = owner;
    _owner->_children.push_back(this);
    if (followsOwner)
        SetFather(owner);
    if (owner->IsBeingDestroyed() && !IsBeingDestroyed())
        GiveUp();
    MarkChanged();
}

bool ZOLDialog::IsWindow() const {
    return false;
}

const ZOLDialog* ZOLDialog::GetHoldingWindow() const {
    const ZOLDialog* dialog = this;
    while (dialog && !dialog->IsWindow())
        dialog = dialog->_owner;
    return dialog;
}

bool ZOLDialog::ShowsChild(const ZOLDialog&) const {
    return true;
}

bool ZOLDialog::IsOnScreen() const {
    const ZOLDialog* dialog = this;
    while (dialog->_visibility == ZOLShown && !dialog->IsBeingDestroyed()) {
        if (dialog->IsWindow())
            return true;
        if (!dialog->_owner || !dialog->_owner->ShowsChild(*dialog))
            return false;
        dialog = dialog->_owner;
    }
    return false;
}

bool ZOLDialog::IsSensitive() const {
    const ZOLDialog* dialog = this;
    while (dialog && dialog->_sensitivity == ZOLActive) {
        if (dialog->IsWindow())
            return true;
        dialog = dialog->_owner;
    }
    return !dialog;
}

ZOLUserResult ZOLDialog::UserGate() const {
    if (!IsOnScreen())
        return ZOLUserResult::Hidden;
    if (trellis::OpenQuestions::Instance().Blocks(*this))
        return ZOLUserResult::BehindQuestion;
    return IsSensitive() ? ZOLUserResult::Done : ZOLUserResult::Insensitive;
}

std::string ZOLDialog::GetMarks() const {
    return {};
}

void ZOLDialog::DescribeTo(trellis::DialogDescription& description) const {
    description.Widget(*this);
    description.Children(*this);
}

bool ZOLDialog::GrowsByClass() const {
    return false;
}

bool ZOLDialog::HoldsChildren() const {
    return IsWindow();
}

bool ZOLDialog::IsLaidOut() const {
    return !IsWindow();
}

void ZOLDialog::MarkChanged() {
    if (ToolkitView* view = ToolkitView::Current())
        view->Changed(*this);
}

void ZOLDialog::SendUserNotification(ZOLNotification& notification) {
    SendNotification(nullptr, &notification);
}
