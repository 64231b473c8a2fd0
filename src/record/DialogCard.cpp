#include "record/DialogCard.h"

#include "base/ClockTime.h"

#include <QtWidgets/QLineEdit>
#include <QtWidgets/QTreeWidget>
#include <QtWidgets/QVBoxLayout>

namespace TARN {

DialogCard::DialogCard(QWidget* parent)
    : QWidget(parent), mFolder(new QLineEdit), mTree(new QTreeWidget)
{
    mFolder->setReadOnly(true);
    mFolder->setPlaceholderText(tr("No card opened"));
    mFolder->setToolTip(tr("Folder of the recordings"));
    mFolder->setAccessibleName(tr("Card folder"));
    mTree->setObjectName("recordings");
    mTree->setHeaderHidden(true);
    mTree->setSelectionMode(QAbstractItemView::ExtendedSelection);
    mTree->setIconSize(QSize(16, 16));
    mTree->setAccessibleName(tr("Recordings"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(3, 3, 3, 3);
    layout->addWidget(mFolder);
    layout->addWidget(mTree);
    mTimer.setSingleShot(true);
    connect(mTree, &QTreeWidget::itemSelectionChanged, this, &DialogCard::slotSelect);
    connect(&mTimer, &QTimer::timeout, this, &DialogCard::slotTimeout);
}

void DialogCard::setCardInfo(const CardInfo& info)
{
    mCardInfo = info;
    updateInfo();
}

void DialogCard::updateInfo()
{
    mFolder->setText(mCardInfo.path.section('/', -1));
    mTree->clear();
    for (const auto& [path, info] : mCardInfo.records) {
        addRecord(path, info);
    }
}

void DialogCard::selectRecord(const QString& path)
{
    for (int row = 0; row < mTree->topLevelItemCount(); ++row) {
        QTreeWidgetItem* item = mTree->topLevelItem(row);
        if (item->data(0, Qt::UserRole).toString() == path) {
            mTree->setCurrentItem(item);
        }
    }
}

void DialogCard::addRecord(const QString& path, const RecordInfo& info)
{
    auto* item = new QTreeWidgetItem(mTree);
    item->setText(0, path.section('/', -1) + "   " + info.dateTimeText());
    item->setIcon(0, QIcon(":/icons/recording.svg"));
    item->setData(0, Qt::UserRole, path);
    item->setData(0, Qt::UserRole + 1, true);
    item->setToolTip(0, tr("Start Time: ") + clockText(info.startTime) + "\n" + tr("Stop Time: ") +
                            clockText(info.stopTime));
    addDetails(item, info);
}

void DialogCard::addDetails(QTreeWidgetItem* item, const RecordInfo& info)
{
    const auto add = [item](const QString& label, const QString& value) {
        auto* line = new QTreeWidgetItem(item);
        line->setText(0, QString("%1: %2").arg(label, value));
    };
    add(tr("Date"), info.dateTimeText());
    add(tr("Start Time"), clockText(info.startTime));
    add(tr("Stop Time"), clockText(info.stopTime));
    add(tr("Bus Type"), QString::number(info.busType));
    add(tr("ECU Serial Number"), QString::number(info.ecuSerialNumber));
    add(tr("Software Part Nr. A"), info.softwarePartA);
    add(tr("Software Part Nr. B"), info.softwarePartB);
    add(tr("ECU Type"), info.ecuType);
    add(tr("EMU SW Version"), info.emuSwVersion);
    add(tr("Engine Serial Nr."), info.engineSerialNr);
    add(tr("Engine Type"), info.engineType);
    add(tr("Samples Total"), QString::number(info.samples));
}

void DialogCard::slotSelect()
{
    constexpr int Delay = 500; // ms; a burst of changes loads once
    mSelected.clear();
    for (const QTreeWidgetItem* item : mTree->selectedItems()) {
        mSelected.push_back(item->data(0, Qt::UserRole).toString());
    }
    // As listed, however they were picked: time runs forward from file to file.
    mSelected.sort();
    mTimer.start(Delay);
}

void DialogCard::slotTimeout()
{
    Q_EMIT signalLoadRecord(mSelected);
}

} // namespace TARN
