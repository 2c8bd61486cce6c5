#include "toolkit/DialogRegistry.h"

#include "toolkit/ZOLDialog.h"

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

ZOLDialog* DialogRegistry::Living(ZOLDialog* dialog) const {
    return dialog && _numbers.contains(dialog) && !dialog->IsBeingDestroyed() ? dialog : nullptr;
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

ZOLDialog* DialogRegistry::Top() const {
    const auto top = std::find_if(_shown.rbegin(), _shown.rend(),
                                  [](const ZOLDialog* window) { return window->IsOnScreen(); });
    return top == _shown.rend() ? nullptr : *top;
}

} // namespace trellis
