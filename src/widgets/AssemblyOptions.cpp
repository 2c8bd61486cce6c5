#include "widgets/AssemblyOptions.h"

#include "service/ZOLQRDCfgDbManager.h"
#include "values/ZOLGYRError.h"

#include <unordered_set>

namespace trellis {

namespace {

constexpr int AllKinds = ZOLQRDCfgDbManager::OptionKinds | ZOLQRDCfgDbManager::PackKinds;

void AppendOptions(const ZOLQRDCfgEffectivity& term, ZOLListValZOLQRDCfgEffectivity& result) {
    if (ZOLQRDCfgEffectivityType::IsOptionKind(term.GetType())) {
        result.Append(term);
        return;
    }
    ZOLListValZOLUnicodeString options;
    term.GetOptList(options);
    for (int i = options.Size(); i >= 1; --i)
        result.Append(
            {ZOLQRDCfgEffectivityType::Option, options[i], 0, 0, ZOLQRDTime(), ZOLQRDTime(), "", "", 1});
}

ZOLListValZOLDMInstance LinksBelow(const ZOLListValZOLDMInstance& parts, int iRawCoid) {
    ZOLListValZOLDMInstance links;
    if (iRawCoid) {
        ZOLDMInstance::GetChildrenOfLevel(parts, links);
        return links;
    }
    for (const ZOLDMInstance& part : parts) {
        ZOLListValZOLDMInstance own;
        part.GetChildren(0, "ZOLASS", own, 1);
        links.Append(own);
    }
    return links;
}

} // namespace

void AssemblyOptions::GetOneLevelUsedOption(const ZOLListValZOLDMInstance& parts,
                                            ZOLListValZOLQRDCfgEffectivity& oResult, int iRawCoid,
                                            ZOLGYRError& error) {
    std::unordered_set<ZOLDMInstance> met(parts.begin(), parts.end());
    for (ZOLListValZOLDMInstance level = parts; level.Size() > 0;) {
        ZOLListPtr<ZOLQRDCfgDbEffectivity> effectivities;
        ZOLQRDCfgDbManager::GetEffectivitiesForParts(level, effectivities, error, AllKinds);
        if (error.GetCode() != 0)
            return;
        for (const ZOLQRDCfgDbEffectivity* effectivity : effectivities)
            AppendOptions(*effectivity, oResult);
        ZOLDeleteElements(effectivities);

        ZOLListValZOLDMInstance below;
        for (const ZOLDMInstance& link : LinksBelow(level, iRawCoid))
            if (const ZOLDMInstance child = link.GetChildPart(1); met.insert(child).second)
                below.Append(child);
        level = std::move(below);
    }
}

} // namespace trellis
