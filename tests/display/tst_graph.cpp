#include "base/Property.h"
#include "display/GraphLine.h"
#include "display/GraphModel.h"
#include "display/GraphScale.h"
#include "support/CoreTest.h"

#include <algorithm>
#include <clocale>
#include <cmath>
#include <random>

using namespace TARN;

namespace {

/// Numbers below a bound, the same in every run.
class Random
{
public:
    explicit Random(unsigned seed) : mEngine(seed) {}
    int operator()(unsigned bound) { return static_cast<int>(mEngine() % bound); }

private:
    std::mt19937 mEngine;
};

struct Sample
{
    double time;
    double value;
};

/// The rule of the columns, sample by sample.
void feed(std::vector<FrameType>& frames, const Sample& sample, double width)
{
    if (frames.empty() || !(sample.time - frames.back().time <= width)) {
        frames.push_back({1, sample.time, sample.value});
        return;
    }
    FrameType& frame = frames.back();
    if (frame.state == 1) {
        frame.low = sample.value;
    } else if (frame.state == 2) {
        frame.high = sample.value;
    } else {
        const double values[] = {frame.low, frame.high, sample.value};
        frame.low = std::fmin(std::fmin(values[0], values[1]), values[2]);
        frame.high = std::fmax(std::fmax(values[0], values[1]), values[2]);
        frame.last = sample.value;
    }
    frame.state = std::min(frame.state + 1, 4);
}

std::vector<FrameType> expectedFrames(const std::vector<Sample>& samples, const FrameWindow& window)
{
    std::vector<FrameType> frames;
    std::size_t k = 0;
    while (k < samples.size() && samples[k].time < window.xmin) {
        ++k;
    }
    for (k = k > 1 ? k - 1 : k; k < samples.size(); ++k) {
        feed(frames, samples[k], window.columnWidth);
        if (!(samples[k].time < window.xmax)) {
            break;
        }
    }
    return frames;
}

bool same(double a, double b)
{
    return a == b || (std::isnan(a) && std::isnan(b));
}

void compare(std::span<const FrameType> frames, const std::vector<FrameType>& expected)
{
    QCOMPARE(frames.size(), expected.size());
    for (std::size_t k = 0; k < frames.size(); ++k) {
        const FrameType& a = frames[k];
        const FrameType& b = expected[k];
        QVERIFY2(a.state == b.state && a.time == b.time && same(a.first, b.first) &&
                     same(a.low, b.low) && same(a.high, b.high) && same(a.last, b.last),
                 qPrintable(QString("column %1").arg(k)));
    }
}

/// Bursts, gaps, equal times, spikes and readings that are no numbers.
std::vector<Sample> randomSamples(Random& random, std::size_t count)
{
    std::vector<Sample> samples;
    double time = 1000.0;
    double value = 0.0;
    double step = 0.01;
    for (std::size_t k = 0; k < count; ++k) {
        if (random(100) == 0) {
            step = std::pow(10.0, -random(6));
        }
        time += random(5) == 0 ? 0.0 : step * random(100) / 50.0;
        value += random(200) - 99.5;
        const bool spike = random(500) == 0;
        const bool none = random(300) == 0;
        samples.push_back({time, none ? std::nan("") : spike ? 1e6 : value});
    }
    return samples;
}

} // namespace

class TestGraph : public CoreTest
{
    Q_OBJECT

private Q_SLOTS:
    void framesAsFedOneByOne()
    {
        Random random(11);
        for (const std::size_t count : {0U, 1U, 2U, 5U, 63U, 64U, 130U, 5000U, 70000U}) {
            const auto samples = randomSamples(random, count);
            CurveBuffer buffer;
            for (const Sample& sample : samples) {
                buffer.put(sample.time, sample.value);
            }
            const double end = samples.empty() ? 2000.0 : samples.back().time;
            for (int round = 0; round < 60; ++round) {
                const double a = 990.0 + (end - 970.0) * (random(1000)) / 1000.0;
                const double b = 990.0 + (end - 970.0) * (random(1000)) / 1000.0;
                const double xmin = round == 0 ? 0.0 : std::min(a, b);
                const double xmax = round == 0 ? end + 10.0 : std::max(a, b);
                const double columns = 1 << random(12);
                const FrameWindow window{xmin, xmax, (xmax - xmin) / columns};
                buffer.rebuildFrames(window);
                compare(buffer.frames(), expectedFrames(samples, window));
                if (QTest::currentTestFailed()) {
                    return;
                }
            }
        }
    }

