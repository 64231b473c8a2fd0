#pragma once

#include <QtCore/QString>

#include <list>

namespace TARN {

/// Samples that files promise by their sizes.
double promisedSamples(const std::list<QString>& files);

/// Whether so many samples fit the memory that the system can give; true where it does not say.
bool fitMemory(double samples);

} // namespace TARN
