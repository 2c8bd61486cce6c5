#pragma once

#include "values/TrellisApi.h"
#include "values/ZOLGYRError.h"

#include <ostream>
#include <sstream>
#include <string>

// ZOLGYRTraceLine: the line that a trace is writing.
class TRELLIS_API ZOLGYRTraceLine {
public:
    std::ostream& GetStream() { return _stream; }
    // What was written since the last Take, which begins a new line.
    std::string Take();

private:
    std::ostringstream _stream;
};

// ZOLGYRTrace: the trace of one operation, open as long as the object lives. Lines go to the sink that the setting
// "TRACE.SINK" names: nothing (the default), "stderr", or a file that is appended to. Levels are switched on by
// "TRACE.LEVELS", a list of numbers separated by commas: 3 operations of the interface object, 9 panels and
// constructors, 37 modification and handler code.
class TRELLIS_API ZOLGYRTrace {
public:
    // method  the operation's full name, as in "ZOLQRDCfgInterfacesInt::Usage"; must outlive the trace
    // flag    0 everywhere
    ZOLGYRTrace(const char* method, int level, int flag);
    ~ZOLGYRTrace();
    ZOLGYRTrace(const ZOLGYRTrace&) = delete;
    ZOLGYRTrace& operator=(const ZOLGYRTrace&) = delete;

    int GetLevel() const { return _level; }
    // 1 when lines of that level are written, else 0.
    int LevelIsActive(const int level) const;
    ZOLGYRTraceLine& GetLigne() { return _line; }
    // Blanks that this scope is indented by, three per open scope of an active level.
    int GetIndent() const { return _indent; }
    static std::string Indent(const int blanks);
    const char* GetMethod() const { return _method; }
    // Writes the current line to the sink, complete with its end, and flushes.
    void Out();

    // Writes the end line of an operation: indentation plus 3, method, " ier = " and the code. It is written when
    // the bitwise AND of code and activity is non-zero; activity is 1, so even codes write nothing.
    void OutEnd(const ZOLGYRError& error);

    // Writes a line of the platform itself, of any level, when there is a sink: a missing file, a swallowed error.
    static void Note(const std::string& text);

private:
    const char* _method;
    int _level;
    int _indent;
    ZOLGYRTraceLine _line;
};
