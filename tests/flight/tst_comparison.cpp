#include "flight/Aligner.h"
#include "flight/Comparer.h"
#include "flight/Comparison.h"
#include "support/FlightTest.h"

#include <QtTest/QSignalSpy>

#include <cmath>

using namespace TARN;

/// Two flights compared: exact cases by hand, random ones against a plain reading of the words.
class TestComparison : public FlightTest
{
    Q_OBJECT

private:
    static constexpr const char* Profile =
        "<EnumList><Enum name='E'><Value val='0' text='OFF'/></Enum></EnumList>"
        "<Device name='D'><Parameter name='Number' id='500' dataType='FLOAT' startByte='4'/>"
        "<Parameter name='State' id='501' dataType='BLONG' startByte='4' endBit='31'/>"
        "</Device>";

    struct Pair
    {
        std::shared_ptr<const Flight> flight;
        std::shared_ptr<const Flight> reference;
    };

    Pair pairOf(const QString& own, const QString& other) const
    {
        const auto profile = profileOf(Profile);
        const QString heart = " 600@0=0"; // the recordings begin together
        return {Flight::make(load({writeRecording(own + heart, "A.CAN")}), profile),
                Flight::make(load({writeRecording(other + heart, "B.CAN")}), profile)};
    }

    static std::shared_ptr<const StatisticsIndex> indexOf(const std::shared_ptr<const Flight>& of,
                                                          int parameter)
    {
        Progress none;
        return std::make_shared<StatisticsIndex>(
            of, *of->profile()->parameters()[std::size_t(parameter)].parameter, 0.0, none);
    }

    static ComparisonIndex comparison(const Pair& pair, double shift, int parameter = 0)
    {
        Progress none;
        return {indexOf(pair.flight, parameter), indexOf(pair.reference, parameter), shift, none};
    }

    static bool isNear(const std::optional<double>& found, double expected)
    {
        return std::isnan(expected)
                   ? !found
                   : found && std::fabs(*found - expected) <= 1e-9 * (1.0 + std::fabs(expected));
    }

    /// What stands at a time, of equal times number \p which; NaN where nothing does.
    static double plainAt(const StatisticsIndex& index, double shift, double time, int which)
    {
        const Series& series = index.series();
        std::optional<std::size_t> before;
        for (std::size_t k = 0; k < series.size(); ++k) {
            const double now = series.time(k) + shift;
            if (std::fabs(now - time) <= HalfTick) {
                for (; which > 0 && k + 1 < series.size() && series.time(k + 1) == series.time(k);
                     --which) {
                    ++k;
                }
                return series.value(k);
            }
            if (now > time) {
                if (!before || index.gaps().isGap(series.time(*before), series.time(k))) {
                    return NAN;
                }
                const double from = series.time(*before) + shift;
                return series.value(*before) +
                       (time - from) / (now - from) * (series.value(k) - series.value(*before));
            }
            before = k;
        }
        return NAN;
    }

    /// Whether the reference knows all times between two.
    static bool plainKnows(const StatisticsIndex& index, double shift, double from, double to)
    {
        const Series& series = index.series();
        bool isKnown = !series.empty() && series.time(0) + shift <= from + HalfTick &&
                       series.time(series.size() - 1) + shift >= to - HalfTick;
        for (std::size_t k = 1; k < series.size(); ++k) {
            const bool isGap = index.gaps().isGap(series.time(k - 1), series.time(k));
            const bool isBetween = series.time(k - 1) + shift < to - HalfTick &&
                                   series.time(k) + shift > from + HalfTick;
            isKnown = isKnown && !(isGap && isBetween);
        }
        return isKnown;
    }

