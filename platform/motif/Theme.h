#pragma once

#include <cstdint>
#include <string>

namespace trellis {

// A colour as 0xrrggbb.
struct ThemeColour {
    std::uint32_t rgb;

    constexpr double Red() const { return static_cast<double>((rgb >> 16) & 0xff) / 255; }
    constexpr double Green() const { return static_cast<double>((rgb >> 8) & 0xff) / 255; }
    constexpr double Blue() const { return static_cast<double>(rgb & 0xff) / 255; }
    // As X resources write it: "#rrggbb".
    std::string Name() const;
    // Brightness as the eye weighs it, 0 black to 1 white.
    double Luminance() const;
    // This colour with a part of the other, 0 none to 1 all.
    ThemeColour Mixed(ThemeColour other, double part) const;
    friend bool operator==(const ThemeColour&, const ThemeColour&) = default;
};

// Theme: colours, distances and the font of all that a person sees on the screen. The colours are fixed; one
// scale makes font and distances larger together.
class Theme {
public:
    static constexpr ThemeColour Background{0xf3f4f6};
    static constexpr ThemeColour Text{0x1f2937};
    static constexpr ThemeColour HeaderText{0x374151};
    static constexpr ThemeColour GreyedText{0x667080};
    static constexpr ThemeColour Field{0xffffff}; // editors, lists, graphs
    static constexpr ThemeColour GreyedField{0xf8f9fa};
    static constexpr ThemeColour Header{0xeceef2};
    static constexpr ThemeColour Rule{0xe5e7eb}; // between rows; the trough of scroll bars
    static constexpr ThemeColour TopShadow{0xd1d5db};
    static constexpr ThemeColour BottomShadow{0x9ca3af};
    static constexpr ThemeColour Accent{0x2563eb}; // focus, the mark of what is selected
    static constexpr ThemeColour Danger{0xb91c1c}; // the mark of an error
    static constexpr ThemeColour Selection{0xdbeafe};
    static constexpr ThemeColour GreyedSelection{0xe5e7eb};

    static constexpr const char* DefaultFamily = "DejaVu Sans";
    static constexpr double DefaultPoints = 10;

    // Points are of 96 to the inch times the scale. What is no sensible number is brought into 6..40 points
    // and a scale of 0.5..4; an unknown family is replaced by the system's own choice when text is drawn.
    explicit Theme(std::string family = DefaultFamily, double points = DefaultPoints, double scale = 1);

    const std::string& FontFamily() const { return _family; }
    double FontPoints() const { return _points; }
    double Scale() const { return _scale; }
    // Height of the font in pixels.
    double FontPixels() const;
    // A distance of the plain theme as it is now: it follows both the font and the scale; at least 1.
    int Pixels(int plain) const;

    // Distances of the plain theme, in pixels.
    static constexpr int RowPadding = 4;  // above and below the text of a row
    static constexpr int CellPadding = 8; // left and right of the text of a cell
    static constexpr int ScrollBar = 12;
    static constexpr int ButtonWidthMargin = 12;
    static constexpr int Indicator = 14;

private:
    std::string _family;
    double _points;
    double _scale;
};

} // namespace trellis
