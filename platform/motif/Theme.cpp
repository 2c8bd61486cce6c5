#include "motif/Theme.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>

namespace trellis {

namespace {

// Light that a channel sends out, from its number.
double Light(double channel) {
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double Bounded(double value, double low, double high, double otherwise) {
    return std::isfinite(value) ? std::clamp(value, low, high) : otherwise;
}

std::uint32_t Channel(double value) {
    return static_cast<std::uint32_t>(std::lround(std::clamp(value, 0.0, 1.0) * 255));
}

} // namespace

std::string ThemeColour::Name() const {
    std::array<char, 8> name{};
    std::snprintf(name.data(), name.size(), "#%06x", rgb & 0xffffffU);
    return name.data();
}

double ThemeColour::Luminance() const {
    return 0.2126 * Light(Red()) + 0.7152 * Light(Green()) + 0.0722 * Light(Blue());
}

ThemeColour ThemeColour::Mixed(ThemeColour other, double part) const {
    const auto mix = [part](double own, double strange) {
        return Channel(own * (1 - part) + strange * part);
    };
    return {mix(Red(), other.Red()) << 16 | mix(Green(), other.Green()) << 8 | mix(Blue(), other.Blue())};
}

Theme::Theme(std::string family, double points, double scale)
    : _family(family.empty() ? DefaultFamily : std::move(family)),
      _points(Bounded(points, 6, 40, DefaultPoints)),
      _scale(Bounded(scale, 0.5, 4, 1)) {}

double Theme::FontPixels() const {
    return _points * 96 / 72 * _scale;
}

int Theme::Pixels(int plain) const {
    return std::max(1, static_cast<int>(std::lround(plain * _scale * _points / DefaultPoints)));
}

} // namespace trellis
