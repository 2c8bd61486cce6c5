#include "model/PartQuery.h"

#include "model/InstanceAccess.h"
#include "model/ObjectIdentifier.h"
#include "store/StoreExamination.h"

#include <algorithm>
#include <set>

namespace trellis {

namespace {

// False, with a code, on a failure.
bool Fill(const StoreQuery<PartRow>& query, ZOLListValZOLDMInstance& result, ZOLGYRError& error) {
    result.RemoveAll();
    if (!Workspace::Current()) {
        error.Set(60201);
        return false;
    }
    ZOLGYRError failure; // a code that stands in the caller's is none of this query
    for (const auto& part : Workspace::Current()->Find(query, failure))
        result.Append(InstanceAccess::Of(part));
    if (failure.GetCode() != 0)
        error = failure;
    return failure.GetCode() == 0;
}

// Ids of the child parts of links that are to be removed.
std::set<std::int64_t> ChildrenOfRemovedLinks(Workspace& workspace) {
    std::set<std::int64_t> children;
    for (const auto& object : workspace.Unsaved())
        if (object->Kind() == RowKind::Link && !object->IsAlive())
            children.insert(static_cast<const StoredRecord<LinkRow>&>(*object).Row().child);
    return children;
}

std::vector<std::int64_t> RootIds(Workspace& workspace, ZOLGYRError& error) {
    std::vector<std::int64_t> ids;
    try {
        ids = UnusedParts(workspace.Session());
    } catch (const StoreFailure& failure) {
        failure.Into(error);
        return ids;
    }
    for (const std::int64_t child : ChildrenOfRemovedLinks(workspace))
        if (workspace.Find(StoreQuery<LinkRow>().Where(&LinkRow::child, child), error).empty())
            ids.push_back(child);
    std::sort(ids.begin(), ids.end());
    return ids;
}

} // namespace

void PartQuery::ByNumber(const ZOLUnicodeString& number, ZOLListValZOLDMInstance& result,
                         ZOLGYRError& error) {
    Fill(StoreQuery<PartRow>().Where(&PartRow::number, number.Bytes()), result, error);
}

void PartQuery::ByNameContaining(const ZOLUnicodeString& text, ZOLListValZOLDMInstance& result,
                                 ZOLGYRError& error) {
    Fill(StoreQuery<PartRow>().WhereContains(&PartRow::name, text.Bytes()), result, error);
}

void PartQuery::ByWord(const ZOLUnicodeString& word, ZOLListValZOLDMInstance& result, ZOLGYRError& error) {
    using Query = StoreQuery<PartRow>;
    const std::string& text = word.Bytes();
    const Query meanings[] = {Query().Where(&PartRow::uuid, ObjectIdentifier(text).Text()),
                              Query().Where(&PartRow::number, text),
                              Query().Where(&PartRow::uuid, ObjectIdentifier::Derived("part", text).Text()),
                              Query().Where(&PartRow::name, text)};
    for (const Query& meaning : meanings)
        if (!Fill(meaning, result, error) || result.Size() > 0)
            return;
}

void PartQuery::Roots(ZOLListValZOLDMInstance& result, ZOLGYRError& error) {
    result.RemoveAll();
    Workspace* workspace = Workspace::Current();
    if (!workspace)
        return error.Set(60201);
    for (const auto& part : workspace->GetAll<PartRow>(RootIds(*workspace, error), error))
        if (part)
            result.Append(InstanceAccess::Of(part));
}

} // namespace trellis
