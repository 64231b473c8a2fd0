#include "graph/CurveDifference.h"
#include "graph/CurveText.h"
#include "graph/GraphData.h"
#include "graph/GraphPalette.h"
#include "graph/LiveFeed.h"
#include "graph/PainterCanvas.h"
#include "support/FlightTest.h"
#include "support/GraphPaint.h"
#include "support/PlainCurve.h"

#include <QtGui/QGuiApplication>
#include <QtGui/QPainter>
#include <QtGui/QPalette>
#include <QtTest/QSignalSpy>

using namespace TARN;

namespace {

constexpr double None = std::numeric_limits<double>::quiet_NaN();
constexpr double LineHeight = 14.0;

double widthOf(const QString& text)
{
    return 7.0 * static_cast<double>(text.size());
}

struct FedModel : GraphModel
{
    LiveFeed feed{*this};
};

std::shared_ptr<const CurveSamples> seriesOf(const std::vector<double>& times,
                                             const std::vector<double>& values)
{
    auto samples = std::make_shared<CurveSamples>();
    samples->putSeries(times, values);
    samples->setGapRule({{1.0}, nullptr});
    return samples;
}

/// How far two colours are apart for an eye (in CIE L*a*b*; 2.3 is just to be seen): one that sees
/// all colours (0), no red (1) or no green (2), after Vienot, Brettel and Mollon, 1999.
double apart(const GraphColor& one, const GraphColor& other, int eye)
{
    constexpr double Eyes[][2] = {{1.0, 0.0}, {0.11238, 0.00401}, {0.29275, -0.02234}};
    const auto seen = [&](const GraphColor& color) {
        const auto linear = [](double part) { return std::pow((part + 0.055) / 1.055, 2.4); };
        const auto f = [](double t) { return t > 0.008856 ? std::cbrt(t) : 7.787 * t + 0.1379; };
        const double green = linear(color.green);
        const double difference = linear(color.red) - green;
        const double r = green + Eyes[eye][0] * difference;
        const double g = eye == 0 ? green : r;
        const double b = linear(color.blue) + Eyes[eye][1] * difference;
        const double y = f(0.2126 * r + 0.7152 * g + 0.0722 * b);
        return std::array{116 * y, 500 * (f(0.4339 * r + 0.3762 * g + 0.1899 * b) - y),
                          200 * (y - f(0.0177 * r + 0.1095 * g + 0.8728 * b))};
    };
    const auto [l, a, b] = seen(one);
    const auto [l2, a2, b2] = seen(other);
    return std::hypot(l - l2, a - a2, b - b2);
}

} // namespace

class TestGraph : public FlightTest
{
    Q_OBJECT

public:
    static void initMain() { qputenv("QT_QPA_PLATFORM", "offscreen"); }

private Q_SLOTS:
    void tickRule()
    {
        const std::tuple<float, float, float, float, int, QString> rows[] = {
            {100.0F, 500.0F, 50.0F, 10.0F, 5, "%.0f"}, {150.0F, 500.0F, 50.0F, 20.0F, 4, "%.0f"},
            {4.0F, 500.0F, 50.0F, 0.5F, 5, "%.1f"},    {7.0F, 500.0F, 50.0F, 1.0F, 5, "%.1f"},
            {1.0F, 500.0F, 50.0F, 0.1F, 5, "%.2f"},    {3e4F, 500.0F, 50.0F, 5000.0F, 5, "%.0f"},
            {10.0F, 50.0F, 50.0F, 10.0F, 5, "%.0f"},   {10.0F, 20.0F, 25.0F, -1.0F, 7, ""},
            {10.0F, 500.0F, 50.0F, 2.0F, 4, "%.1f"}};
        for (const auto& [range, length, spacing, expected, expectedParts, expectedFormat] : rows) {
            float step = 0.0F;
            int parts = 7;
            QString format;
            getAutoPara(32.0F, 32.0F + range, length, spacing, &step, &parts);
            QCOMPARE(step, expected);
            QCOMPARE(parts, expectedParts);
            if (step > 0.0F) {
                getAutoFormat(step, format);
            }
            QCOMPARE(format, expectedFormat);
        }
        double state = 1.0;
        pt1(3.0F, 1.0F, 5.0F, &state); // a step counts as 1 at most
        QCOMPARE(state, 2.0);
    }

