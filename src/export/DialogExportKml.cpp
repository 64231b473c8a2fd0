#include "export/DialogExportKml.h"

#include "base/Property.h"
#include "export/DialogExportKmlOptions.h"
#include "export/DialogExportKmlPath.h"
#include "export/DialogExportKmlPlacemark.h"
#include "export/ExportKml.h"

namespace TARN {

DialogExportKml::DialogExportKml(QWidget* parent) : QWizard(parent)
{
    setWindowTitle(tr("Google Earth KML Export"));
    addPage(new DialogExportKmlPath(mOptions));
    addPage(new DialogExportKmlOptions(mOptions));
    addPage(new DialogExportKmlPlacemark(mOptions));
}

int DialogExportKml::getOptions(KmlExportOptions& options)
{
    mOptions = options;
    mOptions.load(*Property::instance());
    restart();
    const int result = exec();
    mOptions.store(*Property::instance());
    Property::instance()->writeXmlFile();
    options = mOptions;
    return result;
}

std::shared_ptr<Exporter> DialogExportKml::ask(const ExportInput& shown,
                                               const ExportOptions& preset)
{
    KmlExportOptions options = mOptions;
    options.setTimes(preset);
    options.fileName = recordingName(shown) + ".kml";
    const bool isAccepted = getOptions(options) == Accepted;
    return isAccepted ? std::make_shared<ExportKml>(options) : nullptr;
}

ExportFace::Words DialogExportKml::words() const
{
    return {tr("ORNA Warning"), tr("Exporting KML file failed !")};
}

} // namespace TARN
