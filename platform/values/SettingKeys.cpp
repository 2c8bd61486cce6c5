#include "values/Settings.h"

namespace trellis {

namespace {

constexpr auto Logical = SettingKind::Logical;
constexpr auto Text = SettingKind::Text;
constexpr auto Numeric = SettingKind::Number;
constexpr auto Anybody = SettingAuthority::Anybody;
constexpr auto Site = SettingAuthority::Site;

} // namespace

const std::vector<SettingKey>& Settings::Keys() {
    static const std::vector<SettingKey> keys = {
        {"ZOLWVTA.QRD.OPT_GRAPH.HIDE_RULES_MNGT", Logical, "1", Anybody,
         "look whether rules exist and hide the rules options of the graph panel without them"},
        {"ZOLWVTA.QRD.OPT_GRAPH.HIDE_REJECTED_MNGT", Logical, "1", Anybody,
         "hide the options for hiding rejected options"},
        {"ZOLWVTA.QRD.OPT_GRAPH.RAPID_SELECT_MNGT", Text, "SMART", Anybody,
         "rapid select field: SMART with its parser, empty for none, anything else exact"},
        {"ZOLWVTA.QRD.OPT_DICO.MULTIPLE_DEFAULT_OPT", Logical, "1", Anybody,
         "several default options may be set in a category"},
        {"ZOLWVTA.QRD.OPT_DICO.RELOAD_MNGT", Logical, "0", Anybody, "offer the reload of a dictionary"},
        {"ZOLWVTA.QRD.OPT_DICO.SHOW_LAST_MOD", Logical, "1", Anybody,
         "show last modifier and last update date"},
        {"ZOLWVTA.QRD.OPT_DICO.CATEGORY.MANDATORY", Logical, "1", Anybody,
         "a new category starts as mandatory"},
        {"ZOLWVTA.QRD.OPT_DICO.CATEGORY.EXCLUSIVITY", Logical, "1", Anybody,
         "a new category starts as exclusive"},
        {"ZOLWVTA.QRD.UPPERCASE_CFG_ID", Logical, "0", Anybody, "put typed identifiers in upper case"},
        {"ZOLWVTA.QRD.MILESTONE_PAST_DATE", Logical, "0", Anybody, "milestones may be dated in the past"},
        {"ZOLWVTA.QRD.MULTI_CFG_DEFINITION.OLD_DISPLAY", Logical, "0", Anybody,
         "older layout of the effectivity parameter panel"},
        {"ZOLWVTA.QRD.CFG_FILTER.INFINITY", Logical, "0", Anybody,
         "infinity may be chosen in the date and range filter"},
        {"ZOLWVTA.QRD.COMPLEX_PROPOSED_EFF", Logical, "0", Anybody, "complex planned effectivities"},
        {"ZOLWVTA.QRD.PROPOSED_EFF.CHECK_PARAM", Logical, "0", Anybody,
         "test planned effectivity parameters"},
        {"ZOLWVTA.QRD.CH_PROPOSED_EFF", Logical, "0", Anybody,
         "take a handler's planned effectivity into account"},
        {"ZOLWVTA.QRD.CH_RULES_UPDATE", Logical, "0", Anybody, "offer the rules update in the handler panel"},
        {"ZOLWVTA.QRD.LIMITED_CH_OVERLOAD", Logical, "0", Anybody,
         "limit the overloading of a config handler"},
        {"ZOLWVTA.GYR.FAST_SEL_CH", Logical, "1", Anybody,
         "read filter values of a handler by the fast query"},
        {"ZOLWVT.RAW_COID", Logical, "1", Anybody, "raw object identifiers in the where-used query"},
        {"ZOLWVTA.QRD.COMMIT_IMMEDIAT", Logical, "1", Anybody,
         "after a failed write, keep what was written in the pending modifications"},
        {"ZOLWVTA.QRD.COMMIT.ERROR_AUTO_REPORT", Logical, "1", Anybody, "write a report on a failed commit"},
        {"ZOLWVTA.QRD.CYCLE.AUTHORIZE_COMMIT", Logical, "1", Anybody,
         "allow a commit with cycles; they are searched only when this is off"},
        {"ZOLWVTA.QRD.INTEROP.COMMIT_IMMEDIAT_AND_ENABLE_CHANGES", Logical, "0", Anybody,
         "buttons of identified modifications stay active"},
        {"ZOLWVTA.QRD.UNCHECK_DELETE_MODIFICATION", Logical, "0", Anybody,
         "removals start unticked at a commit"},
        {"LANGUAGE", Text, "en", Anybody, "language of texts, a folder of the resources"},
        {"FONT.SIZE", Numeric, "", Anybody,
         "size of the font of the windows in points, from 6 to 40; empty: that of the X resources"},
        {"FONT.FAMILY", Text, "", Anybody, "font of the windows; empty: that of the X resources"},
        {"CONFIGURE.ADVANCED", Logical, "0", Anybody, "choose options in the advanced mode at first"},
        {"CONFIGURE.FILTER_CATEGORIES", Logical, "1", Anybody,
         "leave out the categories that were taken out of a product's graph"},
        {"CONFIGURE.KEEP_PRODUCTS", Logical, "1", Anybody,
         "remember the products used from one run to the next"},
        {"DATABASE", Text, "", Site,
         "the database that everybody works on; empty: that of --database, or the user's own"},
        {"USER", Text, "", Site, "who is logged in; empty: the user of the operating system"},
        {"CONTROL_LIBRARY", Text, "", Site, "shared object with the control functions of the site"},
        {"TRACE.SINK", Text, "", Site, "where traces go: empty for nowhere, stderr, or a file"},
        {"TRACE.LEVELS", Text, "3,9,37", Site, "levels that are traced when there is a sink"},
    };
    return keys;
}

const SettingKey* Settings::FindKey(const std::string& name) {
    for (const SettingKey& key : Keys())
        if (name == key.name)
            return &key;
    return nullptr;
}

} // namespace trellis