    void timesHaveRoundSteps()
    {
        const std::pair<double, double> rows[] = {
            {0.011, 0.001}, {0.7, 0.05},   {1.4, 0.1},   {7, 0.5},     {8, 1},       {14.5, 2},
            {60, 5},        {100, 10},     {200, 15},    {400, 30},    {800, 60},    {3600, 300},
            {9000, 900},    {30000, 3600}, {2e5, 21600}, {1e6, 86400}, {2e6, 172800}};
        for (const auto& [extent, step] : rows) {
            for (const double min : {-0.75 * extent, 86399.9}) {
                const auto axis = GraphTicks::ofTimes(min, min + extent, 1000.0, 70.0);
                QCOMPARE(axis.step, step);
                double next = std::ceil(min / step);
                for (const GraphTick& tick : axis.ticks) {
                    QVERIFY(tick.value >= min && tick.value <= min + extent);
                    QVERIFY(!tick.major || std::fabs(tick.value / step - next) < 1e-6);
                    next += tick.major;
                }
                QCOMPARE(next, std::floor((min + extent) / step) + 1.0);
            }
        }
        QCOMPARE(GraphTicks::ofTimes(0.0, 150.0, 1000.0, 100.0).step, 15.0); // just wide enough
        for (const double max : {5.0, double(INFINITY), None}) {
            QVERIFY(GraphTicks::ofTimes(5.0, max, 100.0, 25.0).ticks.empty());
            QVERIFY(GraphTicks::ofValues(5.0, max, 100.0, 25.0).ticks.empty());
        }
        QVERIFY(GraphTicks::ofValues(1e12, 1e12 + 0.05, 100.0, 25.0).ticks.empty());
        QCOMPARE(ValueAxis::ofPlot({0.0, 150.0, 0.0, 100.0}).labels.size(), 6U);
    }

    void labels()
    {
        const QStringList texts = {
            timeLabel(86400.05, 0.05),  timeLabel(-10.0, 10.0),   timeLabel(3599.9999999, 1.0),
            timeLabel(3725.0, 5.0),     timeLabel(0.001, 0.001),  valueLabel(-1e-18, 0.5),
            valueLabel(20.0, 10.0),     valueLabel(1.2e15, 1e14), rangeLabel(-0.001, 10.0),
            rangeLabel(1234.5678, 0.5), rangeLabel(4.5, 1000.0),  rangeLabel(2345678901.0, 10.0),
            rangeLabel(1.0, INFINITY),  rangeLabel(None, 10.0),   rangeLabel(7.25, 0.0)};
        QCOMPARE(texts,
                 QStringList({"24:00:00.05", "", "1:00:00", "1:02:05", "0:00:00.001", "0.0", "20",
                              "1.2e+15", "0.0", "1234.568", "5", "2.346e+09", "1", "nan", "7.25"}));
    }

    /// Two numbers at least stand beside each strip, in it, apart, each where its value is.
    void stripsHaveNumbers()
    {
        std::mt19937 random(23);
        for (int round = 0; round < 1000; ++round) {
            const double min = (pick(random, 2000) - 1000) * std::pow(10.0, pick(random, 9) - 5);
            const double extent =
                1e-5 * std::fabs(min) + std::pow(10.0, pick(random, 900) / 100.0 - 4);
            const GraphStrip strip{40.0, 8.0 + pick(random, 200), min, min + extent};
            auto labels = ValueAxis::ofStrip(strip, LineHeight).labels;
            const double bottom = strip.y0 + LineHeight / 2.0;
            const double top = strip.y0 + strip.height - LineHeight / 2.0;
            if (top < bottom + LineHeight) { // both in one line
                QCOMPARE(labels.size(), 1U);
                QCOMPARE(labels[0].y, strip.y0 + strip.height / 2.0);
                const QStringList ends = labels[0].text.split(" … ");
                labels = {{bottom, ends[0]}, {std::max(top, bottom + LineHeight), ends.value(1)}};
            } else {
                QVERIFY(labels.back().y <= top + 1e-9);
            }
            QVERIFY(labels.size() >= 2 && labels[0].y >= bottom - 1e-9);
            for (std::size_t k = 0; k < labels.size(); ++k) {
                QVERIFY(k == 0 || labels[k].y - labels[k - 1].y >= LineHeight - 1e-9);
                const double value = labels[k].text.toDouble();
                QVERIFY(std::fabs(strip.toPixel(value) - labels[k].y) <= LineHeight);
                QVERIFY(std::fabs(strip.toValue(strip.toPixel(value)) - value) <= 1e-6 * extent);
            }
        }
        QCOMPARE(ValueAxis::ofPlot({40.0, 300.0, 0.0, 9.0}).labels.front().y, 40.0);
        QCOMPARE(ValueAxis::ofStrip({0.0, 20.0, 1.5, 3.0}, LineHeight).labels[0].text, "1.5 … 3.0");
    }

