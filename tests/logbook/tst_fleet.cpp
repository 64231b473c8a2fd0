#include "demo/Card.h"
#include "logbook/Logbook.h"
#include "support/ClickHouseServer.h"
#include "support/CommandRun.h"
#include "support/CoreTest.h"
#include "support/PostgresServer.h"

#include <QtCore/QRegularExpression>

#include <algorithm>
#include <cmath>
#include <map>

using namespace TARN;

namespace {

/// Cells of lines, as the servers' programs print them.
QList<QStringList> cellsOf(const QString& text, QChar separator)
{
    QList<QStringList> rows;
    for (const QString& line : text.split('\n', Qt::SkipEmptyParts)) {
        rows += line.split(separator);
    }
    return rows;
}

} // namespace

/// What docs/fleet.md says, said to servers.
class TestFleet : public CoreTest
{
    Q_OBJECT

    static constexpr const char* Worn = "TV6-300-1187"; ///< whose cylinder gets worse
    static constexpr const char* Other = "it's \\1 \"B\"";

    QStringList mBlocks; ///< of the page
    std::unique_ptr<PostgresServer> mPostgres;

    QString url(const QString& user, const QString& database) const
    {
        return mPostgres->url(user).section('/', 0, -2) + "/" + database;
    }

    /// A flight of a week, of an engine whose serial number may be another.
    void writeCard(unsigned week, int minutes, const char* serial = Worn) const
    {
        constexpr qint64 SerialNumber = 62; // in the header
        Demo::CardOptions card;
        card.folder = path(QString("cards/%1/%2").arg(week).arg(minutes)).toStdString();
        card.minutes = minutes;
        card.seed = week;
        card.files = 2;
        QCOMPARE(Demo::writeCard(card), std::string());
        for (const char* name : {"/LOG_0001.CAN", "/LOG_0002.CAN"}) {
            QFile file(QString::fromStdString(card.folder) + name);
            QVERIFY(file.open(QIODevice::ReadWrite) && file.seek(SerialNumber));
            file.write(QByteArray(serial).leftJustified(13, '\0'));
        }
    }

    void readPage()
    {
        QFile page(ORNA_FLEET_PAGE);
        QVERIFY(page.open(QIODevice::ReadOnly));
        static const QRegularExpression Block("^```sh\n(.*?)^```$",
                                              QRegularExpression::MultilineOption |
                                                  QRegularExpression::DotMatchesEverythingOption);
        for (auto found = Block.globalMatch(page.readAll()); found.hasNext();) {
            mBlocks += found.next().captured(1);
        }
    }

    qsizetype numberOf(const QString& part) const
    {
        const auto found = std::ranges::find_if(
            mBlocks, [&](const QString& block) { return block.contains(part); });
        return found == mBlocks.end() ? -1 : found - mBlocks.begin();
    }

    /// What the block that holds this has printed.
    QString answerTo(const QString& part) const
    {
        return read(QString("answer%1").arg(numberOf(part)));
    }

    /// The blocks in order, each with a file for its answer; one flight has come in part before,
    /// and what was sent is sent again.
    QByteArray script() const
    {
        QStringList blocks = mBlocks;
        blocks[numberOf("CREATE TABLE samples")] +=
            "clickhouse-client --query \"INSERT INTO decoded (flight, parameter) VALUES ('$(psql "
            "\"$LOGBOOK\" --no-align --tuples-only --command "
            "'SELECT min(flight) FROM flights')', 'RPM')\"\n";
        blocks[numberOf("send_missing()")] += "send_missing\n";
        QString all = "set -euo pipefail\n";
        for (qsizetype k = 0; k < blocks.size(); ++k) {
            all += QString("exec >%1\n").arg(path(QString("answer%1").arg(k))) + blocks[k];
        }
        return all.toUtf8();
    }

