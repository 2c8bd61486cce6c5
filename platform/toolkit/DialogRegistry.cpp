#include "toolkit/DialogRegistry.h"

#include "toolkit/ZOLDlgWindow.h"

#include <algorithm>

namespace trellis {

DialogRegistry& DialogRegistry::Instance() {
    static DialogRegistry* const registry = new DialogRegistry; // outlives static dialogs of a host
    return *registry;
}

long DialogRegistry::Enter(ZOLDialog& dialog) {
    _numbers.emplace(&dialog, ++_lastNumber);
    return _lastNumber;
}

void DialogRegistry::Leave(ZOLDialog& dialog) {
    _numbers.erase(&dialog);
    std::erase(_shown, &dialog);
}

ZOLDialog* DialogRegistry::Present(ZOLDialog* dialog) const {
    return _numbers.contains(dialog) ? dialog : nullptr;
}

ZOLDialog* DialogRegistry::Living(ZOLDialog* dialog) const {
    ZOLDialog* present = Present(dialog);
    return present && !present->IsBeingDestroyed() ? present : nullptr;
}

void DialogRegistry::Raise(ZOLDialog& window) {
    std::erase(_shown, &window);
    _shown.push_back(&window);
}

std::vector<ZOLDialog*> DialogRegistry::Windows() const {
    std::vector<ZOLDialog*> windows;
    std::copy_if(_shown.begin(), _shown.end(), std::back_inserter(windows),
                 [](const ZOLDialog* window) { return window->IsOnScreen(); });
    return windows;
}

bool DialogRegistry::IsBehindModal(const ZOLDialog& dialog) const {
    const ZOLDialog* window = dialog.GetHoldingWindow();
    return std::any_of(_shown.begin(), _shown.end(), [window](const ZOLDialog* shown) {
        const auto* modal = dynamic_cast<const ZOLDlgWindow*>(shown);
        if (!modal || modal == window || !modal->IsModal() || !modal->IsOnScreen())
            return false;
        for (const ZOLDialog* owner = modal->GetOwner(); owner; owner = owner->GetOwner())
            if (owner == window)
                return true;
        return false;
    });
}

ZOLDialog* DialogRegistry::Top() const {
    const auto top = std::find_if(_shown.rbegin(), _shown.rend(),
                                  [](const ZOLDialog* window) { return window->IsOnScreen(); });
    return top == _shown.rend() ? nullptr : *top;
}

} // namespace trellis
