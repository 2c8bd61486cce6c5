#include "values/ZOLOption.h"

ZOLOption::ZOLOption(const ZOLUnicodeString name, const ZOLUnicodeString description,
                     const ZOLUnicodeString category, const int isNot, const int isRuleDefined)
    : _name(name),
      _description(description),
      _category(category),
      _isNot(isNot),
      _isRuleDefined(isRuleDefined) {}
