#include "card/OverviewFinder.h"
#include "flight/EmptyText.h"
#include "flight/EpisodeWatch.h"
#include "flight/OffsetKeeper.h"
#include "flight/TimeScale.h"
#include "record/OffsetFile.h"
#include "support/FlightTest.h"

#include <QtCore/QDir>
#include <QtTest/QSignalSpy>

#include <barrier>
#include <thread>

using namespace TARN;

namespace {

/// A parameter "a" with a warning from 10 on, a parameter "b" and an error matrix.
const QByteArray Elements =
    "<ThresholdList><Threshold name='T'><Value val='10' state='WARNING' color='red'/></Threshold>"
    "</ThresholdList><Device name='D'>"
    "<Parameter name='a' id='500' dataType='FLOAT' startByte='4' thresholdId='T'/>"
    "<Parameter name='b' id='501' dataType='USHORT' startByte='4' factor='0.5'/>"
    "<ErrorMatrix id='900' name='M'/>"
    "<Parameter name='f' id='900' startBit='3' errorType='Fault'/></Device>";

QString namesOf(const Profile& profile, const Selection& selection)
{
    QString names;
    for (const ProfileParameter* parameter : selection.parameters(profile)) {
        names += parameter->name;
    }
    return names;
}

/// All of a session that a listener may ask for.
QString stateOf(const Session& session)
{
    const Flight* flight = session.flight().get();
    return QString("%1%2 +%3 @%4 %5-%6 %7|%8")
        .arg(flight != nullptr ? QString::number(flight->samples().count()) : "none",
             flight != nullptr && flight->profile() != session.profile() ? " torn" : "")
        .arg(session.offset())
        .arg(session.time())
        .arg(session.marks().start)
        .arg(session.marks().stop)
        .arg(namesOf(*session.profile(), session.ticks()),
             namesOf(*session.profile(), session.selection()));
}

/// All that is made of a flight, as texts.
QStringList decoded(const Flight& flight)
{
    QStringList all;
    for (const auto& [device, parameter] : flight.profile()->parameters()) {
        const Series series = flight.series(*parameter, 2.0);
        for (std::size_t k = 0; k < series.size(); ++k) {
            std::string text = QByteArray::number(series.time(k)).toStdString() + " ";
            all += series.decoder().appendDisplay(series.entry(k), text).name();
            all += QString::fromStdString(text);
        }
    }
    Progress progress;
    for (const Episode& episode : flight.episodes(0.0, progress)) {
        all += QString("%1 %2").arg(episode.start).arg(episode.end);
    }
    for (const EventMark& mark : flight.marks().marks()) {
        all += mark.text;
    }
    all += QString::number(flight.silences(0.0)->stretches().size());
    return all +=
           QString::number(flight.samples().find(0, RecordData::AllOfChannel0)->entries.size());
}

} // namespace

class TestFlight : public FlightTest
{
    Q_OBJECT

private Q_SLOTS:
    void rangesAndSilences()
    {
        const QString samples = "500@5=0 500@20=0 500@17=0";
        const struct
        {
            QString fixed, shifted; // by -3 s
            TimeRange range;
            const char* silences;
        } rows[] = {{samples, "", {5, 20}, "5-17 "},
                    {"", samples, {2, 17}, "2-14 "},
                    {"501@8=0", samples, {2, 17}, ""},
                    {"501@1=0 501@28=0", samples, {1, 28}, "2-14 17-28 "},
                    {"", "", {0, 0}, ""}};
        for (const auto& row : rows) {
            const auto flight = Flight::make(load({writeRecording(row.fixed, "REC_0000.CAN"),
                                                   writeRecording(row.shifted, "REC_8000.CAN")}),
                                             profileOf(Elements));
            QVERIFY2(flight->range(-3.0) == row.range, row.silences);
            const auto found = flight->silences(-3.0);
            QString silences;
            for (const Silences::Stretch& stretch : found->stretches()) {
                silences += QString("%1-%2 ").arg(stretch.from).arg(stretch.to);
            }
            QCOMPARE(silences, QString(row.silences));
            QCOMPARE(flight->silences(0.0), flight->silences(0.0)); // made once
            QCOMPARE(found == flight->silences(0.0), row.shifted.isEmpty());
        }
    }

