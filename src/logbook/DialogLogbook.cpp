#include "logbook/DialogLogbook.h"

#include "base/PlainTip.h"
#include "base/Property.h"
#include "logbook/FlightList.h"
#include "logbook/FlightListModel.h"
#include "logbook/LogbookSettings.h"
#include "logbook/MaintenanceDialog.h"
#include "logbook/TrendPanel.h"
#include "widgets/ActivityBar.h"
#include "widgets/ElidedLabel.h"

#include <QtGui/QShortcut>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QSplitter>

namespace TARN {

namespace {

/// As many as a tool tip has room for.
QString listed(const QStringList& lines)
{
    constexpr qsizetype Most = 20;
    return lines.size() > Most ? lines.first(Most).join('\n') + "\n..." : lines.join('\n');
}

/// Flights of one minute, or without any, differ in the rest.
QString wordsOf(const FlightHead& flight)
{
    return QStringList{dateWords(flight.start), spanWords(flight.duration()),
                       engineWords(flight.aircraft)}
        .join(", ");
}

} // namespace

DialogLogbook::DialogLogbook(Session& session, QWidget* parent)
    : QDialog(parent), mSession(session), mQuestion(new QFrame), mFlights(new FlightList),
      mTrends(new TrendPanel), mMessage(new ElidedLabel),
      mAdding(new ActivityBar(tr("Stop adding; what was added stays")))
{
    setObjectName("logbook");
    setWindowTitle(tr("Logbook"));
    setWindowIcon(QIcon(":/icons/logbook.svg"));
    setWindowFlag(Qt::WindowMinMaxButtonsHint);
    resize(1000, 760);
    createQuestion();
    auto* split = new QSplitter(Qt::Vertical);
    split->addWidget(mFlights);
    split->addWidget(mTrends);
    split->setChildrenCollapsible(false);
    split->setSizes({320, 400}); // only the ratio counts
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(mQuestion);
    layout->addWidget(split, 1);
    layout->addWidget(createButtons());
    connectAccess();
    connectViews();
    mFlights->setEmptyText(tr("Reading the logbook..."));
}

QWidget* DialogLogbook::createQuestion()
{
    mQuestion->setObjectName("question");
    mQuestion->setFrameShape(QFrame::StyledPanel);
    auto* text =
        new QLabel(tr("Add every flight that you open to this logbook? Only statistics and "
                      "events are kept. You can change that under Extras, Preferences."));
    text->setWordWrap(true);
    auto* yes = new QPushButton(tr("&Yes, Add Them"));
    auto* no = new QPushButton(tr("&No"));
    for (QPushButton* button : {yes, no}) {
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this,
                [this, button, yes] { answer(button == yes); });
    }
    auto* layout = new QHBoxLayout(mQuestion);
    layout->addWidget(text, 1);
    layout->addWidget(yes);
    layout->addWidget(no);
    return mQuestion;
}

QWidget* DialogLogbook::createButtons()
{
    auto* line = new QWidget;
    auto* layout = new QHBoxLayout(line);
    layout->setContentsMargins(0, 0, 0, 0);
    const auto add = [&](const char* name, const QString& text, const QString& tip,
                         void (DialogLogbook::*run)()) {
        auto* button = new QPushButton(text);
        button->setObjectName(name);
        button->setToolTip(tip);
        button->setAutoDefault(false); // Enter opens a flight
        connect(button, &QPushButton::clicked, this, run);
        layout->addWidget(button);
    };
    add("addFolder", tr("&Add Folder..."),
        tr("Add the flights of a folder and of all folders in it"), &DialogLogbook::addFolder);
    add("maintenance", tr("&Maintenance..."),
        tr("Note that something was done to the engine: trends begin anew"),
        &DialogLogbook::noteMaintenance);
    mMessage->setObjectName("message");
    layout->addWidget(mMessage, 1);
    layout->addWidget(mAdding);
    return line;
}

