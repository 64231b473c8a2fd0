#pragma once

#include "flight/Session.h"
#include "profile/Project.h"

#include <QtCore/QObject>

class QWidget;

namespace TARN {

/// The project of the window: its name, whether saving would change its file, and the questions
/// that guard it.
class ProjectKeeper : public QObject
{
    Q_OBJECT

public:
    /// \p window is the parent of its questions.
    ProjectKeeper(Session& session, QWidget& window);

    /// Empty when no project file is known.
    const QString& fileName() const { return mFileName; }
    /// Whether the ticks, or how curves look, differ from the file, or from a new project.
    bool isEdited() const;

    // The commands; each asks first where something unsaved would be lost. False when nothing
    // was done.

    bool newProject();
    bool openProject();
    bool openProject(const QString& file);
    /// Asks for a name where \p askName says so, and where the present one won't do.
    bool saveProject(bool askName);

    /// Opens the project of the last session, silently; false when it is none that can be read.
    bool reopen(const QString& file);

    /// Whether unsaved changes are saved, or nobody minds losing them.
    bool askSaveProject();

    /// What the project selects in another profile that takes the place of the session's.
    Selection ticksFor(const Profile& profile);
    /// That profile has taken its place.
    void profileReplaced();

    /// Names that the profile does not know.
    std::vector<std::string> unknownNames() const;

Q_SIGNALS:
    /// The name, whether it is edited, or its unknown names.
    void changed();
    /// Something that the user should read.
    void signalMessage(const QString& text);

private:
    void take(const QString& file);
    bool write(const QString& file);
    QString askProjectName();
    void warn(const QString& text);

    Session& mSession;
    QWidget& mWindow;
    Project mProject;
    QString mFileName;
    Selection mSaved; ///< the ticks as the file has them
    CurveLooks mSavedLooks;
};

} // namespace TARN
