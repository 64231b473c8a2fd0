#include "app/StartMessages.h"

#include "base/CountText.h"
#include "base/Property.h"
#include "flight/Flight.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>

namespace TARN {

namespace {

/// The user's texts of this file, declared so that the extraction of texts finds them.
struct StartTexts
{
    Q_DECLARE_TR_FUNCTIONS(StartMessages)
};

} // namespace

QString startMessages()
{
    QStringList texts;
    if (qEnvironmentVariableIsEmpty("HOME")) {
        texts += StartTexts::tr("HOME is not set: settings are kept in \"%1\".")
                     .arg(QDir::currentPath());
    }
    const std::string& damaged = Property::instance()->damagedFile();
    if (!damaged.empty()) {
        texts += StartTexts::tr("The settings could not be read, the program starts with its "
                                "defaults. The damaged file is kept as \"%1\".")
                     .arg(QString::fromStdString(damaged));
    }
    return texts.join(' ');
}

QString referenceMessage(const Flight& flight)
{
    const QString text = StartTexts::tr("Reference: ") + loadedMessage(flight);
    const QString unknown = flight.unknown().remark();
    return unknown.isEmpty() ? text : text + ". " + unknown;
}

QString loadedMessage(const Flight& flight)
{
    const QStringList remarks = flight.remarks();
    QString text = StartTexts::tr("Samples loaded: %1")
                       .arg(countText(static_cast<qint64>(flight.samples().count())));
    if (!remarks.isEmpty()) {
        text += StartTexts::tr(". Remarks: %1 (see Recording Details). ").arg(remarks.size()) +
                remarks.join(". ");
    }
    return text;
}

} // namespace TARN
