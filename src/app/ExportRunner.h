#pragma once

#include "app/CommandSet.h"
#include "export/ExportFace.h"
#include "flight/Job.h"
#include "flight/Session.h"

class QWidget;

namespace TARN {

/// Asks for the options of an export and runs it beside the event loop, one at a time, on the
/// flight as it is when it starts.
class ExportRunner : public QObject
{
    Q_OBJECT

public:
    /// \p window is the parent of the wizards.
    ExportRunner(Session& session, QWidget& window);

    /// The commands that export.
    std::vector<ActionType> commands() const;
    /// Asks and exports; nothing for another command.
    void start(ActionType command);

    /// Whether what is shown can be exported now.
    bool isPossible(ActionType command) const;

    bool isRunning() const { return mJob.isRunning(); }
    /// Stops the export; the old file stays.
    void cancel();
    /// Stops it and waits until nothing of it is left; for the end of the program.
    void stop();

Q_SIGNALS:
    /// An export to this file has begun.
    void started(const QString& path);
    void progressed(int percent, const QString& task);
    /// It has ended; \p message for the status bar. \p done: the file is written.
    void finished(const QString& message, bool done);

private:
    /// One kind of export. Its face is made when it is first asked for: the start does not wait.
    struct Kind
    {
        std::function<ExportFace*(QWidget*)> make;
        bool needsSamples = true;   ///< there is nothing to export without
        ExportFace* face = nullptr; ///< child of the window
    };

    void run(std::shared_ptr<Exporter> exporter, const ExportInput& input, ExportFace& face);
    void report(const ExportResult& result, const QString& path, ExportFace& face);

    Session& mSession;
    QWidget& mWindow;
    std::map<ActionType, Kind> mKinds;
    Job<ExportResult> mJob;
};

} // namespace TARN
