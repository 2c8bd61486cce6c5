#pragma once

#include "model/DatabaseSession.h"
#include "model/PartQuery.h"
#include "model/StructureImport.h"
#include "service/ZOLQRDCfgBase.h"
#include "service/ZOLQRDCfgManager.h"
#include "site/SiteAdministration.h"
#include "site/ZOLIQrdSCManager.h"
#include "support/StoredDatabase.h"
#include "support/TemporaryFolder.h"
#include "values/ZOLGYRError.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace trellis::test {

// A database in a file of its own with the parts BIKE, FRAME and WHEEL, of which none is configurable.
class ServiceFixture : public testing::Test {
protected:
    ServiceFixture() {
        As("anna");
        EXPECT_TRUE(DatabaseSession::Create(path, error)) << Message();
        ImportReport report;
        EXPECT_TRUE(StructureImport::ReadText("parent,child\nBIKE,FRAME\nBIKE,WHEEL\nBIKE,WHEEL\n",
                                              StructureImport::Form::Csv, "bike.csv", report, error));
    }
    ~ServiceFixture() override {
        DatabaseSession::Close();
        As("");
    }

    static void As(const char* user) { GetSecurityManager()->SetCurrentPerson(user); }
    // The same as a new process: nothing but what is stored.
    void Reopen() { EXPECT_TRUE(DatabaseSession::Open(path, error)) << Message(); }
    ZOLQRDCfgManager& Manager() { return *ZOLQRDCfgManager::CurrentCfgManager(error); }
    ZOLDMInstance Part(const char* name) {
        ZOLListValZOLDMInstance parts;
        PartQuery::ByWord(name, parts, error);
        EXPECT_EQ(parts.Size(), 1) << name;
        return parts.Size() == 1 ? parts[1] : ZOLDMInstance();
    }
    ZOLQRDConfigurableObject Object(const char* part) {
        ZOLQRDConfigurableObject object;
        Manager().GetConfigurableObject(Part(part), object, error);
        return object;
    }
    // The dictionary of a part, which is made configurable if it is not.
    ZOLIQrdConfigItem_var Dictionary(const char* part) {
        Manager().SetConfigurable(Part(part), error);
        Manager().AddDictionary(Part(part), error);
        EXPECT_EQ(error.GetCode(), 0) << Message();
        return Object(part).GetDictionary();
    }
    ZOLIQrdCategory_var Category(const ZOLIQrdConfigItem_var& dictionary, const char* name) {
        return Manager().AddCategoryToDictionary(dictionary, name, name, 1, 0, error);
    }
    ZOLIQrdEffectivity_var Option(const ZOLIQrdCategory_var& category, const char* name) {
        return Manager().AddOptionToDictionary(category->GetConfigItem(), category, name, name, error);
    }
    // The names of a dictionary in memory: categories, each with its options.
    std::string Names(const ZOLIQrdConfigItem_var& dictionary) {
        std::string names;
        ZOLListValZOLIQrdCategory_var categories;
        Manager().GetCategoriesFromDictionary(dictionary, categories);
        for (const ZOLIQrdCategory_var& category : categories) {
            names += category->GetName().Bytes() + "(";
            ZOLListValZOLIQrdEffectivity_var options;
            category->GetOptions(options);
            for (const ZOLIQrdEffectivity_var& option : options)
                names += option->GetOption().Bytes() + " ";
            names += ")";
        }
        return names;
    }
    static std::size_t Unsaved() { return DatabaseSession::UnsavedChanges().size(); }
    // Saves and answers the code, which is cleared.
    int Save() {
        Manager().Save(error);
        return TakeCode();
    }
    int TakeCode() {
        const int code = error.GetCode();
        parameters.clear();
        for (const ZOLUnicodeString& parameter : error.GetParameters())
            parameters += parameter.Bytes() + ";";
        error.Clear();
        return code;
    }
    std::string Stored(const std::string& sql) { return StoredDatabase(path).Run(sql); }
    std::string Message() {
        ZOLUnicodeString message;
        error.GetLongMsg(message);
        return message.Bytes();
    }
    // A person with a role of its own, which is refused the functions. Nobody can be added after one of
    // privilege 10.
    void Person(const char* name, int privilege, std::initializer_list<const char*> refused = {}) {
        const std::string role = std::string(name) + "-role";
        SiteAdministration::AddRole(role, "", error);
        for (const char* function : refused)
            SiteAdministration::SetRight({function, role, "", "", false}, error);
        SiteAdministration::SetPerson({name, "", "", role, "", privilege}, error);
        EXPECT_EQ(error.GetCode(), 0) << Message();
    }

    TemporaryFolder folder;
    std::string path = folder.Path("bike.trellis");
    ZOLGYRError error;
    std::string parameters; // of the code that was taken last
};

} // namespace trellis::test
