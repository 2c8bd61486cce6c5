#pragma once

#include "values/ZOLParameter.h"

// The kinds of rules of a dictionary.
enum ZOLConfigRuleType {
    ZOLDirectiveRuleType = 0,    // where its condition holds, its consequence holds
    ZOLPackageRuleType = 1,      // options that stand or fall together
    ZOLCompatibilityRuleType = 2 // a row of a compatibility matrix
};

// ZOLConfigRule: a rule by its text, which is in the words of the user's language. Any text makes a rule object; one
// that cannot be read is refused by Check alone, and keeps its text whatever is done with it.
//
// References in the text are those of ZOLParameter. Queries and renames see every reference that stands in the text,
// also where the rest of it is faulty. Lists are emptied first and hold each name once, in the order of the text.
class TRELLIS_API ZOLConfigRule {
public:
    virtual ~ZOLConfigRule();

    virtual ZOLConfigRuleType GetType() const = 0;
    // Non-zero when the text is a rule of this kind and names only options of the given parameters. The message is
    // the verdict in one line: that the rule is valid, or what is wrong, at which character, and what was expected
    // (texts 60750 to 60768). An option without a category means the only option of that name.
    virtual int Check(const ZOLListPtrZOLParameter& parameters, ZOLUnicodeString& message) const = 0;
    // The name under which it is stored; empty for one made from a text alone.
    virtual ZOLUnicodeString GetName() const = 0;
    virtual ZOLUnicodeString GetRuleString() const = 0;
    virtual ZOLUnicodeString GetDescription() const = 0;
    // The categories that are named, also those of empty cells.
    virtual void GetCategories(ZOLListValZOLUnicodeString& names) const = 0;
    // The options that are named with that category; all options for an empty category.
    virtual void GetOptions(ZOLListValZOLUnicodeString& names, const ZOLUnicodeString& category) const = 0;
    virtual int HasCategory(const ZOLUnicodeString& name) const = 0;
    virtual int HasOption(const ZOLUnicodeString& name) const = 0;
    // Changes the text of this object: every reference to an option of that name, whatever its category.
    virtual void RenameOption(const ZOLUnicodeString& from, const ZOLUnicodeString& to) = 0;
    virtual void RenameCategory(const ZOLUnicodeString& from, const ZOLUnicodeString& to) = 0;
};
