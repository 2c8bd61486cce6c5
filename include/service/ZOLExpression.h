#pragma once

#include "values/ZOLParameter.h"

#include <vector>

// ZOLExpression: parameters that stand together: a row of a matrix on its way to its text, or what the rules decided.
class TRELLIS_API ZOLExpression {
public:
    // The connective: 0 all of them. No other is in use.
    explicit ZOLExpression(int connective = 0);

    // Appends a copy. With `withSign` 0 a rejected parameter is taken as a chosen one.
    void AddParameter(const ZOLParameter& parameter, int withSign = 1);
    void AddParameter(const ZOLParameter* parameter, int withSign = 1);
    // The references joined by the word "and" of the user's language, rejected ones under "not".
    ZOLUnicodeString GetExpressionString() const;
    // Copies, in order; the caller deletes them.
    ZOLListPtrZOLParameter GetParameters() const;

private:
    std::vector<ZOLParameter> _parameters;
};

using ZOLListPtrZOLExpression = ZOLListPtr<ZOLExpression>;
