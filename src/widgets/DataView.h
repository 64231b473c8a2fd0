#pragma once

namespace TARN {

class Record;

/// What the data window asks of each of its views. A view reports a time that the user picks in
/// it with a signal of its own.
class DataView
{
public:
    virtual ~DataView() = default;

    /// The profile or its selection changed.
    virtual void updateProfile() = 0;

    /// Shows a recording, not owned; null when there is none. The view may refer to its samples
    /// until the next call.
    virtual void updateRecord(Record* record) = 0;

    /// The time offset of the recording changed.
    virtual void updateOffset(Record* record) = 0;

    /// Moves to a time, seconds on the recording's clock, without reporting it back.
    virtual void setTime(double time) = 0;
};

} // namespace TARN
