#include "record/GapRule.h"
#include "record/Record.h"
#include "record/TimeRange.h"
#include "support/FlightTest.h"

#include <algorithm>
#include <array>

using namespace TARN;

/// Samples as they are read, ordered and joined, and where there are none.
class TestRecord : public FlightTest
{
    Q_OBJECT

    /// "identifier@ticks" of all samples in an order.
    template <typename Order>
    static QString samplesOf(const RecordData& data, Order order)
    {
        QStringList samples;
        for (std::size_t k = 0; k < data.count(); ++k) {
            const RecordEntry& entry = (data.*order)(k);
            samples += QString("%1@%2").arg(entry.id).arg(entry.timeLow);
        }
        return samples.join(' ');
    }

private Q_SLOTS:
    void entries()
    {
        for (const auto order : {RecordingBuilder::Little, RecordingBuilder::Big}) {
            RecordingBuilder file(order);
            file.add({0x800001F4, 0x3'0000'0010, "0102030405060708", 1, 0x1122});
            file.add({.id = 500, .ticks = 5, .channel = 1});
            file.add({.id = 7, .ticks = 9, .channel = 2}).append("27 bytes are no sample.....");
            const auto record = load({write("a.CAN", file.bytes())});
            const RecordData& data = record->recordData();
            QCOMPARE(samplesOf(data, &RecordData::inFileOrder), QString("500@16 500@5 7@9"));
            QCOMPARE(record->recordInfo().samples, 3);
            QCOMPARE(record->rawDataIsBigEndian(), order == RecordingBuilder::Big);
            QVERIFY(diagnostics().contains("Record::readData size 84 records 3\n"));

            const RecordIdList* list = data.find(1, 500);
            QCOMPARE(list->entries.size(), 2U);
            const RecordEntry& entry = list->entries[0];
            QCOMPARE(QByteArray(reinterpret_cast<const char*>(entry.data), 10),
                     QByteArray::fromHex("01020304050607081819"));
            QVERIFY(entry.channel == 1 && entry.w16 == 0x1122);
            QVERIFY(entry.time() == 3 * 134.217728 + (16 * 31.25) * 1e-9);
            QVERIFY(record->recordInfo().startTime == (5 * 31.25) * 1e-9);
            QVERIFY(record->recordInfo().stopTime == entry.time());
            QVERIFY(data.find(2, 7) != nullptr && data.find(0, 500) == nullptr);
            QVERIFY(data.find(~0U, ~0U) == nullptr && data.lists().size() == 2);
            QVERIFY(data.find(0, RecordData::AllOfChannel0) == nullptr);
        }
    }

    void severalFiles()
    {
        RecordingBuilder bare(RecordingBuilder::Big);
        RecordingBuilder big(RecordingBuilder::Big);
        big.add({.id = 1, .ticks = 30}).add({.id = 2, .ticks = 10}).add({.id = 3, .ticks = 20});
        RecordingBuilder little;
        little.add({.id = 2, .ticks = 5}).add({.id = 1, .ticks = 10});
        const QString files[] = {write("REC_0.CAN", bare.busType(1).bytes()),
                                 write("REC_7FFF.CAN", big.busType(2).bytes()),
                                 write("REC_8000.CAN", little.busType(3).bytes())};
        const auto record = load({files[0], files[1], files[2]});
        const RecordData& data = record->recordData();
        QCOMPARE(samplesOf(data, &RecordData::inFileOrder), QString("1@30 2@10 3@20 2@5 1@10"));
        QCOMPARE(samplesOf(data, &RecordData::inTimeOrder), QString("2@5 2@10 1@10 3@20 1@30"));
        QCOMPARE(data.find(0, 2)->entries[0].timeLow, 10U);
        QVERIFY(data.find(0, 1)->highFile && data.find(0, 2)->highFile);
        QVERIFY(!data.find(0, 3)->highFile); // the last file does not have it
        QCOMPARE(record->rawData()[31], 2);  // the header of the first samples
        QVERIFY(record->rawDataIsBigEndian());
        const RecordInfo& info = record->recordInfo();
        QVERIFY(info.startTime == (5 * 31.25) * 1e-9 && info.stopTime == (30 * 31.25) * 1e-9);
        QCOMPARE(info.busType, 3U);

        // What can't be opened any more ends the reading; what was read before it is there.
        Progress progress([&](int done, const QString&) { done < 50 || QFile::remove(files[1]); });
        Record part;
        QVERIFY(!part.readRecordData({files[2], files[1], files[0]}, 0.0, progress));
        QCOMPARE(samplesOf(part.recordData(), &RecordData::inTimeOrder), QString("2@5 1@10"));
        QCOMPARE(part.integrity().files.size(), 1U);
        QVERIFY(diagnostics().contains("Could not open " + files[1].toUtf8() + "\n"));
        QVERIFY2(part.errorText().contains(files[1]), qPrintable(part.errorText()));
        QVERIFY(Record().readRecordData({}));
    }

