#pragma once

#include "store/RowDescription.h"

namespace trellis {

// Rows of configurable parts, dictionaries and effectivities. What belongs to a config item carries its id even
// where it hangs on a category or an effectivity, so that a dictionary is read by one query per table.

struct ConfigurablePartRow : RowHead {
    std::string partUuid;
    std::int64_t typeMask = 0; // allowed effectivity types; 0: never set
    std::string defaultHandler;

    friend bool operator==(const ConfigurablePartRow&, const ConfigurablePartRow&) = default;
};

template <>
struct RowDescription<ConfigurablePartRow> {
    static constexpr RowKind kind = RowKind::ConfigurablePart;
    static constexpr const char* table = "configurable_part";
    static constexpr ChangeHome home = ChangeHome::Service;
    static constexpr Column<ConfigurablePartRow> columns[] = {
        {"part_uuid", &ConfigurablePartRow::partUuid},
        {"type_mask", &ConfigurablePartRow::typeMask},
        {"default_handler", &ConfigurablePartRow::defaultHandler}};
    static constexpr UniqueKey keys[] = {{{"part_uuid"}}, {}};
    static std::string Display(const ConfigurablePartRow& row) { return row.partUuid; }
};

// A dictionary, or the own config item of a part.
struct ConfigItemRow : RowHead {
    static constexpr const char* Dictionary = "D";
    static constexpr const char* OwnItem = "C";
    // The corporate dictionary: made with the database; its design is an identifier that no part has.
    static constexpr std::int64_t CorporateId = 1;
    static constexpr const char* CorporateDesign = "00000000000000000000000000000000000000000000000001";

    std::string designUuid; // the part
    std::string status;     // first letter Dictionary or OwnItem
    std::int64_t actionControlled = 0;

    friend bool operator==(const ConfigItemRow&, const ConfigItemRow&) = default;
};

template <>
struct RowDescription<ConfigItemRow> {
    static constexpr RowKind kind = RowKind::ConfigItem;
    static constexpr const char* table = "config_item";
    static constexpr ChangeHome home = ChangeHome::Service;
    static constexpr Column<ConfigItemRow> columns[] = {
        {"design_uuid", &ConfigItemRow::designUuid},
        {"status", &ConfigItemRow::status},
        {"action_controlled", &ConfigItemRow::actionControlled}};
    static constexpr UniqueKey keys[] = {{{"design_uuid", "status"}}, {}};
    static std::string Display(const ConfigItemRow& row) { return row.designUuid; }
};

struct CategoryRow : RowHead {
    std::int64_t configItem = 0;
    std::string name;
    std::string description; // line feeds are kept
    std::int64_t exclusivity = 0;
    std::int64_t mandatory = 0;
    std::int64_t defaultMode = 0;
    std::string owner;
    std::string organization;

    friend bool operator==(const CategoryRow&, const CategoryRow&) = default;
};

template <>
struct RowDescription<CategoryRow> {
    static constexpr RowKind kind = RowKind::Category;
    static constexpr const char* table = "category";
    static constexpr ChangeHome home = ChangeHome::Service;
    static constexpr Column<CategoryRow> columns[] = {Reference("config_item_id", &CategoryRow::configItem),
                                                      {"name", &CategoryRow::name},
                                                      {"description", &CategoryRow::description},
                                                      {"exclusivity", &CategoryRow::exclusivity},
                                                      {"mandatory", &CategoryRow::mandatory},
                                                      {"default_mode", &CategoryRow::defaultMode},
                                                      {"owner", &CategoryRow::owner},
                                                      {"organization", &CategoryRow::organization}};
    static constexpr UniqueKey keys[] = {{{"config_item_id", "name"}}, {}};
    static std::string Display(const CategoryRow& row) { return row.name; }
};

// An option of a dictionary, or an effectivity on links: one kind of object. Its options stand in
// EffectivityOptionRow when it is a pack.
struct EffectivityRow : RowHead {
    static constexpr std::int64_t Open = 0; // of `last`

    std::int64_t configItem = 0;
    std::string type; // "option", "range", ... as in the service
    std::string optionName;
    std::int64_t category = 0; // membership in a dictionary; 0 on a link
    std::string categoryName;  // the name as its own fact; empty on a link
    std::string description;
    std::int64_t used = 0;
    std::int64_t first = 0;
    std::int64_t last = Open;
    std::string startDate; // YYYY-MM-DD; empty: none, that is open
    std::string endDate;
    std::string startProgram; // the milestone of each bound as told: program, id, offset
    std::string startMilestone;
    std::int64_t startOffset = 0;
    std::string endProgram;
    std::string endMilestone;
    std::int64_t endOffset = 0;

