#pragma once

#include "store/RowDescription.h"

namespace trellis {

// Rows of rules and compatibility matrices. All carry the id of their dictionary, so that it is read by one query per
// table.

struct CompatibilityMatrixRow : RowHead {
    std::int64_t configItem = 0;
    std::string name;
    std::string description;
    std::string owner;
    std::string organization;

    friend bool operator==(const CompatibilityMatrixRow&, const CompatibilityMatrixRow&) = default;
};

template <>
struct RowDescription<CompatibilityMatrixRow> {
    static constexpr RowKind kind = RowKind::CompatibilityMatrix;
    static constexpr const char* table = "compatibility_matrix";
    static constexpr ChangeHome home = ChangeHome::Service;
    static constexpr Column<CompatibilityMatrixRow> columns[] = {
        Reference("config_item_id", &CompatibilityMatrixRow::configItem),
        {"name", &CompatibilityMatrixRow::name},
        {"description", &CompatibilityMatrixRow::description},
        {"owner", &CompatibilityMatrixRow::owner},
        {"organization", &CompatibilityMatrixRow::organization}};
    static constexpr UniqueKey keys[] = {{{"config_item_id", "name"}}, {}};
    static std::string Display(const CompatibilityMatrixRow& row) { return row.name; }
};

// A column of a matrix.
struct MatrixColumnRow : RowHead {
    std::int64_t configItem = 0;
    std::int64_t matrix = 0;
    std::int64_t position = 0;
    std::int64_t category = 0;

    friend bool operator==(const MatrixColumnRow&, const MatrixColumnRow&) = default;
};

template <>
struct RowDescription<MatrixColumnRow> {
    static constexpr RowKind kind = RowKind::MatrixColumn;
    static constexpr const char* table = "matrix_column";
    static constexpr ChangeHome home = ChangeHome::Service;
    static constexpr Column<MatrixColumnRow> columns[] = {
        Reference("config_item_id", &MatrixColumnRow::configItem),
        Reference("matrix_id", &MatrixColumnRow::matrix),
        {"position", &MatrixColumnRow::position},
        Reference("category_id", &MatrixColumnRow::category)};
    static constexpr UniqueKey keys[] = {{}};
    static std::string Display(const MatrixColumnRow&) { return "column of a matrix"; }
};

// A rule of any kind. Its text is in neutral words, whether it can be read or not.
struct ConfigRuleRow : RowHead {
    static constexpr std::int64_t Directive = 0;
    static constexpr std::int64_t Package = 1;
    static constexpr std::int64_t MatrixRow = 2;

    std::int64_t configItem = 0;
    std::int64_t type = Directive;
    std::string name; // empty where several may have none, as rows do
    std::string text;
    std::string description;
    std::string owner;
    std::string organization;
    std::int64_t matrix = 0;   // of a row that stands in one
    std::int64_t position = 0; // there

    friend bool operator==(const ConfigRuleRow&, const ConfigRuleRow&) = default;
};

template <>
struct RowDescription<ConfigRuleRow> {
    static constexpr RowKind kind = RowKind::ConfigRule;
    static constexpr const char* table = "config_rule";
    static constexpr ChangeHome home = ChangeHome::Service;
    static constexpr Column<ConfigRuleRow> columns[] = {
        Reference("config_item_id", &ConfigRuleRow::configItem),
        {"type", &ConfigRuleRow::type},
        {"name", &ConfigRuleRow::name},
        {"rule_text", &ConfigRuleRow::text},
        {"description", &ConfigRuleRow::description},
        {"owner", &ConfigRuleRow::owner},
        {"organization", &ConfigRuleRow::organization},
        Reference("matrix_id", &ConfigRuleRow::matrix),
        {"position", &ConfigRuleRow::position}};
    static constexpr UniqueKey keys[] = {{{"config_item_id", "type", "name"}, "name"}, {}};
    static std::string Display(const ConfigRuleRow& row) { return row.name.empty() ? row.text : row.name; }
};

// An option that a rule names, for finding rules by what they name. Rewritten with the text.
struct RuleReferenceRow : RowHead {
    std::int64_t configItem = 0;
    std::int64_t rule = 0;
    std::string categoryName; // empty where the rule names none
    std::string optionName;   // empty in an empty cell

    friend bool operator==(const RuleReferenceRow&, const RuleReferenceRow&) = default;
};

template <>
struct RowDescription<RuleReferenceRow> {
    static constexpr RowKind kind = RowKind::RuleReference;
    static constexpr const char* table = "rule_reference";
    static constexpr ChangeHome home = ChangeHome::Service;
    static constexpr Column<RuleReferenceRow> columns[] = {
        Reference("config_item_id", &RuleReferenceRow::configItem),
        Reference("rule_id", &RuleReferenceRow::rule),
        {"category_name", &RuleReferenceRow::categoryName},
        {"option_name", &RuleReferenceRow::optionName}};
    static constexpr UniqueKey keys[] = {{}};
    static std::string Display(const RuleReferenceRow& row) { return row.optionName; }
};

} // namespace trellis
