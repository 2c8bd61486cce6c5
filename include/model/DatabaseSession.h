#pragma once

#include "values/TrellisApi.h"
#include "values/ZOLListVal.h"
#include "values/ZOLUnicodeString.h"

#include <string>
#include <utility>
#include <vector>

class ZOLGYRError;

namespace trellis {

// DatabaseSession: opens and looks after the one database of the process, for hosts. A database is named by the
// path of its file or by "sqlite:PATH"; "sqlite::memory:" is one that lives until it is closed.
//
// Errors: 20901 out of reach or unreadable (name, reason), 20903 not written (name, reason), 20912 of a newer version
// (name, its version, ours), 60302 exists already (name), 60201 none is open.
class TRELLIS_API DatabaseSession {
public:
    // Makes a database and opens it. An existing file is never overwritten.
    static bool Create(const ZOLUnicodeString& url, ZOLGYRError& error);
    // Opens one in place of the one that is open, whose unsaved changes are lost; on a failure that one stays. An
    // older schema is brought up to date. The name of the user of the operating system goes into what is saved until
    // the security manager tells another.
    static bool Open(const ZOLUnicodeString& url, ZOLGYRError& error);
    static void Close();
    static bool IsOpen();

    // What a user would want to know of the open database, as pairs of a word and a value: file, name, leading string,
    // schema version, and how many objects of each kind are stored. Empty when none is open or it cannot be read.
    static std::vector<std::pair<ZOLUnicodeString, ZOLUnicodeString>> Describe(ZOLGYRError& error);
    // Examines what is stored and appends a line for each thing that is wrong: damage of the file, rows that refer to
    // missing rows, parts that contain themselves, names that occur twice in a dictionary. True when it could look;
    // the list then tells the verdict.
    static bool Check(ZOLListValZOLUnicodeString& problems, ZOLGYRError& error);

    // The unsaved changes of the process, one line per object: what happened to it and its name.
    static std::vector<ZOLUnicodeString> UnsavedChanges();
    // Forgets all of them; true unless the store could not be read.
    static bool DiscardUnsaved(ZOLGYRError& error);
};

} // namespace trellis