    void framesGrowWithEachSample()
    {
        Random random(12);
        const auto samples = randomSamples(random, 3000);
        const FrameWindow window{0.0, samples.back().time + 1.0, 0.3};
        CurveBuffer buffer;
        for (const Sample& sample : samples) {
            buffer.put(sample.time, sample.value);
            buffer.addToFrames(sample.time, sample.value, window);
        }
        compare(buffer.frames(), expectedFrames(samples, window));
        buffer.trimFrames(1000.5);
        QVERIFY(buffer.frames()[0].time < 1000.5);
        QVERIFY(buffer.frames()[1].time >= 1000.5);
    }

    void noPeakIsLostAmongFour()
    {
        // The second sample is the peak, the third the dip: out of order when they are taken.
        CurveBuffer buffer;
        for (const double value : {1.0, 9.0, -5.0, 2.0}) {
            buffer.put(1.0, value);
        }
        buffer.rebuildFrames({0.0, 2.0, 1.0});
        QCOMPARE(buffer.frames().size(), 1U);
        QCOMPARE(buffer.frames()[0].low, -5.0);
        QCOMPARE(buffer.frames()[0].high, 9.0);
        QCOMPARE(buffer.frames()[0].last, 2.0);
    }

    void oldestSamplesGoFirst()
    {
        constexpr std::size_t More = 300'001;
        CurveBuffer buffer;
        std::vector<Sample> kept;
        for (std::size_t k = 0; k < CurveBuffer::MaxSamples + More; ++k) {
            const Sample sample{static_cast<double>(k),
                                k == 5 ? 1e9 : std::sin(0.001 * static_cast<double>(k))};
            QVERIFY(buffer.put(sample.time, sample.value));
            if (k >= More) {
                kept.push_back(sample);
            }
        }
        QCOMPARE(buffer.size(), CurveBuffer::MaxSamples);
        QCOMPARE(buffer.firstTime(), static_cast<double>(More));
        QCOMPARE(buffer.dataMax(), 1e9); // dropped, but it was there
        const FrameWindow window{0.0, 2e6, 2e3};
        buffer.rebuildFrames(window);
        compare(buffer.frames(), expectedFrames(kept, window));
    }

    void bulkAsOneByOne()
    {
        Random random(13);
        for (int round = 0; round < 200; ++round) {
            std::vector<double> times;
            std::vector<double> values;
            const bool falling = round % 2 == 1;
            for (int k = random(300); k > 0; --k) {
                times.push_back(falling ? random(40) * 0.5 : 0.1 * (300 - k));
                values.push_back(random(1000));
            }
            if (falling && round % 4 == 3) { // falls now and then
                std::sort(times.begin(), times.end());
                std::swap(times.front(), times.back());
            }
            GraphModel one;
            GraphModel bulk;
            for (GraphModel* model : {&one, &bulk}) {
                model->setActive(1, true);
                model->curve(1)->name = "RPM";
            }
            for (std::size_t k = 0; k < times.size(); ++k) {
                one.setTime(times[k]);
                one.putValue(1, values[k]);
            }
            const QByteArray expected = diagnostics();
            bulk.putSeries(1, times, values);
            QCOMPARE(diagnostics(), expected);
            QCOMPARE(bulk.currentTime(), one.currentTime());
            const CurveBuffer& a = bulk.curve(1)->buffer;
            const CurveBuffer& b = one.curve(1)->buffer;
            QCOMPARE(a.size(), b.size());
            for (std::size_t k = 0; k < a.size(); ++k) {
                QCOMPARE(a.time(k), b.time(k));
                QCOMPARE(a.value(k), b.value(k));
            }
            QCOMPARE(a.dataMin(), b.dataMin());
            QCOMPARE(a.dataMax(), b.dataMax());
            bulk.setWindow(1.0, 19.0);
            one.setWindow(1.0, 19.0);
            const auto frames = one.frames(1);
            compare(bulk.frames(1), {frames.begin(), frames.end()});
        }
    }

