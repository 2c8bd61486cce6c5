#pragma once

#include "values/TrellisApi.h"
#include "values/ZOLUnicodeString.h"

#include <initializer_list>
#include <vector>

// ZOLGYRError: the error carrier that travels by reference through nearly every operation.
//   code  0 no error; above 0 the number of a message; below 0 an error that was shown already, and is not shown
//         again
//   mode  -1 cleared, success or notice; 0 a question or plain error; above 0 an error after which a loop must stop
class TRELLIS_API ZOLGYRError {
public:
    ZOLGYRError() = default;

    // Mode to -1, all texts gone, code to 0.
    void Clear();

    // Sets the code; mode and texts stay.
    void Set(const int code) { _code = code; }
    // Sets code and mode; texts stay.
    void Set(const int code, const int mode);
    // Sets code and mode, and replaces the texts by `first` and the `count` texts of the array behind it.
    void Set(const int code, const int mode, const ZOLUnicodeString first, const int count,
             const ZOLUnicodeString* others);
    // The same with all texts in one list.
    void Set(const int code, const int mode, std::initializer_list<ZOLUnicodeString> parameters);
    // Sets the code and replaces the texts; the mode stays.
    void Set(const int code, std::vector<ZOLUnicodeString> parameters);
    // Appends one parameter of the message; order is kept, before or after Set.
    void Add(const ZOLUnicodeString& parameter) { _parameters.push_back(parameter); }
    // Puts a text in place of the one of the catalogue: for errors that bring their own words.
    void SetLongMsg(const ZOLUnicodeString& message) { _longMessage = message; }

    int GetCode() const { return _code; }
    int GetMode() const { return _mode; }
    // Whether the code was set with mode -1, as a message of success or a notice. A cleared carrier has that mode as well,
    // but a code set into it without a mode is an error.
    bool IsNotice() const { return _isNotice; }
    const std::vector<ZOLUnicodeString>& GetParameters() const { return _parameters; }
    // The whole message with its parameters inserted; empty for code 0. A number without a text in the catalogue
    // gives the number and the parameters.
    void GetLongMsg(ZOLUnicodeString& message) const;

private:
    int _code = 0;
    int _mode = -1;
    bool _isNotice = false;
    std::vector<ZOLUnicodeString> _parameters;
    ZOLUnicodeString _longMessage;
};
