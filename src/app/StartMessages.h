#pragma once

#include <QtCore/QString>

namespace TARN {

class Flight;

/// What the user should know about the start of the program: settings that could not be read,
/// a home that is missing. Empty when all is well.
QString startMessages();

/// What the user should know about a flight that was loaded, its remarks included.
/// What is said when a flight was loaded to compare with.
QString referenceMessage(const Flight& flight);
QString loadedMessage(const Flight& flight);

} // namespace TARN
