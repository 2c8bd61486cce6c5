#pragma once

#include "values/TrellisApi.h"
#include "values/ZOLUnicodeString.h"

#include <memory>

// ZOLMsgCatalog: the texts of one message catalogue, by key: "messages" holds the texts of all numbers,
// "RuleKeyWords" the words of the rule language. A catalogue is a file of lines "key text" (# begins a comment,
// \n stands for a line feed). Each text is taken from the folder of the site, else of the language, else of English.
class TRELLIS_API ZOLMsgCatalog {
public:
    explicit ZOLMsgCatalog(const ZOLUnicodeString& name);
    ~ZOLMsgCatalog();

    // The text of a key. An unknown key gives an empty text, and 0 from HasMsg.
    ZOLUnicodeString GetMsg(const ZOLUnicodeString& key) const;
    int HasMsg(const ZOLUnicodeString& key) const;

    struct Texts;

private:
    std::shared_ptr<const Texts> _texts;
};
