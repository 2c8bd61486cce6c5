#pragma once

#include "model/DatabaseSession.h"
#include "model/PartQuery.h"
#include "model/StructureImport.h"
#include "model/ZOLDMInstance.h"
#include "support/TemporaryFolder.h"
#include "values/ZOLGYRError.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace trellis::test {

// An open database in a file of its own, and the few words in which tests of the model speak.
class ModelFixture : public testing::Test {
protected:
    ModelFixture() { EXPECT_TRUE(DatabaseSession::Create(path, error)); }
    // For tests that neither open it again nor need a second user.
    enum class Place { Memory };
    explicit ModelFixture(Place) { EXPECT_TRUE(DatabaseSession::Create("sqlite::memory:", error)); }
    ~ModelFixture() override { DatabaseSession::Close(); }

    void Reopen() { ASSERT_TRUE(DatabaseSession::Open(path, error)); }
    bool Import(std::string_view text, StructureImport::Form form = StructureImport::Form::Csv) {
        error.Clear();
        return StructureImport::ReadText(text, form, "file", report, error);
    }
    ZOLDMInstance Part(const ZOLUnicodeString& word) {
        ZOLListValZOLDMInstance found;
        PartQuery::ByWord(word, found, error);
        return found.Size() == 1 ? found[1] : ZOLDMInstance();
    }
    static std::string Name(const ZOLDMInstance& instance) {
        return instance.GetNameInstance(1, 1, " ", "$BOM_NAVIG").Bytes();
    }
    static std::string Names(const ZOLListValZOLDMInstance& instances) {
        std::string names;
        for (const ZOLDMInstance& instance : instances)
            names += (names.empty() ? "" : ", ") + Name(instance);
        return names;
    }
    static ZOLListValZOLDMInstance Links(const ZOLDMInstance& part) {
        ZOLListValZOLDMInstance links;
        part.GetChildren(0, "ZOLASS", links, 1);
        return links;
    }
    static std::string Children(const ZOLDMInstance& part) {
        ZOLListValZOLDMInstance parts;
        part.GetChildParts(parts);
        return Names(parts);
    }
    std::string Stored(const char* word) {
        for (const auto& [name, value] : DatabaseSession::Describe(error))
            if (name == word)
                return value.Bytes();
        return "";
    }

    TemporaryFolder folder;
    std::string path = folder.Path("bikes.trellis");
    ZOLGYRError error;
    ImportReport report;
};

} // namespace trellis::test
