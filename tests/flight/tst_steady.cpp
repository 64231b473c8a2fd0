#include "flight/SteadyStretch.h"
#include "support/FlightTest.h"

#include <cmath>

using namespace TARN;

/// Where a flight is steady: exact cases by hand, random ones against a plain reading of the rule.
class TestSteady : public FlightTest
{
    Q_OBJECT

    static constexpr const char* One =
        "<Device><Parameter id='500' dataType='FLOAT' startByte='4' steady='10' steadyAbove='40'/>"
        "<Parameter id='509' dataType='FLOAT' startByte='4'/></Device>";
    static constexpr const char* Two =
        "<Device><Parameter id='500' dataType='FLOAT' startByte='4' steady='10'/>"
        "<Parameter id='501' dataType='FLOAT' startByte='4' factor='-0.5' steady='20'/></Device>";

    /// Of "500@0..180/2=50", one each two seconds, the samples.
    static QString samplesOf(const QString& text)
    {
        QString samples;
        for (const QString& part : text.split(' ')) {
            const QString times = part.section('@', 1).section('=', 0, 0);
            const double stop = times.section("..", 1).section('/', 0, 0).toDouble();
            const double step = std::max(1.0, times.section('/', 1).toDouble());
            for (double time = times.section("..", 0, 0).toDouble(), first = time;
                 time == first || time <= stop; time += step) {
                samples += " " + part.section('@', 0, 0) + "@" + QString::number(time) + "=" +
                           part.section('=', 1);
            }
        }
        return samples;
    }

    static constexpr TimeRange None{-1.0, -1.0};

    static TimeRange found(const Flight& flight, double offset = 0.0)
    {
        Progress none;
        return steadyStretch(flight, offset, none).value_or(None);
    }

    static bool isNear(const TimeRange& a, const TimeRange& b)
    {
        return std::fabs(a.start - b.start) < 1e-6 && std::fabs(a.stop - b.stop) < 1e-6;
    }

    /// The rule, read word by word.
    static bool plainlySteady(const Series& series, const GapRule& gaps, const TimeRange& stretch)
    {
        double low = INFINITY;
        double high = -INFINITY;
        bool holds = false;
        bool goesOn = false;
        for (std::size_t k = 0; k < series.size(); ++k) {
            const double time = series.time(k);
            const double next = k + 1 < series.size() ? series.time(k + 1) : INFINITY;
            const bool isCut = std::isfinite(next) && gaps.isGap(time, next);
            if (isCut && time < stretch.stop && next > stretch.start) {
                return false;
            }
            goesOn = goesOn || time >= stretch.stop;
            holds = holds || time <= stretch.start;
            const bool counts =
                stretch.contains(time) || (time < stretch.start && next > stretch.start);
            if (counts && !std::isfinite(series.value(k))) {
                return false;
            }
            low = counts ? std::min(low, series.value(k)) : low;
            high = counts ? std::max(high, series.value(k)) : high;
        }
        const ProfileParameter& parameter = series.parameter();
        return holds && goesOn && low > parameter.steadyAbove.value_or(-INFINITY) &&
               100.0 * (high - low) <=
                   *parameter.steady * std::max(std::fabs(low), std::fabs(high));
    }