    /// Heights count from below; what is clipped is not there.
    void painterCanvas()
    {
        QImage image(8, 8, QImage::Format_RGB32);
        image.fill(Qt::black);
        QPainter painter(&image);
        PainterCanvas canvas(painter, 8.0);
        const GraphColor white = GraphColor::of(Qt::white);
        const float middle[] = {4.0F, 4.0F};
        canvas.lines({0.0F, 7.5F, 8.0F, 7.5F, 0.5F, 0.0F, 0.5F, 8.0F}, white);
        canvas.dotted({2.0F, 5.5F, 8.0F, 5.5F}, white);
        canvas.dots(middle, 1, white, 2.0F);
        canvas.clip(2.0, 0.0, 3.0, 2.0);
        canvas.fill(0.0, 1.0, 8.0, 8.0, white, 1.0F);
        canvas.clipNone();
        canvas.fill(6.0, 0.0, 8.0, 1.0, white, 1.0F);
        painter.end();
        QString rows;
        for (int y = 0; y < 8; ++y) {
            for (int x = 0; x < 8; ++x) {
                rows += qGray(image.pixel(x, y)) > 128 ? '#' : '.';
            }
            rows += ' ';
        }
        QCOMPARE(rows, "######## #....... #.#.#.#. #..##... #..##... #....... #.###... #.....## ");
    }

    void colorsAreToldApart()
    {
        for (const auto ground : {Qt::black, Qt::white}) {
            QGuiApplication::setPalette(QPalette(ground));
            QCOMPARE(isLight(GraphTheme::Desktop), ground == Qt::white);
            QVERIFY(isLight(GraphTheme::Light) && !isLight(GraphTheme::Dark));
        }
        constexpr unsigned Given = 6; // that were not ours to choose
        const auto grey = [](int part) { return GraphColor::of(QColor(part, part, part)); };
        for (unsigned i = 0; i < CurveSet::MaxCurves; ++i) {
            const GraphColor color = curveColor(i);
            QVERIFY(contrastOf(color, grey(0)) >= LegibleContrast);
            for (unsigned k = 0; k < 3 * i; ++k) {
                QVERIFY(apart(color, curveColor(k / 3), int(k % 3)) > (i < Given ? 5.0 : 10.0));
            }
            for (const int back : {0, 60, 115, 120, 187, 255}) {
                const GraphColor legible = legibleOn(grey(back), color);
                const double contrast = contrastOf(legible, grey(back));
                QVERIFY(legible == color || contrastOf(color, grey(back)) < LegibleContrast);
                QVERIFY(contrast >= LegibleContrast && (legible == color || contrast < 6.0));
                const float limit = back < 118 ? 1.0F : 0.0F; // on the way to white or black
                const auto [low, high] = std::minmax(color.blue, limit);
                QVERIFY(legible.blue >= low && legible.blue <= high);
            }
        }
        QCOMPARE(std::round(100 * contrastOf(grey(119), grey(255))), 448.0);
        QCOMPARE(std::round(100 * contrastOf(grey(255), grey(0))), 2100.0);
    }

    void windowOfTime()
    {
        const std::tuple<std::function<void(TimeWindow&)>, double, double> rows[] = {
            {[](auto& w) { w.set(None, 5.0); }, 100, 200},
            {[](auto& w) { w.shiftTo(30.0); }, 30, 130},
            {[](auto& w) { w.centreOn(300.0); }, 250, 350},
            {[](auto& w) { w.zoomAbout(120.0, 0.5); }, 110, 160},
            {[](auto& w) { w.zoomAbout(None, 0.5); }, 100, 200},
            {[](auto& w) { w.zoomAbout(120.0, 1e-9); }, 100, 200},
            {[](auto& w) { w.zoomAbout(120.0, 1e8); }, 100, 200},
            {[](auto& w) { w.follow(150.0); }, 100, 200},
            {[](auto& w) { w.follow(105.0); }, 95, 195},
            {[](auto& w) { w.follow(195.0); }, 105, 205},
            {[](auto& w) { w.keepInside(105.0); }, 100, 200},
            {[](auto& w) { w.keepInside(200.0); }, 100, 200},
            {[](auto& w) { w.keepInside(50.0); }, 40, 140},
            {[](auto& w) { w.keepInside(250.0); }, 160, 260},
            {[](auto& w) { QVERIFY(!w.back() && !w.forth()); }, 100, 200}};
        for (const auto& [step, min, max] : rows) {
            TimeWindow window;
            window.set(100.0, 200.0);
            step(window);
            QCOMPARE(std::pair(window.min(), window.max()), std::pair(min, max));
        }
        TimeWindow window;
        for (int k = 0; k < 150; ++k) {
            window.remember();
            window.shiftTo(k);
        }
        QVERIFY(window.back() && window.back() && window.min() == 147.0);
        QVERIFY(window.forth() && window.min() == 148.0);
        window.remember(); // from here there is no way forth
        QVERIFY(!window.forth());
        int steps = 0;
        for (; window.back(); ++steps) {
            QCOMPARE(window.min(), 148.0 - steps);
        }
        QCOMPARE(steps, 100); // that are kept
    }

