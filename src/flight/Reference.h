#pragma once

#include "flight/Alignment.h"
#include "flight/Switch.h"

#include <QtCore/QObject>

namespace TARN {

/// The flight beside the one that is open, to compare it with, and how the two lie on each other.
/// It is understood by the session's profile.
class Reference : public QObject
{
    Q_OBJECT

public:
    explicit Reference(QObject* parent = nullptr);

    const std::shared_ptr<const Flight>& flight() const { return mFlight; } ///< null: there is none
    double offset() const { return mFlight != nullptr ? mFlight->record()->offset() : 0.0; }

    /// Null takes it away. What is laid on what stays, but for a moment picked by hand.
    void setFlight(std::shared_ptr<const Flight> flight);

    /// Seconds that bring its times, with its offset, to the clock of the flight.
    double shift() const { return mShift; }
    const Alignment& alignment() const { return mAlignment; }
    /// What is to be laid on what; whoever hears of it finds the shift.
    void align(const Alignment& alignment);
    /// By hand: the alignment is that of a moment.
    void setShift(double seconds);
    /// As the alignment has it, which stays.
    void takeShift(double seconds);

    Switch& shown() const { return *mShown; }                     ///< its curves; on to begin with
    Switch& differenceShown() const { return *mDifferenceShown; } ///< flight minus reference
    Switch& columnsShown() const { return *mColumnsShown; }       ///< its values in the table

    /// Memory did not suffice for all that is compared; off again with another flight.
    Switch& memoryShort() const { return *mMemoryShort; }

Q_SIGNALS:
    /// The flight, and with it the offset.
    void flightChanged();
    void alignmentChanged();
    void shiftChanged();

private:
    std::shared_ptr<const Flight> mFlight;
    Alignment mAlignment;
    double mShift = 0.0;
    Switch* mShown;
    Switch* mDifferenceShown;
    Switch* mColumnsShown;
    Switch* mMemoryShort;
};

} // namespace TARN