    static void compare(const Pair& pair, double shift, const TimeRange& range)
    {
        const auto own = indexOf(pair.flight, 0);
        const auto other = indexOf(pair.reference, 0);
        const Series& series = own->series();
        std::size_t count = 0;
        double sum = 0.0;
        double held = 0.0;
        double heldSum = 0.0;
        double integral = 0.0;
        const auto differenceAt = [&](std::size_t k) {
            int which = 0;
            while (k > std::size_t(which) && series.time(k - 1 - which) == series.time(k)) {
                ++which;
            }
            return series.value(k) - plainAt(*other, shift, series.time(k), which);
        };
        for (std::size_t k = 0; k < series.size(); ++k) {
            const double time = series.time(k);
            const double now = differenceAt(k);
            if (!range.contains(time) || std::isnan(now)) {
                continue;
            }
            ++count;
            sum += now;
            const double next = k + 1 < series.size() ? series.time(k + 1) : NAN;
            if (!(next <= range.stop) || own->gaps().isGap(time, next) ||
                !(next == time || plainKnows(*other, shift, time, next))) {
                continue;
            }
            held += next - time;
            heldSum += now * (next - time);
            const double then = differenceAt(k + 1);
            integral += std::isnan(then) ? 0.0 : 0.5 * (now + then) * (next - time);
        }
        const Statistics found = comparison(pair, shift).difference(range);
        QCOMPARE(found.samples, count);
        QVERIFY(isNear(found.mean, count > 0 ? sum / double(count) : NAN));
        QVERIFY(isNear(found.timeMean, held > 0.0 ? heldSum / held : NAN));
        QVERIFY(isNear(found.integral, integral));
    }

private Q_SLOTS:
    void values()
    {
        const Pair pair = pairOf("500@10=1 500@11=5", "500@10=1 500@12=3 500@12=9 500@40=9 "
                                                      "501@10=5:00000003 501@12=5:00000007");
        const ComparisonIndex index = comparison(pair, 0.0);
        const ComparisonIndex states = comparison(pair, 0.0, 1);
        const struct
        {
            const ComparisonIndex& index;
            double time;
            double expected;
        } rows[] = {{index, 9.999, NAN}, {index, 10.0, 1.0},   {index, 11.0, 2.0},
                    {index, 12.0, 3.0},  {index, 12.5, NAN}, // the 28 seconds are a gap
                    {index, 40.0, 9.0},  {index, 40.001, NAN}, {states, 11.9, 3.0},
                    {states, 12.0, 7.0}, {states, 12.1, NAN}};
        for (const auto& [of, time, expected] : rows) {
            QVERIFY2(isNear(of.referenceAt(time), expected), qPrintable(QString::number(time)));
        }
        QVERIFY(isNear(index.differenceAt(10.5), 3.0 - 1.5));
        const ComparisonIndex shifted = comparison(pair, 1.0);
        QVERIFY(isNear(shifted.referenceAt(12.0), 2.0));
        QCOMPARE(shifted.reference({0.0, 99.0}).max->time, 13.0);
        QVERIFY(isNear(shifted.difference({0.0, 99.0}).mean, 5.0 - 1.0));
        QCOMPARE(commonRange({10.0, 20.0}, {5.0, 12.0}, 3.0), (TimeRange{10.0, 15.0}));
    }

    void anySeries()
    {
        std::mt19937 random(17);
        const auto any = [&](int size, int kind) {
            QString text;
            double time = 100.0;
            for (int k = 0; k < size; ++k) {
                time += kind == 1 && pick(random, 40) == 0 ? 5.0 : 0.125 * pick(random, 3);
                time -= kind == 3 && pick(random, 60) == 0 ? 3.0 : 0.0;
                const bool isBad = kind == 2 && pick(random, 9) == 0;
                text += QString(" 500@%1=%2")
                            .arg(time)
                            .arg(isBad ? "nan" : QString::number(pick(random, 50)));
            }
            return text;
        };
        for (int k = 0; k < 60; ++k) {
            const Pair pair =
                pairOf(any(pick(random, 700), k % 4), any(pick(random, 500), k / 4 % 4));
            const double from = 100.0 + pick(random, 60);
            compare(pair, k % 5 == 0 ? 0.0 : 0.125 * pick(random, 200) - 12.0, {0.0, 1e6});
            compare(pair, 0.0625 * pick(random, 40), {from, from + pick(random, 30)});
            const Pair self = {pair.flight, pair.flight};
            const Statistics none = comparison(self, 0.0).difference({0.0, 1e6});
            QVERIFY(none.samples == 0 || (none.min->value == 0.0 && none.max->value == 0.0));
            QCOMPARE(none.integral, std::optional(0.0));
        }
    }

