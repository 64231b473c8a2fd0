#include "cli/GraphCommand.h"

#include "base/OutputFile.h"
#include "graph/CurveFill.h"
#include "graph/GraphCaption.h"
#include "graph/GraphPicture.h"

#include <algorithm>

namespace TARN {

namespace {

void showFlight(GraphModel& model, const std::shared_ptr<const Flight>& flight,
                const std::vector<const ProfileParameter*>& parameters)
{
    const double offset = flight->record()->offset();
    Progress none;
    nameCurves(model.curves(), parameters);
    for (unsigned k = 0; k < parameters.size(); ++k) {
        fillCurve(model.curves(), k, decodeCurve(flight, *parameters[k], offset, none));
    }
    model.hints().notes = {
        flight, offset,
        std::make_shared<const std::vector<Episode>>(flight->episodes(offset, none))};
}

/// The chosen range, otherwise all of the flight as "Show all" does.
void showRange(GraphModel& model, const Flight& flight, const Range& range)
{
    TimeWindow& window = model.window();
    const TimeRange whole = flight.range(flight.record()->offset());
    window.setWhole(flight.info().startTime, flight.info().stopTime);
    window.showAll();
    if (range.start || range.stop) {
        const TimeRange chosen = {range.start.value_or(whole.start),
                                  range.stop.value_or(whole.stop)};
        if (!chosen.hasExtent()) {
            throw CommandFailure("nothing to draw: the range stops before it starts");
        }
        window.set(chosen.start, chosen.stop);
    }
    model.windowChanged();
}

GraphStyle styleOf(const GraphArguments& arguments)
{
    GraphStyle style = themed({}, arguments.light);
    style.thresholdsOn = arguments.thresholds;
    style.eventsOn = arguments.events;
    style.lanesOn = arguments.lanes;
    style.wordsOn = arguments.words;
    style.cursorOn = arguments.cursor.has_value();
    style.valuesOn = style.cursorOn;
    return style;
}

} // namespace

void runGraph(const GraphArguments& arguments)
{
    const auto flight = loadFlight(arguments.profile, arguments.files);
    const Selection selection = selectionOf(arguments.selection, *flight->profile());
    auto parameters = selection.parameters(*flight->profile());
    parameters.resize(std::min<std::size_t>(parameters.size(), CurveSet::MaxCurves));
    GraphModel model;
    model.curves() = CurveSet(CurveSet::MaxCurves);
    model.setDisplayMode(arguments.single ? DisplaySingle : DisplaySplit);
    showFlight(model, flight, parameters);
    showRange(model, *flight, arguments.range);
    model.setCursorPosition(arguments.cursor.value_or(model.window().min()));
    GraphPicture picture{styleOf(arguments), {}, {arguments.width, arguments.height}, {}};
    if (arguments.caption) {
        picture.caption = captionOf(*flight, {model.window().min(), model.window().max()});
    }
    const QByteArray bytes =
        encodePicture(picture, model, QString::fromStdString(arguments.out), arguments.scale);
    if (bytes.isEmpty()) {
        throw CommandFailure("\"" + arguments.out +
                             "\": no picture of this kind; end the name in .png, .svg or .bmp");
    }
    OutputFile file(QString::fromStdString(arguments.out));
    if (!file.open()) {
        throw CommandFailure("\"" + arguments.out + "\" can't be written; choose another folder");
    }
    file.write(bytes.toStdString());
    if (!file.commit()) {
        throw CommandFailure("\"" + arguments.out +
                             "\" can't be written; the old file is unchanged");
    }
}

} // namespace TARN
