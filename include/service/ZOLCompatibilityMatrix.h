#pragma once

#include "service/ZOLCompatibilityRule.h"
#include "service/ZOLIQrdCompatibilityMatrix.h"
#include "values/ZOLCategory.h"

// ZOLCompatibilityMatrix: a copy of a matrix by value, for the clipboard. It outlives the matrix and its dictionary:
// name, description and rows are those of the moment of copying.
class TRELLIS_API ZOLCompatibilityMatrix {
public:
    ZOLCompatibilityMatrix() = default;
    // A null handle gives an empty copy.
    explicit ZOLCompatibilityMatrix(const ZOLIQrdCompatibilityMatrix_var& matrix);

    const ZOLUnicodeString& GetMatrixId() const { return _name; }
    const ZOLUnicodeString& GetMatrixDescription() const { return _description; }
    // The columns: name, description, exclusivity and mandatory mark of their categories.
    const ZOLListVal<ZOLCategory>& GetMatrixDefinition() const { return _categories; }
    // The texts of the rows, in the words of the user's language.
    const ZOLListValZOLUnicodeString& GetMatrixRules() const { return _rows; }

    // By name.
    friend bool operator==(const ZOLCompatibilityMatrix& a, const ZOLCompatibilityMatrix& b) {
        return a._name == b._name;
    }

private:
    ZOLUnicodeString _name;
    ZOLUnicodeString _description;
    ZOLListVal<ZOLCategory> _categories;
    ZOLListValZOLUnicodeString _rows;
};

using ZOLListValZOLCompatibilityMatrix = ZOLListVal<ZOLCompatibilityMatrix>;
