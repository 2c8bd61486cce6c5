#pragma once

#include "navigator/StructureEdit.h"
#include "toolkit/ZOLDialog.h"

#include <functional>

namespace trellis {

// UnsavedWork: saving and forgetting, and the questions before work is lost: of the process's unsaved changes and of
// the edits of links. Saving leaves those edits alone: they wait for their commit.
class UnsavedWork {
public:
    // What the window does with a line for the user, and with an error.
    struct Told {
        std::function<void(const ZOLUnicodeString&)> note;
        std::function<void(ZOLGYRError&)> report;
    };

    // Questions stand over the window, and have their texts in its resources. It and the edits must outlive this.
    UnsavedWork(ZOLDialog& window, StructureEdit& edit, Told told)
        : _window(window), _edit(edit), _told(std::move(told)) {}

    int CountUnsaved() const;
    int CountEdits() const { return _edit.Record().GetNbModifications(); }
    bool IsEmpty() const { return CountUnsaved() == 0 && CountEdits() == 0; }

    void Save();
    // After a question that lists it. False when the user keeps it.
    bool Discard();
    // Shows all of it in a list, in which the user may go on to save or discard.
    void List();
    // Asks about what would be lost; false when the user stays.
    bool MayLeave();

    // A question with the buttons that have a text under its name: 1 to 3, or 0 for the close box.
    int Ask(const std::string& question, const ZOLUnicodeString& text);

private:
    bool Write();
    ZOLUnicodeString Text(const std::string& key, const ZOLListValZOLUnicodeString& parameters = {}) const;

    ZOLDialog& _window;
    StructureEdit& _edit;
    Told _told;
};

} // namespace trellis
