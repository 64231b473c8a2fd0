#include "demo/Card.h"
#include "flight/Statistics.h"
#include "flight/SteadyStretch.h"
#include "support/FlightTest.h"

#include <QtCore/QCryptographicHash>

#include <array>
#include <cmath>
#include <limits>

using namespace TARN;

namespace {

constexpr double PowerUp = 33120.0; // s: the clock of the recording shows 9:12
constexpr TimeRange Warming{PowerUp + 110.0, PowerUp + 160.0};
constexpr TimeRange Cruise{PowerUp + 2000.0, PowerUp + 2400.0}; // whatever the moment of take-off
constexpr unsigned Worn = 5;                                    // index of cylinder 6

/// What the recording of a flight says.
struct Told
{
    QString header;
    QString utc;
    double takeOff = 0.0;
    TimeRange steady;
    std::array<double, 12> warming{};
    std::array<double, 12> cruise{}; ///< means of CHT 1 to 6, EGT 1 to 6
};

/// Elements of a profile with the temperatures of the cylinders and the airspeed, in this order.
QByteArray elements()
{
    QByteArray text = "<Device name='D'>";
    for (const int first : {532, 540}) {
        for (int id = first; id < first + 6; ++id) {
            text += "<Parameter name='" + QByteArray::number(id) + "' id='" +
                    QByteArray::number(id) + "' dataType='FLOAT' startByte='4'/>";
        }
    }
    return text + "<Parameter name='IAS' id='315' dataType='FLOAT' startByte='4'/></Device>";
}

double firstAbove(const Series& series, double limit)
{
    for (std::size_t k = 0; k < series.size(); ++k) {
        if (series.value(k) > limit) {
            return series.time(k);
        }
    }
    return NAN;
}

} // namespace

/// The demo flight: what stays from one release to the next and what a seed changes.
class TestDemo : public FlightTest
{
    Q_OBJECT

    QStringList fly(const Demo::CardOptions& options) const
    {
        if (!Demo::writeCard(options).empty()) {
            qFatal("could not write the card");
        }
        return QDir(folder()).entryList({"*.CAN"}, QDir::Files, QDir::Name);
    }

    Told tell(std::uint64_t seed, std::optional<int> ordered = {}) const
    {
        std::list<QString> paths;
        for (const QString& name :
             fly({.folder = folder().toStdString(), .seed = seed, .wear = ordered})) {
            paths.push_back(path(name));
        }
        const auto record = load(paths);
        const RecordInfo& info = record->recordInfo();
        Told told;
        told.header = info.dateTime.toString("yyyy-MM-dd");
        told.utc = QDateTime::fromSecsSinceEpoch(info.utcTime, Qt::UTC).toString("yyyy-MM-dd h:mm");
        const auto profile = profileOf(elements());
        const auto flight = Flight::make(record, profile);
        Progress progress;
        for (std::size_t i = 0; i < told.cruise.size(); ++i) {
            const ProfileParameter& parameter = *profile->parameters()[i].parameter;
            const StatisticsIndex index(flight, parameter, 0.0, progress);
            told.warming[i] = index.range(Warming).mean.value_or(NAN);
            told.cruise[i] = index.range(Cruise).mean.value_or(NAN);
        }
        const auto steady = steadyStretch(
            *Flight::make(record, Profile::load(ORNA_RESOURCES "/Tolvane_Profile.xml")), 0.0,
            progress);
        told.steady = steady.value_or(TimeRange());
        told.takeOff =
            firstAbove(flight->series(*profile->parameters().back().parameter, 0.0), 70.0);
        return told;
    }

private Q_SLOTS:
    void bytes_data()
    {
        QTest::addColumn<quint64>("seed");
        QTest::addColumn<int>("minutes");
        QTest::addColumn<bool>("littleEndian");
        QTest::addColumn<QByteArray>("hash");
        QTest::newRow("as it always was")
            << quint64(1) << 60 << false << QByteArray("4aebe90820a92c486ff45ddc96d17bd51bad6377");
        QTest::newRow("little-endian")
            << quint64(1) << 20 << true << QByteArray("4a1a6a1fe3ecbb2e55d28abf454bc04d5ff1db0d");
        QTest::newRow("a week later")
            << quint64(2) << 60 << false << QByteArray("fa4e221694b5938fa62bff818e8e20e4f5345f95");
    }

    /// On every machine.
    void bytes()
    {
        QFETCH(const quint64, seed);
        QFETCH(const int, minutes);
        QFETCH(const bool, littleEndian);
        QCryptographicHash hash(QCryptographicHash::Sha1);
        for (const QString& name : fly({.folder = folder().toStdString(),
                                   .minutes = minutes,
                                   .seed = seed,
                                   .littleEndian = littleEndian})) {
            hash.addData(read(name));
        }
        QTEST(hash.result().toHex(), "hash");
    }

    void weeks_data()
    {
        QTest::addColumn<quint64>("seed");
        QTest::addColumn<QString>("date");
        QTest::addColumn<int>("wear"); // weeks
        QTest::addColumn<bool>("ordered");
        const auto row = [](const char* name, quint64 seed, const char* date, int wear,
                            bool ordered = false) {
            QTest::newRow(name) << seed << QString(date) << wear << ordered;
        };
        row("none", 0, "2026-05-16", 0);
        row("next", 2, "2026-05-23", 1);
        row("next month", 4, "2026-06-06", 3);
        row("mended", 5, "2026-06-13", 0, true);
        row("worn anew", 9, "2026-07-11", 2, true);
        row("worn most", 6, "2026-06-20", 5);
        row("next year", 34, "2027-01-02", 5);
        row("huge", std::numeric_limits<quint64>::max(), "2036-05-03", 5);
    }

    /// Every seed against the first. With the little power of warming up there is little of the
    /// wear.
    void weeks()
    {
        QFETCH(const int, wear);
        QFETCH(const QString, date);
        QFETCH(const quint64, seed);
        static const Told first = tell(1);
        QFETCH(const bool, ordered);
        const Told told = tell(seed, ordered ? std::optional(wear) : std::nullopt);
        QCOMPARE(told.header, date);
        QCOMPARE(told.utc, date + " 7:12");
        const double delay = std::fabs(told.takeOff - first.takeOff);
        QVERIFY2(seed > 1 ? delay > 10.0 && delay < 90.0 : delay < 1.0,
                 qPrintable(QString::number(delay)));
        // From leaning to the descent.
        QVERIFY2(told.steady.start < Cruise.start && told.steady.stop > Cruise.stop &&
                     told.steady.start > Cruise.start - 600.0 &&
                     told.steady.stop < Cruise.stop + 180.0,
                 qPrintable(QString("%1 %2").arg(told.steady.start).arg(told.steady.stop)));
        for (std::size_t i = 0; i < told.cruise.size(); ++i) {
            const double week = i % 6 != Worn ? 0.0 : i < 6 ? 6.0 : 12.0;
            const double more = told.cruise[i] - first.cruise[i];
            QVERIFY2(std::fabs(more - week * wear) < 1.0, qPrintable(QString::number(more)));
            const double cold = told.warming[i] - first.warming[i];
            QVERIFY2(std::fabs(cold) < 2.0 + 0.15 * week * wear, qPrintable(QString::number(cold)));
        }
    }
};

QTEST_GUILESS_MAIN(TestDemo)
#include "tst_demo.moc"
