#include "graph/CurveLoader.h"
#include "graph/CurveText.h"
#include "graph/GraphLine.h"
#include "support/FlightTest.h"
#include "support/PlainCurve.h"

#include <set>

using namespace TARN;

namespace {

constexpr double None = std::numeric_limits<double>::quiet_NaN();
constexpr FrameWindow EachSample{0.0, 1e9, -1.0}; ///< in a column of its own

bool shows(const CurveSamples& samples, const PlainCurve& plain, const FrameWindow& window)
{
    CurveFrames frames;
    frames.foresee(samples, window);
    const ValueRange foreseen = frames.range();
    frames.rebuild(samples, window);
    const ValueRange range = frames.range();
    const bool isFinite = std::isfinite(samples.dataMin()) && std::isfinite(samples.dataMax());
    const bool isForeseen = foreseen.low == range.low && foreseen.high == range.high;
    return (isForeseen || !isFinite) &&
           std::ranges::equal(frames.frames(), plain.frames(window, samples.gapRule()),
                              PlainCurve::isSame);
}

GapRule gapsBeyond(double seconds)
{
    return {{seconds / 10.0}, nullptr};
}

/// A line of a curve, and its columns as they stand on the screen.
struct Line : GraphLine
{
    struct Column
    {
        float x;
        std::size_t strip;
        std::vector<float> heights;
    };

    Line(const CurveSamples& samples, const GraphStrip& strip, const GraphView& view)
    {
        ParStruct curve;
        curve.strip = strip;
        curve.frames.rebuild(samples, {view.xmin, view.xmax, view.pixelTime()});
        buildSamples(curve, view);
        samplePoints = points().size() / 2;
        buildLine(curve, view);
        for (std::size_t s = 0; s < strips().size(); ++s) {
            for (int i = 0; i < strips()[s].count; ++i) {
                const auto at = static_cast<std::size_t>(strips()[s].first + i) * 2;
                if (i == 0 || columns.back().x != points()[at]) {
                    columns.push_back({points()[at], s, {}});
                }
                columns.back().heights.push_back(points()[at + 1]);
            }
        }
    }

    std::vector<Column> columns;
    std::size_t samplePoints = 0;
};

} // namespace

class TestCurves : public FlightTest
{
    Q_OBJECT

private:
    /// Bursts, gaps, equal times, spikes and readings that are no numbers; in the second half also
    /// falling times, the first of which takes a spike along.
    static PlainCurve randomSamples(std::mt19937& random, std::size_t half)
    {
        PlainCurve fed;
        double time = 1000.0;
        double value = 0.0;
        double step = 0.01;
        for (std::size_t k = 0; k < 2 * half; ++k) {
            step = pick(random, 100) == 0 ? std::pow(10.0, -pick(random, 6)) : step;
            time += pick(random, 5) == 0 ? 0.0 : step * pick(random, 100) / 50.0;
            value += pick(random, 200) - 99.5;
            const int kind = pick(random, 500);
            const bool isBack = k == half || (k > half && kind == 0);
            const double other = k + 1 == half ? 1e9 : kind == 3 ? INFINITY : None;
            fed.add(isBack ? time - 1.0 : time, k + 1 == half || kind <= 3 ? other : value);
        }
        return fed;
    }

