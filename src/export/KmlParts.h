#pragma once

#include "export/KmlExportOptions.h"

#include <string>

namespace TARN {

class XmlStream;

// What every KML document of ours is made of.

/// Alpha, blue, green, red, each as two hexadecimal digits.
std::string kmlColor(const std::string& rgb, int alpha);

/// The styles of place marks and of marks of events.
void addMarkStyles(XmlStream& xml, const KmlExportOptions& options);
/// The style of the path.
void addPathStyle(XmlStream& xml, const KmlExportOptions& options);

/// Name and value inside of a mark's Data element.
void addMarkItem(XmlStream& xml, const std::string& name, const std::string& value);

} // namespace TARN
