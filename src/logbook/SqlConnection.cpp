#include "logbook/SqlConnection.h"

#include "logbook/LogbookError.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtSql/QSqlDatabase>
#include <QtSql/QSqlError>

#include <atomic>
#include <chrono>
#include <mutex>
#include <thread>

namespace TARN {

namespace {

struct SqlTexts
{
    Q_DECLARE_TR_FUNCTIONS(SqlConnection)
};

/// What happened is over when the transaction is run again.
struct Retry : LogbookError
{
    Retry(const QString& text, bool lost) : LogbookError(text), isLost(lost) {}

    bool isLost; ///< the connection
};

/// A file's code without its refinements; -1 for that of a server.
int fileCodeOf(const QSqlError& error)
{
    bool isNumber = false;
    const int code = error.nativeErrorCode().toInt(&isNumber);
    return isNumber ? code & 0xFF : -1;
}

/// Two that wait for each other, or that would have seen different things.
bool isConflict(const QSqlError& error, bool isFile)
{
    constexpr int Busy = 5;
    constexpr int Locked = 6;
    const int code = fileCodeOf(error);
    return isFile ? code == Busy || code == Locked
                  : error.nativeErrorCode() == "40001" || error.nativeErrorCode() == "40P01";
}

/// What a server says while it goes or comes.
bool isServerGone(const QSqlError& error)
{
    const QString code = error.nativeErrorCode();
    return code.startsWith("08") || code.startsWith("57P");
}

QString sentenceOf(const QSqlError& error)
{
    const QString told = error.databaseText().isEmpty() ? error.text() : error.databaseText();
    return told.simplified();
}

/// One at a time: the toolkit's list of drivers is made without a lock.
QSqlDatabase newDatabase(const QString& driver, const QString& name)
{
    static std::mutex guard;
    const std::lock_guard lock(guard);
    return QSqlDatabase::addDatabase(driver, name);
}

/// Who says nothing must not be waited for without end.
QString serverOptions(const QString& wanted)
{
    const QString timeout = "connect_timeout=10"; // seconds
    return wanted.contains("connect_timeout=") ? wanted
           : wanted.isEmpty()                  ? timeout
                                               : wanted + ";" + timeout;
}

void createFolderOf(const QString& file)
{
    QDir().mkpath(QFileInfo(file).path());
}

} // namespace

SqlConnection::SqlConnection(LogbookPlace place, Missing missing) : mPlace(std::move(place))
{
    static std::atomic<unsigned> count = 0;
    if (mPlace.isFile() && missing == Refuse && !QFileInfo::exists(mPlace.file)) {
        throw LogbookError(SqlTexts::tr("there is no logbook \"%1\"").arg(mPlace.file));
    }
    if (mPlace.isFile() && missing == Create) {
        createFolderOf(mPlace.file);
    }
    mName = QString("logbook%1").arg(++count);
    try {
        open();
    } catch (...) {
        QSqlDatabase::removeDatabase(mName);
        throw;
    }
}

SqlConnection::~SqlConnection()
{
    QSqlDatabase::removeDatabase(mName);
}

void SqlConnection::open()
{
    const QString driver = mPlace.isFile() ? "QSQLITE" : "QPSQL";
    if (!QSqlDatabase::isDriverAvailable(driver)) {
        throw LogbookError(
            SqlTexts::tr("the database driver %1 is not installed (package %2)")
                .arg(driver, mPlace.isFile() ? "libqt6sql6-sqlite" : "libqt6sql6-psql"));
    }
    QSqlDatabase database = newDatabase(driver, mName);
    database.setDatabaseName(mPlace.isFile() ? mPlace.file : mPlace.database);
    database.setHostName(mPlace.host);
    database.setPort(mPlace.port);
    database.setUserName(mPlace.user);
    database.setPassword(mPlace.password);
    database.setConnectOptions(mPlace.isFile() ? "QSQLITE_BUSY_TIMEOUT=10000"
                                               : serverOptions(mPlace.options));
    if (!database.open()) {
        fail(database.lastError());
    }
    if (mPlace.isFile()) {
        run("PRAGMA foreign_keys = ON");
        run("PRAGMA synchronous = NORMAL");
    }
}

QStringList SqlConnection::tables() const
{
    return QSqlDatabase::database(mName, false).tables();
}

QSqlQuery SqlConnection::run(const QString& sql, const QVariantList& values)
{
    if (!values.isEmpty()) {
        QSqlQuery query = prepare(sql);
        execute(query, values);
        return query;
    }
    QSqlQuery query = newQuery();
    if (!query.exec(sql)) {
        fail(query.lastError());
    }
    return query;
}

void SqlConnection::insert(const QString& table, const QString& columns,
                           const QList<QVariantList>& rows)
{
    if (rows.isEmpty()) {
        return;
    }
    // A server is asked as seldom as may be; what is in this process as shortly as may be.
    const qsizetype mostValues = mPlace.isFile() ? 1 : 6000;
    const qsizetype width = rows.front().size();
    const qsizetype atOnce = std::max<qsizetype>(1, mostValues / width);
    const QString row = "(?" + QString(", ?").repeated(width - 1) + ")";
    const QString beginning = "INSERT INTO " + table + " (" + columns + ") VALUES ";
    std::optional<QSqlQuery> query;
    qsizetype prepared = 0; // rows of it
    for (qsizetype begin = 0; begin < rows.size(); begin += atOnce) {
        const qsizetype count = std::min(atOnce, rows.size() - begin);
        QVariantList values;
        for (const QVariantList& one : rows.mid(begin, count)) {
            values += one;
        }
        if (count != std::exchange(prepared, count)) {
            query = prepare(beginning + row + (", " + row).repeated(count - 1) +
                            " ON CONFLICT DO NOTHING");
        }
        execute(*query, values);
    }
}

QSqlQuery SqlConnection::newQuery() const
{
    QSqlQuery query(QSqlDatabase::database(mName, false));
    query.setForwardOnly(true);
    return query;
}

QSqlQuery SqlConnection::prepare(const QString& sql) const
{
    QSqlQuery query = newQuery();
    if (!query.prepare(sql)) {
        fail(query.lastError());
    }
    return query;
}

void SqlConnection::execute(QSqlQuery& query, const QVariantList& values) const
{
    for (const QVariant& value : values) {
        query.addBindValue(value.typeId() == QMetaType::QString
                               ? QVariant(value.toString().remove(QChar(0)))
                               : value);
    }
    if (!query.exec()) {
        fail(query.lastError());
    }
}

void SqlConnection::transaction(Access access, const std::function<void()>& work)
{
    using namespace std::chrono_literals;
    constexpr int Tries = 8;
    auto pause = 250ms;
    QString lost; // why the connection is
    for (int left = Tries; true; --left, pause *= 2) {
        try {
            if (!lost.isEmpty()) {
                reopen(lost);
            }
            // To write a file is locked at once: who first reads may find that another has written
            // meanwhile.
            run(mPlace.isFile() && access == Write ? "BEGIN IMMEDIATE" : "BEGIN");
            work();
            run("COMMIT");
            return;
        } catch (const Retry& retry) {
            rollBack();
            if (left == 1) {
                throw LogbookError(QString::fromUtf8(retry.what()));
            }
            lost = retry.isLost ? QString::fromUtf8(retry.what()) : QString();
            if (retry.isLost && mLost) {
                mLost(lost);
            }
            std::this_thread::sleep_for(pause);
        } catch (...) {
            rollBack();
            throw;
        }
    }
}

void SqlConnection::reopen(const QString& reason)
{
    QSqlDatabase database = QSqlDatabase::database(mName, false);
    database.close();
    if (!database.open()) {
        throw Retry(reason, true);
    }
}

void SqlConnection::rollBack() noexcept
{
    // The file's database has rolled back by itself after some errors, and a lost server always.
    const QSqlDatabase database = QSqlDatabase::database(mName, false);
    if (database.isOpen()) {
        QSqlQuery(database).exec("ROLLBACK");
    }
}

void SqlConnection::fail(const QSqlError& error) const
{
    constexpr int NoDatabase = 26;
    constexpr int Damaged = 11;
    const QString place = mPlace.text();
    const QString told = mPlace.withoutPassword(sentenceOf(error));
    const bool wasOpen = error.type() != QSqlError::ConnectionError;
    if (mPlace.isFile() && fileCodeOf(error) == NoDatabase) {
        throw LogbookError(
            SqlTexts::tr("\"%1\" is no logbook: it is no database").arg(mPlace.file));
    }
    if (mPlace.isFile() && fileCodeOf(error) == Damaged) {
        throw LogbookError(SqlTexts::tr("the logbook \"%1\" is damaged").arg(mPlace.file));
    }
    const QString text = SqlTexts::tr("logbook %1: %2").arg(place, told);
    if (isConflict(error, mPlace.isFile())) {
        throw Retry(text, false);
    }
    const bool isGone = !mPlace.isFile() && wasOpen &&
                        (isServerGone(error) || !QSqlDatabase::database(mName, false).isOpen());
    if (isGone) {
        throw Retry(text, true);
    }
    throw LogbookError(text);
}

} // namespace TARN
