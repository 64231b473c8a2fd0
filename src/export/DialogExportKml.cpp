#include "export/DialogExportKml.h"

#include "base/Property.h"

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
    loadSettings();
    restart();
    const int result = exec();
    storeSettings();
    options = mOptions;
    return result;
}

void DialogExportKml::loadSettings()
{
    const Property* settings = Property::instance();
    mOptions.directory = settings->getString("KmlExportDir", ".");
    mOptions.timeStamp = settings->getInt("KmlTimeStamp", 100);
    mOptions.lineWidth = settings->getInt("KmlLineWidth", 1);
    mOptions.lineColor = settings->getString("KmlLineColor", "ff0000");
    mOptions.lineAlpha = settings->getInt("KmlLineAlpha", 255);
    mOptions.polygonOn = settings->getSwitch("KmlPolygonOn", true);
    mOptions.polygonColor = settings->getString("KmlPolygonColor", "0000ff");
    mOptions.polygonAlpha = settings->getInt("KmlPolygonAlpha", 100);
    mOptions.placeMarkOn = settings->getSwitch("KmlPlaceMarkOn", true);
    mOptions.placeMarkInterval = settings->getInt("KmlPlaceMarkIntervall", 10);
    mOptions.placeMarkColor = settings->getString("KmlPlaceMarkColor", "ffcc00");
    mOptions.errorMarkOn = settings->getSwitch("KmlErrorMarkOn", true);
    mOptions.showLimit = settings->getSwitch("KmlShowLimit", true);
    mOptions.showWarning = settings->getSwitch("KmlShowWarning", true);
    mOptions.errorMarkColor = settings->getString("KmlErrorMarkColor", "ff0000");
}

void DialogExportKml::storeSettings() const
{
    Property* settings = Property::instance();
    settings->setString("KmlExportDir", mOptions.directory);
    settings->setInt("KmlTimeStamp", mOptions.timeStamp);
    settings->setInt("KmlLineWidth", mOptions.lineWidth);
    settings->setString("KmlLineColor", mOptions.lineColor);
    settings->setInt("KmlLineAlpha", mOptions.lineAlpha);
    settings->setSwitch("KmlPolygonOn", mOptions.polygonOn);
    settings->setString("KmlPolygonColor", mOptions.polygonColor);
    settings->setInt("KmlPolygonAlpha", mOptions.polygonAlpha);
    settings->setSwitch("KmlPlaceMarkOn", mOptions.placeMarkOn);
    settings->setInt("KmlPlaceMarkIntervall", mOptions.placeMarkInterval);
    settings->setString("KmlPlaceMarkColor", mOptions.placeMarkColor);
    settings->setSwitch("KmlErrorMarkOn", mOptions.errorMarkOn);
    settings->setSwitch("KmlShowLimit", mOptions.showLimit);
    settings->setSwitch("KmlShowWarning", mOptions.showWarning);
    settings->setString("KmlErrorMarkColor", mOptions.errorMarkColor);
    settings->writeXmlFile();
}

} // namespace TARN
