/// Any samples and any window in the graph: its columns are those that a plain walk over the
/// samples gives, and whatever it draws lies on the screen.

#include "fuzz/Fuzz.h"
#include "graph/CurveDifference.h"
#include "graph/LiveFeed.h"
#include "support/GraphPaint.h"
#include "support/PlainCurve.h"

#include <QtGui/QGuiApplication>

#include <limits>

using namespace TARN;
using Fuzz::require;

namespace {

constexpr unsigned Curve = 1;
constexpr QSizeF Size(800.0, 600.0);

double takeValue(Fuzz::Input& input)
{
    using Limits = std::numeric_limits<double>;
    constexpr double Special[] = {0.0,       -0.0,          Limits::quiet_NaN(),  INFINITY,
                                  -INFINITY, Limits::max(), Limits::denorm_min(), 1e38};
    const auto byte = input.take<std::uint8_t>();
    return byte < 8 ? Special[byte] : byte < 16 ? input.take<float>() : byte;
}

/// Steps of times with their values; a step may be backwards, and stand for a run of up to 255.
PlainCurve takeSamples(Fuzz::Input& input)
{
    constexpr std::size_t Most = 20000;
    constexpr double Units[] = {31.25e-9, 0.001, 0.1, 134.217728};
    PlainCurve samples;
    double time = input.take<float>();
    time = std::isfinite(time) ? time : 0.0;
    while (!input.rest().empty() && samples.size() < Most) {
        const auto kind = input.take<std::uint8_t>();
        const double step = input.take<std::int8_t>() * Units[kind & 3];
        const int run = (kind & 4) != 0 ? input.take<std::uint8_t>() : 1;
        const double value = takeValue(input);
        for (int i = 0; i < run; ++i) {
            time += step;
            samples.times.push_back(time);
            samples.values.push_back((kind & 8) != 0 ? value + i % 7 : value);
        }
    }
    return samples;
}

void checkFrames(GraphModel& model, const PlainCurve& plain, const GapRule& gaps)
{
    const GraphView& view = model.layout().view();
    const auto expected = plain.frames({view.xmin, view.xmax, view.pixelTime()}, gaps);
    require(std::ranges::equal(model.layout().frames(Curve), expected, PlainCurve::isSame));
}

/// Curves, which are clipped, may go on beyond the widget, everything else lies in it.
void paint(GraphModel& model)
{
    const GraphPaint paint(model, Size, {}, {0.5, true, Curve, model.cursor()});
    const QRectF widget(QPointF(), Size);
    for (const GraphPaint::Shape& shape : paint.shapes) {
        require(widget.contains(shape.clip.adjusted(1, 1, -1, -1)) || shape.clip.isNull());
        const float far = shape.clip.isNull() ? 0.0F : 1e5F;
        require(std::ranges::all_of(shape.points, [&](float pixel) {
            return pixel >= -far && pixel <= std::max(far, 800.5F);
        }));
    }
    for (const TextLayout::Text& text : paint.texts.texts()) {
        require(widget.contains(text.box));
    }
}

/// With itself a curve has no difference but 0; with itself shifted all is drawn on the screen.
void compare(GraphModel& model, const std::shared_ptr<const CurveSamples>& series, double shift)
{
    Progress none;
    const auto same = differenceOf(*series, *series, Between::Line, 0.0, none);
    for (std::size_t k = 0; k < same->size(); ++k) {
        require(same->value(k) == 0.0 || std::isnan(same->value(k)));
    }
    ParStruct& curve = *model.curves().curve(Curve);
    curve.reference.samples = series;
    curve.difference.samples = differenceOf(*series, *series, Between::Line, shift, none);
    model.layout().setReference(shift, true);
    paint(model);
    model.setDisplayMode(model.layout().displayMode() == DisplaySplit ? DisplaySingle
                                                                      : DisplaySplit);
    paint(model);
}

/// Fonts without a display.
void startFonts()
{
    static int argc = 1;
    static char name[] = "fuzz";
    static char* argv[] = {name, nullptr};
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static const QGuiApplication application(argc, argv);
}

} // namespace

/// Modes, window, then samples.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    startFonts();
    Fuzz::Input input({data, size});
    GraphModel model;
    const auto modes = input.take<std::uint8_t>();
    model.setGraphMode((modes & 1) != 0 ? GraphAutomatic : GraphManual);
    model.setDisplayMode((modes & 2) != 0 ? DisplaySplit : DisplaySingle);
    model.setCursorMode((modes & 4) != 0 ? CursorCenter : CursorFloating);
    model.layout().setAutoScaleY((modes & 8) != 0);
    const double from = input.take<float>();
    const double width = input.take<float>();
    const double yMin = input.take<float>();
    const double yMax = input.take<float>();
    const PlainCurve fed = takeSamples(input);

    PlainCurve plain;
    LiveFeed feed(model); // sample by sample comes to the same as all at once
    model.curves().curve(Curve)->active = true;
    model.layout().setSize(Size.width(), Size.height());
    for (std::size_t k = 0; k < fed.size(); ++k) {
        plain.put(fed.times[k], fed.values[k]);
        feed.setTime(fed.times[k]);
        feed.putValue(Curve, fed.values[k]);
    }
    model.windowChanged();
    checkFrames(model, plain, {});
    const GapRule gaps = (modes & 16) != 0 ? GapRule({0.01}, nullptr) : GapRule();
    auto series = std::make_shared<CurveSamples>();
    require(series->putSeries(fed.times, fed.values) == fed.size() - plain.size());
    series->setGapRule(gaps);
    model.curves().setSeries(Curve, series);
    model.curves().curve(Curve)->showSamples = (modes & 32) != 0;
    checkFrames(model, plain, gaps);
    model.window().shiftTo(from);
    model.window().setWidth(width, model.graphMode() == GraphAutomatic);
    model.windowChanged();
    model.layout().setValues(yMin, yMax);
    checkFrames(model, plain, gaps);
    paint(model);
    model.setCursorPosition(from + width);
    model.window().zoomAbout(from, width);
    model.windowChanged();
    model.setMarker(from, from + width);
    paint(model);
    model.zoomToMarker();
    paint(model);
    checkFrames(model, plain, gaps);
    compare(model, series, from);
    return 0;
}
