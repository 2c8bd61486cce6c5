#include "widgets/ZOLDlgProdContextManager.h"

#include "model/ZOLDMClipboard.h"
#include "panels/ZOLDMDlgResultPanel.h"
#include "service/ServiceFixture.h"
#include "toolkit/ToolkitFixture.h"
#include "toolkit/ZOLDlgMenuPane.h"
#include "widgets/KeptFile.h"

#include <cstdlib>
#include <optional>

namespace trellis::test {

namespace {

using Driver = ZOLUserDriver;
using Products = ZOLListValZOLDMInstance;

class KeepingHost : public ZOLDMDlgResultPanel {
public:
    int KeepsProducts() const override { return 1; }
};

class ProdContextManager : public ServiceFixture {
protected:
    ProdContextManager() { setenv("XDG_DATA_HOME", folder.Path("data").c_str(), 1); }
    ~ProdContextManager() override {
        Close();
        EXPECT_TRUE(Driver::TakeMessages().empty());
        ZOLDMClipboard::SetObjects({});
    }

    void Open(const Products& products, const char* context = "OP") {
        Close();
        const CallbackScope scope;
        panel = new ListeningPanel;
        frame = new ZOLDlgProdContextManager(panel, bike, products, context);
        panel->Listen(frame, frame->GetChangeProductNotification());
        panel->SetVisibility(ZOLShown);
    }
    void Close() {
        if (panel)
            panel->RequestDelayedDestruction();
        panel = nullptr;
        CallbackScope::FreeGivenUp();
    }
    static std::string Name(const ZOLDMInstance& product) {
        return product.GetNameInstance(1, 1, " ", "").Bytes();
    }
    std::string Shown() { return Driver::Find(frame, "CurrentProductName")->GetTitle().Bytes(); }
    std::string Current() {
        ZOLDMInstance product;
        return frame->GetCurrentProduct(product) ? Name(product) : "none";
    }
    static std::string LastUsed() {
        ZOLDMInstance product;
        return ZOLDlgProdContextManager::GetLastUsedProduct(product) ? Name(product) : "none";
    }
    // The texts of the menu; those that are greyed in brackets.
    std::string Menu() {
        std::string lines;
        for (const Driver::MenuLine& line : Driver::OpenMenu(frame))
            if (line.name != "Separ")
                lines += (line.isSensitive ? line.text.Bytes() : "(" + line.text.Bytes() + ")") + "; ";
        return lines;
    }
    // What the father was told since the last call.
    std::size_t TakeNotifications() { return std::exchange(panel->heard, {}).size(); }
    void Choose(const ZOLUnicodeString& product) {
        int item = 0;
        for (const Driver::MenuLine& line : Driver::OpenMenu(frame)) {
            item += line.name == "ProductItem";
            if (line.name == "ProductItem" && line.text == product)
                return Driver::Menu(frame, "ProductItem[" + std::to_string(item) + "]");
        }
        ADD_FAILURE() << "not offered: " << product.Bytes();
    }
    // Parts P1, P2 and so on.
    Products NewParts(int count) {
        std::string text = "parent,child\n";
        for (int i = 1; i <= count; ++i)
            text += "FRAME,P" + std::to_string(i) + "\n";
        ImportReport report;
        StructureImport::ReadText(text, StructureImport::Form::Csv, "parts.csv", report, error);
        Products parts;
        for (int i = 1; i <= count; ++i)
            parts.Append(Part(("P" + std::to_string(i)).c_str()));
        return parts;
    }
    std::string File() const { return KeptFile::Content(KeptFile::PathOf(bike, ".Products")); }
    void SetFile(const std::string& text) {
        EXPECT_TRUE(KeptFile::Replace(KeptFile::PathOf(bike, ".Products"), text));
    }
    static std::string Line(const std::string& key, const ZOLDMInstance& product) {
        return "[" + key + "] " + product.GetLeadingString().Bytes() + " " + product.GetXCoid().Bytes() +
               "\n";
    }

