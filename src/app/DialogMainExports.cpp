#include "app/DialogMain.h"
#include "app/DialogStatusBar.h"
#include "base/Property.h"
#include "display/DialogData.h"
#include "export/DialogExportCsv.h"
#include "export/DialogExportKml.h"
#include "export/ExportCan.h"
#include "export/ExportCsv.h"
#include "export/ExportKml.h"
#include "profile/Profile.h"
#include "widgets/WaitCursor.h"

#include <QtCore/QScopedValueRollback>
#include <QtWidgets/QMessageBox>

#include <new>

namespace TARN {

/// What every export starts from: the recording, the range marked in it, all of it when nothing
/// is marked, and the current time.
template <typename Options>
void DialogMain::presetOptions(Options& options) const
{
    options.info = mRecord.recordInfo();
    const bool isMarked = mData->markStop() > mData->markStart();
    options.startTime = isMarked ? mData->markStart() : options.info.startTime;
    options.stopTime = isMarked ? mData->markStop() : options.info.stopTime;
    options.currentTime = mData->time();
}

void DialogMain::exportKml()
{
    // From the wizard on: what it shows is what is exported.
    const QScopedValueRollback busy(mBusy, true);
    const QString path = mRecord.integrity().files.front().info.fileName;
    const QString name = path.section('/', -1).section('.', 0, 0);
    mKmlOptions.fileName = (name + ".kml").toStdString();
    presetOptions(mKmlOptions);
    if (mKmlWizard->getOptions(mKmlOptions) != QDialog::Accepted) {
        return;
    }
    const ExportResult result = runExport([this](const ExportProgress& progress) {
        ExportKml exporter(*Profile::instance());
        exporter.setProgress(progress);
        return exporter.exportData(mRecord, mKmlOptions);
    });
    reportExport(result, mKmlOptions.path(), tr("ORNA Warning"), tr("Exporting KML file failed !"));
}

void DialogMain::exportCsv()
{
    const QScopedValueRollback busy(mBusy, true);
    presetOptions(mCsvOptions);
    if (mCsvWizard->getOptions(mCsvOptions) != QDialog::Accepted) {
        return;
    }
    const ExportResult result = runExport([this](const ExportProgress& progress) {
        if (mCsvOptions.fileType == CsvExportOptions::Can) {
            ExportCan exporter;
            exporter.setProgress(progress);
            return exporter.exportData(mRecord, mCsvOptions);
        }
        ExportCsv exporter(*Profile::instance());
        exporter.setProgress(progress);
        return exporter.exportData(mRecord, mCsvOptions);
    });
    reportExport(result, mCsvOptions.path(), tr("ORNA Viewer Warning"),
                 tr("Exporting CSV/CAN file failed !"));
}

ExportResult DialogMain::runExport(const std::function<ExportResult(const ExportProgress&)>& work)
{
    const WaitCursor waitCursor;
    setProgress(0);
    try {
        return work([this](int percent) { setProgress(percent); });
    } catch (const std::bad_alloc&) {
        return ExportResult::failure(
            tr("There is not enough memory for this export; choose a shorter time range."));
    }
}

void DialogMain::reportExport(const ExportResult& result, const QString& path, const QString& title,
                              const QString& failure)
{
    setProgress(100);
    if (result) {
        mStatusBar->say(tr("Written: %1").arg(path) + "   " + result.message);
        return;
    }
    QMessageBox box(QMessageBox::Critical, title, failure, QMessageBox::NoButton, this);
    box.setInformativeText(result.message);
    box.addButton(tr("Ok"), QMessageBox::AcceptRole);
    box.exec();
}

} // namespace TARN
