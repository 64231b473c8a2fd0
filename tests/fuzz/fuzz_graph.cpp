/// Any samples and any window in the graph: its columns are those that a plain walk over the
/// samples gives, and whatever it would draw lies on the screen.

#include "display/GraphLine.h"
#include "display/GraphModel.h"
#include "display/GraphScale.h"
#include "fuzz/Fuzz.h"

#include <cmath>
#include <limits>

using namespace TARN;

namespace {

constexpr unsigned Curve = 1;

struct Samples
{
    std::vector<double> times;
    std::vector<double> values;

    void add(double time, double value)
    {
        times.push_back(time);
        values.push_back(value);
    }
};

double takeValue(Fuzz::Input& input)
{
    constexpr double Special[] = {0.0,
                                  -0.0,
                                  std::numeric_limits<double>::quiet_NaN(),
                                  std::numeric_limits<double>::infinity(),
                                  -std::numeric_limits<double>::infinity(),
                                  std::numeric_limits<double>::max(),
                                  std::numeric_limits<double>::denorm_min(),
                                  1e38};
    const auto byte = input.take<std::uint8_t>();
    return byte < 8 ? Special[byte] : byte < 16 ? input.take<float>() : byte;
}

/// Steps of times with their values; a step may be backwards, and stand for a run of up to 255.
Samples takeSamples(Fuzz::Input& input)
{
    constexpr std::size_t Most = 20000;
    constexpr double Units[] = {31.25e-9, 0.001, 0.1, 134.217728};
    Samples samples;
    double time = input.take<float>();
    time = std::isfinite(time) ? time : 0.0;
    while (!input.rest().empty() && samples.times.size() < Most) {
        const auto kind = input.take<std::uint8_t>();
        const double step = input.take<std::int8_t>() * Units[kind & 3];
        const int run = (kind & 4) != 0 ? input.take<std::uint8_t>() : 1;
        const double value = takeValue(input);
        for (int i = 0; i < run; ++i) {
            time += step;
            samples.add(time, (kind & 8) != 0 ? value + i % 7 : value);
        }
    }
    return samples;
}

bool sameNumber(double a, double b)
{
    return a == b || (std::isnan(a) && std::isnan(b));
}

/// The samples [begin, end) of a curve as one column.
FrameType plainFrame(const CurveBuffer& buffer, std::size_t begin, std::size_t end)
{
    FrameType frame;
    frame.time = buffer.time(begin);
    frame.state = static_cast<std::int32_t>(std::min<std::size_t>(end - begin, 4));
    frame.first = buffer.value(begin);
    if (frame.state < 4) {
        frame.low = frame.state > 1 ? buffer.value(begin + 1) : 0.0;
        frame.high = frame.state > 2 ? buffer.value(begin + 2) : 0.0;
        return frame;
    }
    frame.low = frame.high = buffer.value(begin + 1);
    for (std::size_t k = begin + 2; k < end; ++k) {
        frame.low = std::fmin(frame.low, buffer.value(k));
        frame.high = std::fmax(frame.high, buffer.value(k));
    }
    frame.last = buffer.value(end - 1);
    return frame;
}

/// The columns of a window, found sample by sample.
std::vector<FrameType> plainFrames(const CurveBuffer& buffer, const GraphView& view)
{
    std::size_t begin = 0;
    while (begin < buffer.size() && !(buffer.time(begin) >= view.xmin)) {
        ++begin;
    }
    begin = begin > 1 ? begin - 1 : begin;
    std::vector<FrameType> frames;
    std::size_t end = begin;
    while (end < buffer.size() && !(buffer.time(end) >= view.xmax)) {
        ++end;
    }
    end = std::min(end + 1, buffer.size());
    while (begin < end) {
        std::size_t next = begin + 1;
        while (next < end && buffer.time(next) - buffer.time(begin) <= view.pixelTime()) {
            ++next;
        }
        frames.push_back(plainFrame(buffer, begin, next));
        begin = next;
    }
    return frames;
}

bool isSame(const FrameType& a, const FrameType& b)
{
    return a.state == b.state && a.time == b.time && sameNumber(a.first, b.first) &&
           (a.state < 2 || sameNumber(a.low, b.low)) &&
           (a.state < 3 || sameNumber(a.high, b.high)) &&
           (a.state < 4 || sameNumber(a.last, b.last));
}

void checkFrames(GraphModel& model)
{
    const auto frames = model.frames(Curve);
    Fuzz::require(
        std::ranges::equal(frames, plainFrames(model.curve(Curve)->buffer, model.view()), isSame),
        "columns show every sample");
}

void checkTicks(double min, double max, double length)
{
    const GraphTicks ticks(min, max, length, 40.0);
    double before = min;
    for (const GraphTick& tick : ticks.ticks) {
        Fuzz::require(tick.value >= before && tick.value <= max, "ticks ascend on their axis");
        before = tick.value;
        if (tick.major) {
            Fuzz::require(timeLabel(tick.value, ticks.step).size() < 40 &&
                              valueLabel(tick.value, ticks.step).size() < 40,
                          "labels are short");
        }
    }
    Fuzz::require(ticks.ticks.size() < 10000, "ticks keep apart");
}

void checkLine(const ParStruct& curve, const GraphView& view)
{
    GraphLine line;
    line.buildSamples(curve, view);
    for (const float pixel : line.points()) {
        Fuzz::require(std::fabs(pixel) <= 1e5F, "samples are drawn near the screen");
    }
    line.buildLine(curve, view);
    for (const float pixel : line.points()) {
        Fuzz::require(std::fabs(pixel) <= 1e5F, "lines are drawn near the screen");
    }
    int next = 0;
    for (const GraphLine::Strip& strip : line.strips()) {
        Fuzz::require(strip.first == next && strip.count > 0, "strips follow each other");
        next += strip.count;
    }
    Fuzz::require(static_cast<std::size_t>(next) * 2 == line.points().size(),
                  "every point is in a strip");
}

/// The steps of a paint, as the widget takes them.
void paint(GraphModel& model)
{
    model.setSize(800.0, 600.0);
    model.calcFrame();
    model.layoutStrips();
    const GraphView& view = model.view();
    checkTicks(view.xmin, view.xmax, view.width);
    for (ParStruct& curve : model.curves()) {
        if (curve.active) {
            model.updateVisible(curve);
            checkTicks(curve.rangeMin, curve.rangeMax, curve.viewportHeight);
            checkLine(curve, view);
        }
    }
    checkTicks(view.ymin, view.ymax, view.height);
    model.finishPaint(100.0);
}

} // namespace

