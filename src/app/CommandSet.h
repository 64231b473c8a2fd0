#pragma once

#include <QtCore/QObject>

#include <map>
#include <vector>

class QAction;
class QActionGroup;
class QMainWindow;

namespace TARN {

/// The numbers by which commands are dispatched.
enum class ActionType
{
    NewProject = 0,
    OpenProject = 1,
    OpenCard = 2,
    SaveProject = 4,
    SaveProjectAs = 5,
    Quit = 6,
    About = 8,
    Help = 9,
    Preferences = 14,
    ExportKml = 16,
    ExportCsv = 17,
    RecordDetails = 18,
    FlightReport = 19,
    Logbook = 20,
    ExportGpx = 21
};

/// The commands of the main window, in its menus and its toolbar.
class CommandSet : public QObject
{
    Q_OBJECT

public:
    /// Puts the menus and the toolbar into the window.
    explicit CommandSet(QMainWindow& window);

    void setEnabled(ActionType type, bool enabled);

Q_SIGNALS:
    /// The user asks for a command.
    void triggered(ActionType type);

private:
    struct Command;

    static std::vector<Command> commands();
    QAction* createAction(const Command& command);

    QActionGroup* mGroup;
    std::map<ActionType, QAction*> mActions;
};

} // namespace TARN
