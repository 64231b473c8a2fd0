#pragma once

#include "faults/Episode.h"

#include <QtCore/QStringList>

namespace TARN {

/// What a list of events is of.
enum class EventKind
{
    Limits, ///< parameters that left their normal range
    Lamps,
    Faults ///< errors of the matrices
};

// How lists and reports word what an episode is.

/// States of a kind in a word, by state from StateOk on.
QStringList severityWords(EventKind kind);

/// "1.5 s".
QString durationWords(double seconds);

/// A scaled value of a parameter, in the shortest text that reads back as it was sent, and its
/// unit.
QString valueWords(const ProfileParameter& parameter, double value);

/// What a peak passed: a reader wants the bound that was left, not the far end of the band.
QString thresholdWords(const Episode::Peak& peak);

} // namespace TARN