    void fallingTimeTakesTheLastSampleAlong()
    {
        std::setlocale(LC_NUMERIC, "C"); // as every program of ours, for its diagnostics
        GraphModel model;
        model.curve(0)->name = "Oil";
        model.putValue(0, 1.0); // before the first time
        QVERIFY(model.curve(0)->buffer.empty());
        for (const double time : {10.0, 11.0, 11.0, 10.5}) {
            model.setTime(time);
            model.putValue(0, time);
        }
        QCOMPARE(diagnostics(), "wrong time stamp Oil 10.500000 skipping...\n");
        QCOMPARE(model.curve(0)->buffer.size(), 2U);
        model.setTime(std::nan(""));
        QCOMPARE(model.currentTime(), 10.5);
        model.putValue(30, 1.0); // there is no such curve
    }

    void valueBetweenSamples()
    {
        GraphModel model;
        const double times[] = {10.0, 20.0, 20.0, 40.0};
        const double values[] = {1.0, 3.0, 7.0, 17.0};
        model.putSeries(2, times, values);
        const std::tuple<double, bool, double> rows[] = {
            {10.0, true, 1.0},  {15.0, true, 2.0},   {20.0, true, 3.0},  {30.0, true, 12.0},
            {40.0, true, 17.0}, {9.999, false, 0.0}, {40.01, false, 0.0}};
        for (const auto& [time, found, expected] : rows) {
            double value = 99.0;
            QCOMPARE(model.getValue(2, time, value), found);
            QCOMPARE(value, expected);
        }
        double value = 99.0;
        QVERIFY(!model.getValue(3, 10.0, value)); // empty
        QVERIFY(!model.getValue(6, 10.0, value)); // none
        double first = -1.0;
        double last = -1.0;
        model.getParameterRangeX(2, first, last);
        QCOMPARE(first, 10.0);
        QCOMPARE(last, 40.0);
    }

    void curvesAndTheirColors()
    {
        Property::instance()->setString("GraphColor1", "#102030");
        Property::instance()->setString("GraphColor7", "nonsense");
        GraphModel model;
        QCOMPARE(model.count(), 6U);
        model.setMaxParameters(0);
        QCOMPARE(model.count(), 1U);
        model.setMaxParameters(100);
        QCOMPARE(model.count(), 30U);
        QCOMPARE(model.curve(0)->color.green, 0.0F);
        QCOMPARE(model.curve(1)->color.blue, 48.0F / 255.0F);
        QCOMPARE(model.curve(7)->color.green, 1.0F);
        QCOMPARE(model.curve(29)->name, "NoName");
        Property::instance()->clear();
    }

    void ranges()
    {
        GraphModel model;
        const auto window = [&] { return std::pair(model.view().xmin, model.view().xmax); };
        model.setXrange(20.0); // automatic: the end stays
        QCOMPARE(window(), std::pair(40.0, 60.0));
        model.setTime(100.0);
        QCOMPARE(window(), std::pair(80.0, 100.0));
        model.setGraphMode(GraphManual);
        model.setTime(200.0);
        model.setXrange(50.0); // manual: the start stays
        QCOMPARE(window(), std::pair(80.0, 130.0));
        model.setT0(10.0);
        QCOMPARE(window(), std::pair(10.0, 60.0));
        model.setCursorPosition(1000.0);
        QCOMPARE(window(), std::pair(10.0, 60.0));
        model.setCursorMode(CursorCenter);
        model.setCursorPosition(100.0);
        QCOMPARE(window(), std::pair(75.0, 125.0));
        model.setMarker(30.0, 30.2);
        model.setGraphMode(GraphAutomatic);
        model.zoomToMarker();
        QCOMPARE(window(), std::pair(30.0, 31.0));
        QCOMPARE(model.graphMode(), GraphManual);
        model.zoomAbout(30.5, 0.5);
        QCOMPARE(window(), std::pair(30.25, 30.75));
        model.setXmin(std::nan(""));
        QCOMPARE(model.view().xmin, 30.25);
        for (int i = 0; i < 2000; ++i) {
            model.zoomAbout(30.5, 0.9);
        }
        QVERIFY(model.view().xmax > model.view().xmin);
    }

