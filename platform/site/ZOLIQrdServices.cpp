#include "site/ZOLIQrdServices.h"

#include "store/Workspace.h"
#include "values/FailureTrace.h"

ZOLUnicodeString ZOLIQrdServices::GetValue(const ZOLUnicodeString& name,
                                           const ZOLUnicodeString& group) const {
    using trellis::AdministratorValueRow;
    if (!trellis::Workspace::Current())
        return {};
    trellis::FailureTrace trace("ZOLIQrdServices::GetValue");
    const auto value =
        trellis::Workspace::Current()->FindFirst(trellis::StoreQuery<AdministratorValueRow>()
                                                     .Where(&AdministratorValueRow::group, group.Bytes())
                                                     .Where(&AdministratorValueRow::name, name.Bytes()),
                                                 trace);
    return value ? ZOLUnicodeString(value->Row().value) : ZOLUnicodeString();
}

ZOLIQrdServices_var CreateServices() {
    return new ZOLIQrdServices;
}
