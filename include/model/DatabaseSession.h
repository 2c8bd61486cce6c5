#pragma once

#include "values/TrellisApi.h"
#include "values/ZOLListVal.h"
#include "values/ZOLUnicodeString.h"

#include <string>
#include <utility>
#include <vector>

class ZOLGYRError;

namespace trellis {

// An object with unsaved changes.
struct UnsavedChange {
    enum class Kind { Added, Changed, Removed };

    Kind kind;
    ZOLUnicodeString object; // its name
    ZOLUnicodeString what;   // "category", "option", "link", ...
    bool isStale = false;    // the last save was refused because of it
};

// DatabaseSession: opens and looks after the one database of the process, for hosts. A database is named by
// the path of its file or by "sqlite:PATH"; "sqlite::memory:" is one that lives until it is closed.
//
// Errors: 20901 out of reach or unreadable (name, reason), 20903 not written (name, reason), 20912 of a newer
// version (name, its version, ours), 60302 exists already (name), 60201 none is open.
class TRELLIS_API DatabaseSession {
public:
    // Makes a database and opens it. An existing file is never overwritten.
    static bool Create(const ZOLUnicodeString& url, ZOLGYRError& error);
    // Opens one in place of the one that is open, whose unsaved changes are lost; on a failure that one
    // stays. An older schema is brought up to date. What is saved carries the name of who is logged in at
    // that moment.
    static bool Open(const ZOLUnicodeString& url, ZOLGYRError& error);
    static void Close();
    static bool IsOpen();

    // What a user would want to know of the open database, as pairs of a word and a value: file, name,
    // leading string, schema version, and how many objects of each kind are stored. Empty when none is open
    // or it cannot be read.
    static std::vector<std::pair<ZOLUnicodeString, ZOLUnicodeString>> Describe(ZOLGYRError& error);
    // Examines what is stored and appends a line for each thing that is wrong: damage of the file, rows that
    // refer to missing rows, parts that contain themselves, names that occur twice in a dictionary. True when
    // it could look; the list then tells the verdict.
    static bool Check(ZOLListValZOLUnicodeString& problems, ZOLGYRError& error);

    // The unsaved changes of the process, of the configuration service and of the model, by kind of object. A
    // commit would write them all, a save those of the service.
    static std::vector<UnsavedChange> UnsavedChanges();
    // Forgets all of them, and the queued events; true unless the store could not be read.
    static bool DiscardUnsaved(ZOLGYRError& error);
};

} // namespace trellis
