#include "logbook/LogbookSettings.h"

#include "base/Property.h"
#include "logbook/LogbookPlace.h"

#include <QtCore/QCoreApplication>

namespace TARN {

namespace {

struct SettingsTexts
{
    Q_DECLARE_TR_FUNCTIONS(LogbookSettings)
};

} // namespace

QString LogbookSettings::url()
{
    return QString::fromStdString(Property::instance()->getString("LogbookUrl", ""));
}

void LogbookSettings::setUrl(const QString& url)
{
    const QString kept = url.trimmed().isEmpty() ? QString() : logbookPlace(url.trimmed()).text();
    Property::instance()->setString("LogbookUrl", kept.toStdString());
    Property::instance()->writeXmlFile();
}

bool LogbookSettings::addsOpened()
{
    return Property::instance()->getSwitch("LogbookAddOpened", false);
}

bool LogbookSettings::wasAsked()
{
    return Property::instance()->getSwitch("LogbookAsked", false);
}

void LogbookSettings::setAddsOpened(bool on)
{
    Property::instance()->setSwitch("LogbookAddOpened", on);
    Property::instance()->setSwitch("LogbookAsked", true);
    Property::instance()->writeXmlFile();
}

QString addedWords(const AddTotals& totals, const QStringList& damaged)
{
    QStringList parts = {SettingsTexts::tr("Added: %1").arg(totals.added),
                         SettingsTexts::tr("known already: %1").arg(totals.known)};
    if (totals.done < totals.all) {
        parts += SettingsTexts::tr("not looked at: %1").arg(totals.all - totals.done);
    }
    if (!damaged.isEmpty()) {
        parts += SettingsTexts::tr("not added: %1 (%2)").arg(totals.damaged).arg(damaged.front());
    }
    return parts.join(", ");
}

} // namespace TARN
