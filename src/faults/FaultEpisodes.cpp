#include "faults/FaultEpisodes.h"

#include <algorithm>

namespace TARN {

namespace {

int stateOf(int errorType)
{
    return errorType == ErrorFault     ? StateLimit
           : errorType == ErrorWarning ? StateWarning
                                       : StateOk;
}

/// Of one error.
void findIn(const FaultHistory& history, int bit, const ProfileParameter& error, double offset,
            std::vector<Episode>& episodes)
{
    Episode* open = nullptr;
    for (const FaultRun& run : history.runs()) {
        if ((run.bits >> bit & 1U) == 0) {
            open = nullptr;
            continue;
        }
        if (open == nullptr) {
            open = &episodes.emplace_back();
            open->name = error.name;
            open->state = stateOf(error.errorType);
            open->color = errorColor(error.errorType);
            open->shift = history.shift(offset);
            open->start = run.start + open->shift;
        }
        open->end = run.stop + open->shift;
    }
}

} // namespace

std::vector<Episode> faultEpisodes(const std::vector<FaultHistory>& histories, double offset)
{
    std::vector<Episode> episodes;
    for (const FaultHistory& history : histories) {
        for (const auto& [bit, error] : history.matrix().parameters) {
            const std::size_t before = episodes.size();
            findIn(history, bit, error, offset, episodes);
            for (std::size_t k = before; k < episodes.size(); ++k) {
                episodes[k].matrix = static_cast<std::size_t>(&history - histories.data());
            }
        }
    }
    std::ranges::stable_sort(episodes, {}, &Episode::start);
    return episodes;
}

} // namespace TARN