    /// Each step is told once, and leaves this window.
    void stepsOfTheModel()
    {
        const std::tuple<std::function<void(FedModel&)>, double, double, int, int> rows[] = {
            {[](auto& m) { m.window().setWidth(20.0, true), m.windowChanged(); }, 40, 60, 1, 0},
            {[](auto& m) { m.feed.setTime(100.0); }, 80, 100, 0, 0},
            {[](auto& m) { m.feed.setTime(None); }, 80, 100, 0, 0},
            {[](auto& m) { m.setGraphMode(GraphManual); }, 80, 100, 1, 1},
            {[](auto& m) { m.feed.setTime(200.0); }, 80, 100, 0, 0},
            {[](auto& m) { m.window().set(10, 60), m.windowChanged(); }, 10, 60, 1, 0},
            {[](auto& m) { m.setCursorPosition(1000.0); }, 10, 60, 1, 0},
            {[](auto& m) { m.setCursorMode(CursorCenter); }, 10, 60, 0, 0},
            {[](auto& m) { m.setCursorPosition(100.0); }, 75, 125, 1, 0},
            {[](auto& m) { QCOMPARE(m.cursor(), 100.0); }, 75, 125, 0, 0},
            {[](auto& m) { m.setCursorPosition(None); }, 75, 125, 0, 0},
            {[](auto& m) { m.setCursorPosition(90.0, false); }, 75, 125, 1, 0},
            {[](auto& m) { m.setMarker(30.0, 30.2); }, 75, 125, 1, 0},
            {[](auto& m) { m.setMarker(30.0, None); }, 75, 125, 0, 0},
            {[](auto& m) { m.setGraphMode(GraphAutomatic); }, 75, 125, 1, 1},
            {[](auto& m) { m.zoomToMarker(); }, 30, 31, 1, 1},
            {[](auto& m) { QCOMPARE(m.graphMode(), GraphManual); }, 30, 31, 0, 0},
            {[](auto& m) { m.window().back(), m.windowChanged(); }, 75, 125, 1, 0},
            {[](auto& m) { m.setMarker(30.0, 40.0), m.zoomToMarker(); }, 30, 40, 2, 1},
            {[](auto& m) { m.window().setWhole(30, 40), m.window().showAll(), m.windowChanged(); },
             29, 41, 1, 0},
            {[](auto& m) { m.window().back(), m.windowChanged(); }, 30, 40, 1, 0},
            {[](auto& m) { m.curves().setSeries(6, seriesOf({1}, {1})); }, 30, 40, 0, 0}, // no such
            {[](auto& m) { m.feed.putValue(6, 1.0); }, 30, 40, 0, 0},
            {[](auto& m) { m.layout().setAutoScaleY(false), m.curvesChanged(); }, 30, 40, 1, 0},
            {[](auto& m) { m.layout().setValues(None, 5.0), m.curvesChanged(); }, 30, 40, 1, 0},
            {[](auto& m) { m.setDisplayMode(DisplaySplit); }, 30, 40, 1, 1},
            {[](auto& m) { QCOMPARE(m.layout().view().whole().max, 5.0); }, 30, 40, 0, 0},
            {[](auto& m) { m.clear(); }, 30, 40, 1, 0},
            {[](auto& m) { m.curves() = CurveSet(0), m.curvesChanged(); }, 30, 40, 1, 0}};
        FedModel model;
        QSignalSpy changes(&model, &GraphModel::changed);
        QSignalSpy modes(&model, &GraphModel::modeChanged);
        for (const auto& [step, min, max, expectedChanges, expectedModes] : rows) {
            changes.clear();
            modes.clear();
            step(model);
            QCOMPARE(float(model.layout().view().xmin), float(min));
            QCOMPARE(float(model.layout().view().xmax), float(max));
            QCOMPARE(changes.size(), expectedChanges);
            QCOMPARE(modes.size(), expectedModes);
        }
        QCOMPARE(model.curves().count(), 1U);
        model.curves() = CurveSet(100);
        QCOMPARE(model.curves().count(), 30U);
        QCOMPARE(model.layout().view().ymax, 1.5);
        QCOMPARE(model.markers(), TimeRange());
        const GraphView view{60.0, 40.0, 500.0, 300.0, 10.0, 20.0, -1.0, 3.0};
        QCOMPARE(view.viewportToX(view.xToViewport(12.5)), 12.5);
        QCOMPARE(view.viewportToY(view.yToViewport(2.5)), 2.5);
        QCOMPARE(view.viewportToRelX(-100.0), 0.0);
        QCOMPARE(view.viewportToRelY(190.0), 0.5);
        QCOMPARE(GraphView().viewportToX(100.0), 0.0); // no plot yet
    }

