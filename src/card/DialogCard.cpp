#include "card/DialogCard.h"

#include "base/CellColor.h"
#include "base/ClockTime.h"
#include "base/CountText.h"
#include "record/RecordText.h"

#include <QtGui/QAction>
#include <QtGui/QMouseEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QApplication>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTreeWidget>
#include <QtWidgets/QVBoxLayout>

#include <algorithm>

namespace TARN {

namespace {

enum Column
{
    Name,
    Worst,
    Exceeded,
    Duration,
    Samples,
    Remarks,
    ColumnCount
};

constexpr int PathRole = Qt::UserRole;
constexpr int FilesRole = Qt::UserRole + 2; ///< of a flight

/// The icon of a line with a sign of a colour in its corner, where it is seen however narrow the
/// list is; without one where the colour is invalid.
QIcon signedIcon(const char* name, const QColor& color)
{
    constexpr int Size = 16; // pixels
    constexpr int Sign = 8;
    QIcon icon(name);
    if (!color.isValid()) {
        return icon;
    }
    QPixmap pixmap = icon.pixmap(QSize(Size, Size), qApp->devicePixelRatio());
    QPainter painter(&pixmap);
    painter.fillRect(Size - Sign, Size - Sign, Sign, Sign, color);
    painter.end();
    QIcon marked(pixmap);
    marked.addPixmap(pixmap, QIcon::Selected); // or it would turn white there
    return marked;
}

constexpr const char* RecordingIcon = ":/icons/recording.svg";
constexpr const char* FlightIcon = ":/icons/cardOpen.svg";

std::list<QString> filesOf(const QTreeWidgetItem& item)
{
    const QStringList files = item.data(Name, FilesRole).toStringList();
    return files.isEmpty() ? std::list<QString>{item.data(Name, PathRole).toString()}
                           : std::list<QString>(files.begin(), files.end());
}

const char* iconOf(const QTreeWidgetItem& item)
{
    return item.data(Name, FilesRole).isValid() ? FlightIcon : RecordingIcon;
}

void clearOverview(QTreeWidgetItem& item)
{
    item.setIcon(Name, QIcon(iconOf(item)));
    item.setToolTip(Worst, {});
    for (const int column : {Worst, Exceeded, Remarks}) {
        item.setText(column, {});
    }
}

/// What the headers tell of the samples.
void showExtent(QTreeWidgetItem& item, double duration, qint64 samples)
{
    item.setText(Duration, clockText(duration));
    item.setText(Samples, countText(samples));
    for (const int column : {Exceeded, Duration, Samples, Remarks}) {
        item.setTextAlignment(column, Qt::AlignRight | Qt::AlignVCenter);
    }
}

} // namespace

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
    mTree->setColumnCount(ColumnCount);
    mTree->setHeaderLabels({tr("Recording"), tr("Worst"), tr("Exceeded"), tr("Duration"),
                            tr("Samples"), tr("Remarks")});
    mTree->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    mTree->header()->setStretchLastSection(false);
    mTree->setAllColumnsShowFocus(true);
    mTree->setSelectionMode(QAbstractItemView::ExtendedSelection);
    mTree->setIconSize(QSize(16, 16));
    mTree->setAccessibleName(tr("Recordings"));
    createCommands();
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

void DialogCard::createCommands()
{
    auto* details = mFolder->addAction(QIcon(":/icons/details.svg"), QLineEdit::TrailingPosition);
    details->setText(tr("Recording Details"));
    details->setToolTip(tr("Header of the recording and what could be read of it"));
    connect(details, &QAction::triggered, this, &DialogCard::askDetails);
    auto* reference = new QAction(tr("Load as &Reference"), this);
    reference->setToolTip(tr("Compares the flight that is open with this one"));
    connect(reference, &QAction::triggered, this, [this] {
        if (const QTreeWidgetItem* item = currentLine()) {
            Q_EMIT signalLoadReference(filesOf(*item));
        }
    });
    mTree->addActions({details, reference});
    mTree->setContextMenuPolicy(Qt::ActionsContextMenu);
    mTree->viewport()->installEventFilter(this);
}

/// A right click asks about a line; it must not load it.
bool DialogCard::eventFilter(QObject* watched, QEvent* event)
{
    const auto* click = event->type() == QEvent::MouseButtonPress
                            ? static_cast<const QMouseEvent*>(event)
                            : nullptr;
    if (click == nullptr || click->button() != Qt::RightButton) {
        return QWidget::eventFilter(watched, event);
    }
    mTree->setFocus();
    mTree->setCurrentItem(mTree->itemAt(click->position().toPoint()), Name,
                          QItemSelectionModel::NoUpdate);
    return true;
}

/// The line of a recording or a flight that is current, itself or by a detail.
const QTreeWidgetItem* DialogCard::currentLine() const
{
    const QTreeWidgetItem* item = mTree->currentItem();
    return item != nullptr && item->parent() != nullptr ? item->parent() : item;
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
    mSelected.clear();
    const auto groups = flightGroups(mCardInfo);
    for (const auto& [path, info] : mCardInfo.records) {
        const auto group =
            std::ranges::find_if(groups, [&](const FlightGroup& of) { return of.front() == path; });
        if (group != groups.end() && group->size() > 1) {
            addFlight(*group);
        }
        addRecord(path, info);
    }
}

void DialogCard::addFlight(const FlightGroup& group)
{
    const RecordInfo& first = mCardInfo.records.at(group.front());
    double start = first.startTime;
    double stop = first.stopTime;
    qint64 samples = 0;
    for (const QString& path : group) {
        const RecordInfo& info = mCardInfo.records.at(path);
        start = std::min(start, info.startTime);
        stop = std::max(stop, info.stopTime);
        samples += info.samples;
    }
    auto* item = new QTreeWidgetItem(mTree);
    item->setText(Name, tr("%1 recordings").arg(group.size()) + "   " + first.dateTimeText());
    item->setIcon(Name, QIcon(FlightIcon));
    item->setData(Name, FilesRole, QStringList(group.begin(), group.end()));
    item->setToolTip(Name, tr("Click to load these recordings together:") + "\n" +
                               QStringList(group.begin(), group.end()).join('\n'));
    QFont bold = mTree->font();
    bold.setBold(true);
    item->setFont(Name, bold);
    showExtent(*item, stop - start, samples);
}

/// The line of a recording, or of the flight of which these are all. Null when there is none.
QTreeWidgetItem* DialogCard::itemOf(const std::list<QString>& files) const
{
    for (int row = 0; row < mTree->topLevelItemCount(); ++row) {
        if (filesOf(*mTree->topLevelItem(row)) == files) {
            return mTree->topLevelItem(row);
        }
    }
    return nullptr;
}

void DialogCard::clearOverviews()
{
    for (int row = 0; row < mTree->topLevelItemCount(); ++row) {
        clearOverview(*mTree->topLevelItem(row));
    }
}

void DialogCard::setOverview(const std::list<QString>& files,
                             const std::optional<Overview>& overview)
{
    QTreeWidgetItem* item = itemOf(files);
    if (item == nullptr) {
        return;
    }
    clearOverview(*item);
    if (!overview) {
        item->setText(Worst, "?");
        item->setToolTip(Worst, tr("Not looked into: it can't be read, or is too large to be read "
                                   "in passing. Load it to see."));
        return;
    }
    const Overview& found = *overview;
    const bool isWatched = found.watched > 0;
    item->setText(Worst, found.limits > 0     ? tr("Limit")
                         : found.warnings > 0 ? tr("Warning")
                         : found.faults > 0   ? tr("Fault")
                         : found.lamps > 0    ? tr("Lamp")
                         : isWatched          ? tr("none")
                                              : "---");
    const bool isOdd = found.warnings + found.faults + found.lamps > 0;
    item->setIcon(Name, signedIcon(iconOf(*item), found.limits > 0 ? LimitColor
                                                  : isOdd          ? WarningColor
                                                                   : QColor()));
    item->setText(Exceeded, isWatched ? countText(found.limits + found.warnings) : "---");
    item->setText(Remarks, countText(found.remarks));
    item->setToolTip(Worst,
                     tr("At the limit: %1\nIn warning: %2\nLamps: %3\nFaults and warnings: %4\n"
                        "Watched parameters: %5")
                         .arg(found.limits)
                         .arg(found.warnings)
                         .arg(found.lamps)
                         .arg(found.faults)
                         .arg(found.watched));
    showExtent(*item, found.duration, found.samples);
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
    item->setIcon(Name, QIcon(RecordingIcon));
    item->setData(0, Qt::UserRole, path);
    item->setData(0, Qt::UserRole + 1, true);
    item->setToolTip(0, toolTipOf(info, recordRemarks(info)));
    showExtent(*item, std::max(0.0, info.stopTime - info.startTime),
               std::max<qint64>(0, info.samples));
    addDetails(item, info);
}

void DialogCard::addDetails(QTreeWidgetItem* item, const RecordInfo& info)
{
    for (const RecordField& field : recordFields(info)) {
        auto* line = new QTreeWidgetItem(item);
        line->setText(0, QString("%1: %2").arg(field.label, field.value));
        line->setFirstColumnSpanned(true);
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
    const QTreeWidgetItem* item = currentLine();
    Q_EMIT signalDetails(item != nullptr ? item->data(0, Qt::UserRole).toString() : QString());
}

void DialogCard::slotSelect()
{
    constexpr int Delay = 500; // ms; a burst of changes loads once
    mSelected.clear();
    for (const QTreeWidgetItem* item : mTree->selectedItems()) {
        mSelected.splice(mSelected.end(), filesOf(*item));
    }
    // As listed, however they were picked: time runs forward from file to file.
    mSelected.sort();
    mSelected.unique(); // a flight and one of its recordings
    mTimer.start(Delay);
}

void DialogCard::slotTimeout()
{
    if (belongTogether(mSelected, mCardInfo) || isSureOfFlights()) {
        Q_EMIT signalLoadRecord(mSelected);
    }
}

/// Asks which flight is meant; false when nothing is to be loaded.
bool DialogCard::isSureOfFlights()
{
    std::vector<std::list<QString>> flights;
    for (const FlightGroup& group : flightGroups(mCardInfo)) {
        std::list<QString> picked;
        std::ranges::copy_if(group, std::back_inserter(picked), [&](const QString& path) {
            return std::ranges::find(mSelected, path) != mSelected.end();
        });
        if (!picked.empty()) {
            flights.push_back(std::move(picked));
        }
    }
    QMessageBox box(QMessageBox::Question, tr("ORNA Warning"),
                    tr("These recordings are of %1 flights.").arg(flights.size()),
                    QMessageBox::NoButton, this);
    box.setInformativeText(tr("Laid over each other, values of one flight stand between those of "
                              "another."));
    const QAbstractButton* first = box.addButton(tr("Load the First"), QMessageBox::AcceptRole);
    const QAbstractButton* all = box.addButton(tr("Lay over Each Other"), QMessageBox::ActionRole);
    box.setEscapeButton(box.addButton(tr("Cancel"), QMessageBox::RejectRole));
    const std::list<QString> asked = mSelected;
    box.exec();
    if (mSelected != asked) {
        return false; // another card is listed meanwhile
    }
    if (box.clickedButton() == first) {
        mSelected = flights.front();
        showLoaded(mSelected);
    } else if (box.clickedButton() != all) {
        showLoaded({}); // a click on them asks again
        return false;
    }
    return true;
}

} // namespace TARN
