#include "profile/DialogProfile.h"

#include <QtCore/QScopedValueRollback>
#include <QtGui/QContextMenuEvent>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTreeWidget>

namespace TARN {

namespace {

ProfileParameter* parameterOf(const QTreeWidgetItem* item)
{
    return item->data(0, Qt::UserRole).value<ProfileParameter*>();
}

} // namespace

DialogProfile::DialogProfile(QWidget* parent, Profile& profile)
    : QWidget(parent), mProfile(profile), mClear(new QPushButton(tr("Clear"))),
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
    updateProfile(mTree, mProfile.data());
}

void DialogProfile::updateProfile(QTreeWidget* tree, ProfileInfo& info)
{
    const QScopedValueRollback updating(mUpdating, true);
    tree->clear();
    mItems.clear();
    for (auto& [id, device] : info.devices) {
        auto* item = new QTreeWidgetItem(tree);
        item->setText(0, QString("%1 %2").arg(device.id).arg(device.name));
        item->setIcon(0, QIcon(":/icons/device.svg"));
        for (auto& [uid, parameter] : device.parameters) {
            addParameter(item, parameter);
        }
    }
}

void DialogProfile::addParameter(QTreeWidgetItem* deviceItem, ProfileParameter& parameter)
{
    auto* item = new QTreeWidgetItem(deviceItem);
    item->setText(0, parameter.title());
    item->setIcon(0, QIcon(":/icons/parameter.svg"));
    item->setFlags(Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemIsUserCheckable);
    item->setCheckState(0, Qt::Unchecked);
    item->setData(0, Qt::UserRole, QVariant::fromValue(&parameter));
    mItems[parameter.fullName] = item;
}

void DialogProfile::updateProject()
{
    const QScopedValueRollback updating(mUpdating, true);
    for (int d = 0; d < mTree->topLevelItemCount(); ++d) {
        QTreeWidgetItem* device = mTree->topLevelItem(d);
        bool anySelected = false;
        for (int p = 0; p < device->childCount(); ++p) {
            QTreeWidgetItem* item = device->child(p);
            const bool selected = parameterOf(item)->selected;
            item->setCheckState(0, selected ? Qt::Checked : Qt::Unchecked);
            anySelected = anySelected || selected;
        }
        if (anySelected) {
            device->setExpanded(true);
        }
    }
}

void DialogProfile::contextMenuEvent(QContextMenuEvent* event)
{
    event->accept(); // no menu here, and not the main window's either
}

void DialogProfile::slotItemChanged(QTreeWidgetItem* item, int)
{
    constexpr int BlinkInterval = 250; // ms
    if (mUpdating || item == nullptr) {
        return;
    }
    if (ProfileParameter* parameter = parameterOf(item)) {
        parameter->selected = item->checkState(0) == Qt::Checked;
        Q_EMIT signalEdited();
    }
    mTimer.start(BlinkInterval);
}

void DialogProfile::slotTimeout()
{
    mBlinkOn = !mBlinkOn;
    mConfirm->setPalette(mBlinkOn ? mAlertPalette : mNormalPalette);
}

void DialogProfile::slotClear()
{
    mProfile.forEachParameter(
        [](const ProfileDevice&, ProfileParameter& parameter) { parameter.selected = false; });
    updateProject();
    Q_EMIT signalChanged();
}

void DialogProfile::slotConfirm()
{
    Q_EMIT signalChanged();
    mConfirm->setPalette(mNormalPalette);
    mTimer.stop();
}

} // namespace TARN