    void allOfChannel()
    {
        RecordingBuilder file;
        file.add({0x12345678, 1, "", 0, 0x1122}).setByte(128 + 18, 0x44).setByte(128 + 19, 0x33);
        file.add({.id = 9, .channel = 1});
        file.add({RecordData::AllOfChannel0, 3, "", 0, 0x5566}).add({.channel = 2});
        const auto record = load({write("REC_FFFF.CAN", file.bytes())});
        const RecordIdList* all = record->recordData().find(0, RecordData::AllOfChannel0);
        QCOMPARE(all->entries.size(), 3U); // the one really sent stands before its copy
        QCOMPARE(all->entries[0].id, 0x78563412U);
        QVERIFY(all->entries[0].w16 == 0x2211 && all->entries[0].w18 == 0x4433);
        QCOMPARE(all->entries[0].timeLow, 1U);
        QVERIFY(all->entries[1].w16 == 0x5566 && all->entries[2].w16 == 0x6655);
        QVERIFY(all->highFile);
        const RecordIdList* one = record->recordData().find(1, RecordData::AllOfChannel1);
        QCOMPARE(one->entries.size(), 1U);
        QVERIFY(one->entries[0].channel == 0x0100 && one->entries[0].id == 0x09000000);
        QVERIFY(!one->highFile); // nothing was really sent under it
    }

    /// Whatever the number of threads that read the files.
    void timeOrder()
    {
        // So many times, so many samples one after the other in order: equal and few times, random
        // ones, misplaced pieces, pieces side by side, and pieces that touch.
        const std::pair<unsigned, unsigned> kinds[] = {{1, 1},       {4, 1},   {100000, 1},
                                                       {100000, 40}, {60, 40}, {3, 2}};
        std::mt19937 random(99);
        const auto below = [&](unsigned n) { return static_cast<unsigned>(random() % n); };
        for (unsigned round = 0; round < 210; ++round) {
            const auto [distinctTimes, runLength] = kinds[round % std::size(kinds)];
            std::list<QString> paths;
            std::vector<std::pair<unsigned, unsigned>> expected; // time, number
            for (int part = 0; part < 3; ++part) {
                RecordingBuilder file(part % 2);
                unsigned time = 0;
                for (unsigned k = below(120); k > 0; --k) {
                    const auto number = static_cast<unsigned>(expected.size());
                    time = number % runLength == 0 ? below(distinctTimes) : time + below(3);
                    file.add({below(5), time, "", 0, number});
                    expected.emplace_back(time, number);
                }
                paths.push_back(write(QString::number(part), file.bytes()));
            }
            std::ranges::stable_sort(expected, {}, &std::pair<unsigned, unsigned>::first);
            Progress none;
            Record record;
            QVERIFY(record.readRecordData(paths, 0.0, none, round % 6));
            const RecordData& data = record.recordData();
            QCOMPARE(data.count(), expected.size());
            for (std::size_t k = 0; k < expected.size(); ++k) {
                QCOMPARE(unsigned(data.inTimeOrder(k).w16), expected[k].second);
                QCOMPARE(std::size_t(data.inFileOrder(k).w16), k);
            }
            std::size_t listed = 0;
            for (const RecordIdList& list : data.lists()) {
                listed += list.entries.size();
                QVERIFY(std::ranges::is_sorted(list.entries, {}, &RecordEntry::w16));
                QVERIFY(std::ranges::all_of(list.entries,
                                            [&](const RecordEntry& e) { return e.id == list.id; }));
            }
            QCOMPARE(listed, expected.size());
        }
    }