void DialogLogbook::connectAccess()
{
    connect(&mAccess, &LogbookAccess::flightsRead, this, &DialogLogbook::takeFlights);
    connect(&mAccess, &LogbookAccess::trendsRead, this, [this](const EngineTrends& trends) {
        if (mFlights->chosen() != nullptr) { // it may have been removed meanwhile
            mTrends->setTrends(trends);
        }
    });
    connect(&mAccess, &LogbookAccess::found, this, &DialogLogbook::takeRecordings);
    connect(&mAccess, &LogbookAccess::changed, &mAccess, &LogbookAccess::readFlights);
    connect(&mAccess, &LogbookAccess::progressed, mAdding, &ActivityBar::setProgress);
    connect(&mAccess, &LogbookAccess::failed, this, [this](const QString& reason) {
        if (!mAccess.isAdding()) { // it may be another thing that failed
            mAdding->abandon();
        }
        mHasFailed = true;
        mTrendEngine.reset(); // what is shown may be of another
        mFlights->setEmptyText(
            reason + "\n" +
            tr("F5 tries it again; Extras, Preferences tells which logbook it is."));
        say(reason);
    });
    connect(&mAccess, &LogbookAccess::added, this,
            [this](const AddTotals& totals, const QStringList& damaged) {
                mAdding->finish();
                say(addedWords(totals, damaged));
                mMessage->setToolTip(plainTip(listed(damaged)));
            });
    connect(mAdding, &ActivityBar::cancelled, &mAccess, &LogbookAccess::stopAdding);
}

void DialogLogbook::connectViews()
{
    connect(mFlights, &FlightList::chosenChanged, this, &DialogLogbook::showChosen);
    connect(mFlights, &FlightList::flightWanted, this, &DialogLogbook::open);
    connect(mFlights, &FlightList::removeWanted, this, &DialogLogbook::removeFlight);
    connect(mFlights, &FlightList::signalLink, this, &DialogLogbook::addFolder);
    connect(mTrends, &TrendPanel::figureChanged, this, &DialogLogbook::readTrends);
    connect(mTrends, &TrendPanel::flightChosen, mFlights, &FlightList::choose);
    connect(mTrends, &TrendPanel::flightWanted, this, &DialogLogbook::open);
    connect(new QShortcut(QKeySequence::Find, this), &QShortcut::activated, mFlights,
            &FlightList::beginFilter);
    connect(new QShortcut(QKeySequence::Refresh, this), &QShortcut::activated, this,
            &DialogLogbook::refresh);
}

void DialogLogbook::showEvent(QShowEvent* event)
{
    refresh();
    QDialog::showEvent(event);
}

void DialogLogbook::refresh()
{
    mQuestion->setVisible(!LogbookSettings::wasAsked());
    const QString url = LogbookSettings::url();
    const bool isOther = url != mAccess.url();
    mAccess.setUrl(url);
    if (isOther) { // nothing is done to a logbook by what another shows
        showFlights(std::make_shared<const std::vector<FlightHead>>());
        mFlights->setEmptyText(tr("Reading the logbook..."));
    }
    mAccess.readFlights();
}

void DialogLogbook::answer(bool addsOpened)
{
    LogbookSettings::setAddsOpened(addsOpened);
    mQuestion->hide();
    say(addsOpened ? tr("Every flight that you open is added from now on.") : QString());
}

void DialogLogbook::takeFlights(const FlightHeads& flights)
{
    mFlights->setEmptyText(tr("The logbook is empty.\n<a href=\"add\">Add a folder</a> of "
                              "recordings; the folders in it are looked through too."));
    showFlights(flights);
    if (std::exchange(mHasFailed, false)) {
        say({});
    }
}

void DialogLogbook::showFlights(const FlightHeads& flights)
{
    mFlights->setFlights(flights);
    readTrends();
}

void DialogLogbook::showChosen()
{
    const FlightHead* chosen = mFlights->chosen();
    mTrends->chooseFlight(chosen != nullptr ? chosen->flight : QString());
    if (chosen != nullptr && mTrendEngine != chosen->aircraft) {
        readTrends();
    }
}