    void madeOfRecordAndProfile()
    {
        const auto flight = flightOf("500@1=0 500@2=15 900@1=5:00000000 900@2=5:00000008 "
                                     "900@3=5:00000008 77@3=1",
                                     Elements);
        QCOMPARE(flight->events().limits.size(), 1U);
        QCOMPARE(flight->faults().at(0).points(ErrorFault).size(), 3U);
        QCOMPARE(flight->marks().marks().size(), 2U);
        QCOMPARE(flight->unknown().samples, 1U);
        const auto other = Flight::make(flight->record(), profileOf("<Device/>"));
        QCOMPARE(&other->samples(), &flight->samples());
        QVERIFY(other->marks().empty() && other->unknown().samples == 6);
        std::stop_source stop;
        stop.request_stop();
        Progress stopped({}, stop.get_token());
        QVERIFY(Flight::make(flight->record(), flight->profile(), stopped) == nullptr);
    }

    /// Whatever a listener hears, it sees a session whose parts belong together.
    void session()
    {
        const auto one = profileOf(Elements);
        const auto two = profileOf(Elements);
        QDir(folder()).mkdir("card");
        OffsetFile(path("card")).save(2.5);
        const auto flight =
            Flight::make(load({writeRecording("500@1=0 500@9=0", "card/a.CAN")}), one);
        const auto again = Flight::make(flight->record(), two);
        const auto next = Flight::make(load({writeRecording("500@7=0 500@8=0 500@8=0")}), two);

        Session session;
        QStringList heard;
        const auto hear = [&](const char* name) {
            return [&, name] { heard += name + QString(": ") + stateOf(session); };
        };
        connect(&session, &Session::profileChanged, this, hear("profile"));
        connect(&session, &Session::flightChanged, this, hear("flight"));
        connect(&session, &Session::ticksChanged, this, hear("ticks"));
        connect(&session, &Session::selectionChanged, this, hear("selection"));
        connect(&session, &Session::offsetChanged, this, hear("offset"));
        connect(&session, &Session::timeChanged, this, hear("time"));
        connect(&session, &Session::marksChanged, this, hear("marks"));
        connect(&session.switches().loading, &Switch::turned, this, hear("loading"));
        connect(&session.switches().allDigits, &Switch::turned, this, hear("digits"));
        QVERIFY(!session.profile()->isLoaded() && rangeOf(session) == TimeRange());
        QSignalSpy times(&session, &Session::timeChanged);

        session.setProfile(one, select(*one, {"a"}), nullptr);
        for (int twice = 0; twice < 2; ++twice) {
            session.setOffset(-1.0);
            session.switches().loading.turn(true);
            session.switches().allDigits.turn(true);
        }
        session.setFlight(flight);
        QVERIFY(rangeOf(session) == flight->range(2.5));
        for (int twice = 0; twice < 2; ++twice) {
            session.setTicks(select(*one, {"a", "b"}));
            session.confirm();
            session.setMarks({2.0, 4.0});
        }
        session.setTime(3.0, this);
        QVERIFY(times.last().at(1).value<const QObject*>() == this);
        QVERIFY(rangeOf(session) == TimeRange({2.0, 4.0}));
        session.setProfile(two, select(*two, {"b"}), again);
        session.setMarks({4.0, 4.0});
        QVERIFY(rangeOf(session) == flight->range(2.5)); // a moment is no range
        session.setFlight(next);
        session.setOffset(1.5);
        session.setFlight(nullptr);
        const QStringList expected = {
            "profile: none +0 @0 0-0 a|a",    "offset: none +-1 @0 0-0 a|a",
            "loading: none +-1 @0 0-0 a|a",   "digits: none +-1 @0 0-0 a|a",
            "flight: 2 +2.5 @1 0-0 a|a",      "ticks: 2 +2.5 @1 0-0 ab|a",
            "selection: 2 +2.5 @1 0-0 ab|ab", "marks: 2 +2.5 @1 2-4 ab|ab",
            "selection: 2 +2.5 @1 2-4 ab|ab", "time: 2 +2.5 @3 2-4 ab|ab",
            "profile: 2 +2.5 @3 2-4 b|b",     "marks: 2 +2.5 @3 4-4 b|b",
            "flight: 3 +0 @7 0-0 b|b",        "offset: 3 +1.5 @7 0-0 b|b",
            "flight: none +1.5 @0 0-0 b|b"};
        QCOMPARE(heard, expected);
    }

