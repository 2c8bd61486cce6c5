#include "widgets/SiteOptionList.h"

#include "site/ZOLDMUsrMethod.h"
#include "site/ZOLIQrdSCManager.h"
#include "values/ContractBreach.h"
#include "values/ZOLGYRError.h"

#include <cstdlib>
#include <cstring>
#include <new>

namespace trellis {

namespace {

// Arrays as the control functions of a site take and give them; freed with it.
struct OptionArrays : TrellisOptionList {
    OptionArrays() : TrellisOptionList() {}
    explicit OptionArrays(const ZOLListValZOLQRDCfgEffectivity& options) : OptionArrays() {
        const auto size = static_cast<std::size_t>(options.Size());
        for (char*** texts : {&names, &categories, &descriptions})
            *texts = static_cast<char**>(Checked(std::calloc(size + 1, sizeof(char*))));
        for (const ZOLQRDCfgEffectivity& option : options) {
            names[count] = Copy(option.GetName());
            categories[count] = Copy(option.GetCategory());
            descriptions[count] = Copy(option.GetDescription());
            ++count;
        }
    }
    ~OptionArrays() { ZOLDMUsrMethod::FreeOptionList(*this); }
    OptionArrays(const OptionArrays&) = delete;
    OptionArrays& operator=(const OptionArrays&) = delete;

private:
    static void* Checked(void* memory) {
        if (!memory)
            throw std::bad_alloc();
        return memory;
    }
    static char* Copy(const ZOLUnicodeString& text) {
        return static_cast<char*>(Checked(strdup(text.ConvertToChar())));
    }
};

} // namespace

void SiteOptionList::Replace(const ZOLDMInstance& product, ZOLListValZOLQRDCfgEffectivity& options,
                             ZOLGYRError& error) {
    const ZOLIQrdSCManager_var ScMngr = GetSecurityManager();
    if (ScMngr == NULL_var)
        ContractBreach("ZOLQRDDlgOptionList::UserExitForOptList", "ScMngr != NULL_var");
    const ZOLUnicodeString person = ScMngr->GetCurrentPerson()->GetName();
    const ZOLUnicodeString role = ScMngr->GetCurrentRole()->GetName();
    const ZOLUnicodeString organization = ScMngr->GetCurrentOrganization()->GetName();
    const OptionArrays given(options);
    OptionArrays shown;
    const int status = ZOLDMUsrMethod::OptionListToDisplay(person.ConvertToChar(), role.ConvertToChar(),
                                                           organization.ConvertToChar(), product.GetObjID(),
                                                           given, shown, error);
    if (status != 0 || shown.count == 0)
        return;
    options.RemoveAll();
    for (int32_t i = 0; i < shown.count; ++i)
        options.Append({ZOLQRDCfgEffectivityType::OptionUndef, shown.names[i], 0, 0, ZOLQRDTime(),
                        ZOLQRDTime(), shown.categories[i], shown.descriptions[i], 0});
}

} // namespace trellis
