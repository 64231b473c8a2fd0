#include "export/ExportCan.h"
#include "export/ExportTest.h"

#include <algorithm>

using namespace TARN;

namespace {

constexpr double Turn = 134.217728; // seconds of the low time word

/// The two time words of an excerpt as one number.
std::uint64_t wordsOf(double time)
{
    const int high = static_cast<int>(time / Turn);
    const auto low = static_cast<std::uint32_t>((time - high * Turn) / 3.1250000000000005e-8);
    return std::uint64_t(high) << 32 | low;
}

} // namespace

class TestCan : public ExportTest
{
    Q_OBJECT

    static ExportInput inputOfFile(const QString& file)
    {
        return inputOf(Flight::make(load({file}), std::make_shared<Profile>()));
    }

private Q_SLOTS:
    void bytes()
    {
        constexpr double Start = 86300; // the last sample is of the next day
        const TestSample samples[] = {
            {0x12345678, ticks(Start), "0102030405060708", 1, 0xABCD},
            {501, ticks(Start) + 1, "FFFE000080000000", 0},
            {502, ticks(Start) + (1ULL << 32) - 1, "00020000", 0},
            {503, ticks(Start) + (1ULL << 32), "00020000", 2},
            {504, ticks(Start + 3 * Turn) + 320, "00020000", 0},
        };
        // An unknown magic is taken for big-endian.
        for (const auto& [order, magic] : {std::pair(RecordingBuilder::Little, 0xBA),
                                           {RecordingBuilder::Big, 0xAB},
                                           {RecordingBuilder::Big, 0x11}}) {
            RecordingBuilder source(order);
            RecordingBuilder expected(RecordingBuilder::Big);
            source.setByte(0, magic);
            for (int at = 2; at < 128; ++at) {
                source.setByte(at, 7 * at + 1);
            }
            QByteArray header =
                QByteArray(source.bytes()).replace(20, 8, QByteArray(8, '\0')); // the start time
            const bool little = order == RecordingBuilder::Little;
            if (little) {
                for (const auto& [at, width] :
                     {std::pair(0, 2), {2, 2}, {4, 2}, {6, 2}, {8, 4}, {12, 2}, {28, 4}, {32, 4}}) {
                    std::reverse(header.begin() + at, header.begin() + at + width);
                }
            }
            for (const TestSample& sample : samples) {
                source.add(sample);
                TestSample moved = sample;
                const auto high = static_cast<std::uint32_t>(sample.ticks >> 32);
                const auto low = static_cast<std::uint32_t>(sample.ticks);
                moved.ticks = wordsOf(RecordEntry::secondsOf(high, low) - Start);
                // The last tick of a turn is not the first of the next; elsewhere one may be lost.
                const auto lost =
                    static_cast<std::int64_t>(sample.ticks - ticks(Start) - moved.ticks);
                QVERIFY2(lost == 0 || lost == 1, qPrintable(QString::number(lost)));
                expected.add(moved);
            }
            source.setByte(128 + (little ? 19 : 18), 0x12).setByte(128 + (little ? 18 : 19), 0x34);
            expected.setByte(128 + 18, 0x12).setByte(128 + 19, 0x34);
            const auto asked = optionsFor<CsvExportOptions>("out.CAN", {Start, 1e6});
            QVERIFY(run(ExportCan(asked), inputOfFile(write("source.CAN", source.bytes()))));
            QCOMPARE(read("out.CAN").toHex(), (header + expected.bytes().mid(128)).toHex());
        }
    }

    void opensAgainInTheOrderOfTime()
    {
        write("Offset.xml", "<TarnOffset><Offset value='2'/></TarnOffset>"); // times carry none
        const auto input = inputOfFile(writeRecording(
            "500@9.5=1 501/1@2=7:0001 502@9.25=2 503@2=2 504/2@4=2 500@4=5 500@1.75=6 501@9.75=7 "
            "500@9.5=8",
            "REC_8000.CAN"));
        QVERIFY(run(ExportCan(optionsFor<CsvExportOptions>("out.CAN", {2.0, 9.5})), input));
        QVERIFY(diagnostics().endsWith("ExportCan::exportData: 9 records to export\n"));
        const auto excerpt = load({path("out.CAN")});
        QStringList samples;
        for (std::size_t k = 0; k < excerpt->recordData().count(); ++k) {
            const RecordEntry& entry = excerpt->recordData().inFileOrder(k);
            samples += QString("%1/%2@%3=%4")
                           .arg(entry.id)
                           .arg(entry.channel)
                           .arg(entry.time())
                           .arg(entry.data[5]);
        }
        QCOMPARE(samples.join(' '), "501/1@0=1 503/0@0=0 504/2@2=0 500/0@2=160 502/0@7.25=0 "
                                    "500/0@7.5=128 500/0@7.5=0");
        QVERIFY(run(ExportCan(optionsFor<CsvExportOptions>("out.CAN", {9.5, 2.0})), input));
        QCOMPARE(read("out.CAN").size(), 128);
    }
};

QTEST_APPLESS_MAIN(TestCan)
#include "tst_can.moc"
