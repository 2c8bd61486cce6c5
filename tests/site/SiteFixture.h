#pragma once

#include "model/DatabaseSession.h"
#include "site/RightTable.h"
#include "site/SiteAdministration.h"
#include "site/ZOLIQrdSCManager.h"
#include "site/ZOLIQrdServices.h"
#include "support/TemporaryFolder.h"
#include "values/ZOLGYRError.h"

#include <gtest/gtest.h>

#include <string>

namespace trellis::test {

// An empty database in a file of its own.
class SiteFixture : public testing::Test {
protected:
    SiteFixture() {
        As("anna");
        EXPECT_TRUE(DatabaseSession::Create(path, error));
    }
    ~SiteFixture() override {
        DatabaseSession::Close();
        As("");
    }
    static void As(const char* user) { GetSecurityManager()->SetCurrentPerson(user); }
    int TakeCode() {
        const int code = error.GetCode();
        parameters.clear();
        for (const ZOLUnicodeString& parameter : error.GetParameters())
            parameters += parameter.Bytes() + ";";
        error.Clear();
        return code;
    }

    TemporaryFolder folder;
    std::string path = folder.Path("site.trellis");
    ZOLGYRError error;
    std::string parameters; // of the code that was taken last
};

} // namespace trellis::test
