#include "flight/Statistics.h"
#include "support/FlightTest.h"

#include <algorithm>
#include <cmath>

using namespace TARN;

/// The statistics of any range of random series, against a plain reading of what the words mean.
class TestStatistics : public FlightTest
{
    Q_OBJECT

private:
    struct Sample
    {
        double time;
        double value;
    };

    static bool isNear(const std::optional<double>& found, double expected)
    {
        return found ? std::fabs(*found - expected) <= 1e-9 * (1.0 + std::fabs(expected))
                     : !std::isfinite(expected);
    }

    static double firstAt(const std::vector<Sample>& whole, double time)
    {
        return std::ranges::find(whole, time, &Sample::time)->value;
    }

    /// \p whole in the order of time; \p thresholds on the scale of the values.
    static bool isRight(const Statistics& found, const std::vector<Sample>& whole,
                        const GapRule& gaps, const TimeRange& range,
                        const std::vector<double>& thresholds)
    {
        std::vector<Sample> samples;
        std::ranges::copy_if(whole, std::back_inserter(samples),
                             [&](const Sample& sample) { return range.contains(sample.time); });
        std::vector<Sample> values;
        std::ranges::copy_if(samples, std::back_inserter(values),
                             [](const Sample& sample) { return !std::isnan(sample.value); });
        double held = 0.0;
        double heldSum = 0.0;
        double integral = 0.0;
        double gapSeconds = 0.0;
        std::size_t count = 0;
        std::vector<double> above(thresholds.size());
        for (std::size_t k = 0; k + 1 < samples.size(); ++k) {
            const auto [from, value] = samples[k];
            const auto [to, next] = samples[k + 1];
            const double step = to - from;
            const bool isGap = gaps.isGap(from, to);
            count += isGap ? 1 : 0;
            gapSeconds += isGap ? step : 0.0;
            if (isGap || std::isnan(value)) {
                continue;
            }
            held += step;
            heldSum += value * step;
            integral += std::isnan(next) ? 0.0 : (value + next) / 2.0 * step;
            for (std::size_t i = 0; i < thresholds.size(); ++i) {
                above[i] += value >= thresholds[i] ? step : 0.0;
            }
        }
        bool isRight = found.samples == samples.size() && found.gaps == count &&
                       found.invalid == samples.size() - values.size() &&
                       found.gapLimit == gaps.limit() && isNear(found.gapSeconds, gapSeconds) &&
                       isNear(found.integral, integral) &&
                       isNear(found.timeMean, held > 0.0 ? heldSum / held : NAN) &&
                       found.above.size() == above.size();
        for (std::size_t i = 0; isRight && i < above.size(); ++i) {
            isRight =
                found.above[i].value == thresholds[i] && isNear(found.above[i].seconds, above[i]);
        }
        if (values.empty()) {
            return isRight && !found.first && !found.last && !found.min && !found.max &&
                   !found.mean && !found.stddev;
        }
        double mean = 0.0;
        for (const Sample& sample : values) {
            mean += sample.value / static_cast<double>(values.size());
        }
        double squares = 0.0;
        for (const Sample& sample : values) {
            squares += (sample.value - mean) * (sample.value - mean);
        }
        const auto [min, max] = std::ranges::minmax_element(values, {}, &Sample::value);
        const auto latest = std::ranges::find(values, max->value, &Sample::value);
        return isRight && found.first == values.front().value &&
               found.last == values.back().value && found.min->value == min->value &&
               found.min->time == min->time && found.max->value == max->value &&
               found.max->time == latest->time && isNear(found.mean, mean) &&
               isNear(found.stddev, std::sqrt(squares / static_cast<double>(values.size())));
    }

private Q_SLOTS:
    void anyRange()
    {
        const auto profile = profileOf(
            "<ThresholdList><Threshold name='T'><Value val='2' color='#ff0000' "
            "state='LIMIT'/><Value val='5'/><Value val='1e9'/></Threshold></ThresholdList>"
            "<Device><Parameter id='500' dataType='FLOAT' startByte='4' factor='2' "
            "offset='-1' thresholdId='T'/></Device>");
        const ProfileParameter& parameter = *profile->parameters().front().parameter;
        std::mt19937 random(3);
        for (const unsigned size : {0U, 1U, 2U, 255U, 256U, 257U, 600U, 20'000U, 40'000U}) {
            for (int kind = 0; kind < 6; ++kind) { // plain, gaps, NaN, infinities, falling, sparse
                QString text = "501@0=0 501@40=0 501@90000=0";
                double time = 10000.0;
                for (unsigned k = 0; k < size; ++k) {
                    const int rare = pick(random, 300);
                    time += kind == 1 && rare < 2 ? 30.0 : kind == 4 && rare == 0 ? -20.0 : 0.0;
                    time += (kind == 5 ? pick(random, 20) : 1) * 0.25 * pick(random, 3);
                    const QString value = kind == 2 && rare < 5    ? "nan"
                                          : kind == 3 && rare == 7 ? "inf"
                                                                   : QString::number(rare % 8);
                    text += QString(" 500@%1=%2").arg(time).arg(value);
                }
                const auto flight = Flight::make(load({writeRecording(text)}), profile);
                const Series series = flight->series(parameter, 0.0);
                const GapRule gaps = series.gapRule([&] { return flight->silences(0.0); });
                Progress progress;
                const StatisticsIndex index(flight, parameter, 0.0, progress);
                std::stop_source stop;
                stop.request_stop();
                Progress stopped({}, stop.get_token());
                const StatisticsIndex none(flight, parameter, 0.0, stopped);
                QCOMPARE(none.range({-1e9, 1e9}).samples, 0U);
                std::vector<Sample> whole;
                for (std::size_t k = 0; k < series.size(); ++k) {
                    whole.push_back({series.time(k), series.value(k)});
                }
                for (int query = 0; query < 40 && !whole.empty(); ++query) {
                    const std::size_t k = random() % whole.size();
                    const Sample& from = whole[k];
                    const Sample& to = whole[std::min(k + 1, whole.size() - 1)];
                    const double middle = from.time + (to.time - from.time) / 4.0;
                    const bool isGap = gaps.isGap(from.time, to.time);
                    const double expected = isGap ? NAN
                                            : from.time == to.time
                                                ? firstAt(whole, from.time)
                                                : from.value * 0.75 + to.value * 0.25;
                    QVERIFY(std::isinf(expected) || isNear(index.valueAt(middle), expected));
                    QVERIFY(!index.valueAt(whole.front().time - 1.0));
                    QVERIFY(!index.valueAt(whole.back().time + 1.0));
                }
                for (int query = 0; query < 40; ++query) {
                    const auto any = [&] {
                        return whole.empty() || query == 0 ? 1e9 * (query % 2)
                                                           : whole[random() % whole.size()].time;
                    };
                    const double start = query == 0 ? -1.0 : any();
                    const TimeRange range{start, query == 0 ? 1e9 : any()};
                    QVERIFY2(isRight(index.range(range), whole, gaps, range, {3.0, 9.0, 2e9 - 1}),
                             qPrintable(QString("%1 samples, kind %2").arg(size).arg(kind)));
                }
            }
        }
    }
};

QTEST_GUILESS_MAIN(TestStatistics)
#include "tst_statistics.moc"
