#include "faults/EventDetector.h"
#include "support/FlightTest.h"

#include <bit>
#include <cmath>
#include <numeric>

using namespace TARN;

namespace {

/// Times of events, separated by blanks.
template <typename Some>
QString timesOf(const Some& events)
{
    QStringList times;
    for (const auto& event : events) {
        times += QString::number(event.time);
    }
    return times.join(' ');
}

QStringList described(const std::vector<RecordEvent>& events)
{
    QStringList list;
    for (const RecordEvent& event : events) {
        list += QString("%1|%2|%3|%4|%5|%6")
                    .arg(event.time)
                    .arg(QString::fromStdString(event.name), QString::fromStdString(event.value),
                         event.text, event.color.isValid() ? event.color.name() : "none")
                    .arg(event.tenths);
        list.back() += event.shortText != event.text ? "|" + event.shortText : "";
    }
    return list;
}

/// All that is known of episodes, in numbers.
std::vector<double> numbersOf(const std::vector<Episode>& episodes)
{
    std::vector<double> all;
    for (const Episode& e : episodes) {
        const Episode::Peak peak = e.peak.value_or(Episode::Peak{-99, 0, 0, {}, {}});
        all.insert(all.end(), {double(e.parameter->uid), double(e.state), double(e.samples),
                               e.start, e.end, e.shift, peak.value, peak.time, peak.threshold,
                               peak.below.value_or(-99), double(peak.color.rgba()),
                               double(peak.color.isValid()), double(e.announcedBy.size())});
        all.insert(all.end(), e.announcedBy.begin(), e.announcedBy.end());
    }
    return all;
}

/// Episodes of a parameter as their definition says, one condition after the other.
std::vector<Episode> plainEpisodes(const Flight& flight, const ProfileParameter& parameter,
                                   double offset)
{
    const RecordIdList* list = flight.samples().find(0, static_cast<unsigned>(parameter.id));
    if (list == nullptr || parameter.thresholdId == 0) {
        return {};
    }
    const Decoder decoder(flight.profile()->data(), parameter);
    const auto& limits = flight.profile()->data().thresholds.at(parameter.thresholdId).values;
    const GapRule gaps =
        flight.series(parameter, offset).gapRule([&] { return flight.silences(offset); });
    const auto entryAt = [&](std::size_t place) { return list->entries[place]; };
    const auto timeAt = [&](std::size_t place) {
        return entryAt(place).time() + list->shift(offset);
    };
    const auto stateAt = [&](std::size_t place) { return decoder.cellState(entryAt(place)); };
    const auto valueAt = [&](std::size_t place) { return decoder.toDouble(entryAt(place), true); };
    const auto isOk = [](const ProfileThrValue& value) { return value.state == StateOk; };
    std::vector<std::size_t> places(list->entries.size());
    std::iota(places.begin(), places.end(), 0U);
    std::ranges::stable_sort(places, {}, timeAt);
    std::vector<Episode> episodes;
    std::vector<std::size_t> run;
    for (std::size_t k = 0; k < places.size(); ++k) {
        if (stateAt(places[k]) == StateOk) {
            continue;
        }
        run.push_back(places[k]);
        const bool isCut =
            k + 1 == places.size() || gaps.isGap(timeAt(places[k]), timeAt(places[k + 1]));
        if (!isCut && stateAt(places[k + 1]) != StateOk) {
            continue;
        }
        const std::size_t worst = *std::ranges::max_element(run, {}, stateAt);
        const auto reached = limits.begin() + decoder.reachedLimit(entryAt(worst));
        const bool isDown = std::any_of(reached + 1, limits.end(), isOk) &&
                            std::none_of(limits.begin(), reached, isOk);
        Episode episode;
        episode.parameter = &parameter;
        episode.state = stateAt(worst);
        episode.start = timeAt(run[0]);
        episode.end = timeAt(places[isCut ? k : k + 1]);
        episode.shift = list->shift(offset);
        episode.samples = run.size();
        for (const RecordEvent& event : flight.events().limits) {
            if (event.parameter == &parameter && std::ranges::find(run, event.place) != run.end()) {
                episode.announcedBy.push_back(event.place);
            }
        }
        std::erase_if(run, [&](std::size_t place) { return std::isnan(valueAt(place)); });
        if (!run.empty()) {
            const auto peak = isDown ? std::ranges::min_element(run, {}, valueAt)
                                     : std::ranges::max_element(run, {}, valueAt);
            const auto limit = static_cast<std::size_t>(decoder.reachedLimit(entryAt(*peak)));
            episode.peak = {valueAt(*peak),
                            timeAt(*peak),
                            decoder.thresholds().limits()[limit],
                            limits[limit].color,
                            {}};
            if (isDown && limit + 1 < limits.size()) {
                episode.peak->below = decoder.thresholds().limits()[limit + 1];
            }
        }
        episodes.push_back(episode);
        run.clear();
    }
    return episodes;
}

const QByteArray Thresholds =
    "<ThresholdList><Threshold name='T'><Value val='10' state='WARNING' color='#ffff00'/>"
    "<Value val='20' state='LIMIT'/></Threshold>"
    "<Threshold name='calm'><Value val='0' color='#00ff00'/></Threshold></ThresholdList>";

} // namespace