    /// Whatever was changed, in any order: what is drawn is what the curves are now.
    void preparedIsUpToDate()
    {
        std::mt19937 random(24);
        GraphModel model;
        std::vector<PlainCurve> plain(6);
        model.layout().setSize(500, 300);
        model.setGraphMode(GraphManual);
        for (int step = 0; step < 2000 && !QTest::currentTestFailed(); ++step) {
            const auto i = static_cast<unsigned>(pick(random, 6));
            const double at = pick(random, 1000);
            const std::function<void()> changes[] = {
                [&] {
                    model.curves().curve(i)->active = pick(random, 3) != 0;
                    model.curvesChanged();
                },
                [&] {
                    plain[i] = {{at, at + 1, at + 300},
                                {900 - at,
                                 at < 99    ? INFINITY
                                 : at < 500 ? None
                                            : 2 * at,
                                 at < 700 ? at * at : 0.0}};
                    model.curves().setSeries(i, seriesOf(plain[i].times, plain[i].values));
                    model.curvesChanged();
                },
                [&] { model.window().set(at, 1100.0), model.windowChanged(); },
                [&] { model.window().setWidth(at + 1, at < 500), model.windowChanged(); },
                [&] { model.setDisplayMode(static_cast<eDisplayMode>(pick(random, 2))); },
                [&] { model.layout().setSize(300 + at, 200 + at / 3); },
                [&] {
                    at < 40                 ? model.clear(),
                        plain.assign(6, {}) : model.setCursorPosition(at, false);
                }};
            changes[pick(random, std::size(changes))]();
            if (pick(random, 3) == 0) {
                model.layout().prepare(widthOf, LineHeight);
                checkPrepared(model, plain);
            }
        }
    }

    void automaticModeReachesTheCurrentTime()
    {
        std::setlocale(LC_NUMERIC, "C"); // as every program of ours, for its diagnostics
        FedModel model;
        const std::span curves = model.curves().all();
        model.layout().setSize(500, 300);
        model.feed.putValue(0, 1.0); // before the first time
        for (const unsigned i : {0U, 1U, 2U}) {
            curves[i].active = true;
        }
        model.curves().setSeries(2, seriesOf({10.0}, {1.0}));
        for (const double time : {10.0, 11.0, 12.0, 11.5}) {
            model.feed.setTime(time);
            model.feed.putValue(1, time == 11.5 ? 99.0 : time);
            model.feed.putValue(3, time);
        }
        const QByteArray refused = "wrong time stamp NoName 11.500000 skipping...\n";
        QCOMPARE(diagnostics(), refused + refused);
        for (const double time : {11.5, 5.0}) { // which the line reaches already
            model.feed.setTime(time);
            QVERIFY(model.feed.timeChanged());
            model.feed.holdLastValues();
            model.layout().prepare(widthOf, LineHeight);
            QVERIFY(!model.feed.timeChanged());
            QVERIFY(curves[0].samples().empty());
            QCOMPARE(curves[2].samples().lastTime(), 10.0); // of a recording
            QCOMPARE(curves[3].samples().lastTime(), 11.0); // not shown
            QCOMPARE(curves[1].samples().lastTime(), 11.5);
            QCOMPARE(curves[1].samples().value(2),
                     12.0); // the last that was taken, not the one refused
            QCOMPARE(curves[1].samples().size(), 3U);
        }
        QCOMPARE(model.curves().timeRange().high, 11.5);
        model.feed.setTime(80.0);
        QCOMPARE(model.layout().frames(2).size(), 0U); // its only sample is left behind
        model.feed.putValue(1, 5.0);
        model.feed.putValue(2, 7.0); // takes the place of the recording
        model.feed.holdLastValues();
        QCOMPARE(curves[1].samples().size(), 4U); // nothing was to be held
        QCOMPARE(model.layout().frames(2).size(), 1U);
        QCOMPARE(model.layout().frames(2).front().first, 7.0);
        model.setGraphMode(GraphManual);
        model.window().set(100.0, 160.0);
        model.windowChanged();
        QCOMPARE(model.layout().frames(1).size(), 1U); // the line comes in from the left
        model.setGraphMode(GraphAutomatic);
        model.feed.setTime(60.0);
        QCOMPARE(model.layout().frames(1).size(), 4U);
        model.feed.setTime(1000.0);
        QCOMPARE(model.layout().frames(1).size(), 1U);
        QCOMPARE(diagnostics(), "");
    }

