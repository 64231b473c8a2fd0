#pragma once

#include "app/CommandSet.h"

#include <QtCore/QObject>
#include <QtCore/QString>

#include <list>
#include <memory>

class DialogAbout;
class DialogHelp;
class QWidget;

namespace TARN {

class DialogLogbook;
class DialogPreferences;
class Session;

/// The small windows around the main window; each is made when it is first asked for.
class SmallWindows : public QObject
{
    Q_OBJECT

public:
    SmallWindows(Session& session, QWidget& window);
    ~SmallWindows() override;

    /// Shows the window of a command; nothing for another one.
    void show(ActionType command);
    void showPreferences();
    /// Reads the logbook anew where it is shown.
    void refreshLogbook();

Q_SIGNALS:
    // The user changed a preference.
    void profileFileChanged();
    void allDigitsChanged(bool on);
    // The user wants to see recordings that the logbook knows.
    void flightWanted(const std::list<QString>& files);
    void referenceWanted(const std::list<QString>& files);

private:
    void showAbout();
    void showHelp();
    void showLogbook();
    void showWindow();

    Session& mSession;
    QWidget& mWindow;
    QString mLanguage; ///< that the program speaks, until its next start
    DialogPreferences* mPreferences = nullptr;
    /// Without a parent: one would stay behind it, and a flight that is opened is to be seen.
    std::unique_ptr<DialogLogbook> mLogbook;
    DialogAbout* mAbout = nullptr;
    DialogHelp* mHelp = nullptr;
};

} // namespace TARN
