#include "cli/Commands.h"
#include "cli/Json.h"
#include "faults/FaultHistory.h"
#include "profile/Profile.h"
#include "record/Record.h"

#include <ostream>

namespace TARN {

namespace {

Json jsonOf(const std::vector<FaultPoint>& points)
{
    Json list = Json::array();
    for (const FaultPoint& point : points) {
        list.push_back(Json::array({point.time, point.state}));
    }
    return list;
}

Json jsonOf(std::uint32_t word)
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
    Record record;
    loadInputs(arguments.profile, arguments.files, record);
    const double time = arguments.time.value_or(record.recordInfo().startTime);
    for (const FaultMatrix& matrix : Profile::instance()->data().faultMatrices) {
        const FaultHistory history(record.recordData(), matrix);
        const Json line = {{"id", matrix.id},
                           {"name", matrix.name.toStdString()},
                           {"info", jsonOf(history.info())},
                           {"warning", jsonOf(history.warning())},
                           {"fault", jsonOf(history.fault())},
                           {"bits", jsonOf(history.bitsAt(time))}};
        out << line.dump() << '\n';
    }
}

} // namespace TARN
