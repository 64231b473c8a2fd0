#pragma once

#include <QtCore/QString>

namespace TARN {

/// Where a logbook is: a file, or a database of a server.
struct LogbookPlace
{
    QString file; ///< absolute path; empty where it is a server's
    QString host; ///< empty: the server of this machine
    int port = -1;
    QString user;     ///< empty: as the server's programs take it
    QString password; ///< empty: PGPASSWORD or the file ~/.pgpass tell it
    QString database;
    QString options; ///< "sslmode=require;...", as the server's programs name them

    bool isFile() const { return !file.isEmpty(); }

    /// The URL without the password, fit to be shown and kept.
    QString text() const;

    /// The same for what others say of it: the password, where they repeat it, is left out.
    QString withoutPassword(QString message) const;
};

/// Understands "sqlite:PATH" and "postgresql://[user[:password]@][host][:port]/database[?options]"
/// ("postgres://" too). Options are those of LogbookPlace::options, and "password". An empty URL is
/// that of defaultLogbook(). Throws LogbookError.
LogbookPlace logbookPlace(const QString& url);

/// The URL of the logbook in the user's data folder, which need not be there yet. Empty without a
/// home directory.
QString defaultLogbook();

} // namespace TARN