/// Modes, window, then samples.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Fuzz::Input input({data, size});
    GraphModel model;
    const auto modes = input.take<std::uint8_t>();
    model.setGraphMode((modes & 1) != 0 ? GraphAutomatic : GraphManual);
    model.setDisplayMode((modes & 2) != 0 ? DisplaySplit : DisplaySingle);
    model.setCursorMode((modes & 4) != 0 ? CursorCenter : CursorFloating);
    model.setAutoScaleY((modes & 8) != 0);
    const double from = input.take<float>();
    const double width = input.take<float>();
    const double yMin = input.take<float>();
    const double yMax = input.take<float>();
    const Samples samples = takeSamples(input);

    model.setActive(Curve, true);
    model.putSeries(Curve, samples.times, samples.values);
    model.setSize(800.0, 600.0);
    checkFrames(model);
    model.setXmin(from);
    model.setXrange(width);
    model.setYmin(yMin);
    model.setYmax(yMax);
    checkFrames(model);
    paint(model);
    model.setCursorPosition(from + width);
    model.zoomAbout(from, width);
    model.setMarker(from, from + width);
    paint(model);
    model.zoomToMarker();
    checkFrames(model);
    paint(model);
    double value = 0.0;
    model.getValue(Curve, from, value);

    // Sample by sample comes to the same as all at once.
    GraphModel single;
    single.setActive(Curve, true);
    for (std::size_t k = 0; k < samples.times.size(); ++k) {
        single.setTime(samples.times[k]);
        single.putValue(Curve, samples.values[k]);
    }
    single.setGraphMode(GraphManual);
    single.setSize(800.0, 600.0);
    single.setWindow(model.view().xmin, model.view().xmax);
    checkFrames(single);
    return 0;
}