    static TimeRange plainly(const Flight& flight)
    {
        std::vector<Series> all;
        std::vector<double> times;
        for (const auto& [device, parameter] : flight.profile()->parameters()) {
            all.push_back(flight.series(*parameter, 0.0));
            for (std::size_t k = 0; k < all.back().size(); ++k) {
                times.push_back(all.back().time(k));
            }
        }
        std::ranges::sort(times);
        TimeRange longest = None;
        for (auto start = times.begin(); start != times.end(); ++start) {
            for (auto stop = start; stop != times.end(); ++stop) {
                const double least = std::max(180.0 - 1e-7, longest.stop - longest.start + 1e-7);
                const auto isSteady = [&](const Series& series) {
                    const GapRule gaps = series.gapRule([&] { return flight.silences(0.0); });
                    return plainlySteady(series, gaps, {*start, *stop});
                };
                if (*stop - *start >= least && std::ranges::all_of(all, isSteady)) {
                    longest = {*start, *stop};
                }
            }
        }
        return longest;
    }

private Q_SLOTS:
    void stretches_data()
    {
        QTest::addColumn<QByteArray>("profile");
        QTest::addColumn<QString>("samples");
        QTest::addColumn<double>("start");
        QTest::addColumn<double>("stop");
        const auto row = [](const char* name, const char* profile, const char* samples,
                            double start = None.start, double stop = None.stop) {
            QTest::newRow(name) << QByteArray(profile) << QString(samples) << start << stop;
        };
        row("three minutes", One, "500@33120..33300=50", 33120, 33300);
        row("a second less", One, "500@0..179=50");
        row("just the percentage", One, "500@0..99=100 500@100..180=90", 0, 180);
        row("more than it", One, "500@0..99=100 500@100..180=89.9");
        row("not above", One, "500@0..300=40");
        row("above behind", One, "500@0=40 500@1..300=41", 1, 300);
        row("spike", One, "500@0..189=50 500@190=70 500@191..400=50", 191, 400);
        row("no number", One, "500@0..209=50 500@210=nan 500@211..400=50", 0, 209);
        row("infinite", One, "500@0..209=50 500@210=inf 500@211..400=50", 0, 209);
        row("equals", One, "500@0..199=50 500@200=70 500@201..400=50", 0, 199);
        row("gap", One, "500@0..185=50 500@196..400=50", 196, 400);
        row("no gap yet", One, "500@0..185=50 500@195..400=50", 0, 400);
        row("time falls", One, "500@200..400=50 500@0..199=50", 0, 400);
        row("none marked", "<Device><Parameter id='500' dataType='FLOAT' startByte='4'/></Device>",
            "500@0..400=50");
        row("one is not there", Two, "500@0..400=50");
        row("two rates", Two, "500@0..400=50 501@7..392/5=50", 7, 392);
        row("what holds counts", Two, "500@0..400=50 501@7..97/5=50 501@102=99 501@107..392/5=50",
            107, 392);
        row("until it changes", Two, "500@0..400=50 501@0..200/5=50 501@205..400/5=99", 0, 204);
    }

    void stretches()
    {
        QFETCH(const QByteArray, profile);
        QFETCH(const double, start);
        QFETCH(const double, stop);
        QFETCH(const QString, samples);
        const auto flight = flightOf(samplesOf(samples), profile);
        QVERIFY(isNear(found(*flight), {start, stop}));
    }

    void offsetAndStop()
    {
        const auto flight = Flight::make(
            load({writeRecording(samplesOf("500@0..300=50"), "REC_8000.CAN")}), profileOf(One));
        QVERIFY(isNear(found(*flight, 100.0), TimeRange{100.0, 400.0}));
        std::stop_source stop;
        stop.request_stop();
        Progress stopped(nullptr, stop.get_token());
        QVERIFY(!steadyStretch(*flight, 0.0, stopped));
    }

    void anyFlight()
    {
        std::mt19937 random(23);
        int steady = 0;
        for (int round = 0; round < 120; ++round) {
            QString samples;
            for (const int id : {500, 501}) {
                double time = pick(random, 60);
                for (int k = 0; k < 40; ++k) {
                    const int noise = pick(random, 12) == 0 ? 30 : pick(random, 6);
                    samples +=
                        QString(" %1@%2=%3")
                            .arg(id)
                            .arg(time)
                            .arg(pick(random, 40) == 0 ? "nan" : QString::number(50 + noise));
                    time += pick(random, 30) == 0 ? 130.0 : 6.0 * pick(random, 5);
                }
            }
            const auto flight = flightOf(samples, Two);
            const TimeRange expected = plainly(*flight);
            steady += expected == None ? 0 : 1;
            QVERIFY2(isNear(found(*flight), expected), qPrintable(samples));
        }
        QVERIFY2(steady > 20 && steady < 110, qPrintable(QString::number(steady)));
    }
};

QTEST_GUILESS_MAIN(TestSteady)
#include "tst_steady.moc"
