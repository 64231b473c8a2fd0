#pragma once

#include "export/CsvExportOptions.h"
#include "export/Exporter.h"
#include "export/KmlExportOptions.h"
#include "flight/Job.h"
#include "flight/Session.h"

#include <QtCore/QObject>

class QWidget;

namespace TARN {

class DialogExportCsv;
class DialogExportKml;

/// Asks for the options of an export and runs it beside the event loop, one at a time, on the
/// flight as it is when it starts.
class ExportRunner : public QObject
{
    Q_OBJECT

public:
    /// \p window is the parent of the wizards.
    ExportRunner(Session& session, QWidget& window);

    void exportKml();
    void exportCsv();

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
    /// Titles of the box that tells of a failure.
    struct Words
    {
        QString title;
        QString failure;
    };

    ExportInput input() const;
    void preset(ExportOptions& options) const;
    void run(std::shared_ptr<Exporter> exporter, const ExportInput& input, const Words& words);
    void report(const ExportResult& result, const QString& path, const Words& words);

    Session& mSession;
    QWidget& mWindow;
    DialogExportKml* mKmlWizard;
    DialogExportCsv* mCsvWizard;
    KmlExportOptions mKmlOptions;
    CsvExportOptions mCsvOptions;
    Job<ExportResult> mJob;
};

} // namespace TARN
