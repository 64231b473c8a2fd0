#include "export/DialogExportKml.h"

#include "base/Property.h"
#include "export/DialogExportKmlOptions.h"
#include "export/DialogExportKmlPath.h"
#include "export/DialogExportKmlPlacemark.h"

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

} // namespace TARN