    void stripsAndScale()
    {
        GraphModel model;
        model.setSize(500, 350);
        for (const unsigned i : {1U, 3U, 4U}) {
            model.setActive(i, true);
            const double times[] = {10.0, 20.0};
            const double values[] = {0.0, 10.0 * i};
            model.putSeries(i, times, values);
        }
        model.setGraphMode(GraphManual);
        model.setWindow(0.0, 30.0);
        model.setDisplayMode(DisplaySplit);
        for (int paint = 0; paint < 3; ++paint) { // each takes the scale that the one before found
            model.calcFrame();
            model.layoutStrips();
            for (ParStruct& curve : model.curves()) {
                if (curve.active) {
                    model.updateVisible(curve);
                }
            }
            model.finishPaint(30.4);
        }
        QVERIFY(model.isSettled());
        QCOMPARE(model.view().x0, 51.0);
        QCOMPARE(model.view().width, 439.0);
        QCOMPARE(model.curve(1)->viewportY, 240.0);
        QCOMPARE(model.curve(3)->viewportY, 140.0);
        QCOMPARE(model.curve(4)->viewportHeight, 100.0);
        QCOMPARE(model.curve(3)->rangeMin, -3.0);
        QCOMPARE(model.curve(3)->rangeMax, 33.0);
        QCOMPARE(model.view().ymax, 44.0);
        QCOMPARE(model.getParaFromPos(150.0), model.curve(3));
        QCOMPARE(model.getParaFromPos(5.0), model.curve(1)); // below all: the first
        model.setDisplayMode(DisplaySingle);
        model.layoutStrips();
        QCOMPARE(model.curve(3)->rangeMax, 44.0);
        QCOMPARE(model.curve(3)->viewportHeight, 300.0);

        const GraphView& view = model.view();
        QCOMPARE(view.viewportToX(view.xToViewport(12.5)), 12.5);
        QCOMPARE(view.viewportToY(view.yToViewport(7.5)), 7.5);
        QCOMPARE(view.viewportToRelX(-100.0), 0.0);
        QCOMPARE(view.viewportToRelY(40.0 + 150.0), 0.5);
        QCOMPARE(GraphView().viewportToX(100.0), 0.0); // no plot yet
    }

    void automaticModeKeepsLaterSamples()
    {
        GraphModel model;
        model.setSize(500, 350);
        model.setActive(0, true);
        model.setActive(1, true);
        model.setActive(2, true);
        const double times[] = {10.0, 20.0, 90.0, 91.0};
        model.putSeries(0, times, times);
        model.putSeries(1, std::span(times).first(2), times);
        model.setTime(50.0);
        model.calcFrame();
        model.calcFrame();
        QCOMPARE(model.curve(0)->buffer.size(), 4U);
        QCOMPARE(model.curve(1)->buffer.size(), 3U); // its last value holds until now
        QCOMPARE(model.curve(1)->buffer.lastTime(), 50.0);
        QVERIFY(model.curve(2)->buffer.empty());
        QCOMPARE(diagnostics(), "");
    }

    void tickRule_data()
    {
        QTest::addColumn<float>("range");
        QTest::addColumn<float>("length");
        QTest::addColumn<float>("spacing");
        QTest::addColumn<float>("step");
        QTest::addColumn<int>("parts");
        QTest::addColumn<QString>("format");
        QTest::addRow("ten") << 100.0F << 500.0F << 50.0F << 10.0F << 5 << "%.0f";
        QTest::addRow("twenty") << 150.0F << 500.0F << 50.0F << 20.0F << 4 << "%.0f";
        QTest::addRow("half") << 4.0F << 500.0F << 50.0F << 0.5F << 5 << "%.1f";
        QTest::addRow("one") << 7.0F << 500.0F << 50.0F << 1.0F << 5 << "%.1f";
        QTest::addRow("tenth") << 1.0F << 500.0F << 50.0F << 0.1F << 5 << "%.2f";
        QTest::addRow("thousands") << 3e4F << 500.0F << 50.0F << 5000.0F << 5 << "%.0f";
        QTest::addRow("none fits") << 10.0F << 20.0F << 25.0F << -1.0F << 7 << QString();
    }

