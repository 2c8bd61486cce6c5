#include "service/RuleReasonItem.h"

#include "values/ZOLMsg.h"
#include "values/ZOLMsgCatalog.h"

namespace trellis {

namespace {

// Keys of the lines, by kind, with name and text as parameters.
constexpr const char* Lines[] = {"choice", "directive", "package", "matrix", "exclusive", "mandatory"};

} // namespace

ZOLUnicodeString RuleReasonItem::Line() const {
    const ZOLUnicodeString line = ZOLMsgCatalog("RulePhrases").GetMsg(Lines[static_cast<std::size_t>(kind)]);
    std::vector<ZOLUnicodeString> parameters = {text};
    if (!name.IsEmpty())
        parameters.push_back(name);
    return ZOLMsg::BuildMessage(line, parameters);
}

} // namespace trellis
