#include "graph/ZOLCategoryNode.h"
#include "service/ServiceFixture.h"

namespace trellis::test {

class CategoryNode : public ServiceFixture {
protected:
    CategoryNode() {
        for (const char* name : {"RED", "GREEN", "BLUE"})
            Option(colour, name);
    }

    static void Apply(ZOLCategoryNode& node, const std::vector<ZOLParameter>& parameters, int hideByRule = 0,
                      int hideByUser = 0) {
        ZOLListPtrZOLParameter list;
        for (const ZOLParameter& parameter : parameters)
            list.Append(new ZOLParameter(parameter));
        node.SetParameters(list, hideByRule, hideByUser);
        ZOLDeleteElements(list);
    }
    static ZOLParameter Parameter(const char* option, int isNot, ZOLParameter::ZOLParameterSource source) {
        ZOLParameter parameter("COLOUR", option, isNot);
        parameter.SetParameterSource(source);
        return parameter;
    }
    static std::string Names(const ZOLListValZOLUnicodeString& list) {
        std::string names;
        for (const ZOLUnicodeString& name : list)
            names += name.Bytes() + " ";
        return names;
    }

    ZOLIQrdConfigItem_var dictionary = Dictionary("BIKE");
    ZOLIQrdCategory_var colour = Category(dictionary, "COLOUR");
    const ZOLParameter red = Parameter("RED", 0, ZOLParameter::SourceUser);
    const ZOLParameter blueByRule = Parameter("BLUE", 0, ZOLParameter::SourceRule);
    const ZOLParameter noGreen = Parameter("GREEN", 1, ZOLParameter::SourceUser);
    const ZOLParameter noBlueByRule = Parameter("BLUE", 1, ZOLParameter::SourceRule);
};

TEST_F(CategoryNode, MergesSameNamedCategoriesInTheOrderOfNames) {
    const auto corporate = Manager().GetCorporateDictionary();
    const auto second = Manager().AddCategoryToDictionary(corporate, "COLOUR", "other", 0, 1, error);
    Option(second, "WHITE");
    Option(second, "RED");
    ZOLListValZOLIQrdCategory_var both;
    both.Append(colour);
    both.Append(second);
    const ZOLCategoryNode node(both, 0, 0);
    EXPECT_EQ(Names(node.GetOptNameList()), "BLUE GREEN RED WHITE ");
    EXPECT_TRUE(node.GetExclusivity()) << "of the first";
    EXPECT_FALSE(node.GetMandatory());
    const ZOLCategoryNode empty(ZOLListValZOLIQrdCategory_var(), 0, 0);
    EXPECT_EQ(empty.GetCategoryName() + empty.getText(), "");
    EXPECT_EQ(empty.GetOptNameList().Size(), 0);
}

TEST_F(CategoryNode, ItsColourTellsWhatIsDecided) {
    ZOLCategoryNode simple(colour, 0, 0);
    Apply(simple, {});
    EXPECT_EQ(simple.getColor(), 1);
    Apply(simple, {red});
    EXPECT_EQ(simple.getColor(), 46);
    colour->SetMandatory(1, error);
    simple.ClearDefined();
    EXPECT_EQ(simple.getColor(), 7) << "mandatory and nothing chosen";

    ZOLCategoryNode advanced(colour, 1, 0);
    Apply(advanced, {});
    EXPECT_EQ(advanced.getColor(), 46) << "not ignoring it is a decision";
    advanced.SetIgnored(0);
    EXPECT_EQ(advanced.getColor(), 7);
    advanced.UnsetIgnored();
    advanced.RejectAll();
    EXPECT_EQ(advanced.getColor(), 1) << "all rejected is none";
}

TEST_F(CategoryNode, ParametersSetStatesHideAndEndAnIgnoredLevelOfAList) {
    ZOLCategoryNode node(colour, 1, 0);
    node.SetIgnored(0);
    Apply(node, {red, noGreen, noBlueByRule, ZOLParameter("LAMP", "RED", 1)}, 1, 0);
    EXPECT_FALSE(node.IsIgnored());
    EXPECT_TRUE(node.GetOptionNode("RED")->IsUserSelected());
    EXPECT_TRUE(node.GetOptionNode("GREEN")->IsUserRejected());
    EXPECT_TRUE(node.GetOptionNode("GREEN")->isVisible());
    EXPECT_TRUE(node.GetOptionNode("BLUE")->IsRuleRejected());
    EXPECT_FALSE(node.GetOptionNode("BLUE")->isVisible());
    node.ClearDefined();
    EXPECT_TRUE(node.GetOptionNode("BLUE")->isVisible());
    node.SetIgnored(1);
    Apply(node, {red});
    EXPECT_TRUE(node.IsIgnored()) << "the user's own command stays";
    EXPECT_FALSE(node.GetOptionNode("RED")->IsSelected());
}

TEST_F(CategoryNode, ConflictsAndIrresolutionsAreMarkedUntilTheyAreCleared) {
    ZOLCategoryNode node(colour, 0, 0);
    Apply(node, {red});
    ZOLListPtrZOLParameter list;
    list.Append(new ZOLParameter(blueByRule));
    node.HighlightIrresolutions(list);
    EXPECT_EQ(node.getColor(), 2);
    node.HighlightConflicts(list);
    EXPECT_EQ(node.getColor(), 4) << "a conflict comes first";
    node.ClearUserSelected();
    EXPECT_EQ(node.getColor(), 2) << "clearing states ends the mark of a conflict alone";
    EXPECT_EQ(node.GetOptionNode("BLUE")->getAlert(), NodeAlert::None) << "and those of options";
    node.ClearConflicts();
    EXPECT_EQ(node.getColor(), 1);
    ZOLDeleteElements(list);
}

TEST_F(CategoryNode, ItsMarkTellsApartWhatSharesAColour) {
    colour->SetMandatory(1, error);
    ZOLCategoryNode simple(colour, 0, 0);
    ZOLCategoryNode advanced(colour, 1, 0);
    advanced.SetIgnored(0);
    EXPECT_EQ(simple.getColor(), advanced.getColor());
    EXPECT_EQ(simple.getMark(), NodeMark::Missing);
    EXPECT_EQ(advanced.getMark(), NodeMark::Ignored);
    colour->SetMandatory(0, error);
    for (ZOLCategoryNode* node : {&simple, &advanced})
        node->UpdateNodeColor();
    EXPECT_EQ(simple.getColor(), advanced.getColor());
    EXPECT_EQ(simple.getMark(), NodeMark::Undecided);
    EXPECT_EQ(advanced.getMark(), NodeMark::Ignored);

    Apply(simple, {red});
    ZOLListPtrZOLParameter list;
    list.Append(new ZOLParameter(blueByRule));
    simple.HighlightConflicts(list);
    EXPECT_EQ(simple.getMark(), NodeMark::Decided) << "a conflict does not hide it";
    EXPECT_EQ(simple.getAlert(), NodeAlert::Conflict);
    EXPECT_EQ(simple.GetOptionNode("BLUE")->getAlert(), NodeAlert::Conflict);
    ZOLDeleteElements(list);
}

TEST_F(CategoryNode, TellsItsSelectionWithItsExclusivity) {
    ZOLCategoryNode node(colour, 0, 0);
    Apply(node, {red, noGreen, blueByRule});
    node.SetExclusivity(0);
    ZOLListPtrZOLParameter selected = node.GetParameters();
    ASSERT_EQ(selected.Size(), 2);
    EXPECT_EQ(selected[1]->GetOption(), "BLUE");
    EXPECT_FALSE(selected[1]->GetCategoryExclusivity());
    ZOLDeleteElements(selected);
}

} // namespace trellis::test
