#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace TARN {

/// A shade for each position of a path, and the greatest one of 16, 64, 256 ... that follow each
/// other. What a shade means is its owner's.
class TrackShades
{
public:
    static constexpr std::size_t Leaf = 16; ///< positions in the smallest node
    static constexpr std::size_t Fan = 4;   ///< nodes in one of the next level

    /// All positions have shade 0.
    TrackShades() = default;
    explicit TrackShades(std::vector<std::uint8_t> shades);

    std::uint8_t at(std::size_t k) const { return mShades.empty() ? 0 : mShades[k]; }
    std::uint8_t greatest(std::size_t level, std::size_t node) const
    {
        return mShades.empty() ? 0 : mGreatest[level][node];
    }
    /// Whether all positions of a node have the same.
    bool isUniform(std::size_t level, std::size_t node) const
    {
        return mShades.empty() || mGreatest[level][node] == mLeast[level][node];
    }

    /// Positions in a node of a level.
    static std::size_t width(std::size_t level)
    {
        std::size_t positions = Leaf;
        for (; level > 0; --level) {
            positions *= Fan;
        }
        return positions;
    }

private:
    using Levels = std::vector<std::vector<std::uint8_t>>;

    template <typename Pick>
    Levels levelsOf(Pick pick) const;

    std::vector<std::uint8_t> mShades;
    Levels mGreatest;
    Levels mLeast;
};

} // namespace TARN