    void emptyTexts()
    {
        const auto profile = profileOf(Elements);
        Session session;
        QStringList texts; // how they begin, for views of the selection and for views of all
        const auto note = [&] {
            texts += emptyTextOf(session).left(12) + "|" + emptyTextOfAll(session).left(12);
        };
        note();
        session.setProfile(profile, {}, nullptr);
        note();
        session.switches().loading.turn(true);
        session.setTicks(select(*profile, {"a"}));
        session.confirm();
        note();
        session.switches().loading.turn(false);
        note();
        session.setFlight(Flight::make(load({writeRecording("")}), profile));
        note();
        session.switches().loading.turn(true);
        session.setFlight(Flight::make(load({writeRecording("77@1=0")}), profile));
        note();
        session.setTicks({});
        session.confirm();
        note();
        QCOMPARE(texts.join(", "), QString("No profile i|No profile i, No parameter|No recording, "
                                           "The recordin|The recordin, No recording|No recording, "
                                           "The recordin|The recordin, |, No parameter|"));
        QVERIFY(emptyTextOf(Session()).contains("<a href=\"preferences\">"));
    }

    void jobGivesItsResultInTheEventLoop()
    {
        Job<int> job;
        QList<int> percents;
        int result = 0;
        QElapsedTimer timer;
        timer.start();
        job.setListener([&](int percent, const QString& task) {
            percents += percent;
            QVERIFY(task == "work" && QThread::currentThread() == thread());
        });
        job.start(
            [main = thread()](Progress& progress) {
                for (int i = 0; i < 20'000; ++i) {
                    progress.begin("work");
                    progress.report(i / 200);
                }
                return QThread::currentThread() == main ? 1 : 2;
            },
            [&](int given) { result = QThread::currentThread() == thread() ? given : 3; });
        QVERIFY(job.isRunning());
        job.waitForEnd(std::chrono::seconds(10));
        QCOMPARE(result, 0); // not by waiting
        QTRY_COMPARE(result, 2);
        QVERIFY(!job.isRunning());
        QVERIFY(!percents.empty() && percents.size() <= timer.elapsed() / 40 + 3);
        QTRY_COMPARE(pendingWork(), 0);
    }

    /// Work that has several parts counts each of them from its beginning.
    void jobOfSeveralParts()
    {
        QStringList heard;
        std::atomic<int> count = 0;
        Job<int> job;
        job.setListener([&](int percent, const QString& task) {
            heard += QString("%1 %2").arg(task).arg(percent);
            ++count;
        });
        bool isDone = false;
        job.start(
            [&](Progress& progress) {
                using namespace std::chrono_literals;
                for (const auto& [task, percent] : {std::pair("a", 90), {"b", 0}, {"b", 30}}) {
                    const int before = count;
                    std::this_thread::sleep_for(50ms); // they are told 25 times a second at most
                    progress.begin(task);
                    progress.report(percent);
                    while (count == before && !progress.stopRequested()) {
                        std::this_thread::yield();
                    }
                }
                return 0;
            },
            [&](int) { isDone = true; });
        QTRY_VERIFY(isDone);
        QCOMPARE(heard, QStringList({"a 90", "b 0", "b 30"}));
    }

    void jobThatEndsOtherwise()
    {
        QStringList heard;
        auto job = std::make_unique<Job<int>>();
        std::atomic<int> stopped = 0;
        const auto untilStopped = [&stopped](Progress& progress) {
            while (!progress.stopRequested()) {
                std::this_thread::yield();
            }
            ++stopped;
            return 1;
        };
        const auto done = [&heard](const char* name) {
            return [&heard, name](int) { heard += name; };
        };
        job->setOutOfMemory([&] { heard += "no memory"; });
        job->start(untilStopped, done("started over"));
        job->start(untilStopped, done("stopped"));
        job->stop();
        QTRY_COMPARE(heard, QStringList("stopped")); // but not the one that it took the place of
        job->start([](Progress&) -> int { throw std::bad_alloc(); }, done("too large"));
        QTRY_COMPARE(heard.last(), QString("no memory"));
        job->start(untilStopped, done("cancelled"));
        job->cancel();
        QVERIFY(!job->isRunning());
        job->start(
            [](Progress&) { return 0; },
            [&](int) { job->start([](Progress&) { return 0; }, done("from its own answer")); });
        QTRY_COMPARE(heard.last(), QString("from its own answer"));
        job->start(untilStopped, done("destroyed"));
        job.reset();
        QTRY_COMPARE(pendingWork(), 0);
        QCoreApplication::processEvents();
        QCOMPARE(heard, QStringList({"stopped", "no memory", "from its own answer"}));
        QCOMPARE(stopped, 4);
    }

