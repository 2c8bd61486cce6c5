#include "store/StoreFailure.h"

namespace trellis {

StoreFailure::StoreFailure(int code, std::vector<std::string> parameters)
    : std::runtime_error("store failure " + std::to_string(code)),
      _code(code),
      _parameters(std::move(parameters)) {}

void StoreFailure::Into(ZOLGYRError& error) const {
    if (error.GetCode() != 0)
        return;
    if (_code == 20901)
        error.Set(_code, 1);
    else
        error.Set(_code);
    for (const std::string& parameter : _parameters)
        error.Add(ZOLUnicodeString(parameter));
}

} // namespace trellis
