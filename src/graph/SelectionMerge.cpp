#include "graph/SelectionMerge.h"

#include <unordered_set>

namespace trellis {

// Takes all parameters out of the current list.
ZOLListPtrZOLParameter SelectionMerge::Take() {
    ZOLListPtrZOLParameter taken = _current;
    _current.RemoveAll(ZOLCollec::FreeMemory);
    return taken;
}

void SelectionMerge::Select(std::unique_ptr<ZOLParameter> clicked, const OptionsOfCategory& optionsOf) {
    const ZOLUnicodeString option = clicked->GetOption();
    const ZOLUnicodeString category = clicked->GetCategory();
    const bool isExclusive = clicked->GetCategoryExclusivity() != 0;
    const bool wasInList = ParameterInList(clicked.get(), _current, 1, -1) != 0;
    bool adds = !wasInList;
    std::unordered_set<ZOLUnicodeString> keepNames;

    for (ZOLParameter* each : Take()) {
        bool isKept = true;
        if (each->GetCategory() == category && each->GetOption() == option) {
            isKept = false;
            adds = adds && !_mode.isAdvanced;
        } else if (isExclusive && each->GetCategory() == category) {
            const bool isUsersChoice =
                !each->IsNot() && each->GetParameterSource() == ZOLParameter::SourceUser;
            if (isUsersChoice) {
                isKept = false;
                adds = adds && !_mode.isAdvanced;
            } else {
                keepNames.insert(each->GetOption());
                isKept =
                    !(wasInList && each->IsNot() && each->GetParameterSource() == ZOLParameter::SourceUnset);
            }
        }
        if (isKept)
            _current.Append(each);
        else
            delete each;
    }

    const ZOLListValZOLUnicodeString* names =
        isExclusive && adds && _mode.managesRejection ? optionsOf(category) : nullptr;
    if (names) {
        keepNames.insert(option);
        for (const ZOLUnicodeString& name : *names) {
            if (keepNames.contains(name))
                continue;
            auto* rejection = new ZOLParameter(category, name, 1);
            rejection->SetParameterSource(ZOLParameter::SourceUser);
            rejection->SetCategoryExclusivity(1);
            _current.Append(rejection);
        }
    }
    if (adds)
        _current.Append(clicked.release());
}

void SelectionMerge::Reject(std::unique_ptr<ZOLParameter> clicked) {
    bool adds = true;
    bool hasOtherSelected = false;
    ZOLParameter::ZOLParameterSource oldSource = ZOLParameter::SourceUnset;

    for (ZOLParameter* each : Take()) {
        const bool isOfCategory = each->GetCategory() == clicked->GetCategory();
        if (!isOfCategory || each->GetOption() != clicked->GetOption()) {
            hasOtherSelected = hasOtherSelected || (isOfCategory && !each->IsNot());
            _current.Append(each);
            continue;
        }
        if (_mode.isAdvanced || each->IsNot())
            adds = false;
        if (each->IsNot())
            oldSource = each->GetParameterSource();
        delete each;
    }
    if (!adds && clicked->GetCategoryExclusivity() && hasOtherSelected) {
        clicked->SetParameterSource(oldSource);
        adds = true;
    }
    if (adds)
        _current.Append(clicked.release());
}

} // namespace trellis
