#include "export/KmlExportOptions.h"

#include "base/Property.h"

namespace TARN {

void KmlExportOptions::load(const Property& settings)
{
    const KmlExportOptions defaults;
    directory = settings.getString("KmlExportDir", defaults.directory);
    isTimed = settings.getSwitch("KmlTimed", defaults.isTimed);
    timeStamp = settings.getInt("KmlTimeStamp", defaults.timeStamp);
    lineWidth = settings.getInt("KmlLineWidth", defaults.lineWidth);
    lineColor = settings.getString("KmlLineColor", defaults.lineColor);
    lineAlpha = settings.getInt("KmlLineAlpha", defaults.lineAlpha);
    polygonOn = settings.getSwitch("KmlPolygonOn", defaults.polygonOn);
    polygonColor = settings.getString("KmlPolygonColor", defaults.polygonColor);
    polygonAlpha = settings.getInt("KmlPolygonAlpha", defaults.polygonAlpha);
    placeMarkOn = settings.getSwitch("KmlPlaceMarkOn", defaults.placeMarkOn);
    placeMarkInterval = settings.getInt("KmlPlaceMarkIntervall", defaults.placeMarkInterval);
    placeMarkColor = settings.getString("KmlPlaceMarkColor", defaults.placeMarkColor);
    errorMarkOn = settings.getSwitch("KmlErrorMarkOn", defaults.errorMarkOn);
    showLimit = settings.getSwitch("KmlShowLimit", defaults.showLimit);
    showWarning = settings.getSwitch("KmlShowWarning", defaults.showWarning);
    errorMarkColor = settings.getString("KmlErrorMarkColor", defaults.errorMarkColor);
}

void KmlExportOptions::store(Property& settings) const
{
    settings.setString("KmlExportDir", directory);
    settings.setSwitch("KmlTimed", isTimed);
    settings.setInt("KmlTimeStamp", timeStamp);
    settings.setInt("KmlLineWidth", lineWidth);
    settings.setString("KmlLineColor", lineColor);
    settings.setInt("KmlLineAlpha", lineAlpha);
    settings.setSwitch("KmlPolygonOn", polygonOn);
    settings.setString("KmlPolygonColor", polygonColor);
    settings.setInt("KmlPolygonAlpha", polygonAlpha);
    settings.setSwitch("KmlPlaceMarkOn", placeMarkOn);
    settings.setInt("KmlPlaceMarkIntervall", placeMarkInterval);
    settings.setString("KmlPlaceMarkColor", placeMarkColor);
    settings.setSwitch("KmlErrorMarkOn", errorMarkOn);
    settings.setSwitch("KmlShowLimit", showLimit);
    settings.setSwitch("KmlShowWarning", showWarning);
    settings.setString("KmlErrorMarkColor", errorMarkColor);
}

} // namespace TARN
