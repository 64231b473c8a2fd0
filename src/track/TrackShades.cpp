#include "track/TrackShades.h"

#include <algorithm>

namespace TARN {

TrackShades::TrackShades(std::vector<std::uint8_t> shades) : mShades(std::move(shades))
{
    mGreatest = levelsOf([](auto from, auto to) { return *std::max_element(from, to); });
    mLeast = levelsOf([](auto from, auto to) { return *std::min_element(from, to); });
}

template <typename Pick>
TrackShades::Levels TrackShades::levelsOf(Pick pick) const
{
    Levels levels;
    const std::vector<std::uint8_t>* below = &mShades;
    for (std::size_t fan = Leaf; below->size() > 1 || levels.empty(); fan = Fan) {
        std::vector<std::uint8_t> level;
        level.reserve((below->size() + fan - 1) / fan);
        for (std::size_t k = 0; k < below->size(); k += fan) {
            const auto first = below->begin() + static_cast<std::ptrdiff_t>(k);
            const std::size_t count = std::min(fan, below->size() - k);
            level.push_back(pick(first, first + static_cast<std::ptrdiff_t>(count)));
        }
        levels.push_back(std::move(level));
        below = &levels.back();
    }
    return levels;
}

} // namespace TARN
