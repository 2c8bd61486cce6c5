#include "service/ZOLCompatibilityMatrix.h"

ZOLCompatibilityMatrix::ZOLCompatibilityMatrix(const ZOLIQrdCompatibilityMatrix_var& matrix) {
    if (!matrix)
        return;
    _name = matrix->GetName();
    _description = matrix->GetDescription();
    ZOLListValZOLIQrdCategory_var categories;
    matrix->GetCategories(categories);
    for (const ZOLIQrdCategory_var& category : categories)
        _categories.Append(ZOLCategory(category->GetName(), category->GetDescription(),
                                       category->GetExclusivity(), category->GetMandatory()));
    ZOLListValZOLIQrdConfigRule_var rows;
    matrix->GetRules(rows);
    for (const ZOLIQrdConfigRule_var& row : rows)
        _rows.Append(row->GetRuleString());
}
