#include "flight/Aligner.h"

namespace TARN {

Aligner::Aligner(Session& session, QObject* parent) : QObject(parent), mSession(session)
{
    connect(&mSession, &Session::profileChanged, this, &Aligner::align);
    connect(&mSession, &Session::flightChanged, this, &Aligner::align);
    connect(&mSession, &Session::offsetChanged, this, &Aligner::align);
    connect(&mSession.reference(), &Reference::flightChanged, this, &Aligner::align);
    connect(&mSession.reference(), &Reference::alignmentChanged, this, &Aligner::align);
}

void Aligner::align()
{
    const Reference& reference = mSession.reference();
    const auto flight = mSession.flight();
    const auto other = reference.flight();
    mJob.cancel();
    mIsPossible = true;
    if (flight == nullptr || other == nullptr || reference.alignment().by == Alignment::Moment) {
        Q_EMIT done();
        return;
    }
    mJob.start(
        [flight, other, offset = mSession.offset(), otherOffset = reference.offset(),
         alignment = reference.alignment()](Progress& progress) {
            return shiftOf(alignment, {*flight, offset}, {*other, otherOffset}, progress);
        },
        [this](std::optional<double> shift) {
            mIsPossible = shift.has_value();
            if (shift) {
                mSession.reference().takeShift(*shift);
            }
            Q_EMIT done();
        });
}

} // namespace TARN
