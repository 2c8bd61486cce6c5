#include "session/PartWord.h"

#include "model/PartQuery.h"
#include "values/ZOLGYRError.h"

namespace trellis {

namespace {

constexpr int NoSuchPart = 60603;
constexpr int SeveralParts = 60604;

} // namespace

ZOLDMInstance PartOfWord(const ZOLUnicodeString& word, ZOLGYRError& error) {
    ZOLListValZOLDMInstance found;
    PartQuery::ByWord(word, found, error);
    if (error.GetCode() != 0)
        return {};
    if (found.Size() == 1)
        return found[1];
    error.Set(found.Size() == 0 ? NoSuchPart : SeveralParts, 0);
    error.Add(word);
    if (found.Size() > 1)
        error.Add(ZOLUnicodeString::FromNumber(found.Size()));
    return {};
}

} // namespace trellis
