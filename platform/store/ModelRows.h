#pragma once

#include "store/RowDescription.h"

namespace trellis {

// Rows of parts, their attributes and the links between them. A uuid is an identifier of 50 hexadecimal digits:
// the same 50 octets that callers see, and a text that any database can index.

struct PartRow : RowHead {
    std::string uuid;
    std::string kind; // "PART_LIST"
    std::string number;
    std::string revision;
    std::string name;
    std::string siteResponsible; // site that answers for the part; may be empty

    friend bool operator==(const PartRow&, const PartRow&) = default;
};

template <>
struct RowDescription<PartRow> {
    static constexpr RowKind kind = RowKind::Part;
    static constexpr const char* table = "part";
    static constexpr ChangeHome home = ChangeHome::Model;
    static constexpr Column<PartRow> columns[] = {
        {"uuid", &PartRow::uuid},     {"kind", &PartRow::kind},
        {"number", &PartRow::number}, {"revision", &PartRow::revision},
        {"name", &PartRow::name},     {"site_responsible", &PartRow::siteResponsible}};
    static constexpr UniqueKey keys[] = {{}};
    static std::string Display(const PartRow& row) { return row.number.empty() ? row.name : row.number; }
};

struct PartAttributeRow : RowHead {
    std::int64_t part = 0;
    std::string name;
    std::string value;

    friend bool operator==(const PartAttributeRow&, const PartAttributeRow&) = default;
};

template <>
struct RowDescription<PartAttributeRow> {
    static constexpr RowKind kind = RowKind::PartAttribute;
    static constexpr const char* table = "part_attribute";
    static constexpr ChangeHome home = ChangeHome::Model;
    static constexpr Column<PartAttributeRow> columns[] = {Reference("part_id", &PartAttributeRow::part),
                                                           {"name", &PartAttributeRow::name},
                                                           {"value", &PartAttributeRow::value}};
    static constexpr UniqueKey keys[] = {{{"part_id", "name"}}, {}};
    static std::string Display(const PartAttributeRow& row) { return row.name; }
};

struct LinkRow : RowHead {
    std::string uuid;
    std::string clientIdentifier; // the name by which the source of the structure knows the link
    std::int64_t parent = 0;
    std::int64_t child = 0;
    std::string name;
    std::int64_t position = 0;   // order below the parent
    std::string originUuid;      // the older link that this one replaced; kept when that link is gone
    std::string originChildUuid; // and the part that link held

    friend bool operator==(const LinkRow&, const LinkRow&) = default;
};

template <>
struct RowDescription<LinkRow> {
    static constexpr RowKind kind = RowKind::Link;
    static constexpr const char* table = "link";
    static constexpr ChangeHome home = ChangeHome::Model;
    static constexpr Column<LinkRow> columns[] = {{"uuid", &LinkRow::uuid},
                                                  {"client_identifier", &LinkRow::clientIdentifier},
                                                  Reference("parent_id", &LinkRow::parent),
                                                  Reference("child_id", &LinkRow::child),
                                                  {"name", &LinkRow::name},
                                                  {"position", &LinkRow::position},
                                                  {"origin_uuid", &LinkRow::originUuid},
                                                  {"origin_child_uuid", &LinkRow::originChildUuid}};
    static constexpr UniqueKey keys[] = {{}};
    static std::string Display(const LinkRow& row) {
        return row.name.empty() ? row.clientIdentifier : row.name;
    }
};

} // namespace trellis
