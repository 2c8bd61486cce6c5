#include "site/ZOLDMUsrMethod.h"

#include "site/ControlLibrary.h"
#include "values/ZOLGYRError.h"

#include <algorithm>
#include <cstdlib>
#include <unordered_set>

namespace {

constexpr int AnswerUnreadable = 60533;
constexpr int Failed = -1;

bool IsComplete(char* const* texts, int32_t count) {
    return texts && std::all_of(texts, texts + count, [](const char* text) { return text != nullptr; });
}

bool IsReadable(const TrellisOptionList& list) {
    return list.count == 0 ||
           (list.count > 0 && IsComplete(list.names, list.count) && IsComplete(list.categories, list.count) &&
            IsComplete(list.descriptions, list.count));
}

// Whether something stands in `shown` that is not its own to be freed: something given, or one text twice.
bool SharesMemory(const TrellisOptionList& given, const TrellisOptionList& shown) {
    std::unordered_set<const void*> seen;
    const auto add = [&seen](const TrellisOptionList& list) {
        bool isNew = true;
        for (char** texts : {list.names, list.categories, list.descriptions}) {
            isNew &= !texts || seen.insert(texts).second;
            for (int32_t i = 0; texts && i < list.count; ++i)
                isNew &= !texts[i] || seen.insert(texts[i]).second;
        }
        return isNew;
    };
    add(given);
    return !add(shown);
}

int Ask(const TrellisControls& controls, const TrellisIdentity& identity, const ObjID& objId,
        const TrellisOptionList& given, TrellisOptionList& shown, bool& isReadable) {
    try {
        const int status = controls.optionListToDisplay(&identity, &objId, &given, &shown);
        if (SharesMemory(given, shown))
            shown = {}; // rather lost than freed twice
        else
            isReadable = IsReadable(shown);
        return status;
    } catch (...) {
        return Failed;
    }
}

void FreeTexts(char**& texts, int32_t count) {
    for (int32_t i = 0; texts && i < count; ++i)
        std::free(texts[i]);
    std::free(texts);
    texts = nullptr;
}

} // namespace

int ZOLDMUsrMethod::OptionListToDisplay(const char* person, const char* role, const char* organization,
                                        const ObjID& objId, const TrellisOptionList& given,
                                        TrellisOptionList& shown, ZOLGYRError& error) {
    shown = {};
    const TrellisControls* controls = trellis::ControlLibrary::Controls(error);
    if (!controls || !controls->optionListToDisplay)
        return 0;
    const TrellisIdentity identity = {person, role, organization};
    bool isReadable = false;
    const int status = Ask(*controls, identity, objId, given, shown, isReadable);
    if (isReadable)
        return status;
    error.Set(AnswerUnreadable, 0, {"optionListToDisplay"});
    return Failed;
}

void ZOLDMUsrMethod::FreeOptionList(TrellisOptionList& list) {
    FreeTexts(list.names, list.count);
    FreeTexts(list.categories, list.count);
    FreeTexts(list.descriptions, list.count);
    list.count = 0;
}
