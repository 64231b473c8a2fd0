#pragma once

#include "export/Exporter.h"
#include "export/FlightPath.h"
#include "export/KmlExportOptions.h"

#include <QtCore/QString>

#include <functional>
#include <string>
#include <vector>

namespace TARN {

/// A mark on the flight path with the values that it carries.
struct KmlMark
{
    struct Item
    {
        std::string name;
        std::string value;
    };

    PathPosition position;
    QString time; ///< "hh:mm:ss"
    std::vector<Item> items;
};

/// Makes the marks at every interval of slots, one after the other: each with the last value of
/// each selected parameter in it. A sample in a slot without a position takes its mark away again.
class PlaceMarks
{
public:
    /// Everything is referred to.
    PlaceMarks(const ExportInput& input, const FlightPath& path, const KmlExportOptions& options);

    /// Makes the next mark, by number. False when there is none or when it was asked to stop.
    bool next(KmlMark& mark, Progress& progress);

    /// Values inside the time range that had no position in their slot, of the marks so far.
    std::size_t leftOut() const { return mLeftOut; }

private:
    /// A parameter's samples on their way through the marks.
    struct Column
    {
        Series series;
        std::string name;
        std::size_t next = 0;              ///< sample to come, in time order
        const RecordEntry* item = nullptr; ///< of the mark in the making
    };

    int numberOf(double time) const;
    void collect(Column& column, int number, std::size_t columnsBefore, const PathPosition*& place);
    void take(Column& column, const RecordEntry& entry, const PathPosition*& place,
              std::size_t columnsBefore);

    const FlightPath& mPath;
    const KmlExportOptions& mOptions;
    std::vector<Column> mColumns;
    // Neighbouring samples mostly lie in one slot, and its position need not be searched again.
    int mSlot = 0;
    bool mIsSlotKnown = false;
    const PathPosition* mPosition = nullptr; ///< of that slot, null when there is none
    std::size_t mLeftOut = 0;
    std::size_t mDone = 0; ///< of all samples
    std::size_t mSamples = 0;
};

/// The marks of events, one for each slot that has a position, by slot. Events inside the time
/// range without one are added to \p leftOut.
std::vector<KmlMark> errorMarks(const std::vector<RecordEvent>& events, const FlightPath& path,
                                const TimeRange& range, std::size_t& leftOut);

} // namespace TARN
