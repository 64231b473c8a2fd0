#include "app/SmallWindows.h"

#include "app/DialogAbout.h"
#include "app/DialogHelp.h"
#include "app/DialogPreferences.h"
#include "base/Property.h"

namespace TARN {

namespace {

void present(QDialog* dialog)
{
    dialog->show();
    dialog->raise();
    dialog->activateWindow();
}

} // namespace

SmallWindows::SmallWindows(QWidget& window)
    : QObject(&window), mWindow(window),
      mLanguage(QString::fromStdString(Property::instance()->getString("Locale", "us")))
{}

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
    }
    present(mPreferences);
}

} // namespace TARN
