#include "desktop/binder/Contrast.h"

#include <algorithm>
#include <cmath>

namespace lorvane {
namespace {

constexpr double kReadable = 4.5;
constexpr float kStep = 0.02F;

// A channel's light, as eyes weigh it.
double LightOf(float of) {
  const auto channel = static_cast<double>(of);
  constexpr double kLinearTo = 0.03928;
  constexpr double kSlope = 12.92;
  constexpr double kOffset = 0.055;
  constexpr double kExponent = 2.4;
  return channel <= kLinearTo ? channel / kSlope
                              : std::pow((channel + kOffset) / (1 + kOffset), kExponent);
}

double LuminanceOf(const QColor& colour) {
  constexpr double kRed = 0.2126;
  constexpr double kGreen = 0.7152;
  constexpr double kBlue = 0.0722;
  return kRed * LightOf(colour.redF()) + kGreen * LightOf(colour.greenF()) +
         kBlue * LightOf(colour.blueF());
}

}  // namespace

double ContrastOf(const QColor& colour, const QColor& ground) {
  constexpr double kGlare = 0.05;
  const auto [darker, lighter] = std::minmax({LuminanceOf(colour), LuminanceOf(ground)});
  return (lighter + kGlare) / (darker + kGlare);
}

QColor ReadableOn(const QColor& ground, QColor colour) {
  const bool lighten = ContrastOf(Qt::white, ground) > ContrastOf(Qt::black, ground);
  const float end = lighten ? 1.0F : 0.0F;
  float lightness = colour.lightnessF();
  while (ContrastOf(colour, ground) < kReadable && lightness != end) {
    lightness = std::clamp(lightness + (lighten ? kStep : -kStep), 0.0F, 1.0F);
    colour = QColor::fromHslF(std::max(colour.hslHueF(), 0.0F), colour.hslSaturationF(), lightness);
  }
  return colour;
}

}  // namespace lorvane
