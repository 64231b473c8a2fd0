#include "selection/DialogProfile.h"

#include <QtCore/QScopedValueRollback>
#include <QtGui/QContextMenuEvent>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTreeWidget>

namespace TARN {

DialogProfile::DialogProfile(Session& session, QWidget* parent)
    : QWidget(parent), mSession(session), mClear(new QPushButton(tr("Clear"))),
      mConfirm(new QPushButton(tr("Confirm Selection"))), mTree(new QTreeWidget)
{
    createControls();
    auto* label = new QLabel(tr("Selected Parameters"));
    label->setBuddy(mTree);
    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(3, 3, 3, 3);
    layout->addWidget(label, 0, 0);
    layout->addWidget(mClear, 0, 1);
    layout->addWidget(mConfirm, 1, 0, 1, 2);
    layout->addWidget(mTree, 2, 0, 1, 2);
    layout->setColumnStretch(0, 1);
    connect(mTree, &QTreeWidget::itemChanged, this, &DialogProfile::slotItemChanged);
    connect(&mTimer, &QTimer::timeout, this, &DialogProfile::slotTimeout);
    connect(mClear, &QPushButton::clicked, this, &DialogProfile::slotClear);
    connect(mConfirm, &QPushButton::clicked, this, &DialogProfile::slotConfirm);
    connect(&mSession, &Session::profileChanged, this, &DialogProfile::updateList);
    connect(&mSession, &Session::ticksChanged, this, &DialogProfile::updateChecks);
    connect(&mSession, &Session::selectionChanged, this, &DialogProfile::updateBlinking);
    updateList();
}

void DialogProfile::createControls()
{
    mClear->setToolTip(tr("Untick all parameters"));
    mClear->setIcon(QIcon(":/icons/clearSelection.svg"));
    mConfirm->setToolTip(tr("Show the ticked parameters in all views"));
    mConfirm->setIcon(QIcon(":/icons/confirmSelection.svg"));
    QFont bold = mConfirm->font();
    bold.setBold(true);
    mConfirm->setFont(bold);
    mConfirm->setAutoFillBackground(true);
    mNormalPalette = mConfirm->palette();
    mAlertPalette = mNormalPalette;
    mAlertPalette.setColor(QPalette::ButtonText, QColor(255, 0, 0));
    mTree->setObjectName("parameters");
    mConfirm->setObjectName("confirmSelection");
    mTree->setHeaderHidden(true);
    mTree->setEditTriggers(QAbstractItemView::NoEditTriggers);
    mTree->setIconSize(QSize(16, 16));
    mTree->setAccessibleName(tr("Parameters of the profile"));
}

void DialogProfile::updateList()
{
    {
        const QScopedValueRollback updating(mUpdating, true);
        mTree->clear();
        mItems.clear();
        mUnknown = nullptr;
        for (const auto& [id, device] : mSession.profile()->data().devices) {
            addDevice(device);
        }
    }
    updateChecks();
}

void DialogProfile::addDevice(const ProfileDevice& device)
{
    auto* deviceItem = new QTreeWidgetItem(mTree);
    deviceItem->setText(0, QString("%1 %2").arg(device.id).arg(device.name));
    deviceItem->setIcon(0, mDeviceIcon);
    for (const auto& [uid, parameter] : device.parameters) {
        auto* item = new QTreeWidgetItem(deviceItem);
        item->setText(0, parameter.title());
        item->setIcon(0, mParameterIcon);
        item->setFlags(Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemIsUserCheckable);
        item->setCheckState(0, Qt::Unchecked);
        item->setData(0, Qt::UserRole, uid);
        mItems[uid] = item;
    }
}

void DialogProfile::setUnknownNames(const std::vector<std::string>& names)
{
    delete mUnknown;
    mUnknown = nullptr;
    if (names.empty()) {
        return;
    }
    mUnknown = new QTreeWidgetItem(mTree);
    mUnknown->setText(0, tr("Not in this profile"));
    mUnknown->setToolTip(0, tr("The project selects these too; they are kept in its file"));
    for (const std::string& name : names) {
        auto* item = new QTreeWidgetItem(mUnknown);
        item->setText(0, QString::fromStdString(name));
        item->setFlags(Qt::NoItemFlags);
    }
    mUnknown->setExpanded(true);
}

void DialogProfile::updateChecks()
{
    const QScopedValueRollback updating(mUpdating, true);
    for (const auto& [device, parameter] : mSession.profile()->parameters()) {
        const bool isTicked = mSession.ticks().contains(*parameter);
        QTreeWidgetItem* item = mItems.at(parameter->uid);
        if (isTicked && item->checkState(0) != Qt::Checked) {
            item->parent()->setExpanded(true); // those that were ticked may have been folded away
        }
        item->setCheckState(0, isTicked ? Qt::Checked : Qt::Unchecked);
    }
    updateBlinking();
}

void DialogProfile::updateBlinking()
{
    constexpr int BlinkInterval = 250; // ms
    const bool isConfirmed = mSession.ticks() == mSession.selection();
    if (isConfirmed) {
        mTimer.stop();
        mConfirm->setPalette(mNormalPalette);
    } else if (!mTimer.isActive()) {
        mTimer.start(BlinkInterval);
    }
}

void DialogProfile::contextMenuEvent(QContextMenuEvent* event)
{
    event->accept(); // no menu here, and not the main window's either
}

void DialogProfile::slotItemChanged(QTreeWidgetItem* item, int)
{
    if (mUpdating || item == nullptr) {
        return;
    }
    Selection ticks = mSession.ticks();
    for (const auto& [device, parameter] : mSession.profile()->parameters()) {
        if (mItems.at(parameter->uid) == item) {
            ticks.set(*parameter, item->checkState(0) == Qt::Checked);
        }
    }
    mSession.setTicks(ticks);
}

void DialogProfile::slotTimeout()
{
    mBlinkOn = !mBlinkOn;
    mConfirm->setPalette(mBlinkOn ? mAlertPalette : mNormalPalette);
}

void DialogProfile::slotClear()
{
    mSession.setTicks({});
    mSession.confirm();
}

void DialogProfile::slotConfirm()
{
    mSession.confirm();
}

} // namespace TARN
