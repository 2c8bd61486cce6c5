#include "values/ZOLGYRError.h"

#include "values/ZOLMsg.h"
#include "values/ZOLMsgCatalog.h"

#include <cstdlib>
#include <utility>

void ZOLGYRError::Clear() {
    _mode = -1;
    _isNotice = false;
    _parameters.clear();
    _longMessage = ZOLUnicodeString();
    _code = 0;
}

void ZOLGYRError::Set(const int code, const int mode) {
    _code = code;
    _mode = mode;
    _isNotice = mode == -1;
}

void ZOLGYRError::Set(const int code, const int mode, const ZOLUnicodeString first, const int count,
                      const ZOLUnicodeString* others) {
    Set(code, mode, {first});
    for (int i = 0; i < count; ++i)
        _parameters.push_back(others[i]);
}

void ZOLGYRError::Set(const int code, const int mode, std::initializer_list<ZOLUnicodeString> parameters) {
    Set(code, mode);
    _longMessage = ZOLUnicodeString();
    _parameters.assign(parameters.begin(), parameters.end());
}

void ZOLGYRError::Set(const int code, std::vector<ZOLUnicodeString> parameters) {
    Set(code);
    _longMessage = ZOLUnicodeString();
    _parameters = std::move(parameters);
}

void ZOLGYRError::GetLongMsg(ZOLUnicodeString& message) const {
    message = ZOLUnicodeString();
    if (_code == 0)
        return;
    if (!_longMessage.IsEmpty()) {
        message = ZOLMsg::BuildMessage(_longMessage, _parameters);
        return;
    }
    const ZOLMsgCatalog catalogue("messages");
    const ZOLUnicodeString number = ZOLUnicodeString::FromNumber(std::abs(_code));
    const ZOLUnicodeString text = catalogue.GetMsg(number);
    message = ZOLMsg::BuildMessage(text.IsEmpty() ? ZOLUnicodeString("Error ") + number : text, _parameters);
}