class TestEvents : public FlightTest
{
    Q_OBJECT

    /// Samples of every parameter that lie about its limits, mostly one after the other; the
    /// offset applies to every other parameter.
    std::shared_ptr<const Record> anyRecord(std::mt19937& random, const Profile& profile) const
    {
        constexpr float Readings[] = {-5, 0, 3, 5, 7, 10, 15, 20, 25, 30, NAN};
        RecordingBuilder files[2];
        for (const auto& [device, parameter] : profile.parameters()) {
            const bool isSingle = parameter->dataType == 2 || parameter->dataType == 70;
            double time = 5.0;
            for (int i = pick(random, 40); i > 0; --i) {
                const float reading = Readings[pick(random, std::size(Readings))];
                const auto bits = isSingle ? std::bit_cast<std::uint32_t>(reading)
                                           : unsigned(pick(random, 32)) << 24;
                time += pick(random, 12) == 0   ? 15
                        : pick(random, 12) == 0 ? -1
                                                : pick(random, 3) * 0.5;
                files[parameter->id % 2].add(
                    {static_cast<unsigned>(parameter->id), ticks(time),
                     (pick(random, 6) == 0 ? "00060000" : "00020000") +
                         QByteArray::number(bits, 16).rightJustified(8, '0')});
            }
        }
        return load(
            {write("REC_0000.CAN", files[0].bytes()), write("REC_8000.CAN", files[1].bytes())});
    }

private Q_SLOTS:
    void limitsAndLamps_data()
    {
        QTest::addColumn<QString>("states"); // of a parameter and a lamp, one a second
        QTest::addColumn<QString>("limits"); // times of the events
        QTest::addColumn<QString>("lamps");
        const auto row = [](const char* name, const QString& states, const char* limits,
                            const char* lamps) {
            QTest::addRow("%s", name) << states << QString(limits) << QString(lamps);
        };
        row("no samples", "", "", "");
        row("rises step by step", "012102", "1 2 5", "1 2 3 5");
        row("jumps to the limit", "0020", "2", "2");
        row("comes back", "0201010", "1 3 5", "1 3");
        row("wavers between warning and limit", "012121", "1 2 4", "1 2 3 4 5");
        row("in warning from the start", "1111", "", "0");
        row("in warning from the start, then ok", "1101", "3", "0");
        row("warning then limit at the start", "122", "1", "0 1");
        row("at the limit from the start", "2221", "", "0 3");
        row("at the limit from the start, wavers", "212", "2", "0 1 2");
        row("after many that were normal", QString(1024, '0') + "2", "1024", "1024");
    }

    void limitsAndLamps()
    {
        QFETCH(const QString, states);
        QString samples;
        for (int i = 0; i < states.size(); ++i) {
            const int state = states[i].digitValue();
            samples +=
                QString("500@%1=%2 501/1@%1=5:0000000%3 ").arg(i).arg(5 + 10 * state).arg(state);
        }
        const auto flight = flightOf(
            samples, Thresholds + "<EnumList><Enum name='WarningLamp'/></EnumList><Device>"
                                  "<Parameter id='500' dataType='FLOAT' thresholdId='T'/>"
                                  "<Parameter id='501' channel='1' dataType='BLONG' startByte='4' "
                                  "endBit='31' enumId='WarningLamp'/></Device>");
        QTEST(timesOf(flight->events().limits), "limits");
        QTEST(timesOf(flight->events().warnings), "lamps");
    }

