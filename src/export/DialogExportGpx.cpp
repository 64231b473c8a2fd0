#include "export/DialogExportGpx.h"

#include "base/Property.h"
#include "export/DialogExportGpxOptions.h"
#include "export/DialogExportPath.h"
#include "export/ExportGpx.h"

namespace TARN {

DialogExportGpx::DialogExportGpx(QWidget* parent) : QWizard(parent)
{
    setWindowTitle(tr("GPX Export"));
    addPage(new DialogExportPath(mOptions, tr("GPX Export"), tr("Save GPX Export")));
    addPage(new DialogExportGpxOptions(mOptions));
}

std::shared_ptr<Exporter> DialogExportGpx::ask(const ExportInput& shown,
                                               const ExportOptions& preset)
{
    mOptions.load(*Property::instance());
    mOptions.setTimes(preset);
    mOptions.fileName = recordingName(shown) + ".gpx";
    restart();
    const bool isAccepted = exec() == Accepted;
    mOptions.store(*Property::instance());
    Property::instance()->writeXmlFile();
    return isAccepted ? std::make_shared<ExportGpx>(mOptions) : nullptr;
}

ExportFace::Words DialogExportGpx::words() const
{
    return {tr("ORNA Warning"), tr("Exporting GPX file failed !")};
}

} // namespace TARN