    void tickRule()
    {
        QFETCH(const float, range);
        QFETCH(const float, length);
        QFETCH(const float, spacing);
        float step = 0.0F;
        int parts = 7;
        getAutoPara(0.0F, range, length, spacing, &step, &parts);
        QTEST(step, "step");
        QTEST(parts, "parts");
        QString format;
        if (step > 0.0F) {
            getAutoFormat(step, format);
        }
        QTEST(format, "format");
    }

    void ticksStandOnRoundValues()
    {
        const GraphTicks far(86400.0, 86400.5, 1000.0, 70.0); // single precision has no such steps
        QCOMPARE(far.step, 0.05);
        QCOMPARE(timeLabel(86400.05, far.step), "24:00:00.05");
        QCOMPARE(std::ranges::count_if(far.ticks, &GraphTick::major), 11);
        const GraphTicks axis(-15.0, 25.0, 160.0, 40.0);
        QStringList texts;
        for (const GraphTick& tick : axis.ticks) {
            if (tick.major) {
                texts += timeLabel(tick.value, axis.step) + "/" + valueLabel(tick.value, axis.step);
            }
        }
        QCOMPARE(texts, QStringList({"/-10", "0:00:00/0", "0:00:10/10", "0:00:20/20"}));
        QVERIFY(GraphTicks(5.0, 5.0, 100.0, 25.0).ticks.empty());
        QVERIFY(GraphTicks(0.0, 1e300, 100.0, 25.0).ticks.empty());
        QVERIFY(GraphTicks(std::nan(""), 1.0, 100.0, 25.0).ticks.empty());
        QCOMPARE(valueLabel(-1e-18, 0.5), "0.0");
        QCOMPARE(valueLabel(1.2e15, 1e14), "1.2e+15");
        QCOMPARE(GraphTicks::labelStride(90.0, 40.0), 5);
        double state = 1.0;
        pt1(3.0F, 1.0F, 5.0F, &state); // a step counts as 1 at most
        QCOMPARE(state, 2.0);
    }

    void lineShowsEverySpike()
    {
        GraphModel model;
        model.setSize(1070, 350);
        model.setActive(0, true);
        std::vector<double> times;
        std::vector<double> values;
        for (int k = 0; k < 300'000; ++k) {
            times.push_back(0.01 * k);
            values.push_back(k == 123'456 ? 50.0 : k == 200'000 ? std::nan("") : 0.01 * (k % 7));
        }
        model.putSeries(0, times, values);
        model.setGraphMode(GraphManual);
        model.setWindow(0.0, 3000.0);
        model.calcFrame();
        model.setAutoScaleY(false);
        model.setYmin(0.0);
        model.setYmax(100.0);
        model.calcFrame();
        model.layoutStrips();
        GraphLine line;
        line.buildLine(*model.curve(0), model.view());
        QCOMPARE(line.strips().size(), 1U);
        QVERIFY(line.points().size() < 2 * 2200); // two ends a column
        float top = 0.0F;
        float where = 0.0F;
        for (std::size_t k = 0; k < line.points().size(); k += 2) {
            if (line.points()[k + 1] > top) {
                where = line.points()[k];
                top = line.points()[k + 1];
            }
        }
        QVERIFY(std::fabs(top - model.view().yToViewport(50.0)) < 0.01);
        QVERIFY(std::fabs(where - model.view().xToViewport(1234.56)) < 1.1);
    }

    void lineBreaksWhereThereAreNoNumbers()
    {
        GraphModel model;
        model.setSize(570, 350);
        model.setActive(0, true);
        const double none = std::nan("");
        const double times[] = {1.0, 2.0, 3.0, 4.0, 5.0, 6.0};
        const double values[] = {1.0, 2.0, none, 3.0, none, 4.0};
        model.putSeries(0, times, values);
        model.calcFrame();
        model.layoutStrips();
        GraphLine line;
        line.buildLine(*model.curve(0), model.view());
        std::vector<int> counts;
        std::ranges::transform(line.strips(), std::back_inserter(counts), &GraphLine::Strip::count);
        QCOMPARE(counts, std::vector<int>({2, 1, 1}));
        line.buildSamples(*model.curve(0), model.view());
        QCOMPARE(line.points().size(), 8U);
    }
};

QTEST_GUILESS_MAIN(TestGraph)
#include "tst_graph.moc"
