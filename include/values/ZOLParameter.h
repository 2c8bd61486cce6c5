#pragma once

#include "values/TrellisApi.h"
#include "values/ZOLListPtr.h"
#include "values/ZOLUnicodeString.h"

class ZOLCategory;
class ZOLOption;

// ZOLParameter: the state of one option in a selection: chosen, or rejected. Two are equal by category,
// option and sign; source, exclusivity and descriptions do not count.
//
// A parameter as a reference in the text of a rule:
//     "CATEGORY"."OPTION"     or, without a category,     "OPTION"
// A quotation mark inside a name is written twice; every other character stands for itself. So any name is
// legal, keywords and line feeds included, and the word `not` may stand right before a reference, as in
// not"A"."B".
class TRELLIS_API ZOLParameter {
public:
    // Where a parameter comes from.
    enum ZOLParameterSource { SourceUnset = 0, SourceUser = 1, SourceRule = 2 };

    // isNot: 1 rejected, 0 chosen. The category counts as not exclusive until that is set.
    ZOLParameter(const ZOLUnicodeString& category, const ZOLUnicodeString& option, const int isNot);
    ZOLParameter(const ZOLUnicodeString& category, const ZOLUnicodeString& categoryDescription,
                 const ZOLUnicodeString& option, const ZOLUnicodeString& optionDescription, const int isNot);
    // Name, description and exclusivity of the category are those of `category`, whatever the option says of
    // it.
    ZOLParameter(const ZOLCategory& category, const ZOLOption& option);

    const ZOLUnicodeString& GetCategory() const { return _category; }
    const ZOLUnicodeString& GetCategoryDescription() const { return _categoryDescription; }
    const ZOLUnicodeString& GetOption() const { return _option; }
    void SetOption(const ZOLUnicodeString& option) { _option = option; }
    const ZOLUnicodeString& GetOptionDescription() const { return _optionDescription; }
    int IsNot() const { return _isNot; }

    ZOLParameterSource GetParameterSource() const { return _source; }
    void SetParameterSource(ZOLParameterSource source) { _source = source; }
    // Whether the category takes only one option.
    int GetCategoryExclusivity() const { return _categoryExclusivity; }
    void SetCategoryExclusivity(int exclusivity) { _categoryExclusivity = exclusivity; }

    // The reference as the text of a rule writes it; with `withSign` non-zero a rejected one is led by "not
    // ".
    ZOLUnicodeString GetParameterString(int withSign = 0) const;
    // The same, put into `text`.
    void GetParameterString(ZOLUnicodeString& text, int withSign) const {
        text = GetParameterString(withSign);
    }
    // Reads the reference, without a sign, that begins at the octet `position` of a text, counted from 0,
    // into a parameter that is chosen, and moves the position behind it. 0, with nothing changed, when no
    // reference begins there or it is not closed.
    static int ReadParameterString(const ZOLUnicodeString& text, int& position, ZOLParameter& parameter);

    friend bool operator==(const ZOLParameter& a, const ZOLParameter& b) {
        return a._category == b._category && a._option == b._option && a._isNot == b._isNot;
    }

private:
    ZOLUnicodeString _category;
    ZOLUnicodeString _categoryDescription;
    ZOLUnicodeString _option;
    ZOLUnicodeString _optionDescription;
    int _isNot;
    int _categoryExclusivity = 0;
    ZOLParameterSource _source = SourceUnset;
};

using ZOLListPtrZOLParameter = ZOLListPtr<ZOLParameter>;

// 1 when a parameter equal to the given one stands in the list from position `from` to position `to`, counted
// from 1, both included; a `to` of -1 means the end. Positions outside the list are no breach: they hold
// nothing.
TRELLIS_API int ParameterInList(const ZOLParameter* parameter, const ZOLListPtrZOLParameter& list, int from,
                                int to);
