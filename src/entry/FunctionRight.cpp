#include "entry/FunctionRight.h"

#include "model/ZOLDMInstance.h"
#include "service/ZOLQRDCfgBase.h"
#include "site/RightTable.h"

namespace trellis {

int RefusedRight(const ZOLDMInstance& instance, const char* function) {
    const int refusal = instance.GetFunctionRight("QRD", "CFG", function, 1);
    if (refusal <= 0)
        return 0;
    const GuardedFunction* guarded = RightTable::Find(function);
    const bool overridden = guarded && guarded->privilegeLimit != GuardedFunction::NoOverride &&
                            ZOLQRDCfgBase::GetPrivilege() >= guarded->privilegeLimit;
    return overridden ? 0 : refusal;
}

} // namespace trellis