    void episodesFollowFlightAndOffset()
    {
        Session session;
        EpisodeWatch watch(session);
        QSignalSpy changed(&watch, &EpisodeWatch::changed);
        session.setProfile(profileOf(Elements), {}, nullptr);
        session.setFlight(Flight::make(
            load({writeRecording("500@1=0 500@2=15 500@3=5", "REC_8000.CAN")}), session.profile()));
        QVERIFY(watch.episodes() == nullptr);
        session.setOffset(4.0); // before the first answer, which never comes
        QCOMPARE(changed.count(), 3);
        QTRY_VERIFY(watch.episodes() != nullptr);
        QCOMPARE(changed.count(), 4);
        const auto kept = watch.episodes();
        const std::weak_ptr<const Profile> profile = session.profile();
        QTRY_COMPARE(pendingWork(), 0);
        session.setOffset(5.0);
        session.setProfile(profileOf("<Device/>"), {}, nullptr); // before the answer
        QTRY_COMPARE(pendingWork(), 0);
        QCoreApplication::processEvents();
        QVERIFY(watch.episodes() == nullptr && changed.count() == 6);
        QVERIFY(kept->at(0).start == 6.0 && !profile.expired()); // what they refer to
    }

    /// What was found is kept for as long as the recording is the same.
    void overviewIsKept()
    {
        const QString file = writeRecording("500@1=0 500@2=15 500@3=5 900@2=5:00000008 900@3=5:0");
        const QDateTime time = QFileInfo(file).lastModified();
        const QString cache = path("Overview.json");
        const auto profile = profileOf(Elements);
        const auto lookInto = [&](const std::list<QString>& files) {
            OverviewFinder finder(cache);
            std::vector<std::optional<Overview>> answers;
            const std::vector<std::list<QString>> asked = {files, {path("none.CAN")}};
            connect(&finder, &OverviewFinder::found, this,
                    [&](const auto& of, const std::optional<Overview>& found) {
                        [&] { QCOMPARE(of, asked.at(answers.size())); }();
                        answers.push_back(found);
                    });
            finder.pause(true);
            finder.look(asked, profile);
            finder.pause(false);
            [&] { QTRY_COMPARE(answers.size(), 2U); }();
            return !answers[1] ? answers[0] : std::nullopt; // there is no such file
        };
        const auto touch = [&](const QDateTime& when) {
            QFile changed(file);
            QVERIFY(changed.open(QIODevice::ReadWrite) && changed.seek(changed.size() - 1) &&
                    changed.putChar('\1') && changed.flush());
            QVERIFY(changed.setFileTime(when, QFileDevice::FileModificationTime));
        };
        const auto first = lookInto({file});
        QVERIFY(first && *first == (Overview{2.0, 5, 1, 0, 1, 0, 1, 0}));
        write("Overview.json", read("Overview.json").replace("[2,5,1,", "[2,5,7,"));
        touch(time);
        QCOMPARE(lookInto({file})->watched, 7); // as it is kept
        touch(time.addSecs(60));
        QCOMPARE(lookInto({file})->watched, 1);
        QVERIFY(OverviewCache::keyOf({file}, *profile) !=
                OverviewCache::keyOf({file}, *profileOf("<Device/>")));
        for (const char* damage : {"", "[]", "{\"a\":[1]}", "{\"a\":[1,2,3,4,5,6,-7,8]}", "\xff"}) {
            write("Overview.json", damage);
            QCOMPARE(lookInto({file})->watched, 1);
        }
    }

    void offsetIsKeptOnTheCard()
    {
        QDir(folder()).mkdir("card");
        Session session;
        OffsetKeeper keeper(session);
        QSignalSpy failed(&keeper, &OffsetKeeper::failed);
        session.setOffset(1.0); // of no card
        const auto record = load({writeRecording("500@1=0", "card/a.CAN")});
        session.setFlight(Flight::make(record, session.profile()));
        QVERIFY(!QFile::exists(path("card/Offset.xml")));
        const auto saved = [this] { return OffsetFile(path("card")).load(-1.0); };
        for (int i = 1; i <= 20; ++i) {
            session.setOffset(i);
        }
        QTRY_COMPARE(saved(), 20.0);
        session.setOffset(21.0);
        session.setOffset(22.0);
        keeper.finish();
        QCOMPARE(saved(), 22.0);
        QTRY_COMPARE(pendingWork(), 0);
        QCoreApplication::processEvents();
        QCOMPARE(failed.count(), 0);
        QVERIFY(QDir(path("card")).removeRecursively());
        session.setOffset(23.0);
        QTRY_COMPARE(failed.count(), 1);
        QCOMPARE(session.offset(), 23.0);
    }