    /// A column reaches from its lowest to its highest sample and goes on from its last one to the
    /// next column's first.
    static void checkLine(const CurveSamples& samples, const PlainCurve& plain,
                          const GraphView& view)
    {
        const GraphStrip strip{140.0, 100.0, -2000.0, 2000.0};
        const Line line(samples, strip, view);
        std::size_t c = 0;
        const Line::Column* before = nullptr;
        for (const auto& [begin, end] : plain.columns({view.xmin, view.xmax, view.pixelTime()})) {
            std::vector<float> heights;
            for (std::size_t k = begin; k < end; ++k) {
                const double height = std::clamp(strip.toPixel(plain.values[k]), -1e5, 1e5);
                heights.insert(heights.end(), std::isnan(height) ? 0 : 1, float(height));
            }
            if (heights.empty()) {
                before = nullptr; // nothing to go on from
                continue;
            }
            QVERIFY(c < line.columns.size());
            const Line::Column& column = line.columns[c++];
            const double x = std::clamp(view.xToViewport(plain.times[begin]), -1e5, 1e5);
            const bool isCut = end - begin > 1 && x < view.x0 && x > view.x0 - 2.0;
            const auto isSame = [](double a, double b) {
                return std::fabs(a - b) <= 1e-3 + 1e-6 * std::fabs(a);
            };
            QVERIFY(isSame(column.x, isCut ? view.x0 : x));
            QVERIFY(isSame(std::ranges::min(column.heights), std::ranges::min(heights)));
            QVERIFY(isSame(std::ranges::max(column.heights), std::ranges::max(heights)));
            QVERIFY(isSame(column.heights.front(), heights.front()) ||
                    std::isnan(plain.values[begin]));
            QVERIFY(isSame(column.heights.back(), heights.back()) ||
                    std::isnan(plain.values[end - 1]));
            QVERIFY(before == nullptr ||
                    samples.isGapBefore(begin) == (column.strip != before->strip));
            before = &column;
        }
        QCOMPARE(c, line.columns.size());
    }

private Q_SLOTS:
    void everySampleIsShown()
    {
        std::mt19937 random(11);
        for (const std::size_t half : {0U, 1U, 2U, 16U, 64U, 1024U, 4096U, 16384U, 65536U}) {
            const PlainCurve fed = randomSamples(random, half);
            PlainCurve plain;
            CurveSamples one;
            CurveSamples series; // of two pieces
            CurveFrames grown;   // with each sample, in columns of 0.3 s
            std::size_t refused = 0;
            for (std::size_t k = 0; k < fed.size(); ++k) {
                QVERIFY(k != half || std::ranges::equal(grown.frames(), plain.frames({0, 1e9, 0.3}),
                                                        PlainCurve::isSame));
                grown.add(fed.times[k], fed.values[k], {0, 1e9, 0.3});
                plain.put(fed.times[k], fed.values[k]);
                refused += one.put(fed.times[k], fed.values[k]) ? 0 : 2;
            }
            const std::span<const double> times = fed.times;
            const std::span<const double> values = fed.values;
            std::size_t leftOut = series.putSeries(times.first(half), values.first(half));
            leftOut += series.putSeries(times.subspan(half), values.subspan(half));
            QCOMPARE(leftOut, fed.size() - plain.size());
            QCOMPARE(refused, leftOut);
            QCOMPARE(series.dataMin(), one.dataMin());
            QCOMPARE(series.dataMax(), one.dataMax());
            QVERIFY(shows(one, plain, EachSample));
            QVERIFY(shows(series, plain, EachSample));
            one.setGapRule(gapsBeyond(2.5));
            const double end = fed.size() == 0 ? 2000.0 : fed.times.back();
            for (int round = 0; round < 60 && half != 1;
                 ++round) { // that one ends before it begins
                const CurveSamples& samples = round % 2 == 0 ? one : series;
                const double from = 990.0 + (end - 970.0) * pick(random, 1000) / 1000.0;
                const double to = from + (end + 11.0 - from) * (1 + pick(random, 1000)) / 1000.0;
                const GraphView view{60.0, 40.0, double(1 << pick(random, 12)), 300.0, from, to};
                QVERIFY(shows(samples, plain, {from, to, view.pixelTime()}));
                checkLine(samples, plain, view);
                if (QTest::currentTestFailed()) {
                    return;
                }
            }
        }
    }

    void oldestSamplesGoFirst()
    {
        constexpr std::size_t More = 300'001;
        CurveSamples samples;
        PlainCurve kept;
        for (std::size_t k = 0; k < CurveSamples::MaxSamples + More; ++k) {
            const double value = k == 0 ? -1e9 : k == 5 ? 1e9 : std::sin(0.001 * double(k));
            QVERIFY(samples.put(double(k), value));
            if (k >= More) {
                kept.add(double(k), value);
            }
        }
        QCOMPARE(samples.dataMin(), -1e9); // dropped, but it was there
        QCOMPARE(samples.dataMax(), 1e9);
        QVERIFY(shows(samples, kept, {0.0, 2e6, 2e3}));
        QVERIFY(shows(samples, kept, {4e5, 5e5, 70.0}));
        samples.clear();
        const std::vector<double> few(100, 3.0);
        samples.putSeries(few, few);
        QVERIFY(shows(samples, {few, few}, {0.0, 10.0, 1.0}));
        QCOMPARE(samples.dataMax(), 3.0);
    }

