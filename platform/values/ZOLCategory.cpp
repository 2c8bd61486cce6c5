#include "values/ZOLCategory.h"

ZOLCategory::ZOLCategory(const ZOLUnicodeString& name, const ZOLUnicodeString& description,
                         const int exclusivity, const int mandatory)
    : _name(name), _description(description), _exclusivity(exclusivity), _mandatory(mandatory) {}

void ZOLCategory::SetResponsible(const ZOLUnicodeString& owner, const ZOLUnicodeString& organization) {
    _owner = owner;
    _organization = organization;
}
