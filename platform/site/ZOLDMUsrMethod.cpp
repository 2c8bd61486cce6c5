#include "site/ZOLDMUsrMethod.h"

#include "site/ControlLibrary.h"
#include "values/ZOLGYRError.h"

#include <algorithm>
#include <cstdlib>
#include <optional>
#include <unordered_set>
#include <vector>

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

// All arrays and texts of a list.
std::vector<void*> MemoryOf(const TrellisOptionList& list) {
    std::vector<void*> memory;
    for (char** texts : {list.names, list.categories, list.descriptions}) {
        if (!texts)
            continue;
        memory.push_back(texts);
        for (int32_t i = 0; i < list.count; ++i)
            if (texts[i])
                memory.push_back(texts[i]);
    }
    return memory;
}

// Empties `shown` when something stands in it that cannot be freed with it: something given, or something twice.
bool DropShared(const TrellisOptionList& given, TrellisOptionList& shown) {
    const std::vector<void*> others = MemoryOf(given);
    const std::unordered_set<void*> notOwn(others.begin(), others.end());
    const std::vector<void*> all = MemoryOf(shown);
    std::unordered_set<void*> own;
    for (void* each : all)
        if (!notOwn.contains(each))
            own.insert(each);
    if (own.size() == all.size())
        return false;
    for (void* each : own)
        std::free(each);
    shown = {};
    return true;
}

// The status of the site's function; nothing when what it gave back cannot be used.
std::optional<int> Ask(const TrellisControls& controls, const TrellisIdentity& identity, const ObjID& objId,
                       const TrellisOptionList& given, TrellisOptionList& shown) {
    try {
        const int status = controls.optionListToDisplay(&identity, &objId, &given, &shown);
        if (!DropShared(given, shown) && (status != 0 || IsReadable(shown)))
            return status;
    } catch (...) {
        shown = {}; // in a state that nobody knows
    }
    return std::nullopt;
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
    if (const std::optional<int> status = Ask(*controls, identity, objId, given, shown))
        return *status;
    error.Set(AnswerUnreadable, 0, {"optionListToDisplay"});
    return Failed;
}

void ZOLDMUsrMethod::FreeOptionList(TrellisOptionList& list) {
    FreeTexts(list.names, list.count);
    FreeTexts(list.categories, list.count);
    FreeTexts(list.descriptions, list.count);
    list.count = 0;
}