    friend bool operator==(const EffectivityRow&, const EffectivityRow&) = default;
};

template <>
struct RowDescription<EffectivityRow> {
    static constexpr RowKind kind = RowKind::Effectivity;
    static constexpr const char* table = "effectivity";
    static constexpr ChangeHome home = ChangeHome::Service;
    static constexpr Column<EffectivityRow> columns[] = {
        Reference("config_item_id", &EffectivityRow::configItem),
        {"type", &EffectivityRow::type},
        {"option_name", &EffectivityRow::optionName},
        Reference("category_id", &EffectivityRow::category),
        {"category_name", &EffectivityRow::categoryName},
        {"description", &EffectivityRow::description},
        {"used", &EffectivityRow::used},
        {"first_number", &EffectivityRow::first},
        {"last_number", &EffectivityRow::last},
        {"start_date", &EffectivityRow::startDate},
        {"end_date", &EffectivityRow::endDate},
        {"start_program", &EffectivityRow::startProgram},
        {"start_milestone", &EffectivityRow::startMilestone},
        {"start_offset", &EffectivityRow::startOffset},
        {"end_program", &EffectivityRow::endProgram},
        {"end_milestone", &EffectivityRow::endMilestone},
        {"end_offset", &EffectivityRow::endOffset}};
    // Option names are unique in a dictionary; on links the same option may stand in many effectivities.
    static constexpr UniqueKey keys[] = {{{"config_item_id", "option_name"}, "category_id"}, {}};
    static std::string Display(const EffectivityRow& row) {
        return row.optionName.empty() ? row.type : row.optionName;
    }
};

// One option of a pack, in order.
struct EffectivityOptionRow : RowHead {
    std::int64_t configItem = 0;
    std::int64_t effectivity = 0;
    std::int64_t position = 0;
    std::string optionName;

    friend bool operator==(const EffectivityOptionRow&, const EffectivityOptionRow&) = default;
};

template <>
struct RowDescription<EffectivityOptionRow> {
    static constexpr RowKind kind = RowKind::EffectivityOption;
    static constexpr const char* table = "effectivity_option";
    static constexpr ChangeHome home = ChangeHome::Service;
    static constexpr Column<EffectivityOptionRow> columns[] = {
        Reference("config_item_id", &EffectivityOptionRow::configItem),
        Reference("effectivity_id", &EffectivityOptionRow::effectivity),
        {"position", &EffectivityOptionRow::position},
        {"option_name", &EffectivityOptionRow::optionName}};
    static constexpr UniqueKey keys[] = {{}};
    static std::string Display(const EffectivityOptionRow& row) { return row.optionName; }
};

// An attribute that a site hangs on an effectivity.
struct EffectivityAttributeRow : RowHead {
    std::int64_t configItem = 0;
    std::int64_t effectivity = 0;
    std::int64_t position = 0;
    std::string name;
    std::string value;

    friend bool operator==(const EffectivityAttributeRow&, const EffectivityAttributeRow&) = default;
};

template <>
struct RowDescription<EffectivityAttributeRow> {
    static constexpr RowKind kind = RowKind::EffectivityAttribute;
    static constexpr const char* table = "effectivity_attribute";
    static constexpr ChangeHome home = ChangeHome::Service;
    static constexpr Column<EffectivityAttributeRow> columns[] = {
        Reference("config_item_id", &EffectivityAttributeRow::configItem),
        Reference("effectivity_id", &EffectivityAttributeRow::effectivity),
        {"position", &EffectivityAttributeRow::position},
        {"name", &EffectivityAttributeRow::name},
        {"value", &EffectivityAttributeRow::value}};
    static constexpr UniqueKey keys[] = {{}};
    static std::string Display(const EffectivityAttributeRow& row) { return row.name; }
};

// One entry of the list of default options of a category; the list has an order and may hold an option twice.
struct CategoryDefaultRow : RowHead {
    std::int64_t configItem = 0;
    std::int64_t category = 0;
    std::int64_t position = 0;
    std::int64_t option = 0;

    friend bool operator==(const CategoryDefaultRow&, const CategoryDefaultRow&) = default;
};

template <>
struct RowDescription<CategoryDefaultRow> {
    static constexpr RowKind kind = RowKind::CategoryDefault;
    static constexpr const char* table = "category_default";
    static constexpr ChangeHome home = ChangeHome::Service;
    static constexpr Column<CategoryDefaultRow> columns[] = {
        Reference("config_item_id", &CategoryDefaultRow::configItem),
        Reference("category_id", &CategoryDefaultRow::category),
        {"position", &CategoryDefaultRow::position},
        Reference("option_id", &CategoryDefaultRow::option)};
    static constexpr UniqueKey keys[] = {{}};
    static std::string Display(const CategoryDefaultRow&) { return "default option"; }
};

// An effectivity lies on a link.
struct LinkEffectivityRow : RowHead {
    std::int64_t link = 0;
    std::int64_t effectivity = 0;

    friend bool operator==(const LinkEffectivityRow&, const LinkEffectivityRow&) = default;
};

template <>
struct RowDescription<LinkEffectivityRow> {
    static constexpr RowKind kind = RowKind::LinkEffectivity;
    static constexpr const char* table = "link_effectivity";
    static constexpr ChangeHome home = ChangeHome::Service;
    static constexpr Column<LinkEffectivityRow> columns[] = {
        Reference("link_id", &LinkEffectivityRow::link),
        Reference("effectivity_id", &LinkEffectivityRow::effectivity)};
    static constexpr UniqueKey keys[] = {{{"link_id", "effectivity_id"}}, {}};
    static std::string Display(const LinkEffectivityRow&) { return "effectivity of a link"; }
};

} // namespace trellis
