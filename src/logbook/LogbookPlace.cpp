#include "logbook/LogbookPlace.h"

#include "logbook/LogbookError.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFileInfo>
#include <QtCore/QStringList>
#include <QtCore/QUrl>
#include <QtCore/QUrlQuery>

namespace TARN {

namespace {

struct PlaceTexts
{
    Q_DECLARE_TR_FUNCTIONS(LogbookPlace)
};

/// Nothing of a URL that is not understood is repeated but its kind: a password may stand anywhere.
[[noreturn]] void refuse()
{
    throw LogbookError(PlaceTexts::tr("the logbook's URL is neither sqlite:PATH nor "
                                      "postgresql://user@host:port/database"));
}

LogbookPlace fileOf(QString path)
{
    if (path.startsWith("//")) { // an empty host, as some write it
        path.remove(0, 2);
    }
    if (path.isEmpty()) {
        refuse();
    }
    LogbookPlace place;
    place.file = QFileInfo(path).absoluteFilePath();
    return place;
}

/// They become part of a list that is separated by semicolons.
void addOptions(LogbookPlace& place, const QUrl& url)
{
    static const QStringList Known = {"sslmode", "sslrootcert", "sslcert", "sslkey",
                                      "connect_timeout"};
    QStringList options;
    for (const auto& [name, value] : QUrlQuery(url).queryItems(QUrl::FullyDecoded)) {
        if (name == "password") {
            place.password = value;
        } else if (Known.contains(name) && !value.contains(';')) {
            options += name + "=" + value;
        } else {
            throw LogbookError(
                PlaceTexts::tr("the logbook's URL has an option that is not understood; known are "
                               "%1")
                    .arg(Known.join(", ")));
        }
    }
    place.options = options.join(';');
}

LogbookPlace serverOf(const QString& text)
{
    const QUrl url(text, QUrl::StrictMode);
    LogbookPlace place;
    place.database = url.path(QUrl::FullyDecoded).mid(1);
    if (!url.isValid() || place.database.isEmpty() || url.hasFragment()) {
        refuse();
    }
    place.host = url.host();
    place.port = url.port();
    place.user = url.userName(QUrl::FullyDecoded);
    place.password = url.password(QUrl::FullyDecoded);
    addOptions(place, url);
    return place;
}

} // namespace

QString LogbookPlace::text() const
{
    if (isFile()) {
        return "sqlite:" + file;
    }
    QUrl url;
    url.setScheme("postgresql");
    url.setHost(host);
    url.setPort(port);
    url.setUserName(user);
    url.setPath("/" + database);
    if (!options.isEmpty()) {
        url.setQuery(QString(options).replace(';', '&'));
    }
    return url.toString(QUrl::FullyEncoded);
}

QString LogbookPlace::withoutPassword(QString message) const
{
    return password.isEmpty() ? message : message.replace(password, "***");
}

LogbookPlace logbookPlace(const QString& url)
{
    const QString text = url.isEmpty() ? defaultLogbook() : url;
    if (text.isEmpty()) {
        throw LogbookError(
            PlaceTexts::tr("there is no home directory for a logbook; name one by its URL"));
    }
    if (text.startsWith("sqlite:")) {
        return fileOf(text.mid(7));
    }
    if (text.startsWith("postgresql://") || text.startsWith("postgres://")) {
        return serverOf(text);
    }
    refuse();
}

QString defaultLogbook()
{
    const QString home = qEnvironmentVariable("HOME");
    return home.isEmpty() ? QString() : "sqlite:" + home + "/ORNA/Logbook.sqlite";
}

} // namespace TARN
