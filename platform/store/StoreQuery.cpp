#include "store/StoreQuery.h"

namespace trellis {

bool StoreCondition::Holds(std::int64_t value) const {
    return std::binary_search(integers.begin(), integers.end(), value);
}

bool StoreCondition::Holds(const std::string& value) const {
    if (operation == Operator::Contains)
        return value.find(texts.front()) != std::string::npos;
    return std::binary_search(texts.begin(), texts.end(), value);
}

} // namespace trellis