    void sliderEnds()
    {
        RecordInfo info;
        info.startTime = 10.3;
        info.stopTime = 110.3;
        for (const auto& [position, time] :
             {std::pair(0, 10.3), std::pair(5000, 60.3), std::pair(SliderSteps, 110.3)}) {
            QCOMPARE(sliderTime(info, position), time);
            QCOMPARE(sliderPosition(info, time), position);
            RecordInfo moment;
            moment.startTime = moment.stopTime = time;
            QCOMPARE(sliderPosition(moment, time + 1.0), 0);
            QCOMPARE(sliderTime(moment, position), time);
        }
    }

    void timesOfDayInARange()
    {
        const double day = 86400;
        const struct
        {
            double timeOfDay;
            TimeRange range;
            double now, time;
        } rows[] = {{5000, {3600, 7200}, 3600, 5000},
                    {150, {day + 100, day + 200}, 0, day + 150},
                    {50, {day - 100, day + 100}, day - 99, day + 50},
                    {100, {0, 3 * day}, 1.9 * day, 2 * day + 100}, // the nearest of three
                    {500, {1000, day + 900}, 1200, day + 500},     // the nearest is before it
                    {4000, {1000, day + 900}, day + 800, 4000},    // the nearest is after it
                    {1000, {1000, 2000}, 5 * day, 1000},
                    {900, {1000, 2000}, 1500, 900}, // none, just before
                    {2100, {1000, 2000}, 1500, 2100}};
        for (const auto& row : rows) {
            QCOMPARE(timeInRange(row.timeOfDay, row.range, row.now), row.time);
        }
    }

    void datesCountThroughClockChanges()
    {
        // Clocks go forward in Europe; they go back in America.
        const auto march = load({writeRecording("1206@0=0:1D0307EA 1200@0=0:013B3A00")});
        const auto november = load({writeRecording("1206@0=0:010B07EA 1200@0=0:013B3A00")});
        const QByteArray before = qgetenv("TZ");
        for (const char* zone : {"UTC", "Europe/Berlin", "America/New_York"}) {
            qputenv("TZ", zone);
            QCOMPARE(dateText(march->recordInfo(), 5.0), QString("29.03.2026 02:00:03"));
            QCOMPARE(dateText(november->recordInfo(), 5.0), QString("01.11.2026 02:00:03"));
        }
        before.isNull() ? qunsetenv("TZ") : qputenv("TZ", before);
        QCOMPARE(dateText(RecordInfo(), 5.0), QString("--.--.---- --:--:--"));
    }

    /// Different recordings and profiles, loaded side by side, each read by both threads.
    void twoFlightsOnTwoThreads()
    {
        QString recordings[2], profiles[2];
        for (int f = 0; f < 2; ++f) {
            QString samples;
            for (int i = 0; i < 2000; ++i) {
                samples += QString("%1@%2=%3 501@%2=7:%4 900@%2=5:0000000%5 ")
                               .arg(500 + 100 * f)
                               .arg(i * 7 % (900 + f) * 0.1 + i / 1000 * 100)
                               .arg(i * 13 % 23)
                               .arg(i, 4, 16, QChar('0'))
                               .arg(i % 16, 0, 16);
            }
            recordings[f] = writeRecording(samples, QString("REC_%1000.CAN").arg(f * 8));
            profiles[f] =
                write(QString::number(f),
                      "<CanAerospaceProfile>" +
                          QByteArray(Elements).replace("500", QByteArray::number(500 + 100 * f)) +
                          "</CanAerospaceProfile>");
        }
        const auto make = [&](int f) {
            return Flight::make(load({recordings[f]}), Profile::load(profiles[f]));
        };
        std::shared_ptr<const Flight> flights[2];
        QStringList found[2][2];
        std::barrier bothAreLoaded(2);
        const auto work = [&](int self) {
            flights[self] = make(self);
            bothAreLoaded.arrive_and_wait();
            for (const int f : {self, 1 - self}) {
                found[self][f] = decoded(*flights[f]);
            }
        };
        std::jthread other(work, 1);
        work(0);
        other.join();
        for (int f = 0; f < 2; ++f) {
            const QStringList alone = decoded(*make(f));
            QCOMPARE(found[0][f], alone);
            QCOMPARE(found[1][f], alone);
        }
        QVERIFY(found[0][0] != found[0][1]);
    }
};

QTEST_GUILESS_MAIN(TestFlight)
#include "tst_flight.moc"
