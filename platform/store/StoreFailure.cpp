#include "store/StoreFailure.h"

namespace trellis {

StoreFailure::StoreFailure(int code, std::vector<std::string> parameters)
    : StoreFailure(code, std::move(parameters), code == 20901 ? Outlook::Pointless : Outlook::MayBeRepeated) {
}

StoreFailure::StoreFailure(int code, std::vector<std::string> parameters, Outlook outlook)
    : std::runtime_error("store failure " + std::to_string(code)),
      _code(code),
      _parameters(std::move(parameters)),
      _outlook(outlook) {}

void StoreFailure::Into(ZOLGYRError& error) const {
    if (error.GetCode() != 0)
        return;
    error.Set(_code, std::vector<ZOLUnicodeString>(_parameters.begin(), _parameters.end()));
    if (_outlook == Outlook::Pointless)
        error.Set(_code, 1);
}

} // namespace trellis
