#include "cli/CompareCommand.h"

#include "cli/ExportRun.h"
#include "cli/StatsJson.h"
#include "flight/Comparison.h"

#include <algorithm>
#include <ostream>

namespace TARN {

namespace {

ComparisonIndex comparisonOf(const ExportInput& input, const ExportReference& reference,
                             const ProfileParameter& parameter)
{
    Progress none;
    return {std::make_shared<StatisticsIndex>(input.flight, parameter, input.offset, none),
            std::make_shared<StatisticsIndex>(reference.flight, parameter, reference.offset, none),
            reference.shift, none};
}

Json comparisonLine(const Profile::Entry& entry, double shift, const Comparison& found)
{
    const auto& [device, parameter] = entry;
    return {{"device", device->name.toStdString()},
            {"parameter", parameter->name.toStdString()},
            {"shift", shift},
            {"flight", statisticsLine(*device, *parameter, found.flight)},
            {"reference", statisticsLine(*device, *parameter, found.reference)},
            {"difference", differenceOf(found.difference)}};
}

} // namespace

void runCompare(const CompareArguments& arguments, std::ostream& out)
{
    const ExportInput input = inputOf(arguments.profile, arguments.files, arguments.selection);
    const ExportReference reference = referenceOf(arguments.reference, *input.flight, input.offset);
    TimeRange range = commonTimeOf(input.flight->range(input.offset), reference);
    range.start = std::max(range.start, arguments.range.start.value_or(range.start));
    range.stop = std::min(range.stop, arguments.range.stop.value_or(range.stop));
    for (const Profile::Entry& entry : input.flight->profile()->parameters()) {
        if (input.selection.contains(*entry.parameter)) {
            const ComparisonIndex index = comparisonOf(input, reference, *entry.parameter);
            out << comparisonLine(entry, reference.shift, index.range(range)).dump() << '\n';
        }
    }
}

} // namespace TARN