    void valueBetweenSamples()
    {
        CurveSamples samples;
        samples.putSeries(std::array{10.0, 20.0, 20.0, 40.0}, std::array{1.0, 3.0, 7.0, 17.0});
        const std::tuple<double, double, double> rows[] = {
            {10.0, 1.0, 1.0},   {15.0, 2.0, 2.0},    {20.0, 3.0, 3.0},    {30.0, 12.0, None},
            {40.0, 17.0, 17.0}, {9.999, None, None}, {40.01, None, None}, {None, None, None}};
        for (const auto& [time, expected, withGaps] : rows) {
            samples.setGapRule({});
            for (const double wanted : {expected, withGaps}) {
                double value = 99.0;
                QCOMPARE(samples.valueAt(time, value), !std::isnan(wanted));
                QCOMPARE(value, std::isnan(wanted) ? 0.0 : wanted);
                samples.setGapRule(gapsBeyond(15.0));
            }
        }
        double value = 0.0;
        QVERIFY(!CurveSamples().valueAt(0.0, value));
    }

    void textsOfValues()
    {
        ParStruct curve;
        curve.live.putSeries(std::array{1.0, 2.0, 3.0, 5.0, 6.0, 9.0},
                             std::array<double, 6>{4.5, 4.06F, 1e-9, 3e12F, None, 7.0});
        curve.live.setGapRule(gapsBeyond(2.0));
        const std::tuple<double, bool, const char*, QString> rows[] = {
            {1.0, true, nullptr, "4.5"},     {2.0, false, nullptr, "4.05999994278"},
            {1.5, true, nullptr, "4.28"},    {1.5, false, nullptr, "4.27999997139"},
            {1.5, true, "%.1f", "4.3"},      {2.5, true, nullptr, "2.03"},
            {4.0, true, nullptr, "1.5e+12"}, {6.0, true, nullptr, "nan"},
            {7.5, true, nullptr, ""},        {7.5, true, "%f", ""}};
        for (const auto& [time, isSingle, format, expected] : rows) {
            curve.isSingle = isSingle;
            QCOMPARE(curveText(curve, time, format), expected);
        }
    }

    void skippedPixelsAreFilled()
    {
        for (const double step : {0.4, 0.7, 0.9}) { // pixels between samples of a solid band
            CurveSamples samples;
            for (int k = 0; k < 1000; ++k) {
                samples.put(10.9 + step * k, k % 2);
            }
            const Line line(samples, {40.0, 300.0, 0.0, 1.0},
                            {0.0, 40.0, 300.0, 300.0, 0.0, 300.0});
            std::set<int> pixels;
            const auto add = [&](float x) { return x > 298.0F || pixels.insert(int(x)).second; };
            for (const Line::Column& column : line.columns) {
                const auto [low, high] = std::ranges::minmax(column.heights);
                QVERIFY(column.x > 298.0F || (low == 40.0F && high == 340.0F));
                QVERIFY(add(column.x));
            }
            for (std::size_t k = 0; k < line.fillings().size(); k += 4) {
                const float* filling = &line.fillings()[k];
                QVERIFY(filling[0] == filling[2] && add(filling[0]));
                QVERIFY(filling[1] == 40.0F && filling[3] == 340.0F);
            }
            QCOMPARE(*pixels.begin(), 10);
            QCOMPARE(*pixels.rbegin(), 297);
            QCOMPARE(pixels.size(), 288U); // without a slit
        }
    }

    void lineBreaks()
    {
        using Counts = std::vector<int>;
        using Values = std::vector<double>;
        const std::tuple<Values, Values, Counts, std::size_t> rows[] = {
            {{1, 3, 5, 7, 9, 11}, {1, 2, None, 3, None, 4}, {2, 1, 1}, 0},
            {{1, 1.2, 1.4, 3}, {1, None, 2, 3}, {3}, 0}, // within a column
            {{1, 1.2, 3}, {1, 1, 1}, {2}, 0},            // what is the same is drawn once
            {{0.9, 1.6, 2.8, 3.5}, {0, 1, 0, 1}, {4}, 1},
            {{0.9, 1.6, 2.8, 3.5}, {0, 1, 2, 3}, {4}, 0}, // side by side, but nothing in common
            {{0.9, 1.6, 3.8, 4.5}, {0, 1, 0, 1}, {4}, 0}, // in common, but not side by side
            {{0.9, 1.6, 4.8, 5.5}, {0, 1, 0, 1}, {2, 2}, 0}};
        for (const auto& [pixels, values, counts, fillings] : rows) {
            CurveSamples samples;
            Values times = pixels;
            std::ranges::for_each(times, [](double& time) { time *= 4.0; });
            samples.putSeries(times, values);
            samples.setGapRule(gapsBeyond(12.0));
            const Line line(samples, {0.0, 10.0, 0.0, 1.0}, {0.0, 0.0, 20.0, 10.0, 0.0, 80.0});
            Counts found;
            std::ranges::transform(line.strips(), std::back_inserter(found), &Line::Strip::count);
            QCOMPARE(found, counts);
            QCOMPARE(line.fillings().size(), fillings * 4);
            const auto numbers = std::ranges::count_if(values, [](double v) { return v == v; });
            QCOMPARE(line.samplePoints, static_cast<std::size_t>(numbers));
        }
    }

