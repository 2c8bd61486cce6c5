#include "service/DictionaryPlan.h"

#include "service/ItemEditor.h"
#include "values/ProgressCount.h"

namespace trellis {

namespace {

using Kind = DictionaryRecord::Kind;

constexpr int LongestDescription = 4000;

bool IsFlag(const std::string& text) {
    return text.empty() || text == "yes" || text == "no" || text == "1" || text == "0";
}

bool IsYes(const std::string& text) {
    return text == "yes" || text == "1";
}

// Control characters spoil lists and files; line feeds are kept in descriptions.
bool HoldsControl(const std::string& text, bool mayHoldLines) {
    for (const char octet : text) {
        const auto code = static_cast<unsigned char>(octet);
        if ((code < 0x20 && !(mayHoldLines && code == '\n')) || code == 0x7f)
            return true;
    }
    return false;
}

template <class Value, class Setter, class Handle>
void SetIfOther(const Value& present, const Value& wanted, Handle& handle, Setter setter, bool& changed,
                ZOLGYRError& error) {
    if (present == wanted || error.GetCode() != 0)
        return;
    ((*handle).*setter)(wanted, error);
    changed = true;
}

} // namespace

DictionaryPlan::DictionaryPlan(DictionaryFile& file) : _file(file) {
    for (const DictionaryRecord& record : _file.records) {
        CheckTexts(record);
        TakeIn(record);
    }
    CheckDefaults();
}

void DictionaryPlan::CheckTexts(const DictionaryRecord& record) {
    ZOLGYRError badName;
    if (!IsDictionaryName(record.name, badName))
        _file.Note(record.line, badName.GetCode(), {record.name});
    if (HoldsControl(record.name, false))
        _file.Note(record.line, 60224, {"name"});
    if (HoldsControl(record.description, true))
        _file.Note(record.line, 60224, {"description"});
    if (ZOLUnicodeString(record.description).GetLengthInChar() > LongestDescription)
        _file.Note(record.line, 60223, {"description", std::to_string(LongestDescription)});
    const bool isCategory = record.kind == Kind::Category;
    for (const DictionaryField& field : dictionaryFields) {
        const bool ofCategory =
            field.member == &DictionaryRecord::mandatory || field.member == &DictionaryRecord::exclusive;
        const bool ofOption =
            field.member == &DictionaryRecord::category || field.member == &DictionaryRecord::isDefault;
        const std::string& text = record.*field.member;
        if ((isCategory && ofOption && !text.empty()) || (!isCategory && ofCategory && !text.empty()))
            _file.Note(record.line, 60231, {field.word});
        else if ((ofCategory || field.member == &DictionaryRecord::isDefault) && !IsFlag(text))
            _file.Note(record.line, 60418, {field.word, text});
    }
}

void DictionaryPlan::TakeIn(const DictionaryRecord& record) {
    Records& records = record.kind == Kind::Category ? _categories : _options;
    const auto [other, isNew] = records.emplace(record.name, &record);
    if (!isNew)
        _file.Note(record.line, record.kind == Kind::Category ? 60413 : 60414,
                   {record.name, std::to_string(other->second->line)});
    if (record.kind == Kind::Option && record.category.empty())
        _file.Note(record.line, 60415, {record.name});
}

void DictionaryPlan::CheckDefaults() {
    std::unordered_map<std::string, int> defaults; // by category
    for (const DictionaryRecord& record : _file.records) {
        if (record.kind != Kind::Option || !IsYes(record.isDefault) || ++defaults[record.category] != 2)
            continue;
        const auto category = _categories.find(record.category);
        if (category != _categories.end() && IsYes(category->second->exclusive))
            _file.Note(record.line, 60419, {record.category});
    }
}

bool DictionaryPlan::Fits(ZOLQRDCfgManager& manager, const ZOLIQrdConfigItem_var& dictionary) {
    ZOLListValZOLIQrdCategory_var categories;
    manager.GetCategoriesFromDictionary(dictionary, categories);
    for (const ZOLIQrdCategory_var& category : categories) {
        _known[category->GetName().Bytes()] = category;
        ZOLListValZOLIQrdEffectivity_var options;
        category->GetOptions(options);
        for (const ZOLIQrdEffectivity_var& option : options) {
            _knownOptions[option->GetOption().Bytes()] = option;
            _categoryOfKnown[option->GetOption().Bytes()] = category->GetName().Bytes();
        }
    }
    for (const DictionaryRecord& record : _file.records) {
        if (record.kind != Kind::Option || record.category.empty())
            continue;
        if (!_categories.contains(record.category) && !_known.contains(record.category))
            _file.Note(record.line, 60416, {record.category});
        const auto holder = _categoryOfKnown.find(record.name);
        if (holder != _categoryOfKnown.end() && holder->second != record.category)
            _file.Note(record.line, 60417, {record.name, holder->second});
    }
    return _file.problems.empty();
}

void DictionaryPlan::Apply(ZOLQRDCfgManager& manager, const ZOLIQrdConfigItem_var& dictionary,
                           DictionaryImportReport& report, const ProgressCB& progress, ZOLGYRError& error) {
    ProgressCount count(progress, "categories and options", _file.records.size());
    for (const Kind kind : {Kind::Category, Kind::Option})
        for (const DictionaryRecord& record : _file.records) {
            if (error.GetCode() != 0)
                return;
            if (record.kind != kind)
                continue;
            count.Step();
            if (kind == Kind::Category)
                ApplyCategory(manager, dictionary, record, report, error);
            else
                ApplyOption(manager, dictionary, record, report, error);
        }
    if (_file.tellsDefaults)
        ApplyDefaults(error);
}

void DictionaryPlan::ApplyCategory(ZOLQRDCfgManager& manager, const ZOLIQrdConfigItem_var& dictionary,
                                   const DictionaryRecord& record, DictionaryImportReport& report,
                                   ZOLGYRError& error) {
    ZOLIQrdCategory_var& category = _known[record.name];
    const int exclusive = IsYes(record.exclusive);
    const int mandatory = IsYes(record.mandatory);
    if (!category) {
        category = manager.AddCategoryToDictionary(dictionary, record.name, record.description, exclusive,
                                                   mandatory, error);
        ++report.newCategories;
        return;
    }
    bool changed = false;
    SetIfOther(category->GetDescription(), ZOLUnicodeString(record.description), category,
               &ZOLIQrdCategory::SetDescription, changed, error);
    SetIfOther(category->GetExclusivity(), exclusive, category, &ZOLIQrdCategory::SetExclusivity, changed,
               error);
    SetIfOther(category->GetMandatory(), mandatory, category, &ZOLIQrdCategory::SetMandatory, changed, error);
    report.changedCategories += changed;
}

void DictionaryPlan::ApplyOption(ZOLQRDCfgManager& manager, const ZOLIQrdConfigItem_var& dictionary,
                                 const DictionaryRecord& record, DictionaryImportReport& report,
                                 ZOLGYRError& error) {
    ZOLIQrdEffectivity_var& option = _knownOptions[record.name];
    if (!option) {
        option = manager.AddOptionToDictionary(dictionary, _known[record.category], record.name,
                                               record.description, error);
        ++report.newOptions;
        return;
    }
    bool changed = false;
    SetIfOther(option->GetDescription(), ZOLUnicodeString(record.description), option,
               &ZOLIQrdEffectivity::SetDescription, changed, error);
    report.changedOptions += changed;
}

// The defaults of every category of the file are those that the file marks, in its order.
void DictionaryPlan::ApplyDefaults(ZOLGYRError& error) {
    std::unordered_map<std::string, ZOLListValZOLIQrdEffectivity_var> defaults;
    for (const DictionaryRecord& record : _file.records)
        if (record.kind == Kind::Option && IsYes(record.isDefault))
            defaults[record.category].Append(_knownOptions[record.name]);
    for (const DictionaryRecord& record : _file.records) {
        if (record.kind != Kind::Category || error.GetCode() != 0)
            continue;
        _known[record.name]->SetDefaultOptions(defaults[record.name], error);
    }
}

} // namespace trellis