    void textsColoursAndTenths()
    {
        const auto flight = flightOf(
            "500@0=5 500@0.5=12.5 500@0.0499=5 500@12.36=25 501@0=0 501@0.049=10 501@0.06=20.06 "
            "502@1=5:00000001 502@2=5:00000002 502@3=5:00000003 "
            "503@4=7:0001 503@5=7:000B 503@6=7:0014 504@1=10:07000000",
            "<EnumList><Enum name='WarningLamp'><Value val='1' label='on'/></Enum>"
            "<Enum name='warningLamp'/><Enum name='WarningLamps'/></EnumList>" +
                Thresholds +
                "<Device name='Engine 1'>"
                "<Parameter name='Öl' id='500' dataType='FLOAT' startByte='4' unit='°C' factor='2' "
                "thresholdId='T'/>"
                "<Parameter name='Bare' id='501' dataType='FLOAT' startByte='4' thresholdId='T'/>"
                "<Parameter name='Lamp' id='502' dataType='BLONG' startByte='4' endBit='3' "
                "enumId='WarningLamp'/>"
                "<Parameter name='Level' id='503' dataType='USHORT' startByte='4' unit='%' "
                "enumId='WarningLamp' thresholdId='T'/>"
                "<Parameter id='504' startByte='4' thresholdId='calm' enumId='warningLamp'/>"
                "<Parameter id='504' startByte='4' enumId='WarningLamps'/>"
                "<Parameter id='505' enumId='WarningLamp' thresholdId='T'/>"
                "</Device>");
        const QStringList limits = {
            "0.049|Engine 1 Bare|10 |Engine 1 Bare 10 |#ffff00|0",
            "0.06|Engine 1 Bare|20.0599994659 |Engine 1 Bare 20.0599994659 |none|1|Engine 1 Bare "
            "20.06 ",
            "0.5|Engine 1 Öl|25 °C|Engine 1 Öl 25 °C|#ffff00|5",
            "12.36|Engine 1 Öl|50 °C|Engine 1 Öl 50 °C|none|124",
        };
        const Events& events = flight->events();
        QCOMPARE(described(events.limits), limits);
        const QStringList lamps = {
            "1|Engine 1 Lamp|1: on |Engine 1 Lamp 1: on |#ff9664|10",
            "2|Engine 1 Lamp|2: Invalid ENUM Value |Engine 1 Lamp 2: Invalid ENUM Value |#ff6464"
            "|20",
            "3|Engine 1 Lamp|3: Invalid ENUM Value |Engine 1 Lamp 3: Invalid ENUM Value |#ffffff"
            "|30",
            "4|Engine 1 Level|1 %|Engine 1 Level 1 %|#ff9664|40",
            "5|Engine 1 Level|11 %|Engine 1 Level 11 %|#ffff00|50",
            "6|Engine 1 Level|20 %|Engine 1 Level 20 %|none|60",
        };
        QCOMPARE(described(events.warnings), lamps);
        // What was not watched is not told to be well: other messages, no warning, no sample.
        const std::size_t watched[] = {events.watchedLimits.parameters,
                                       events.watchedLimits.samples, events.watchedLamps.parameters,
                                       events.watchedLamps.samples};
        const std::size_t expected[] = {2, 7, 2, 6};
        QVERIFY(std::ranges::equal(watched, expected));
        QVERIFY(hasWarningLamps(flight->profile()->data()));
        QVERIFY(!hasWarningLamps(
            profileOf("<EnumList><Enum name='WarningLamps'/></EnumList>")->data()));
    }

    void equalTimesKeepTheProfilesOrder()
    {
        QByteArray devices = Thresholds;
        QString samples;
        QStringList expected;
        for (int i = 0; i < 20; ++i) {
            const QString name = QString::number((i * 7 + 3) % 20);
            devices += "<Device name='D'><Parameter name='" + name.toLatin1() + "' id='" +
                       name.toLatin1() +
                       "' dataType='FLOAT' startByte='4' thresholdId='T'/>"
                       "</Device>";
            samples += QString("%1@0=0 %1@1=15 %1@1=25 ").arg(name);
            expected += {"D " + name + " 15 ", "D " + name + " 25 "};
        }
        const auto flight = flightOf(samples, devices);
        QStringList found;
        for (const RecordLimit& event : flight->events().limits) {
            found += event.text;
        }
        QCOMPARE(found, expected);
    }

