#include "card/DialogCard.h"

#include "base/ClockTime.h"
#include "record/RecordText.h"

#include <QtGui/QAction>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QTreeWidget>
#include <QtWidgets/QVBoxLayout>

#include <algorithm>

namespace TARN {

DialogCard::DialogCard(QWidget* parent)
    : QWidget(parent), mFolder(new QLineEdit), mTree(new QTreeWidget),
      mHint(new QLabel(tr("No recordings here.\nOpen a card (Ctrl+C) or drop its folder on the "
                          "window.")))
{
    mFolder->setReadOnly(true);
    mFolder->setFocusPolicy(Qt::ClickFocus); // a text field keeps Ctrl+C, which opens a card
    mFolder->setPlaceholderText(tr("No card opened"));
    mFolder->setToolTip(tr("Folder of the recordings"));
    mFolder->setAccessibleName(tr("Card folder"));
    mTree->setObjectName("recordings");
    mTree->setHeaderHidden(true);
    mTree->setSelectionMode(QAbstractItemView::ExtendedSelection);
    mTree->setIconSize(QSize(16, 16));
    mTree->setAccessibleName(tr("Recordings"));
    auto* details = mFolder->addAction(QIcon(":/icons/details.svg"), QLineEdit::TrailingPosition);
    details->setText(tr("Recording Details"));
    details->setToolTip(tr("Header of the recording and what could be read of it"));
    connect(details, &QAction::triggered, this, &DialogCard::askDetails);
    mTree->addAction(details);
    mTree->setContextMenuPolicy(Qt::ActionsContextMenu);
    mHint->setAlignment(Qt::AlignCenter);
    mHint->setWordWrap(true);
    mHint->setForegroundRole(QPalette::PlaceholderText);
    mHint->setAttribute(Qt::WA_TransparentForMouseEvents); // what is dropped goes to the window
    auto* inside = new QVBoxLayout(mTree->viewport());
    inside->addWidget(mHint);
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
    mFolder->setText(mCardInfo.path.section('/', -1, -1, QString::SectionSkipEmpty));
    mFolder->setToolTip(tr("Folder of the recordings") + "\n" + mCardInfo.path);
    mHint->setVisible(mCardInfo.records.empty());
    mTree->clear();
    mTimer.stop(); // what was picked is not listed any more
    for (const auto& [path, info] : mCardInfo.records) {
        addRecord(path, info);
    }
}

void DialogCard::selectRecords(const std::list<QString>& paths)
{
    for (int row = 0; row < mTree->topLevelItemCount(); ++row) {
        QTreeWidgetItem* item = mTree->topLevelItem(row);
        const QString path = item->data(0, Qt::UserRole).toString();
        item->setSelected(std::ranges::find(paths, path) != paths.end());
    }
}

void DialogCard::showLoaded(const std::list<QString>& paths)
{
    if (!mTimer.isActive()) { // else others are already picked
        const QSignalBlocker quiet(mTree);
        selectRecords(paths);
    }
}

void DialogCard::addRecord(const QString& path, const RecordInfo& info)
{
    auto* item = new QTreeWidgetItem(mTree);
    item->setText(0, path.section('/', -1) + "   " + info.dateTimeText());
    item->setIcon(0, QIcon(":/icons/recording.svg"));
    item->setData(0, Qt::UserRole, path);
    item->setData(0, Qt::UserRole + 1, true);
    item->setToolTip(0, toolTipOf(info, recordRemarks(info)));
    addDetails(item, info);
}

void DialogCard::addDetails(QTreeWidgetItem* item, const RecordInfo& info)
{
    for (const RecordField& field : recordFields(info)) {
        auto* line = new QTreeWidgetItem(item);
        line->setText(0, QString("%1: %2").arg(field.label, field.value));
    }
}

void DialogCard::setIntegrity(const RecordIntegrity& integrity)
{
    for (const FileIntegrity& file : integrity.files) {
        for (int row = 0; row < mTree->topLevelItemCount(); ++row) {
            QTreeWidgetItem* item = mTree->topLevelItem(row);
            if (item->data(0, Qt::UserRole).toString() == file.info.fileName) {
                item->setToolTip(0, toolTipOf(file.info, recordRemarks(file)));
            }
        }
    }
}

QString DialogCard::toolTipOf(const RecordInfo& info, const QStringList& remarks)
{
    const QString times = tr("Start Time: ") + clockText(info.startTime) + "\n" +
                          tr("Stop Time: ") + clockText(info.stopTime);
    return (QStringList(times) + remarks).join('\n');
}

void DialogCard::askDetails()
{
    const QTreeWidgetItem* item = mTree->currentItem();
    if (item != nullptr && item->parent() != nullptr) {
        item = item->parent(); // a detail line
    }
    Q_EMIT signalDetails(item != nullptr ? item->data(0, Qt::UserRole).toString() : QString());
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