void DialogLogbook::readTrends()
{
    const FlightHead* chosen = mFlights->chosen();
    if (chosen == nullptr) {
        mTrendEngine.reset();
        mTrends->clear();
        return;
    }
    mTrendEngine = chosen->aircraft;
    mAccess.readTrends(chosen->aircraft, mTrends->figure());
}

void DialogLogbook::addFolder()
{
    if (mAccess.isAdding()) {
        say(tr("Flights are being added already. Wait for the end, or cancel it."));
        return;
    }
    if (!mSession.profile()->isLoaded()) {
        say(tr("There is no profile by which recordings could be understood. Choose one under "
               "Extras, Preferences."));
        return;
    }
    const QString start = QString::fromStdString(Property::instance()->getString("LastPath", "."));
    const QString folder =
        QFileDialog::getExistingDirectory(this, tr("Add a Folder to the Logbook"), start);
    if (!folder.isEmpty()) {
        mAdding->begin(tr("Adding"));
        mAccess.addFolders({folder}, mSession.profile());
    }
}

void DialogLogbook::noteMaintenance()
{
    const FlightHead* chosen = mFlights->chosen();
    if (chosen == nullptr) {
        say(tr("Choose a flight of the engine first."));
        return;
    }
    if (const auto mark = askMaintenance(*chosen, this)) {
        mAccess.addMark(*mark);
    }
}

void DialogLogbook::removeFlight()
{
    const FlightHead* chosen = mFlights->chosen();
    if (chosen == nullptr) {
        return;
    }
    QMessageBox box(QMessageBox::Question, tr("Logbook"),
                    tr("Remove the flight of %1 from the logbook?").arg(wordsOf(*chosen)),
                    QMessageBox::NoButton, this);
    box.setTextFormat(Qt::PlainText);
    box.setInformativeText(tr("Its recordings stay where they are and can be added again."));
    const auto* remove = box.addButton(tr("Remove"), QMessageBox::AcceptRole);
    box.addButton(tr("Cancel"), QMessageBox::RejectRole);
    const FlightHead head = *chosen; // the list may change meanwhile
    box.exec();
    if (box.clickedButton() == remove) {
        mAccess.remove(head);
    }
}

void DialogLogbook::open(const QString& flight, bool asReference)
{
    if (const FlightHead* head = mFlights->find(flight)) {
        mAsReference = asReference;
        say(tr("Looking for its recordings..."));
        mAccess.find(*head, {});
    }
}

void DialogLogbook::takeRecordings(const FlightHead& head, const FoundRecordings& recordings)
{
    if (recordings.files.isEmpty()) {
        askFolder(head, recordings.reason);
        return;
    }
    say(tr("Opened: %1").arg(recordings.files.join(", ")));
    const std::list<QString> files(recordings.files.begin(), recordings.files.end());
    if (mAsReference) {
        Q_EMIT referenceWanted(files);
    } else {
        Q_EMIT flightWanted(files);
    }
}

void DialogLogbook::askFolder(const FlightHead& head, const QString& reason)
{
    QMessageBox box(QMessageBox::Question, tr("Logbook"), reason, QMessageBox::NoButton, this);
    box.setTextFormat(Qt::PlainText);
    box.setInformativeText(tr("Where are the recordings of the flight of %1? The folders in the "
                              "one that you choose are looked through too.")
                               .arg(dateWords(head.start)));
    const auto* choose = box.addButton(tr("Choose Folder..."), QMessageBox::AcceptRole);
    box.addButton(tr("Cancel"), QMessageBox::RejectRole);
    box.exec();
    const QString folder = box.clickedButton() == choose
                               ? QFileDialog::getExistingDirectory(this, tr("Find Recordings"))
                               : QString();
    if (folder.isEmpty()) {
        say(reason);
    } else {
        say(tr("Looking for its recordings..."));
        mAccess.find(head, folder);
    }
}

void DialogLogbook::say(const QString& text)
{
    mMessage->setToolTip({});
    mMessage->setFullText(text);
}

} // namespace TARN
