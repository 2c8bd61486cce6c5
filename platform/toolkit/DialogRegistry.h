#pragma once

#include <unordered_map>
#include <vector>

class ZOLDialog;

namespace trellis {

// DialogRegistry: the dialogs that live, and the order in which windows were shown. Panels keep pointers to
// fathers that may be gone; whoever takes such a pointer asks here before touching it.
class DialogRegistry {
public:
    static DialogRegistry& Instance();

    // Gives the dialog its number.
    long Enter(ZOLDialog& dialog);
    void Leave(ZOLDialog& dialog);

    // The dialog if it is there, though perhaps being given up, else null. Any pointer may be asked for.
    ZOLDialog* Present(ZOLDialog* dialog) const;
    // The same, and null also for one that is being given up.
    ZOLDialog* Living(ZOLDialog* dialog) const;

    // Puts a window on top of all others.
    void Raise(ZOLDialog& window);
    // The window raised last of those a user can see; null when there is none.
    ZOLDialog* Top() const;
    // Windows that a user can see, the top one last.
    std::vector<ZOLDialog*> Windows() const;
    // Whether a modal window is open over the window that holds the dialog.
    bool IsBehindModal(const ZOLDialog& dialog) const;
    // How many dialogs live.
    int Count() const { return static_cast<int>(_numbers.size()); }

private:
    long _lastNumber = 0;
    std::unordered_map<const ZOLDialog*, long> _numbers;
    std::vector<ZOLDialog*> _shown;
};

} // namespace trellis