    void utc_data()
    {
        QTest::addColumn<QString>("samples"); // | ends a file
        QTest::addColumn<qint64>("utc");
        QTest::addColumn<QByteArray>("said");
        const QString date = " 1206@5=0C:090707E5 "; // 9.7.2021
        const QString time = " 1200@6=0C:0E330D00 "; // 14:51:13
        const QString other = " 1206@8=0C:010107E4 1200@9=0C:01010100 ";
        const auto row = [](const char* name, const QString& samples, qint64 since,
                            const char* said = "<09.07.2021 14:51:13> year 2021 month 7 day 9") {
            QTest::addRow("%s", name)
                << samples << (since < 0 ? 0 : 1625842273 - since) << QByteArray(said);
        };
        row("date, time", "1@1" + date + time, 0);
        row("time, date", time + date, 0);
        row("bit 31 is no part of an identifier", "2147484848@2=0C:0E330D00" + date, 0);
        row("the first pair counts", date + time + other, 0);
        row("of two files too", date + time + "|" + other, 0);
        row("a later file tells what it was then", "1@1.25 1@2|" + date + time, 5);
        row("and begins before", "1@8|" + date + time + "1@2", 4);
        row("the first with samples", "|1@1" + date + time, 0);
        row("only a date", date, -1, "");
        row("each file looks for a pair", date + "|" + time, -1, "");
        row("30 February", "1206@1=0C:1E0207E5" + time, -1, "<> year 2021 month 2 day 30");
    }

    void utc()
    {
        QFETCH(const QString, samples);
        QFETCH(const QByteArray, said);
        std::list<QString> paths;
        for (const QString& part : samples.split('|')) {
            paths.push_back(writeRecording(part, QString::number(paths.size())));
        }
        for (const unsigned threads : {1U, 2U, 3U, 5U}) {
            Progress none;
            Record record;
            QVERIFY(record.readRecordData(paths, 0.0, none, threads));
            QTEST(record.recordInfo().utcTime, "utc");
            const QByteArray all = diagnostics();
            QVERIFY2(said.isEmpty() ? !all.contains("###")
                                    : all.contains("### Time " + said + "\n"),
                     all);
        }
    }

    void progressAndStop()
    {
        RecordingBuilder file;
        for (unsigned k = 0; k < 90000; ++k) {
            file.add({.id = k % 7, .ticks = k});
        }
        const QString name = write("a.CAN", file.bytes());
        for (const int stopAt : {0, 20, 50, 70, 101}) {
            std::vector<int> heard;
            std::stop_source stop;
            const auto listener = [&](int percent, const QString&) {
                heard.push_back(percent);
                percent < stopAt || stop.request_stop();
            };
            Progress progress(listener, stop.get_token());
            Record record;
            const bool isRead = stopAt > 100;
            QCOMPARE(record.readRecordData({name, name}, 0.0, progress, unsigned(stopAt) % 3),
                     isRead);
            QCOMPARE(record.recordData().empty(), !isRead);
            QCOMPARE(record.integrity().files.empty(), !isRead);
            QVERIFY(record.errorText().isEmpty());
            QVERIFY(heard.front() >= 0 && (heard.back() == 100) == isRead);
            QVERIFY(!isRead || heard.size() > 4);
            QVERIFY(std::ranges::adjacent_find(heard, std::greater_equal<>()) == heard.end());
        }
    }

