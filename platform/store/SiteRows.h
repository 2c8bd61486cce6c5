#pragma once

#include "store/RowDescription.h"

namespace trellis {

// Rows of people, rights, values of the administrator and waiting events.

struct PersonRow : RowHead {
    std::string name; // login name, the identity
    std::string firstName;
    std::string lastName;
    std::int64_t role = 0;
    std::int64_t privilege = 0;

    friend bool operator==(const PersonRow&, const PersonRow&) = default;
};

template <>
struct RowDescription<PersonRow> {
    static constexpr RowKind kind = RowKind::Person;
    static constexpr const char* table = "person";
    static constexpr ChangeHome home = ChangeHome::Service;
    static constexpr Column<PersonRow> columns[] = {{"name", &PersonRow::name},
                                                    {"first_name", &PersonRow::firstName},
                                                    {"last_name", &PersonRow::lastName},
                                                    Reference("role_id", &PersonRow::role),
                                                    {"privilege", &PersonRow::privilege}};
    static constexpr UniqueKey keys[] = {{{"name"}}, {}};
    static std::string Display(const PersonRow& row) { return row.name; }
};

struct RoleRow : RowHead {
    std::string name;
    std::int64_t organization = 0;

    friend bool operator==(const RoleRow&, const RoleRow&) = default;
};

template <>
struct RowDescription<RoleRow> {
    static constexpr RowKind kind = RowKind::Role;
    static constexpr const char* table = "role";
    static constexpr ChangeHome home = ChangeHome::Service;
    static constexpr Column<RoleRow> columns[] = {{"name", &RoleRow::name},
                                                  Reference("organization_id", &RoleRow::organization)};
    static constexpr UniqueKey keys[] = {{{"name", "organization_id"}}, {}};
    static std::string Display(const RoleRow& row) { return row.name; }
};

struct OrganizationRow : RowHead {
    std::string name;
    std::int64_t site = 0;

    friend bool operator==(const OrganizationRow&, const OrganizationRow&) = default;
};

template <>
struct RowDescription<OrganizationRow> {
    static constexpr RowKind kind = RowKind::Organization;
    static constexpr const char* table = "organization";
    static constexpr ChangeHome home = ChangeHome::Service;
    static constexpr Column<OrganizationRow> columns[] = {{"name", &OrganizationRow::name},
                                                          Reference("site_id", &OrganizationRow::site)};
    static constexpr UniqueKey keys[] = {{{"name"}}, {}};
    static std::string Display(const OrganizationRow& row) { return row.name; }
};

struct SiteRow : RowHead {
    std::string name;

    friend bool operator==(const SiteRow&, const SiteRow&) = default;
};

template <>
struct RowDescription<SiteRow> {
    static constexpr RowKind kind = RowKind::Site;
    static constexpr const char* table = "site";
    static constexpr ChangeHome home = ChangeHome::Service;
    static constexpr Column<SiteRow> columns[] = {{"name", &SiteRow::name}};
    static constexpr UniqueKey keys[] = {{{"name"}}, {}};
    static std::string Display(const SiteRow& row) { return row.name; }
};

// Who stands directly above whom; a person or an organization on either side, exactly one id of each pair set.
struct PeopleAboveRow : RowHead {
    std::int64_t person = 0;
    std::int64_t organization = 0;
    std::int64_t abovePerson = 0;
    std::int64_t aboveOrganization = 0;

    friend bool operator==(const PeopleAboveRow&, const PeopleAboveRow&) = default;
};

template <>
struct RowDescription<PeopleAboveRow> {
    static constexpr RowKind kind = RowKind::PeopleAbove;
    static constexpr const char* table = "people_above";
    static constexpr ChangeHome home = ChangeHome::Service;
    static constexpr Column<PeopleAboveRow> columns[] = {
        Reference("person_id", &PeopleAboveRow::person),
        Reference("organization_id", &PeopleAboveRow::organization),
        Reference("above_person_id", &PeopleAboveRow::abovePerson),
        Reference("above_organization_id", &PeopleAboveRow::aboveOrganization)};
    static constexpr UniqueKey keys[] = {{}};
    static std::string Display(const PeopleAboveRow&) { return "person above"; }
};

// Whether a role may use a function at a site. An empty function, role 0 or an empty site stand for all of them.
struct RightRow : RowHead {
    std::string function;
    std::int64_t role = 0;
    std::string site;
    std::int64_t allowed = 0;

    friend bool operator==(const RightRow&, const RightRow&) = default;
};

template <>
struct RowDescription<RightRow> {
    static constexpr RowKind kind = RowKind::Right;
    static constexpr const char* table = "function_right";
    static constexpr ChangeHome home = ChangeHome::Service;
    static constexpr Column<RightRow> columns[] = {{"function", &RightRow::function},
                                                   Reference("role_id", &RightRow::role),
                                                   {"site", &RightRow::site},
                                                   {"allowed", &RightRow::allowed}};
    static constexpr UniqueKey keys[] = {{{"function", "role_id", "site"}}, {}};
    static std::string Display(const RightRow& row) { return row.function; }
};

struct AdministratorValueRow : RowHead {
    std::string group; // "QRDAdmin"
    std::string name;
    std::string value;

    friend bool operator==(const AdministratorValueRow&, const AdministratorValueRow&) = default;
};

template <>
struct RowDescription<AdministratorValueRow> {
    static constexpr RowKind kind = RowKind::AdministratorValue;
    static constexpr const char* table = "administrator_value";
    static constexpr ChangeHome home = ChangeHome::Service;
    static constexpr Column<AdministratorValueRow> columns[] = {
        {"value_group", &AdministratorValueRow::group},
        {"name", &AdministratorValueRow::name},
        {"value", &AdministratorValueRow::value}};
    static constexpr UniqueKey keys[] = {{{"value_group", "name"}}, {}};
    static std::string Display(const AdministratorValueRow& row) { return row.name; }
};

// An event that was published with a save.
struct EventRow : RowHead {
    std::int64_t published = 0; // time of PublishEvent
    std::string publisher;
    std::string instanceUuid;
    std::int64_t number = 0;

    friend bool operator==(const EventRow&, const EventRow&) = default;
};

template <>
struct RowDescription<EventRow> {
    static constexpr RowKind kind = RowKind::Event;
    static constexpr const char* table = "event";
    static constexpr ChangeHome home = ChangeHome::Service;
    static constexpr Column<EventRow> columns[] = {{"published", &EventRow::published},
                                                   {"publisher", &EventRow::publisher},
                                                   {"instance_uuid", &EventRow::instanceUuid},
                                                   {"number", &EventRow::number}};
    static constexpr UniqueKey keys[] = {{}};
    static std::string Display(const EventRow& row) { return "event " + std::to_string(row.number); }
};

} // namespace trellis