    /// Texts that find their own places overlap nothing and move no further than they must.
    void textsKeepClear()
    {
        std::mt19937 random(25);
        const QRectF area(20.0, 30.0, 300.0, 160.0);
        for (int round = 0; round < 200; ++round) {
            TextLayout layout{QFontMetricsF(QFont())};
            for (int k = 0; k < 30; ++k) {
                const auto others = layout.texts();
                const auto isFree = [&](const QRectF& box) {
                    return area.contains(box) &&
                           std::ranges::none_of(
                               others, [&](const auto& text) { return text.box.intersects(box); });
                };
                const QString text(1 + pick(random, 12), 'x');
                const QPointF place(20.0 + pick(random, 290), 30.0 + pick(random, 160));
                QRectF box(place, layout.sizeOf(text));
                box.moveLeft(std::min(box.left(), area.right() - box.width()));
                box.moveTop(std::min(box.top(), area.bottom() - box.height()));
                layout.addNear(text, place, {}, area);
                double nearest = isFree(box) ? 0.0 : 1e9; // straight above or below
                for (const TextLayout::Text& other : others) {
                    for (const double top : {other.box.top() - box.height(), other.box.bottom()}) {
                        const bool fits = isFree({QPointF(box.left(), top), box.size()});
                        nearest = fits ? std::min(nearest, std::fabs(top - box.top())) : nearest;
                    }
                }
                const bool isThere = layout.texts().size() > others.size();
                const QRectF found = isThere ? layout.texts().back().box : QRectF();
                QVERIFY(!isThere || isFree(found));
                QVERIFY(nearest > 1e8 ? !isThere || found.left() > box.left()
                                      : found.left() == box.left() &&
                                            std::fabs(found.top() - box.top()) == nearest);
            }
        }
        const TextLayout even(8.0, 14.0);
        const QStringList cut = {
            even.elided("abcdef", 7.9), even.elided("abcdef", 8.0), even.elided("abcdef", 39.9),
            even.elided("abcdef", 40.0, Qt::ElideRight), even.elided("abcdef", 48.0)};
        QCOMPARE(cut, QStringList({"", "…", "ab…f", "abcd…", "abcdef"}));
    }

    /// Behind the curve, at its shift, no spike lost; the difference in a strip of its own.
    void drawsTheReference()
    {
        GraphModel model;
        model.setGraphMode(GraphManual);
        ParStruct& curve = *model.curves().curve(1);
        curve.name = "Curve";
        curve.unit = "bar";
        curve.active = true;
        std::vector<double> times;
        for (int k = 0; k < 10000; ++k) {
            times.push_back(10.0 + k * 0.01);
        }
        std::vector<double> values(times.size(), 4.0);
        curve.series = seriesOf(times, values);
        values[5000] = 9.0; // at 60 s on its own clock
        std::ranges::for_each(times, [](double& time) { time -= 1000.0; });
        curve.reference.samples = seriesOf(times, values);
        Progress none;
        curve.difference.samples =
            differenceOf(curve.samples(), *curve.reference.samples, Between::Line, 1000.0, none);
        model.window().set(10.0, 110.0);
        model.setCursorPosition(60.0, false);
        for (const auto mode : {DisplaySplit, DisplaySingle}) {
            for (const bool isShown : {true, false}) {
                model.setDisplayMode(mode);
                model.layout().setReference({1000.0, isShown});
                model.windowChanged();
                const GraphPaint paint(model, {600.0, 400.0});
                const auto dashed =
                    std::ranges::find(paint.shapes, GraphPaint::Dashed, &GraphPaint::Shape::kind);
                QCOMPARE(dashed != paint.shapes.end(), isShown);
                QStringList texts;
                for (const TextLayout::Text& text : paint.texts.texts()) {
                    texts += text.text;
                }
                QCOMPARE(texts.filter("ref. 9").size(), isShown ? 1 : 0);
                QCOMPARE(texts.contains("\u0394 Curve   -5 bar"), mode == DisplaySplit);
                const GraphView& view = model.layout().view();
                QVERIFY(curve.differenceStrip.toPixel(-5.0) > curve.differenceStrip.y0);
                QVERIFY(curve.differenceStrip.y0 + curve.differenceStrip.height <= curve.strip.y0);
                if (isShown) {
                    const std::vector<float>& points = dashed->points;
                    const auto peak = static_cast<float>(curve.strip.toPixel(9.0));
                    const auto at = std::ranges::find(points, peak) - points.begin();
                    QVERIFY(std::fabs(points[std::size_t(at - 1)] - view.xToViewport(60.0)) < 1.5);
                }
            }
        }
        model.setCursorPosition(200.0, false);
        const QString spoken = spokenText(model, {});
        QVERIFY2(spoken.contains("Curve ---, \u0394 ---"), qPrintable(spoken));
    }

