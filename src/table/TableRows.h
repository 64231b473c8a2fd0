#pragma once

#include "flight/Flight.h"
#include "profile/Selection.h"

#include <cstdint>
#include <vector>

namespace TARN {

/// Which sample stands where in the value table of a flight at a time offset: a column for each
/// selected parameter, and a row for each tenth of a second (time with the offset, rounded) at
/// which one of them has a sample. Holds only the keys of the rows; the sample of a cell is
/// searched when it is asked for, so a table is ready after one pass over the times of its samples.
/// Never changes after it was made; shares the flight.
class TableRows
{
public:
    /// No rows; the columns of a selection without a flight.
    TableRows(std::shared_ptr<const Profile> profile, const Selection& selection);

    /// Ends early, with a part of the rows, when it is asked to stop.
    TableRows(std::shared_ptr<const Flight> flight, const Selection& selection, double offset,
              Progress& progress);

    std::size_t rowCount() const { return mKeys.size(); }
    std::size_t columnCount() const { return mParameters.size(); }

    const ProfileParameter& parameter(std::size_t column) const { return *mParameters[column]; }
    /// Of a table with rows.
    const Decoder& decoder(std::size_t column) const { return mSeries[column].decoder(); }

    /// Seconds with the offset.
    double timeOf(const RecordEntry& sample, std::size_t column) const
    {
        return mSeries[column].timeOf(sample);
    }

    /// Time of a row in tenths of a second.
    std::uint32_t key(std::size_t row) const { return mKeys[row]; }

    /// Last row that is not after \p time (seconds); 0 when there is none.
    std::size_t rowAt(double time) const;

    /// Sample in a cell; of several the last in the list. Null when there is none.
    const RecordEntry* sample(std::size_t row, std::size_t column) const;

private:
    class KeySet;

    static void scan(const Series& series, KeySet& keys);

    std::shared_ptr<const Profile> mProfile;
    std::shared_ptr<const Flight> mFlight; ///< null without rows
    std::vector<const ProfileParameter*> mParameters;
    std::vector<Series> mSeries;
    std::vector<std::uint32_t> mKeys; ///< ascending
};

} // namespace TARN
