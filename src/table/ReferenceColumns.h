#pragma once

#include "flight/Flight.h"
#include "profile/Selection.h"

namespace TARN {

/// The values of the reference flight beside those of a value table: a column for each selected
/// parameter. Never changes after it was made; shares the flight.
class ReferenceColumns
{
public:
    /// Ends early, and has fewer columns, when it is asked to stop.
    ReferenceColumns(std::shared_ptr<const Flight> flight, const Selection& selection,
                     double offset, Progress& progress);

    std::size_t columnCount() const { return mColumns.size(); }

    /// What the parameter has at a time on the reference's own clock with its offset, as the table
    /// shows it, with all digits or the fewest: at a sample what was recorded, between two an
    /// interpolated number with as many decimals, or the words that hold. Empty where it has no
    /// value.
    QString textAt(std::size_t column, double time, bool allDigits) const;

private:
    struct Column
    {
        Series series; ///< whose order of time is known
        GapRule gaps;
    };

    static QString textOf(const Series& series, std::size_t k, bool allDigits);
    static QString betweenText(const Column& column, std::size_t after, double time,
                               bool allDigits);

    std::shared_ptr<const Flight> mFlight;
    std::vector<Column> mColumns;
};

} // namespace TARN
