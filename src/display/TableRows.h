#pragma once

#include "profile/ProfileTypes.h"
#include "record/Record.h"

#include <cstdint>
#include <vector>

namespace TARN {

/// Which sample stands where in the value table: one row for each tenth of a second (time with
/// the recording's offset, rounded) at which a column's parameter has a sample. Holds only the
/// keys of the rows; the sample of a cell is searched when it is asked for, so a table is ready
/// after one pass over the times of its samples. Refers to the recording until the next build.
class TableRows
{
public:
    void build(const Record& record, const std::vector<const ProfileParameter*>& parameters);
    void clear();

    std::size_t rowCount() const { return mKeys.size(); }

    /// Time of a row in tenths of a second.
    std::uint32_t key(std::size_t row) const { return mKeys[row]; }

    /// Last row that is not after \p time (seconds); 0 when there is none.
    std::size_t rowAt(double time) const;

    /// Sample of a parameter (its place in the list given to build) in a row; of several the
    /// last in file order. Null when there is none.
    const RecordEntry* sample(std::size_t row, std::size_t parameter) const;

private:
    struct Column
    {
        std::span<const RecordEntry> entries;
        double shift = 0.0;
        /// Entries by key, equal keys in file order; empty where the entries ascend already.
        std::vector<std::uint32_t> order;

        std::uint32_t keyOf(std::size_t entry) const;
        std::size_t at(std::size_t k) const { return order.empty() ? k : order[k]; }
    };

    class KeySet;

    static void scan(Column& column, KeySet& keys);

    std::vector<std::uint32_t> mKeys; ///< ascending
    std::vector<Column> mColumns;
};

} // namespace TARN
