#pragma once

#include <QtCore/QString>

namespace TARN {

/// Where the bundle's resources lie below the folder that holds the bundle.
constexpr const char* BundleResources = "orna.app/Contents/Resources/";

/// The profile that is used until the user chooses another.
constexpr const char* DefaultProfile = "orna.app/Contents/Resources/Tolvane_Profile.xml";

/// A file or folder named relative to the folder that holds the bundle: the one below the working
/// directory where it is there, else the one of the bundle that this program runs from. So a
/// program that was installed finds its own from wherever it is started. Other names are
/// returned as they are.
QString inBundle(const QString& path);

} // namespace TARN