    void drawsWhatIsThere()
    {
        using Shape = GraphPaint::Shape;
        const GraphStyle style;
        GraphModel model;
        model.setDisplayMode(DisplaySplit);
        model.setGraphMode(GraphManual);
        for (const unsigned i : {1U, 2U, 4U}) {
            ParStruct& curve = *model.curves().curve(i);
            curve.name = QString("Curve %1").arg(i);
            curve.unit = i == 1 ? "bar" : "";
            curve.showSamples = i == 4;
            curve.active = true;
            curve.series = seriesOf({10.0, 20.0, 20.001, 40.0}, {4.0, 4.5, 4.5, 9.0});
        }
        model.setMarker(50.0, 100.0);
        const std::tuple<double, bool, QStringList, int> rows[] = {
            {20.0, true, {"Curve 1   4.5 bar", "Curve 2   4.5", "00:00:20.000/5.00", "0:00:10"}, 3},
            {30.0, true, {"Curve 1   ---", "Curve 2   ---", "00:00:30.000/5.00"}, 0},
            {20.0, false, {"Curve 1   4.5 bar"}, 0}};
        for (const auto& [cursor, isShown, expected, values] : rows) {
            model.setCursorPosition(cursor);
            const GraphPaint paint(model, {600.0, 400.0}, style, {5.0, isShown, 2, cursor});
            const GraphView& view = model.layout().view();
            QStringList texts;
            for (const TextLayout::Text& text : paint.texts.texts()) {
                const bool isInPlot = text.box.left() > view.x0 && text.box.bottom() < 360.0;
                const GraphColor& back = isInPlot ? style.back : style.labelBack;
                QVERIFY(contrastOf(text.color, back) >= LegibleContrast);
                QCOMPARE(text.backed, isInPlot);
                const double y = 400.0 - text.box.center().y();
                const bool isNumber = text.box.right() < view.x0 || text.text == "4.5";
                const GraphStrip& strip = model.curves().at(y)->strip; // stands where its value is
                QVERIFY(!isNumber || std::fabs(strip.toPixel(text.text.toDouble()) - y) < 1.0);
                QVERIFY(text.text != "0:00:10" || text.box.top() == 375.0); // below the axis
                texts += text.text;
            }
            QCOMPARE(texts.count("4.5"), values);
            for (const QString& text : expected) {
                QCOMPARE(texts.count(text), 1);
            }
            QString drawn; // of each curve in its strip, kinds of shapes and numbers of points
            for (const Shape& shape : paint.shapes) {
                if (!shape.clip.isNull()) {
                    const ParStruct& curve = *model.curves().at(shape.clip.center().y());
                    QVERIFY(curve.strip.y0 == shape.clip.y());
                    QVERIFY(curve.strip.height == shape.clip.height());
                    QVERIFY(shape.color == curve.color || curve.showSamples);
                    drawn += QString(" %1:%2").arg(shape.kind).arg(shape.points.size() / 2);
                }
            }
            QCOMPARE(drawn, " 1:2 3:1 2:0 1:2 3:1 2:0 1:2 3:1 2:0 3:4"); // a dot beyond the gap
            QVERIFY(paint.shapes[0].kind == GraphPaint::Fill &&
                    paint.shapes[0].color == style.back);
            int grids = 0; // of dots, to the end of their last line
            for (const Shape& shape : paint.shapes) {
                const bool isGrid = shape.color == style.grid;
                grids += isGrid ? 1 : 0;
                const float x = isGrid ? *(shape.points.end() - 2) : 590.0F;
                const float y = isGrid ? shape.points.back() : 390.0F;
                QVERIFY(x < 591.0F && y < 391.0F && (x > 588.0F || y > 388.0F));
            }
            QCOMPARE(grids, 4);
            const auto cursorLine = std::ranges::find_if(paint.shapes, [](const Shape& shape) {
                return shape.kind == GraphPaint::Lines && shape.color == GraphColor{1, 1, 1};
            });
            QCOMPARE(cursorLine->points.size(), isShown ? 8U : 4U); // and that of the value
            QCOMPARE(cursorLine->points[1], 30.0F);                 // from below the plot
            QCOMPARE(paint.shapes.back().points.size(), 16U);       // the outline, all around
            QCOMPARE(paint.shapes.back().points[2], 589.5F);
            const auto marker = std::ranges::find(paint.shapes, GraphColor{1, 1, 0}, &Shape::color);
            QCOMPARE(marker->points,
                     (std::vector{float(view.xToViewport(50)), 40.0F, 590.0F, 390.0F}));
        }
        QCOMPARE(model.curves().at(5.0), model.curves().curve(1)); // below all: the first
        const QImage picture = GraphPicture{style, {}, {600, 400}, {}}.toImage(model, 1.0);
        QCOMPARE(picture.pixelColor(585, 15).blue(), 0); // the plot, marked in yellow
        QCOMPARE(picture.pixelColor(585, 375), style.labelBack.toColor());
        const GraphStrip& strip = model.curves().curve(1)->strip;
        const double highest = strip.max;
        model.layout().zoomY(strip.y0 + 1.0, 0.5);
        model.layout().prepare(widthOf, LineHeight);
        QVERIFY(strip.max < highest);
        model.layout().resetZoomY();
        model.layout().prepare(widthOf, LineHeight);
        QCOMPARE(strip.max, highest);
        for (const unsigned i : {1U, 2U, 4U}) {
            QVERIFY(model.curves().hasSamples());
            model.curves().curve(i)->active = false;
        }
        QVERIFY(!model.curves().hasSamples()); // that are shown
    }