    ZOLDMInstance bike = Part("BIKE");
    ZOLDMInstance frameOfBike = Part("FRAME");
    ZOLDMInstance wheel = Part("WHEEL");
    ListeningPanel* panel = nullptr;
    ZOLDlgProdContextManager* frame = nullptr;
};

} // namespace

TEST_F(ProdContextManager, FramesOfferWhatEarlierOnesUsedAndBeginWithTheProductUsedLast) {
    EXPECT_EQ(LastUsed(), "none");
    Open({bike, frameOfBike});
    EXPECT_EQ(Shown(), "BIKE");
    EXPECT_EQ(LastUsed(), "BIKE");

    Open({wheel});
    EXPECT_EQ(Current(), "WHEEL") << "the product used last is none of this frame's";
    EXPECT_EQ(Menu(), "(Paste a product); Back to no product; (Products used before); WHEEL; BIKE; FRAME; ");
    EXPECT_EQ(TakeNotifications(), 0u);
    Choose("FRAME");
    EXPECT_EQ(Shown(), "FRAME");
    EXPECT_EQ(Current(), "FRAME");
    EXPECT_EQ(TakeNotifications(), 1u);

    Open({bike, frameOfBike});
    EXPECT_EQ(Current(), "FRAME");
    Open({});
    EXPECT_EQ(Current(), "none");
    EXPECT_EQ(Shown(), "(no product)");
    EXPECT_EQ(LastUsed(), "none") << "the frame with no product offers none";
    EXPECT_EQ(Menu(), "(Paste a product); (Products used before); BIKE; FRAME; WHEEL; ");
}

TEST_F(ProdContextManager, TheMenuOpensFromAButtonToo) {
    Open({bike});
    Driver::Press(Driver::Find(frame, "ChangeProduct"));
    ASSERT_EQ(ZOLDlgMenuPane::GetOpenMenu(), Driver::Find(frame, "ContextualMenu"));
    EXPECT_NO_THROW(Driver::Find(frame, "ContextualMenu/ResetItem"));
    Driver::Key(frame, ZOLUserKey::Escape);
    EXPECT_EQ(ZOLDlgMenuPane::GetOpenMenu(), nullptr);
}

TEST_F(ProdContextManager, TheOwnerGivesOtherProductsAndIsToldIfItWants) {
    Open({bike});
    frame->SetProduct({wheel, frameOfBike}, 0);
    EXPECT_EQ(Current(), "WHEEL");
    EXPECT_EQ(TakeNotifications(), 0u);
    frame->SetProduct({bike, frameOfBike}, 1);
    EXPECT_EQ(Current(), "BIKE");
    EXPECT_EQ(TakeNotifications(), 1u);
    frame->SetProduct({}, 1);
    EXPECT_EQ(Current(), "none");
    EXPECT_EQ(TakeNotifications(), 1u);
}

TEST_F(ProdContextManager, AnOpenMenuForgetsItsItemsWhenTheProductsChange) {
    Open({bike, wheel, frameOfBike});
    Driver::OpenMenu(frame);
    frame->SetProduct({wheel}, 0);
    EXPECT_THROW(Driver::Menu(frame, "ProductItem[3]"), Driver::Refused);
    EXPECT_EQ(Current(), "WHEEL");
}

TEST_F(ProdContextManager, PastingTakesTheConfigurablePartsAndTellsOfTheOthers) {
    Dictionary("WHEEL");
    Dictionary("FRAME");
    Open({bike});
    ZOLDMClipboard::SetObjects({bike, wheel, frameOfBike});
    Driver::Menu(frame, "PasteNewItem");
    EXPECT_EQ(Current(), "WHEEL");
    EXPECT_EQ(TakeNotifications(), 1u);
    EXPECT_EQ(Menu(), "Paste a product; Back to no product; (Products used before); WHEEL; FRAME; BIKE; ");
    const std::vector<Driver::Message> messages = Driver::TakeMessages();
    ASSERT_EQ(messages.size(), 1u);
    EXPECT_EQ(messages.front().code, 20265);
}

TEST_F(ProdContextManager, PastingNothingThatIsConfigurableKeepsTheProduct) {
    Open({wheel});
    ZOLDMClipboard::SetObjects({bike, frameOfBike});
    Driver::Menu(frame, "PasteNewItem");
    EXPECT_EQ(Driver::TakeMessages().size(), 1u);
    EXPECT_EQ(Current(), "WHEEL");
    EXPECT_EQ(TakeNotifications(), 0u);
}

TEST_F(ProdContextManager, GoingBackToNoProductTellsNobodyAndKeepsTheHistory) {
    Open({bike, wheel});
    Driver::Menu(frame, "ResetItem");
    EXPECT_EQ(Current(), "none");
    EXPECT_EQ(Shown(), "(no product)");
    EXPECT_EQ(TakeNotifications(), 0u);
    EXPECT_EQ(Menu(), "(Paste a product); (Products used before); BIKE; WHEEL; ");
    Choose("WHEEL");
    EXPECT_EQ(Current(), "WHEEL");
}

TEST_F(ProdContextManager, OnlyNamesOfMoreThanEightyCharactersAreCutInTheMenu) {
    const std::string eighty = "X1 " + std::string(77, 'a');
    ImportReport report;
    StructureImport::ReadText("record,id,number,name\npart,x,X1," + std::string(77, 'a') + "\npart,y,X2," +
                                  std::string(78, 'b') + "\n",
                              StructureImport::Form::Csv, "long.csv", report, error);
    Open({Part("X1"), Part("X2")});
    EXPECT_EQ(Shown(), eighty);
    EXPECT_EQ(Menu(), "(Paste a product); Back to no product; (Products used before); " + eighty + "; X2 " +
                          std::string(74, 'b') + "...; ");
}

TEST_F(ProdContextManager, AFrameWithoutProductsKeepsItsChoiceFromOneRunToTheNext) {
    const KeepingHost host;
    Open({wheel, frameOfBike});
    Open({});
    Close();
    EXPECT_FALSE(std::filesystem::exists(KeptFile::PathOf(bike, ".Products"))) << "nothing to keep";
    Open({});
    Choose("FRAME");
    Close();
    EXPECT_EQ(File(), Line("OP", frameOfBike) + Line("01", frameOfBike));

    SetFile(Line("CH", frameOfBike) + Line("01", wheel) + Line("02", frameOfBike));
    Open({}, "MD");
    EXPECT_EQ(Current(), "FRAME") << "that of another context, while this one has none";
    Choose("WHEEL");
    Close();
    EXPECT_EQ(File(),
              Line("CH", frameOfBike) + Line("MD", wheel) + Line("01", wheel) + Line("02", frameOfBike));
    Open({}, "CH");
    EXPECT_EQ(Current(), "FRAME");
    Open({}, "MD");
    EXPECT_EQ(Current(), "WHEEL");
}

TEST_F(ProdContextManager, APastedProductIsKeptWithThoseOfTheFile) {
    const KeepingHost host;
    Dictionary("WHEEL");
    SetFile(Line("OP", bike) + Line("01", bike) + Line("02", wheel) + Line("03", frameOfBike));
    Open({});
    EXPECT_EQ(Current(), "BIKE");
    ZOLDMClipboard::SetObjects({wheel});
    Driver::Menu(frame, "PasteNewItem");
    EXPECT_EQ(Current(), "WHEEL");
    Close();
    EXPECT_EQ(File(), Line("OP", wheel) + Line("01", wheel) + Line("02", bike) + Line("03", frameOfBike));
}

TEST_F(ProdContextManager, TheFileOfFramesThatDoNotReadItStaysAsItIs) {
    const std::string before = Line("OP", wheel) + Line("01", wheel);
    SetFile(before);
    Open({}); // no host keeps products
    EXPECT_EQ(Current(), "none");
    const KeepingHost host;
    Open({}, "");
    EXPECT_EQ(Current(), "none");
    Open({bike});
    Open({});
    EXPECT_EQ(Current(), "WHEEL");
    frame->SetProduct({bike}, 0); // from now on the frame has products of its own
    Close();
    EXPECT_EQ(File(), before);
}

TEST_F(ProdContextManager, TenProductsAtMostAreWrittenAndOtherContextsSurvive) {
    const Products parts = NewParts(12);
    SetFile(Line("CH", bike) + Line("OP", bike) + Line("01", bike) + Line("MD", wheel));
    ZOLDlgProdContextManager::WriteProductFile(bike, "OP", ZOLDMInstance(), parts);
    std::string expected = Line("CH", bike) + Line("OP", bike) + Line("MD", wheel);
    for (int i = 1; i <= 10; ++i)
        expected += Line(ZOLUnicodeString::FromNumber(i, "%0.2d").Bytes(), parts[i]);
    EXPECT_EQ(File(), expected);

    ZOLDlgProdContextManager::WriteProductFile(bike, "OP", wheel, {bike, parts[3]});
    EXPECT_EQ(File(), Line("CH", bike) + Line("MD", wheel) + Line("OP", wheel) + Line("01", wheel) +
                          Line("02", bike) + Line("03", parts[3]));
    ZOLDlgProdContextManager::WriteProductFile(bike, "A B\n[01]", frameOfBike, {});
    EXPECT_EQ(File(), Line("CH", bike) + Line("MD", wheel) + Line("OP", wheel) + Line("01", frameOfBike));
}

TEST_F(ProdContextManager, ProductsThatAreGoneAreReadAndNeverBecomeCurrent) {
    const ZOLDMInstance gone("", bike.GetLeadingString(), "PART_LIST", "4711");
    SetFile(Line("OP", gone) + Line("CH", wheel) + Line("01", gone) + Line("02", wheel));
    Products products;
    int index = -1;
    ZOLDlgProdContextManager::ReadProductFile(bike, "OP", products, index);
    EXPECT_EQ(products.Size(), 2);
    EXPECT_EQ(index, 2);
    SetFile(Line("CH", wheel) + Line("OP", bike) + Line("01", wheel) + Line("02", bike));
    products.RemoveAll();
    ZOLDlgProdContextManager::ReadProductFile(bike, "OP", products, index);
    EXPECT_EQ(index, 2) << "its own context, whatever stands before";
    SetFile(Line("OP", gone) + Line("01", wheel));
    ZOLDlgProdContextManager::ReadProductFile(bike, "OP", products, index);
    EXPECT_EQ(index, 0);
}

} // namespace trellis::test
