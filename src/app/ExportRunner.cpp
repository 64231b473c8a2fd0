#include "app/ExportRunner.h"

#include "export/DialogExportCsv.h"
#include "export/DialogExportGpx.h"
#include "export/DialogExportKml.h"
#include "report/DialogReport.h"

#include <QtCore/QFileInfo>
#include <QtWidgets/QMessageBox>

namespace TARN {

namespace {

template <typename Face>
ExportFace* make(QWidget* window)
{
    return new Face(window);
}

} // namespace

ExportRunner::ExportRunner(Session& session, QWidget& window)
    : QObject(&window), mSession(session),
      mWindow(window), mKinds{{ActionType::ExportKml, {make<DialogExportKml>}},
                              {ActionType::ExportGpx, {make<DialogExportGpx>}},
                              {ActionType::ExportCsv, {make<DialogExportCsv>}},
                              {ActionType::FlightReport, {make<DialogReport>, false}}}
{
    mJob.setListener(
        [this](int percent, const QString& task) { Q_EMIT progressed(percent, task); });
}

std::vector<ActionType> ExportRunner::commands() const
{
    std::vector<ActionType> commands;
    for (const auto& [command, kind] : mKinds) {
        commands.push_back(command);
    }
    return commands;
}

void ExportRunner::start(ActionType command)
{
    const auto found = mKinds.find(command);
    if (found == mKinds.end()) {
        return;
    }
    Kind& kind = found->second;
    kind.face = kind.face != nullptr ? kind.face : kind.make(&mWindow);
    // What is exported is what is shown when the wizard opens.
    ExportInput shown{mSession.flight(), mSession.selection(), mSession.offset()};
    const Reference& reference = mSession.reference();
    if (reference.flight() != nullptr) {
        shown.reference = {reference.flight(), reference.offset(), reference.shift()};
    }
    ExportOptions preset;
    preset.startTime = rangeOf(mSession).start;
    preset.stopTime = rangeOf(mSession).stop;
    preset.currentTime = mSession.time();
    if (auto exporter = kind.face->ask(shown, preset)) {
        run(std::move(exporter), shown, *kind.face);
    }
}

bool ExportRunner::isPossible(ActionType command) const
{
    const auto& flight = mSession.flight();
    return flight != nullptr && !isRunning() &&
           !(flight->samples().empty() && mKinds.at(command).needsSamples);
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
