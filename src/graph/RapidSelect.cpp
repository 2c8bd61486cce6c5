#include "graph/RapidSelect.h"

#include "model/ZOLDMTools.h"
#include "service/ZOLQRDCfgManager.h"
#include "values/ZOLGYRError.h"

#include <algorithm>

namespace trellis {

namespace {

bool BeginsWith(const ZOLUnicodeString& text, const ZOLUnicodeString& beginning) {
    return text.Bytes().starts_with(beginning.Bytes());
}

void AppendStripped(ZOLListValZOLUnicodeString& names, ZOLUnicodeString name) {
    name.Strip();
    if (!name.IsEmpty())
        names.Append(name);
}

} // namespace

ZOLListValZOLUnicodeString RapidSelect::Split(const ZOLUnicodeString& typed) {
    static const std::string separators[] = {" & ", " AND ", " and "};
    const std::string text = typed.Bytes() + " ";
    ZOLListValZOLUnicodeString names;
    std::size_t start = 0;
    for (;;) {
        const auto* separator = std::ranges::find_if(separators, [&](const std::string& candidate) {
            return text.find(candidate, start) != std::string::npos;
        });
        if (separator == std::end(separators))
            break;
        const std::size_t end = text.find(*separator, start);
        AppendStripped(names, text.substr(start, end - start));
        start = end + separator->size();
    }
    AppendStripped(names, text.substr(start));
    return names;
}

void RapidSelect::ReadNames(const ZOLListValZOLIQrdConfigItem_var& dictionaries) {
    ZOLGYRError error;
    const ZOLQRDCfgManager* manager = ZOLQRDCfgManager::CurrentCfgManager(error);
    for (int i = 1; manager && i <= dictionaries.Size(); ++i) {
        ZOLListValZOLQRDCfgEffectivity options;
        manager->GetOptionsFromDictionary(dictionaries[i], options);
        for (const ZOLQRDCfgEffectivity& option : options)
            if (!option.GetOptionName().IsEmpty())
                _names.Append(option.GetOptionName());
    }
    _names.QuickSort(&ZOLDMTools::CompareStrings);
}

bool RapidSelect::IsMeant(const ZOLUnicodeString& typed, int position, Mode mode) const {
    const ZOLUnicodeString& name = _names[position];
    if (mode == Mode::Exact || name == typed)
        return name == typed;
    return BeginsWith(name, typed) && (position == _names.Size() || !BeginsWith(_names[position + 1], typed));
}

ZOLListValZOLQRDCfgEffectivity RapidSelect::Find(const ZOLListValZOLUnicodeString& typed, Mode mode) const {
    ZOLListValZOLQRDCfgEffectivity terms;
    for (const ZOLUnicodeString& name : typed) {
        const auto found = std::lower_bound(_names.begin(), _names.end(), name);
        const bool isMeant =
            found != _names.end() && IsMeant(name, static_cast<int>(found - _names.begin()) + 1, mode);
        if (isMeant)
            terms.Append(ZOLQRDCfgEffectivity(*found, ZOLUnicodeString()));
        else if (mode == Mode::Exact)
            break;
    }
    return terms;
}

} // namespace trellis
