#include "cli/FaultsCommand.h"

#include "cli/Inputs.h"
#include "cli/Json.h"

#include <ostream>

namespace TARN {

namespace {

Json listOf(const std::vector<FaultPoint>& points)
{
    Json list = Json::array();
    for (const FaultPoint& point : points) {
        list.push_back(Json::array({point.time, point.state}));
    }
    return list;
}

Json bitsOf(std::uint32_t word)
{
    Json bits = Json::array();
    for (int bit = 0; bit < 32; ++bit) {
        if ((word >> bit & 1U) != 0) {
            bits.push_back(bit);
        }
    }
    return bits;
}

} // namespace

void runFaults(const FaultsArguments& arguments, std::ostream& out)
{
    const auto flight = loadFlight(arguments.profile, arguments.files);
    const double time = arguments.time.value_or(flight->info().startTime);
    for (const FaultHistory& history : flight->faults()) {
        const Json line = {{"id", history.matrix().id},
                           {"name", history.matrix().name.toStdString()},
                           {"info", listOf(history.points(ErrorInfo))},
                           {"warning", listOf(history.points(ErrorWarning))},
                           {"fault", listOf(history.points(ErrorFault))},
                           {"bits", bitsOf(history.bitsAt(time))}};
        out << line.dump() << '\n';
    }
}

} // namespace TARN
