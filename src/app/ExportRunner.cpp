#include "app/ExportRunner.h"

#include "export/DialogExportCsv.h"
#include "export/DialogExportKml.h"
#include "export/ExportCan.h"
#include "export/ExportCsv.h"
#include "export/ExportKml.h"

#include <QtCore/QFileInfo>
#include <QtWidgets/QMessageBox>

namespace TARN {

ExportRunner::ExportRunner(Session& session, QWidget& window)
    : QObject(&window), mSession(session), mWindow(window),
      mKmlWizard(new DialogExportKml(&window)), mCsvWizard(new DialogExportCsv(&window))
{
    mJob.setListener(
        [this](int percent, const QString& task) { Q_EMIT progressed(percent, task); });
}

/// What is exported is what is shown when the wizard opens.
ExportInput ExportRunner::input() const
{
    return {mSession.flight(), mSession.selection(), mSession.offset()};
}

/// The range marked in the graph, all of it when nothing is marked, and the current time.
void ExportRunner::preset(ExportOptions& options) const
{
    const TimeRange range = mSession.range();
    options.startTime = range.start;
    options.stopTime = range.stop;
    options.currentTime = mSession.time();
}

void ExportRunner::exportKml()
{
    const ExportInput shown = input();
    const QString path = shown.flight->record()->integrity().files.front().info.fileName;
    const QString name = path.section('/', -1).section('.', 0, 0);
    mKmlOptions.fileName = (name + ".kml").toStdString();
    preset(mKmlOptions);
    if (mKmlWizard->getOptions(mKmlOptions) == QDialog::Accepted) {
        run(std::make_shared<ExportKml>(mKmlOptions), shown,
            {tr("ORNA Warning"), tr("Exporting KML file failed !")});
    }
}

void ExportRunner::exportCsv()
{
    const ExportInput shown = input();
    preset(mCsvOptions);
    if (mCsvWizard->getOptions(mCsvOptions, shown.flight->range(0.0)) != QDialog::Accepted) {
        return;
    }
    const Words words{tr("ORNA Viewer Warning"), tr("Exporting CSV/CAN file failed !")};
    if (mCsvOptions.fileType == CsvExportOptions::Can) {
        run(std::make_shared<ExportCan>(mCsvOptions), shown, words);
    } else {
        run(std::make_shared<ExportCsv>(mCsvOptions), shown, words);
    }
}

void ExportRunner::run(std::shared_ptr<Exporter> exporter, const ExportInput& input,
                       const Words& words)
{
    const QString path = QFileInfo(exporter->path()).absoluteFilePath();
    mJob.start([exporter, input](Progress& progress) { return exporter->run(input, progress); },
               [this, path, words](const ExportResult& result) { report(result, path, words); });
    Q_EMIT started(path);
}

void ExportRunner::report(const ExportResult& result, const QString& path, const Words& words)
{
    if (result) {
        Q_EMIT finished((tr("Written: %1").arg(path) + "   " + result.message).trimmed(), true);
        return;
    }
    Q_EMIT finished(words.failure, false);
    QMessageBox box(QMessageBox::Critical, words.title, words.failure, QMessageBox::NoButton,
                    &mWindow);
    box.setInformativeText(result.message);
    box.addButton(tr("Ok"), QMessageBox::AcceptRole);
    box.exec();
}

void ExportRunner::cancel()
{
    if (mJob.isRunning()) {
        mJob.cancel();
        Q_EMIT finished(tr("The export was stopped; the old file, if there was one, is unchanged."),
                        false);
    }
}

void ExportRunner::stop()
{
    constexpr std::chrono::seconds Longest(3);
    mJob.stop();
    mJob.waitForEnd(Longest);
    mJob.cancel();
}

} // namespace TARN
