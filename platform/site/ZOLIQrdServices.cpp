#include "site/ZOLIQrdServices.h"

#include "store/Workspace.h"

ZOLUnicodeString ZOLIQrdServices::GetValue(const ZOLUnicodeString& name,
                                           const ZOLUnicodeString& group) const {
    using trellis::AdministratorValueRow;
    if (!trellis::Workspace::Current())
        return {};
    ZOLGYRError error;
    const auto value =
        trellis::Workspace::Current()->FindFirst(trellis::StoreQuery<AdministratorValueRow>()
                                                     .Where(&AdministratorValueRow::group, group.Bytes())
                                                     .Where(&AdministratorValueRow::name, name.Bytes()),
                                                 error);
    return value ? ZOLUnicodeString(value->Row().value) : ZOLUnicodeString();
}

ZOLIQrdServices_var CreateServices() {
    return new ZOLIQrdServices;
}