    void runPage(const QString& home) const
    {
        QProcess shell;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("HOME", home);
        environment.insert("PATH", QCoreApplication::applicationDirPath() + ":" +
                                       environment.value("PATH"));
        environment.insert("ADMIN", mPostgres->url());
        environment.insert("OWNER", url("fleet", "logbook"));
        environment.insert("LOGBOOK", url("station", "logbook"));
        environment.insert("PROFILE", ORNA_PROFILE);
        environment.insert("CARDS", path("cards"));
        shell.setProcessEnvironment(environment);
        shell.setWorkingDirectory(folder());
        shell.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        shell.start("bash", {write("page.sh", script())});
        QVERIFY(shell.waitForFinished(300'000));
        QCOMPARE(shell.exitCode(), 0);
    }

    void everySampleCame()
    {
        SqlConnection sql(logbookPlace(url("station", "logbook")), SqlConnection::Refuse);
        QSqlQuery query = sql.run("SELECT flight, device, parameter, samples + invalid FROM "
                                  "statistics WHERE steady = 0 AND samples + invalid > 0");
        std::map<QStringList, qint64> expected;
        while (query.next()) {
            expected[{query.value(0).toString(), query.value(1).toString(),
                      query.value(2).toString()}] += query.value(3).toLongLong();
        }
        std::map<QStringList, qint64> came;
        for (const QStringList& row : cellsOf(answerTo("SELECT flight, device, parameter"), '\t')) {
            came[row.first(3)] += row[3].toLongLong();
        }
        QVERIFY(expected.size() > 400);
        QVERIFY(came == expected);
    }

    /// Mean spread of the temperatures by aircraft and month. Behind them may stand other cells.
    static std::map<QString, std::vector<double>> spreads(const QList<QStringList>& rows)
    {
        std::map<QString, std::vector<double>> all;
        for (const QStringList& row : rows) {
            all[row[0]].push_back(row[3].toDouble());
        }
        return all;
    }

    void cylinderGetsWorse(const std::map<QString, std::vector<double>>& spreads, QString other)
    {
        const std::vector<double>& worn = spreads.at(Worn);
        QCOMPARE(worn.size(), std::size_t(3));
        QVERIFY(worn[0] > 13.0 && worn[1] > worn[0] && worn[2] > worn[1] + 10.0);
        QCOMPARE(spreads.at(other).size(), std::size_t(1));
        QVERIFY(std::fabs(spreads.at(other)[0] - worn[0]) < 1.0);
        QCOMPARE(spreads.size(), std::size_t(2));
    }

private Q_SLOTS:
    void page()
    {
        if (qEnvironmentVariableIsEmpty("ORNA_SERVERS")) {
            QSKIP("no server is asked for");
        }
        qputenv("PGPASSWORD", PostgresServer::Password);
        readPage();
        mPostgres = std::make_unique<PostgresServer>();
        mPostgres->start();
        const ClickHouseServer columns;
        for (const unsigned week : {1, 4, 9}) { // of three months
            writeCard(week, 30);
        }
        writeCard(0, 30, Other);
        writeCard(2, 2, "");
        runPage(columns.home());
        constexpr std::size_t Flights = 5;

        QVERIFY(answerTo("\"$CARDS\"\n").endsWith("5 added, 0 already known, 0 damaged\n"));
        QCOMPARE(linesOf(answerTo("logbook trend").toStdString()).size(), Flights);
        QCOMPARE(Logbook(url("fleet", "logbook_copy"), SqlConnection::Refuse).flights().size(),
                 Flights);
        Logbook logbook(url("station", "logbook"), SqlConnection::Refuse);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("transaction is aborted"));
        QVERIFY_THROWS_EXCEPTION(std::runtime_error, logbook.remove(logbook.flights().front()));
        QCOMPARE(logbook.flights().size(), Flights);

        everySampleCame();
        cylinderGetsWorse(spreads(cellsOf(answerTo("s.time_mean"), '|')), Other);
        cylinderGetsWorse(spreads(cellsOf(answerTo("toStartOfMinute"), '\t')),
                          "it\\'s \\\\1 \"B\"");
        mPostgres.reset();
    }
};

QTEST_GUILESS_MAIN(TestFleet)

#include "tst_fleet.moc"
