#include "flight/Reference.h"

#include <cmath>

namespace TARN {

Reference::Reference(QObject* parent)
    : QObject(parent), mShown(new Switch(this)), mDifferenceShown(new Switch(this)),
      mColumnsShown(new Switch(this)), mMemoryShort(new Switch(this))
{
    mShown->turn(true);
}

void Reference::setFlight(std::shared_ptr<const Flight> flight)
{
    const bool isSameRecord =
        mFlight != nullptr && flight != nullptr && mFlight->record() == flight->record();
    mFlight = std::move(flight);
    if (mAlignment.by == Alignment::Moment && !isSameRecord) {
        mAlignment = {}; // the moment was one of another flight
    }
    mMemoryShort->turn(false);
    Q_EMIT flightChanged();
}

void Reference::align(const Alignment& alignment)
{
    if (!(mAlignment == alignment)) {
        mAlignment = alignment;
        Q_EMIT alignmentChanged();
    }
}

void Reference::setShift(double seconds)
{
    if (std::isfinite(seconds) && seconds != mShift) {
        mAlignment.by = Alignment::Moment;
        mShift = seconds;
        Q_EMIT alignmentChanged();
        Q_EMIT shiftChanged();
    }
}

void Reference::takeShift(double seconds)
{
    if (seconds != mShift) {
        mShift = seconds;
        Q_EMIT shiftChanged();
    }
}

} // namespace TARN
