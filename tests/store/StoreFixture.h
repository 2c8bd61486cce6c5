#pragma once

#include "store/Workspace.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace trellis::test {

// A database in a file of its own, seen by one workspace, and by a second one where a test needs another user.
class StoreFixture : public testing::Test {
protected:
    StoreFixture() : mine(std::make_unique<Workspace>(StoreSession::Create(path), "anna")) {}

    std::unique_ptr<Workspace> Another(const std::string& user = "bert") {
        return std::make_unique<Workspace>(StoreSession::Open(path), user);
    }
    static RecordOf<CategoryRow> NewCategory(Workspace& workspace, const std::string& name) {
        CategoryRow row;
        row.configItem = ConfigItemRow::CorporateId;
        row.name = name;
        return workspace.Create(row);
    }
    static RecordOf<CategoryRow> Category(Workspace& workspace, const std::string& name) {
        ZOLGYRError error;
        return workspace.FindFirst(StoreQuery<CategoryRow>().Where(&CategoryRow::name, name), error);
    }
    // The names of all categories as another process sees them.
    std::string StoredNames() {
        StoreSession& session = Reader().Session();
        std::string names;
        for (const CategoryRow& row : session.Table<CategoryRow>().Select({}))
            names += row.name + " ";
        return names;
    }
    bool Save(Workspace& workspace) {
        error.Clear();
        return workspace.Save(error);
    }
    std::string Parameter(std::size_t i) const {
        return i < error.GetParameters().size() ? error.GetParameters()[i].Bytes() : "";
    }

    TemporaryFolder folder;
    std::string path = folder.Path("bikes.trellis");
    std::unique_ptr<Workspace> mine;
    ZOLGYRError error;

private:
    Workspace& Reader() {
        if (!_reader)
            _reader = Another("reader");
        return *_reader;
    }
    std::unique_ptr<Workspace> _reader;
};

} // namespace trellis::test
