#include "motif/FacePainter.h"
#include "motif/PaintFixture.h"

#include <algorithm>

namespace {

using trellis::Face;
using trellis::LayoutRectangle;
using trellis::Theme;
using trellis::ThemeColour;

class FacePainterTest : public testing::Test {
protected:
    Face Of(Face::Kind kind, const std::string& title = "Rename") {
        Face face;
        face.kind = kind;
        face.text = title;
        face.size = {100, 26};
        return face;
    }
    PaintedImage& Painted(const Face& face, bool isPressed = false) {
        _images.push_back(std::make_unique<PaintedImage>(face.size));
        _images.back()->Paint([&](cairo_t* context) { painter.Paint(context, face, isPressed); });
        return *_images.back();
    }
    std::vector<int> Greys(const Face& face, bool isPressed = false) {
        return Painted(face, isPressed).Greys({0, 0, face.size.width, face.size.height});
    }
    // The columns from the left end to the right one in which anything is written.
    std::pair<int, int> Written(const Face& face) {
        const PaintedImage& image = Painted(face);
        int first = face.size.width;
        int last = -1;
        for (int x = 0; x < face.size.width; ++x)
            if (image.Colours({x, 0, 1, face.size.height}).size() > 1) {
                first = std::min(first, x);
                last = x;
            }
        return {first, last};
    }

    Theme theme;
    trellis::TextPainter text{theme};
    trellis::FacePainter painter{theme, text};

private:
    std::vector<std::unique_ptr<PaintedImage>> _images;
};

TEST_F(FacePainterTest, AllStatesOfAButtonDifferWithoutColour) {
    const Face plain = Of(Face::Button);
    Face greyed = plain;
    greyed.isSensitive = false;
    Face standard = plain;
    standard.isDefault = true;
    const std::set<std::vector<int>> pictures = {Greys(plain), Greys(plain, true), Greys(greyed),
                                                 Greys(standard), Greys(standard, true)};
    EXPECT_EQ(pictures.size(), 5U);
}

TEST_F(FacePainterTest, MarksTellOnFromOffAlsoWhenTheyAreGreyed) {
    std::set<std::vector<int>> pictures;
    for (const Face::Kind kind : {Face::Check, Face::Radio})
        for (const bool isOn : {false, true})
            for (const bool isSensitive : {false, true}) {
                Face face = Of(kind);
                face.isOn = isOn;
                face.isSensitive = isSensitive;
                pictures.insert(Greys(face));
            }
    EXPECT_EQ(pictures.size(), 8U);
}

TEST_F(FacePainterTest, ATitleThatIsTooLongEndsInsideOfItsButton) {
    const Face face = Of(Face::Button, "A title of so many characters that no button could ever hold it");
    const PaintedImage& image = Painted(face);
    EXPECT_EQ(image.Colours({2, 8, 4, 10}).size(), 1U) << "the text reaches the left border";
    EXPECT_EQ(image.Colours({face.size.width - 6, 8, 4, 10}).size(), 1U)
        << "the text reaches the right border";
    EXPECT_NE(Greys(face), Greys(Of(Face::Button, "")));
}

TEST_F(FacePainterTest, ALineThatReadsFromTheRightStandsAtTheRightEnd) {
    const auto [left, right] = Written(Of(Face::Caption, "abc"));
    const auto [hebrewLeft, hebrewRight] = Written(Of(Face::Caption, "\xd7\xa9\xd7\x9c\xd7\x95\xd7\x9d"));
    EXPECT_LT(left, 4);
    EXPECT_LT(right, 50);
    EXPECT_GT(hebrewLeft, 50);
    EXPECT_GT(hebrewRight, 95);
}

TEST_F(FacePainterTest, SizesOfNothingAndBytesThatAreNoTextDoNoHarm) {
    for (const Face::Kind kind : {Face::Caption, Face::Button, Face::Check, Face::Radio}) {
        Face face = Of(kind, "\xff\xfe\n\x01");
        Painted(face);
        face.size = {1, 1};
        Painted(face);
    }
}

TEST(ThemeTest, TextReadsWellOnEachGroundAlsoWhenItIsGreyed) {
    constexpr double wanted = 4.5; // ratio of brightness below which small letters are hard to read
    const auto contrast = [](ThemeColour a, ThemeColour b) {
        const double ratio = (a.Luminance() + 0.05) / (b.Luminance() + 0.05);
        return std::max(ratio, 1 / ratio);
    };
    for (const ThemeColour ground : {Theme::Background, Theme::Field, Theme::GreyedField, Theme::Selection})
        EXPECT_GE(contrast(Theme::Text, ground), wanted) << ground.Name();
    for (const ThemeColour ground : {Theme::Background, Theme::GreyedField})
        EXPECT_GE(contrast(Theme::GreyedText, ground), wanted) << ground.Name();
    EXPECT_GE(contrast(Theme::Field, Theme::Accent), wanted) << "the title of the default button";
}

} // namespace
