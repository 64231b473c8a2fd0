#include "flight/Comparer.h"

namespace TARN {

namespace {

/// Of the same parameters of another flight.
StatisticsIndexes indexesLike(const StatisticsIndexes& indexes,
                              const std::shared_ptr<const Flight>& other, double offset,
                              Progress& progress)
{
    std::vector<const ProfileParameter*> parameters;
    for (const auto& index : indexes) {
        parameters.push_back(&index->parameter());
    }
    return makeIndexes(other, parameters, offset, progress);
}

} // namespace

Comparer::Comparer(Session& session, QObject* parent) : QObject(parent), mSession(session)
{
    mJob.setOutOfMemory([this] { mSession.reference().memoryShort().turn(true); });
    connect(&session.reference(), &Reference::flightChanged, this, &Comparer::forget);
    connect(&session.reference(), &Reference::shiftChanged, this, &Comparer::start);
}

void Comparer::compare(StatisticsIndexes flight)
{
    mFlight = std::move(flight);
    forget();
}

void Comparer::forget()
{
    mReferences.clear();
    start();
}

void Comparer::start()
{
    const Reference& reference = mSession.reference();
    mJob.cancel();
    mIndexes.clear();
    Q_EMIT changed();
    if (reference.flight() == nullptr || mFlight.empty()) {
        return;
    }
    mJob.start(
        [flight = mFlight, known = mReferences, other = reference.flight(),
         offset = reference.offset(), shift = reference.shift()](Progress& progress) {
            Made made{known.empty() ? indexesLike(flight, other, offset, progress) : known, {}};
            for (std::size_t k = 0; k < flight.size() && !progress.stopRequested(); ++k) {
                made.indexes.push_back(std::make_shared<ComparisonIndex>(
                    flight[k], made.references[k], shift, progress));
            }
            return made;
        },
        [this](Made made) {
            mReferences = std::move(made.references);
            mIndexes = std::move(made.indexes);
            Q_EMIT changed();
        });
}

} // namespace TARN
