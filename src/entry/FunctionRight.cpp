#include "entry/FunctionRight.h"

#include "model/ZOLDMInstance.h"
#include "service/ZOLQRDCfgBase.h"

namespace trellis {

int FunctionRight::Refusal(const ZOLDMInstance& instance) const {
    const int refusal = instance.GetFunctionRight("QRD", "CFG", _function, 1);
    if (refusal <= 0)
        return 0;
    const bool overridden = _privilegeLimit != NoOverride && ZOLQRDCfgBase::GetPrivilege() >= _privilegeLimit;
    return overridden ? 0 : refusal;
}

} // namespace trellis
