#include "app/ExportRunner.h"

#include "export/DialogExportCsv.h"
#include "export/DialogExportKml.h"
#include "report/DialogReport.h"

#include <QtCore/QFileInfo>
#include <QtWidgets/QMessageBox>

namespace TARN {

ExportRunner::ExportRunner(Session& session, QWidget& window)
    : QObject(&window), mSession(session),
      mWindow(window), mFaces{{ActionType::ExportKml, new DialogExportKml(&window)},
                              {ActionType::ExportCsv, new DialogExportCsv(&window)},
                              {ActionType::FlightReport, new DialogReport(&window)}}
{
    mJob.setListener(
        [this](int percent, const QString& task) { Q_EMIT progressed(percent, task); });
}

std::vector<ActionType> ExportRunner::commands() const
{
    std::vector<ActionType> commands;
    for (const auto& [command, face] : mFaces) {
        commands.push_back(command);
    }
    return commands;
}

void ExportRunner::start(ActionType command)
{
    const auto found = mFaces.find(command);
    if (found == mFaces.end()) {
        return;
    }
    // What is exported is what is shown when the wizard opens.
    const ExportInput shown{mSession.flight(), mSession.selection(), mSession.offset()};
    ExportOptions preset;
    preset.startTime = rangeOf(mSession).start;
    preset.stopTime = rangeOf(mSession).stop;
    preset.currentTime = mSession.time();
    if (auto exporter = found->second->ask(shown, preset)) {
        run(std::move(exporter), shown, *found->second);
    }
}

bool ExportRunner::isPossible(ActionType command) const
{
    const auto& flight = mSession.flight();
    return flight != nullptr && !isRunning() &&
           !(flight->samples().empty() && mFaces.at(command)->needsSamples());
}

void ExportRunner::run(std::shared_ptr<Exporter> exporter, const ExportInput& input,
                       ExportFace& face)
{
    const QString path = QFileInfo(exporter->path()).absoluteFilePath();
    mJob.start([exporter, input](Progress& progress) { return exporter->run(input, progress); },
               [this, path, &face](const ExportResult& result) { report(result, path, face); });
    Q_EMIT started(path);
}

void ExportRunner::report(const ExportResult& result, const QString& path, ExportFace& face)
{
    if (result) {
        Q_EMIT finished((tr("Written: %1").arg(path) + "   " + result.message).trimmed(), true);
        face.written(path);
        return;
    }
    const ExportFace::Words words = face.words();
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
