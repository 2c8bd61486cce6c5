#pragma once

#include "store/RowDescription.h"

#include <algorithm>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace trellis {

// One condition of a query. Texts compare octet by octet, in the store as in memory.
struct StoreCondition {
    enum class Operator { Equals, Contains, In };

    std::string column;
    Operator operation = Operator::Equals;
    bool isText = false;
    std::vector<std::int64_t> integers; // one value, or the set of In
    std::vector<std::string> texts;
    bool isReference = false; // 0 stands for NULL

    bool Holds(std::int64_t value) const;
    bool Holds(const std::string& value) const;
};

// StoreQuery: which rows of a table are wanted; all conditions must hold. It is asked of the store as SQL and of
// rows in memory as a function, and both give the same answer.
template <class Row>
class StoreQuery {
public:
    using Integer = std::int64_t Row::*;
    using Text = std::string Row::*;

    StoreQuery& Where(Integer member, std::int64_t value) { return WhereIn(member, {value}); }
    StoreQuery& Where(Text member, std::string value) {
        return Add(member, StoreCondition::Operator::Equals, {std::move(value)});
    }
    // The text contains `part`; an empty part is in every text.
    StoreQuery& WhereContains(Text member, std::string part) {
        return Add(member, StoreCondition::Operator::Contains, {std::move(part)});
    }
    // The value is one of the set; an empty set gives nothing. At most one set of more than one value in a query:
    // it may be of any size and is asked for in portions.
    StoreQuery& WhereIn(Integer member, std::vector<std::int64_t> values);
    StoreQuery& WhereIn(Text member, std::vector<std::string> values) {
        return Add(member, StoreCondition::Operator::In, std::move(values));
    }

    bool Matches(const Row& row) const;
    const std::vector<StoreCondition>& Conditions() const { return _conditions; }

private:
    StoreQuery& Add(Text member, StoreCondition::Operator operation, std::vector<std::string> values);

    std::vector<StoreCondition> _conditions;
    std::vector<std::pair<Integer, Text>> _members; // parallel to the conditions; one of each pair is set
};

template <class Row>
StoreQuery<Row>& StoreQuery<Row>::WhereIn(Integer member, std::vector<std::int64_t> values) {
    StoreCondition condition;
    condition.operation =
        values.size() == 1 ? StoreCondition::Operator::Equals : StoreCondition::Operator::In;
    condition.column = "id"; // the one column outside the description that may be asked for
    for (const Column<Row>& column : RowDescription<Row>::columns)
        if (column.integer == member) {
            condition.column = column.name;
            condition.isReference = column.reference;
        }
    condition.integers = std::move(values);
    std::sort(condition.integers.begin(), condition.integers.end());
    _conditions.push_back(std::move(condition));
    _members.emplace_back(member, nullptr);
    return *this;
}

template <class Row>
StoreQuery<Row>& StoreQuery<Row>::Add(Text member, StoreCondition::Operator operation,
                                      std::vector<std::string> values) {
    StoreCondition condition;
    condition.operation = operation;
    condition.isText = true;
    condition.column = "last_modifier";
    for (const Column<Row>& column : RowDescription<Row>::columns)
        if (column.text == member)
            condition.column = column.name;
    condition.texts = std::move(values);
    std::sort(condition.texts.begin(), condition.texts.end());
    _conditions.push_back(std::move(condition));
    _members.emplace_back(nullptr, member);
    return *this;
}

template <class Row>
bool StoreQuery<Row>::Matches(const Row& row) const {
    for (std::size_t i = 0; i < _conditions.size(); ++i) {
        const auto& [integer, text] = _members[i];
        if (integer ? !_conditions[i].Holds(row.*integer) : !_conditions[i].Holds(row.*text))
            return false;
    }
    return true;
}

} // namespace trellis