    void silences()
    {
        std::mt19937 random(5);
        for (int round = 0; round < 300; ++round) {
            const double offset = pick(random, 160) * 0.25 - 20; // to before time 0, too
            const QString text = "%1@%2 ";
            std::list<QString> paths;
            for (const int first : {0, 10}) {
                QString samples;
                for (int k = pick(random, 12); k > 0; --k) {
                    samples += text.arg(first + pick(random, 3)).arg(pick(random, 300) * 0.5);
                }
                paths.push_back(writeRecording(samples, first == 0 ? "REC_0000" : "REC_8000"));
            }
            const auto record = load(paths);
            std::vector<double> times;
            for (const RecordIdList& list : record->recordData().lists()) {
                for (const RecordEntry& entry : list.entries) {
                    times.push_back(entry.time() + (list.id < 10 ? 0 : offset));
                }
            }
            std::ranges::sort(times);
            const Silences silences(record->recordData(), offset);
            std::vector<std::size_t> before; // silences before each time
            for (std::size_t k = 0; k < times.size(); ++k) {
                const bool isAfterOne = k > 0 && times[k] - times[k - 1] > 10;
                before.push_back(k == 0 ? 0 : before.back() + (isAfterOne ? 1 : 0));
                for (std::size_t i = 0; i <= k; ++i) {
                    QCOMPARE(silences.isWithin(times[i], times[k]), before[i] < before[k]);
                }
            }
            QCOMPARE(silences.stretches().size(), before.empty() ? 0 : before.back());
        }
    }

    void gapRule()
    {
        const auto record = load({writeRecording("1@0 2@20 1@25")});
        const auto silences = [&] { return std::make_shared<Silences>(record->recordData(), 0.0); };
        std::mt19937 random(6);
        int withoutRhythm = 0;
        int proven = 0;
        for (int round = 0; round < 5000; ++round) {
            const double scale = std::array{0.01, 0.2, 0.25, 3.0}[random() % 4];
            const unsigned kinds = 1 + random() % 4;
            std::vector<double> steps(random() % 40);
            for (double& step : steps) {
                step = scale * std::array{1.0, 2.0, 4.0, 4.25}[random() % 2 * (random() % kinds)];
            }
            std::vector<double> times{scale};
            for (double& step : steps) {
                times.insert(times.end(), round % 2, times.back()); // equal times are no step
                times.push_back(times.back() + step);
                step = times.back() - times[times.size() - 2]; // as rounded
            }
            const GapRule rule(steps, silences);
            QuickRhythm rhythm;
            const auto [first, rest] = std::pair(times.size() / 3, times.size() - times.size() / 3);
            rhythm.add(std::span(times).first(first));
            rhythm.add(std::span(times).last(rest));
            proven += rhythm.isProven() ? 1 : 0;
            QVERIFY(!rhythm.isProven() || rule.limit() == QuickRhythm::rule().limit());
            std::ranges::sort(steps);
            const std::size_t n = steps.size();
            if (n >= 16 && steps[9 * (n - 1) / 10] > 4 * steps[(n - 1) / 2]) {
                ++withoutRhythm;
                QVERIFY(!rule.limit() && rule.isGap(0, 20) && !rule.isGap(20, 25));
                continue;
            }
            const double limit = n == 0 ? 2 : std::max(2.0, 10 * steps[(n - 1) / 2]);
            QVERIFY(rule.limit() == limit && !rule.isGap(0, limit) &&
                    rule.isGap(0, std::nextafter(limit, 1e3)));
        }
        QVERIFY(withoutRhythm > 50 && proven > 500);
        QuickRhythm falling;
        falling.add(std::array{0.0, 0.1, 0.2, 0.1, 0.2, 0.3, 0.4});
        QVERIFY(!falling.isProven());
        QVERIFY(!GapRule().limit() && !GapRule().isGap(0, 1e9));
    }

    void timeRange()
    {
        const TimeRange range{1, 2};
        QVERIFY(range.contains(1) && range.contains(2) && range.hasExtent());
        QVERIFY(!range.contains(0.9) && !range.contains(2.1) && !TimeRange().hasExtent());
    }
};

QTEST_APPLESS_MAIN(TestRecord)
#include "tst_record.moc"
