#include "flight/Aligner.h"

#include <utility>

namespace TARN {

Aligner::Aligner(Session& session, QObject* parent) : QObject(parent), mSession(session)
{
    connect(&mSession, &Session::profileChanged, this, &Aligner::align);
    connect(&mSession, &Session::flightChanged, this, &Aligner::takeFlight);
    connect(&mSession, &Session::offsetChanged, this, &Aligner::takeOffset);
    connect(&mSession.reference(), &Reference::flightChanged, this, &Aligner::align);
    connect(&mSession.reference(), &Reference::alignmentChanged, this, &Aligner::align);
    takeFlight();
}

/// A moment that was picked is one of the flight before.
void Aligner::takeFlight()
{
    const auto record = mSession.flight() != nullptr ? mSession.flight()->record() : nullptr;
    const bool isOther = std::exchange(mRecord, record) != record;
    mOffset = mSession.offset();
    if (isOther && mSession.reference().alignment().by == Alignment::Moment) {
        mSession.reference().align({});
    } else {
        align();
    }
}

/// What lies on each other by hand stays so.
void Aligner::takeOffset()
{
    const double step = mSession.offset() - std::exchange(mOffset, mSession.offset());
    if (mSession.reference().alignment().by == Alignment::Moment) {
        mSession.reference().takeShift(mSession.reference().shift() + step);
    }
    align();
}

void Aligner::align()
{
    const Reference& reference = mSession.reference();
    mJob.cancel();
    mIsPossible = true;
    if (mSession.flight() != nullptr && reference.flight() != nullptr &&
        reference.alignment().by != Alignment::Moment) {
        start();
    }
    Q_EMIT changed();
}

void Aligner::start()
{
    const Reference& reference = mSession.reference();
    mJob.start(
        [flight = mSession.flight(), other = reference.flight(), offset = mSession.offset(),
         otherOffset = reference.offset(), alignment = reference.alignment()](Progress& progress) {
            return shiftOf(alignment, {*flight, offset}, {*other, otherOffset}, progress);
        },
        [this](std::optional<double> shift) {
            mIsPossible = shift.has_value();
            if (shift) {
                mSession.reference().takeShift(*shift);
            }
            Q_EMIT changed();
        });
}

} // namespace TARN
