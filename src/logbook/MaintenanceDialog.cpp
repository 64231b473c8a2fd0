#include "logbook/MaintenanceDialog.h"

#include "logbook/FlightListModel.h"

#include <QtCore/QCoreApplication>
#include <QtWidgets/QDateTimeEdit>
#include <QtWidgets/QDialog>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QFormLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

namespace TARN {

namespace {

struct MaintenanceTexts
{
    Q_DECLARE_TR_FUNCTIONS(MaintenanceDialog)
};

} // namespace

std::optional<MaintenanceMark> askMaintenance(const FlightHead& flight, QWidget* parent)
{
    constexpr int TextWidth = 320; // pixels
    QDialog dialog(parent);
    dialog.setWindowTitle(MaintenanceTexts::tr("Maintenance"));
    auto* text = new QLabel(
        MaintenanceTexts::tr("What was done to engine %1? Trends compare flights only with "
                             "those since the last note.")
            .arg(engineWords(flight.aircraft)));
    text->setTextFormat(Qt::PlainText);
    text->setWordWrap(true);
    text->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred); // whatever the name's length
    text->setMinimumWidth(TextWidth);
    auto* date = new QDateTimeEdit;
    date->setTimeSpec(Qt::UTC);
    date->setDateTime(QDateTime::fromSecsSinceEpoch(
        flight.start.value_or(QDateTime::currentSecsSinceEpoch()), Qt::UTC));
    date->setDisplayFormat("yyyy-MM-dd hh:mm");
    date->setCalendarPopup(true);
    date->setToolTip(
        MaintenanceTexts::tr("Flights from this moment on are behind the maintenance"));
    auto* note = new QLineEdit;
    note->setObjectName("note");
    note->setPlaceholderText(MaintenanceTexts::tr("Cylinder 6 replaced"));
    auto* form = new QFormLayout;
    form->addRow(MaintenanceTexts::tr("&Date (UTC)"), date);
    form->addRow(MaintenanceTexts::tr("&Note"), note);
    auto* buttons = new QDialogButtonBox;
    auto* keep = buttons->addButton(MaintenanceTexts::tr("Note It"), QDialogButtonBox::AcceptRole);
    buttons->addButton(MaintenanceTexts::tr("Cancel"), QDialogButtonBox::RejectRole);
    keep->setEnabled(false);
    QObject::connect(note, &QLineEdit::textChanged, keep, [keep](const QString& words) {
        keep->setEnabled(!words.trimmed().isEmpty());
    });
    QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    auto* layout = new QVBoxLayout(&dialog);
    layout->addWidget(text);
    layout->addLayout(form);
    layout->addWidget(buttons);
    note->setFocus();
    if (dialog.exec() != QDialog::Accepted) {
        return std::nullopt;
    }
    return MaintenanceMark{flight.aircraft, date->dateTime().toSecsSinceEpoch(),
                           note->text().trimmed()};
}

} // namespace TARN
