#pragma once

#include "logbook/LogbookPlace.h"

#include <QtCore/QVariant>
#include <QtSql/QSqlQuery>

#include <functional>

namespace TARN {

/// A connection to the database of a logbook; belongs to the thread that made it. What can't be
/// done throws LogbookError. An application object must be there, drivers need it.
class SqlConnection
{
public:
    enum Missing
    {
        Create, ///< a file that is not there is made, with its folder
        Refuse
    };

    SqlConnection(LogbookPlace place, Missing missing);
    ~SqlConnection();
    SqlConnection(const SqlConnection&) = delete;
    SqlConnection& operator=(const SqlConnection&) = delete;

    const LogbookPlace& place() const { return mPlace; }
    QStringList tables() const;

    /// Runs a statement with its values bound in the places of "?", in order. Texts lose the
    /// character 0, which servers refuse.
    QSqlQuery run(const QString& sql, const QVariantList& values = {});

    /// Adds rows of the same length to a table, as few statements as may be: \p columns is
    /// "a, b, c". A row whose key is there is left out.
    void insert(const QString& table, const QString& columns, const QList<QVariantList>& rows);

    enum Access
    {
        Read,
        Write
    };

    /// Runs \p work in a transaction: all of it is kept or nothing. Where others write at the same
    /// time it may be rolled back and run again; so it is where the connection to a server was
    /// lost, for about half a minute. What \p work throws rolls back and goes on.
    void transaction(Access access, const std::function<void()>& work);

    /// Told before a lost connection is tried anew.
    void setLostListener(std::function<void(const QString&)> listener)
    {
        mLost = std::move(listener);
    }

private:
    QSqlQuery newQuery() const;
    QSqlQuery prepare(const QString& sql) const;
    void execute(QSqlQuery& query, const QVariantList& values) const;
    void open();
    void reopen(const QString& reason);
    void rollBack() noexcept;
    [[noreturn]] void fail(const QSqlError& error) const;

    LogbookPlace mPlace;
    QString mName; ///< of the connection
    std::function<void(const QString&)> mLost;
};

} // namespace TARN
