#include "service/ZOLExpression.h"

#include "rules/language/RuleWriter.h"

ZOLExpression::ZOLExpression(int) {}

void ZOLExpression::AddParameter(const ZOLParameter& parameter, int withSign) {
    _parameters.push_back(parameter);
    if (!withSign && parameter.IsNot())
        _parameters.back() = ZOLParameter(parameter.GetCategory(), parameter.GetCategoryDescription(),
                                          parameter.GetOption(), parameter.GetOptionDescription(), 0);
}

void ZOLExpression::AddParameter(const ZOLParameter* parameter, int withSign) {
    if (parameter)
        AddParameter(*parameter, withSign);
}

ZOLUnicodeString ZOLExpression::GetExpressionString() const {
    std::vector<trellis::SignedReference> references;
    for (const ZOLParameter& parameter : _parameters)
        references.push_back(
            {{parameter.GetCategory().Bytes(), parameter.GetOption().Bytes()}, parameter.IsNot() == 0});
    return trellis::RuleWriter(trellis::RuleWords::Catalogue()).Package(references);
}

ZOLListPtrZOLParameter ZOLExpression::GetParameters() const {
    ZOLListPtrZOLParameter parameters;
    for (const ZOLParameter& parameter : _parameters)
        parameters.Append(new ZOLParameter(parameter));
    return parameters;
}