    void legendHasRoomForAll()
    {
        GraphModel model;
        model.curves() = CurveSet(30);
        for (unsigned i = 0; i < 30; ++i) {
            model.curves().curve(i)->active = true;
        }
        const GraphPaint paint(model, {900.0, 300.0});
        const auto& texts = paint.texts.texts();
        QCOMPARE(std::ranges::count(texts, true, &TextLayout::Text::backed), 30);
        QVERIFY(std::ranges::count(texts, model.layout().axis(0).labels[0].text,
                                   &TextLayout::Text::text) == 1);
        for (std::size_t k = 0; k < texts.size(); ++k) {
            QVERIFY(std::none_of(texts.begin(), texts.begin() + std::ptrdiff_t(k),
                                 [&](auto& text) { return text.box.intersects(texts[k].box); }));
        }
    }

private:
    static void checkPrepared(GraphModel& model, const std::vector<PlainCurve>& plain)
    {
        const GraphView view = model.layout().view();
        const bool isSplit = model.layout().displayMode() == DisplaySplit;
        const auto shows = [](const GraphStrip& strip, const ValueRange& range) {
            const double margin = std::max(range.high - range.low, 0.001) * 0.1;
            return range.empty() || (std::fabs(strip.min - range.low + margin) < 1e-9 &&
                                     std::fabs(strip.max - range.high - margin) < 1e-9);
        };
        ValueRange all;
        double top = view.y0 + view.height;
        double widest = 0.0;
        for (unsigned i = 0; i < model.curves().count(); ++i) {
            const ParStruct& curve = *model.curves().curve(i);
            const FrameWindow window{view.xmin, view.xmax, view.pixelTime()};
            const PlainCurve shown = curve.active ? plain[i] : PlainCurve();
            const auto frames = shown.frames(window, curve.samples().gapRule());
            QVERIFY(std::ranges::equal(model.layout().frames(i), frames, PlainCurve::isSame));
            ValueRange visible;
            for (const FrameType& frame : frames) {
                for (const double end : {frame.range().low, frame.range().high}) {
                    visible.widen(std::isfinite(end) ? end : None);
                }
            }
            all.widen(visible);
            ValueAxis axis = isSplit ? ValueAxis() : ValueAxis::ofPlot(view.whole());
            if (isSplit && curve.active) {
                top -= view.height / static_cast<double>(model.curves().shown().size());
                QVERIFY(std::fabs(curve.strip.y0 - top) < 1e-9 && shows(curve.strip, visible));
                axis = ValueAxis::ofStrip(curve.strip, LineHeight);
            }
            QVERIFY(std::ranges::equal(
                model.layout().axis(i).labels, axis.labels,
                [](auto& a, auto& b) { return a.text == b.text && a.y == b.y; }));
            for (const ValueAxis::Label& label : axis.labels) {
                widest = std::max(widest, widthOf(label.text));
            }
        }
        QVERIFY(isSplit || shows(view.whole(), all.empty() ? ValueRange{0.0, 0.0} : all));
        QCOMPARE(view.x0, std::min(widest + 20.0, (view.x0 + view.width + 10.0) / 2.0));
    }
};

QTEST_MAIN(TestGraph)
#include "tst_graph.moc"
