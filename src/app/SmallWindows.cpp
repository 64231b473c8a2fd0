#include "app/SmallWindows.h"

#include "app/DialogAbout.h"
#include "app/DialogHelp.h"
#include "app/DialogPreferences.h"
#include "base/Property.h"
#include "logbook/DialogLogbook.h"

namespace TARN {

namespace {

void present(QDialog* dialog)
{
    dialog->show();
    dialog->raise();
    dialog->activateWindow();
}

} // namespace

SmallWindows::SmallWindows(Session& session, QWidget& window)
    : QObject(&window), mSession(session), mWindow(window),
      mLanguage(QString::fromStdString(Property::instance()->getString("Locale", "us")))
{}

SmallWindows::~SmallWindows() = default;

void SmallWindows::show(ActionType command)
{
    switch (command) {
    case ActionType::About:
        showAbout();
        break;
    case ActionType::Help:
        showHelp();
        break;
    case ActionType::Preferences:
        showPreferences();
        break;
    case ActionType::Logbook:
        showLogbook();
        break;
    default:
        break;
    }
}

void SmallWindows::showAbout()
{
    if (mAbout == nullptr) {
        mAbout = new DialogAbout(&mWindow);
    }
    present(mAbout);
}

void SmallWindows::showHelp()
{
    if (mHelp == nullptr) {
        mHelp = new DialogHelp(&mWindow, mLanguage);
    }
    present(mHelp);
}

void SmallWindows::showPreferences()
{
    if (mPreferences == nullptr) {
        mPreferences = new DialogPreferences(&mWindow);
        connect(mPreferences, &DialogPreferences::signalProfileFileChanged, this,
                &SmallWindows::profileFileChanged);
        connect(mPreferences, &DialogPreferences::signalAllDigitsChanged, this,
                &SmallWindows::allDigitsChanged);
        connect(mPreferences, &DialogPreferences::signalLogbookChanged, this,
                &SmallWindows::refreshLogbook);
    }
    present(mPreferences);
}

void SmallWindows::showLogbook()
{
    if (mLogbook == nullptr) {
        mLogbook = std::make_unique<DialogLogbook>(mSession);
        const DialogLogbook* logbook = mLogbook.get();
        connect(logbook, &DialogLogbook::flightWanted, this, &SmallWindows::flightWanted);
        connect(logbook, &DialogLogbook::flightWanted, this, &SmallWindows::showWindow);
        connect(logbook, &DialogLogbook::referenceWanted, this, &SmallWindows::referenceWanted);
        connect(logbook, &DialogLogbook::referenceWanted, this, &SmallWindows::showWindow);
    }
    present(mLogbook.get());
}

void SmallWindows::refreshLogbook()
{
    if (mLogbook != nullptr && mLogbook->isVisible()) {
        mLogbook->refresh();
    }
}

void SmallWindows::showWindow()
{
    mWindow.raise();
    mWindow.activateWindow();
}

} // namespace TARN
