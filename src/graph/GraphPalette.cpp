#include "graph/GraphPalette.h"

#include <cmath>
#include <cstdint>
#include <iterator>

namespace TARN {

namespace {

// The last 24 were chosen one by one, each as far as could be from all before it for eyes that
// see all colours, for those that do not see red and for those that do not see green. The last 16
// then stand in an order that keeps neighbours apart: related parameters are picked together.
constexpr std::uint32_t Colors[] = {0xff0000, 0x00ff00, 0x8080ff, 0xffff00, 0x00ffff, 0xff00ff,
                                    0xff0078, 0xc8ffa0, 0xe600a0, 0x00ffc8, 0x00c850, 0x28a0c8,
                                    0xe6ff78, 0xe6a0ff, 0x5078c8, 0x50ffe6, 0x787878, 0xa0e6a0,
                                    0xc8a078, 0xc8e650, 0x00c8a0, 0x5078a0, 0xe62850, 0xe6a050,
                                    0xc878a0, 0x50c8c8, 0xa0c828, 0xffc878, 0x787850, 0x00a000};

constexpr float part(std::uint32_t color, int shift)
{
    return static_cast<float>(color >> shift & 0xFF) / 255.0F;
}

double linear(double part)
{
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

double luminance(const GraphColor& color)
{
    return 0.2126 * linear(color.red) + 0.7152 * linear(color.green) + 0.0722 * linear(color.blue);
}

GraphColor mixed(const GraphColor& from, const GraphColor& to, float share)
{
    return {from.red + (to.red - from.red) * share, from.green + (to.green - from.green) * share,
            from.blue + (to.blue - from.blue) * share};
}

} // namespace

GraphColor curveColor(unsigned k)
{
    if (k >= std::size(Colors)) {
        return {};
    }
    if (k == 2) {
        return {0.5F, 0.5F, 1.0F};
    }
    return {part(Colors[k], 16), part(Colors[k], 8), part(Colors[k], 0)};
}

double contrastOf(const GraphColor& a, const GraphColor& b)
{
    const double first = luminance(a) + 0.05;
    const double second = luminance(b) + 0.05;
    return first > second ? first / second : second / first;
}

GraphColor legibleOn(const GraphColor& background, const GraphColor& color)
{
    constexpr int Steps = 20;
    constexpr GraphColor Black{0.0F, 0.0F, 0.0F};
    constexpr GraphColor White{1.0F, 1.0F, 1.0F};
    const bool isBright = contrastOf(background, Black) > contrastOf(background, White);
    for (int step = 0; step < Steps; ++step) {
        const GraphColor tried =
            mixed(color, isBright ? Black : White, static_cast<float>(step) / Steps);
        if (contrastOf(background, tried) >= LegibleContrast) {
            return tried;
        }
    }
    return isBright ? Black : White;
}

} // namespace TARN
