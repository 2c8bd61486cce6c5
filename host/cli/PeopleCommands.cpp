#include "cli/Commands.h"

#include "session/MessageOutput.h"
#include "site/AdministratorKeys.h"
#include "site/SiteAdministration.h"
#include "site/ZOLIQrdServices.h"

#include <fmt/format.h>

#include <memory>

namespace trellis {

namespace {

// Opens the database, makes one change and saves it.
Job Change(std::function<bool(ZOLGYRError&)> change) {
    return [change = std::move(change)](HostSession& session) {
        if (!session.OpenDatabase())
            return ExitCode::EnvironmentFailed;
        ZOLGYRError error;
        const bool done = change(error) && SiteAdministration::Save(error);
        MessageOutput::Print(error);
        return done ? ExitCode::Fine : ExitCode::FoundProblem;
    };
}

const char* OrAll(const ZOLUnicodeString& name) {
    return name.IsEmpty() ? "all" : name.ConvertToChar();
}

ExitCode ListPeople(HostSession& session) {
    if (!session.OpenDatabase())
        return ExitCode::EnvironmentFailed;
    for (const PersonEntry& person : SiteAdministration::Persons())
        fmt::print("person {}: role {}, organization {}, privilege {}\n", person.name.Bytes(),
                   person.role.IsEmpty() ? "none" : person.role.Bytes(),
                   person.organization.IsEmpty() ? "none" : person.organization.Bytes(), person.privilege);
    for (const RightEntry& right : SiteAdministration::Rights())
        fmt::print("right {}: {} for role {} of {}, site {}\n", OrAll(right.function),
                   right.allowed ? "allowed" : "refused", OrAll(right.role), OrAll(right.organization),
                   OrAll(right.site));
    for (const AdministratorValueEntry& value : SiteAdministration::AdministratorValues())
        fmt::print("value {} = {}\n", value.name.Bytes(), value.value.Bytes());
    return ExitCode::Fine;
}

void DeclarePerson(CLI::App& database, Job& job) {
    struct Arguments {
        std::string name, first, last, role, organization;
        int privilege = 0;
    };
    const auto arguments = std::make_shared<Arguments>();
    CLI::App& person = *database.add_subcommand("person", "add a person, or change one");
    person.add_option("NAME", arguments->name, "login name")->required();
    person.add_option("--first", arguments->first, "first name");
    person.add_option("--last", arguments->last, "last name");
    person.add_option("--role", arguments->role, "role that the person stands for");
    person.add_option("--organization", arguments->organization, "organization of the role");
    person.add_option("--privilege", arguments->privilege, "2 overrides Set, 10 all overridable refusals");
    person.callback([&job, arguments] {
        job = Change([arguments](ZOLGYRError& error) {
            return SiteAdministration::SetPerson({arguments->name, arguments->first, arguments->last,
                                                  arguments->role, arguments->organization,
                                                  arguments->privilege},
                                                 error);
        });
    });
}

void DeclareRight(CLI::App& database, Job& job) {
    struct Arguments {
        std::string verdict;
        std::string function, role, organization, site;
    };
    const auto arguments = std::make_shared<Arguments>();
    CLI::App& right =
        *database.add_subcommand("right", "allow or refuse a function, or forget what was said of it");
    right.add_option("VERDICT", arguments->verdict, "allow, refuse or forget")
        ->required()
        ->check(CLI::IsMember({"allow", "refuse", "forget"}));
    right.add_option("FUNCTION", arguments->function, "such as Set or Unset; none: all");
    right.add_option("--role", arguments->role, "for one role; none: for all");
    right.add_option("--organization", arguments->organization, "organization of the role");
    right.add_option("--site", arguments->site, "at one site; none: at all");
    right.callback([&job, arguments] {
        job = Change([arguments](ZOLGYRError& error) {
            const RightEntry entry{arguments->function, arguments->role, arguments->organization,
                                   arguments->site, arguments->verdict == "allow"};
            return arguments->verdict == "forget" ? SiteAdministration::RemoveRight(entry, error)
                                                  : SiteAdministration::SetRight(entry, error);
        });
    });
}

// A command that adds something by its name and, perhaps, by what it belongs to.
void DeclareNamed(CLI::App& database, Job& job, const char* command, const char* text, const char* belongsTo,
                  bool (*add)(const ZOLUnicodeString&, const ZOLUnicodeString&, ZOLGYRError&)) {
    const auto names = std::make_shared<std::pair<std::string, std::string>>();
    CLI::App& named = *database.add_subcommand(command, text);
    named.add_option("NAME", names->first)->required();
    if (belongsTo)
        named.add_option(belongsTo, names->second);
    named.callback([&job, names, add] {
        job = Change([names, add](ZOLGYRError& error) { return add(names->first, names->second, error); });
    });
}

void DeclareValue(CLI::App& database, Job& job) {
    const auto value = std::make_shared<std::pair<std::string, std::string>>();
    CLI::App& set = *database.add_subcommand("value", "set an administrator value; an empty one removes it");
    std::vector<std::string> names;
    for (const AdministratorKey& key : AdministratorKeys())
        names.push_back(key.name);
    set.add_option("NAME", value->first, "one of those that trellis config shows")
        ->required()
        ->check(CLI::IsMember(names));
    set.add_option("VALUE", value->second)->required();
    set.callback([&job, value] {
        job = Change([value](ZOLGYRError& error) {
            return SiteAdministration::SetAdministratorValue(value->first, ZOLIQrdServices::Group,
                                                             value->second, error);
        });
    });
}

} // namespace

void DeclarePeopleCommands(CLI::App& database, Job& job) {
    database.add_subcommand("people", "list persons, rights and administrator values")->callback([&job] {
        job = ListPeople;
    });
    DeclareNamed(database, job, "site", "add a site", nullptr,
                 [](const ZOLUnicodeString& name, const ZOLUnicodeString&, ZOLGYRError& error) {
                     return SiteAdministration::AddSite(name, error);
                 });
    DeclareNamed(database, job, "organization", "add an organization", "--site",
                 SiteAdministration::AddOrganization);
    DeclareNamed(database, job, "role", "add a role", "--organization", SiteAdministration::AddRole);
    DeclarePerson(database, job);
    DeclareRight(database, job);
    DeclareValue(database, job);
}

} // namespace trellis