    /// The same flight on another clock, and one whose clock stands still.
    void otherClocks()
    {
        QString now;
        QString before;
        QString frozen;
        for (int k = 0; k < 5000; ++k) {
            const int state = k / 3 % 2;
            now += QString(" 501@%1=5:0000000%2").arg(33000.1 + k * 0.1).arg(state);
            before += QString(" 501@%1=5:0000000%2").arg(60.1 + k * 0.1).arg(state);
            frozen += QString(" 500@100=%1").arg(k);
        }
        const Pair pair = pairOf(now, before);
        const double shift =
            pair.flight->series(*pair.flight->profile()->parameters()[1].parameter, 0.0).time(0) -
            60.1;
        const Statistics same = comparison(pair, shift, 1).difference({0.0, 1e6});
        QVERIFY(same.samples == 5000U && same.min->value == 0.0 && same.max->value == 0.0);
        const TimeRange common = commonRange({33000.1, 33600.0}, {60.1, 660.0}, 33000.1 - 60.1);
        QVERIFY(common.contains(33000.1) && common.contains(60.1 + (33000.1 - 60.1)));
        const Pair still = pairOf(frozen, frozen);
        const Statistics none = comparison(still, 0.0).difference({0.0, 1e6});
        QVERIFY(none.samples == 5000U && none.min->value == 0.0 && none.max->value == 0.0);
    }

    void alignments()
    {
        const Pair pair = pairOf("500@10=nan 500@11=0 500@12=39 500@13=41 500@14=30",
                                 "500@10=60 500@15=40 500@16=39.5 500@17=50");
        const FlightClock own{*pair.flight, 0.0};
        const FlightClock other{*pair.reference, 0.0};
        Progress none;
        using A = Alignment;
        const std::pair<Alignment, std::optional<double>> rows[] = {
            {{A::Clock, {}, 0.0}, 0.0},
            {{A::Start, {}, 0.0}, 0.0},
            {{A::Moment, {}, 0.0}, std::nullopt},
            {{A::Passing, "D/Number", 40.0}, 13.0 - 16.0}, // 40 is not below
            {{A::Passing, "D/Number", 55.0}, std::nullopt},
            {{A::Passing, "D/Gone", 1.0}, std::nullopt}};
        for (const auto& [alignment, expected] : rows) {
            QCOMPARE(shiftOf(alignment, own, other, none), expected);
        }
    }

    /// The shift follows what is laid on what; by hand it stays.
    void session()
    {
        const Pair pair = pairOf("500@10=0 500@13=41 500@14=30", "500@10=0 500@16=50 500@17=50");
        Session session;
        Aligner aligner(session);
        Comparer comparer(session);
        Selection all = Selection::all(*pair.flight->profile());
        session.setProfile(pair.flight->profile(), all, pair.flight, pair.reference);
        Reference& reference = session.reference();
        QTRY_VERIFY(!aligner.isRunning());
        QCOMPARE(reference.shift(), 0.0);
        reference.align({Alignment::Passing, "D/Number", 40.0});
        QTRY_COMPARE(reference.shift(), -3.0);
        comparer.compare({indexOf(pair.flight, 0)});
        QTRY_COMPARE(comparer.indexes().size(), 1U);
        QCOMPARE(comparer.indexes()[0]->difference({0.0, 99.0}).max->value, -9.0);
        reference.align({Alignment::Passing, "D/Number", 45.0});
        QTRY_VERIFY(!aligner.isPossible());
        QCOMPARE(reference.shift(), -3.0);
        reference.setShift(0.5);
        QTRY_COMPARE(comparer.indexes().size(), 1U);
        QVERIFY(aligner.isPossible() && reference.alignment().by == Alignment::Moment);
        session.setOffset(2.0); // what lies on each other stays so
        QCOMPARE(reference.shift(), 2.5);
        session.setFlight(pair.reference); // the moment was one of the flight before
        QTRY_COMPARE(reference.shift(), 0.0);
        QCOMPARE(reference.alignment().by, Alignment::Start);
        reference.setFlight(nullptr);
        QVERIFY(comparer.indexes().empty());
    }
};

QTEST_GUILESS_MAIN(TestComparison)
#include "tst_comparison.moc"