    void episodesAsTheirDefinitionSays()
    {
        QByteArray thresholds, parameters;
        for (const QByteArray& list : QByteArrayList({"10W 20L", "0L 10W 20O", "0L 5W 10O 20W 30L",
                                                      "0O 20w 10L 30O", "0W", "0O 10O"})) {
            thresholds += "<Threshold name='" + list + "'>";
            for (const QByteArray& step : list.split(' ')) {
                const char state = step.back();
                thresholds += "<Value val='" + step.chopped(1) +
                              (state == 'w' ? "" : "' color='red") +
                              (state == 'L'   ? "' state='LIMIT'/>"
                               : state == 'O' ? "'/>"
                                              : "' state='WARNING'/>");
            }
            thresholds += "</Threshold>";
            for (const char* type : {"FLOAT", "FLOAT' factor='-1' offset='30", "UCHAR' factor='2",
                                     "NMEA", "LONG48", "BLONG"}) {
                parameters += "<Parameter id='" + QByteArray::number(parameters.size()) +
                              "' startByte='4' thresholdId='" + list + "' dataType='" + type +
                              "'/>";
            }
        }
        const auto profile = profileOf("<ThresholdList>" + thresholds + "</ThresholdList><Device>" +
                                       parameters + "</Device>");
        std::mt19937 random(3);
        for (int round = 0; round < 60; ++round) {
            const auto flight = Flight::make(anyRecord(random, *profile), profile);
            const double offset = pick(random, 3) * 4.0 - 4.0;
            std::vector<Episode> expected;
            for (const auto& [device, parameter] : profile->parameters()) {
                std::ranges::copy(plainEpisodes(*flight, *parameter, offset),
                                  std::back_inserter(expected));
            }
            std::ranges::stable_sort(expected, {}, &Episode::start);
            int told = 0;
            Progress progress([&](int percent, const QString&) { told = percent; });
            const auto found = flight->episodes(offset, progress);
            QCOMPARE(numbersOf(found), numbersOf(expected));
            QVERIFY(told > 90 && told <= 100);
        }
    }

    void marks()
    {
        const auto flight = flightOf(
            "500@0=0 500@2=15.06 501@2=10:01 900@1=5:00000000 900@3=5:00000007 900@4=5:00000009 "
            "900@5=5:00000008 900@6=5:00000018",
            Thresholds +
                "<EnumList><Enum name='WarningLamp'/></EnumList><Device name='D'>"
                "<Parameter name='P' id='500' dataType='FLOAT' startByte='4' thresholdId='T'/>"
                "<Parameter name='L' id='501' dataType='UCHAR' startByte='4' enumId='WarningLamp'/>"
                "<ErrorMatrix id='900' name='M'/>"
                "<Parameter name='i' id='900' startBit='0' errorType='Info'/>"
                "<Parameter name='v' id='900' startBit='1' errorType='Warning'/>"
                "<Parameter name='w' id='900' startBit='2' errorType='Warning'/>"
                "<Parameter name='f' id='900' startBit='3' errorType='Fault'/></Device>");
        QStringList found;
        for (const EventMark& mark : flight->marks().marks()) {
            found += QString("%1 %2 %3 %4")
                         .arg(mark.time)
                         .arg(int(mark.kind))
                         .arg(mark.text, mark.color.name());
        }
        const QStringList expected = {"2 0 D P 15.06  #ffff00", "2 1 D L 1  #ff9664",
                                      "3 2 M: v, w came #ffc896",
                                      "4 2 M: f came; v, w went #ff9696"};
        QCOMPARE(found, expected);
    }

    void nextAndPreviousMark()
    {
        const ProfileParameter parameter;
        Events events;
        for (const double at : {1.0, 1.0009, 1.0015, 5.2344, 7.2346}) {
            RecordEvent& event = events.limits.emplace_back();
            event.time = at;
            event.parameter = &parameter;
        }
        const EventMarks marks(RecordData(), events, {});
        const std::tuple<double, const char*, const char*> rows[] = {
            {0.0, "1 1.0009", ""}, // all within a millisecond
            {1.0, "1.0015", ""},
            {0.9995, "1.0009 1.0015", ""}, // less than a millisecond away is here
            {3.0, "5.2344", "1.0009 1.0015"},
            {5.234, "7.2346", "1.0009 1.0015"}, // as a view tells it, rounded down
            {7.235, "", "5.2344"},              // rounded up
            {9.0, "", "7.2346"}};
        for (const auto& [time, next, previous] : rows) {
            QCOMPARE(timesOf(marks.next(time)), QString(next));
            QCOMPARE(timesOf(marks.previous(time)), QString(previous));
        }
    }
};

QTEST_APPLESS_MAIN(TestEvents)
#include "tst_events.moc"
