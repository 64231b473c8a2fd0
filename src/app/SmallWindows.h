#pragma once

#include <QtCore/QObject>
#include <QtCore/QString>

class DialogAbout;
class DialogHelp;
class QWidget;

namespace TARN {

class DialogPreferences;

/// The small windows around the main window; each is made when it is first asked for.
class SmallWindows : public QObject
{
    Q_OBJECT

public:
    explicit SmallWindows(QWidget& window);

    void showAbout();
    void showHelp();
    void showPreferences();

Q_SIGNALS:
    // The user changed a preference.
    void profileFileChanged();
    void allDigitsChanged(bool on);

private:
    QWidget& mWindow;
    QString mLanguage; ///< that the program speaks, until its next start
    DialogPreferences* mPreferences = nullptr;
    DialogAbout* mAbout = nullptr;
    DialogHelp* mHelp = nullptr;
};

} // namespace TARN