    void curvesAreDecodedAsAskedFor()
    {
        constexpr double Offset = 7.5;
        constexpr int Counts[] = {70000, 20, 30, 40}; // more than are decoded at once
        RecordingBuilder file;
        QByteArray elements = "<Device name='D'>";
        for (unsigned id = 0; id < std::size(Counts); ++id) {
            elements += QString("<Parameter name='P' id='%1' startByte='4' dataType='FLOAT' "
                                "factor='3'/>")
                            .arg(id)
                            .toLatin1();
            for (int k = 0; k < Counts[id]; ++k) {
                const bool falls = k == 19 || k == 65536;
                file.add({id, ticks(falls ? 1.0 : 0.25 * k),
                          "00020000" + QByteArray::number(0x40000000 + k + int(id), 16)});
            }
        }
        const auto record = load({write("REC_8000.CAN", file.bytes())});
        const auto profile = profileOf(elements + "</Device>");
        const auto flight = Flight::make(record, profile);
        const auto all = Selection::all(*profile).parameters(*profile);

        std::vector<std::pair<unsigned, std::shared_ptr<const CurveSamples>>> told;
        CurveLoader loader;
        connect(&loader, &CurveLoader::curveReady, this,
                [&](unsigned place, const DecodedCurve& curve) {
                    told.emplace_back(place, curve.samples);
                });
        loader.load(flight, all, Offset);
        QVERIFY(loader.isBusy());
        loader.start();
        QTRY_COMPARE(told.size(), all.size());
        QVERIFY(!loader.isBusy());
        QCOMPARE(loader.leftOut(), 10U);
        std::set<unsigned> places;
        for (std::size_t i = 0; i < told.size(); ++i) {
            const auto& [place, samples] = told[i];
            // Two lanes take the next one each, and tell what they have together.
            QVERIFY(i > 0 || place < 2);
            QVERIFY(places.insert(place).second);
            PlainCurve plain;
            for (const RecordEntry& entry : record->recordData().find(0, place)->entries) {
                plain.put(entry.time() + Offset, profile->getDouble(entry, *all[place], true));
            }
            QVERIFY(shows(*samples, plain, EachSample));
            QCOMPARE(samples->gapRule().limit(), std::optional(2.5));
        }
        const auto known = std::exchange(told, {});
        loader.load(flight, {all[3], all[1]}, Offset); // known, so told at once
        QCOMPARE(told.size(), 2U);
        QCOMPARE(loader.leftOut(), 4U);
        for (const auto& [place, samples] : known) {
            QCOMPARE(samples == told[0].second, place == 3);
            QCOMPARE(samples == told[1].second, place == 1);
        }
        told.clear();
        loader.load(flight, all, 0.0); // nothing of it is told: another is asked for meanwhile
        loader.start();
        loader.load(Flight::make(record, profile), {all[2]}, 0.0);
        loader.start();
        QTRY_VERIFY(!loader.isBusy() && pendingWork() == 0);
        QCoreApplication::processEvents();
        loader.load(nullptr, {all[0]}, 0.0);
        QVERIFY(!loader.isBusy());
        QCOMPARE(told.size(), 1U);
        QCOMPARE(told[0].second->firstTime(), 0.0);
        QCOMPARE(told[0].second->size(), 28U);

        std::stop_source stop;
        stop.request_stop();
        Progress stopped(nullptr, stop.get_token());
        QVERIFY(decodeCurve(flight, *all[0], 0.0, stopped).samples == nullptr);
    }
};

QTEST_GUILESS_MAIN(TestCurves)
#include "tst_curves.moc"
