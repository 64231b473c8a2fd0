#include "graph/CurveLoader.h"

#include <algorithm>

namespace TARN {

CurveLoader::CurveLoader(QObject* parent) : QObject(parent)
{
    for (Job<std::vector<DecodedCurve>>& job : mJobs) {
        job.setOutOfMemory([this] {
            mWaiting.clear();
            Q_EMIT outOfMemory();
        });
    }
}

void CurveLoader::load(std::shared_ptr<const Flight> flight,
                       const std::vector<const ProfileParameter*>& parameters, double offset)
{
    for (Job<std::vector<DecodedCurve>>& job : mJobs) {
        job.cancel();
    }
    if (flight != mFlight || offset != mOffset) {
        mDecoded.clear();
    }
    mFlight = std::move(flight);
    mOffset = offset;
    mParameters = parameters;
    mWaiting.clear();
    // What is not shown any more is not kept either.
    std::erase_if(mDecoded, [&](const auto& item) {
        return std::ranges::none_of(parameters, [&](const ProfileParameter* parameter) {
            return parameter->uid == item.first;
        });
    });
    for (unsigned place = 0; place < parameters.size(); ++place) {
        const auto known = mDecoded.find(parameters[place]->uid);
        if (known != mDecoded.end()) {
            Q_EMIT curveReady(place, known->second);
        } else if (mFlight != nullptr) {
            mWaiting.push_back(place);
        }
    }
    Q_EMIT ready();
}

void CurveLoader::start()
{
    for (Job<std::vector<DecodedCurve>>& job : mJobs) {
        if (!job.isRunning() && !mWaiting.empty()) {
            startJob(job);
        }
    }
}

void CurveLoader::startJob(Job<std::vector<DecodedCurve>>& job)
{
    const std::vector<unsigned> places = takeWaiting();
    std::vector<const ProfileParameter*> parameters;
    for (const unsigned place : places) {
        parameters.push_back(mParameters[place]);
    }
    job.start(
        [flight = mFlight, parameters, offset = mOffset](Progress& progress) {
            std::vector<DecodedCurve> curves;
            for (const ProfileParameter* parameter : parameters) {
                curves.push_back(decodeCurve(flight, *parameter, offset, progress));
            }
            return curves;
        },
        [this, places](const std::vector<DecodedCurve>& curves) { take(places, curves); });
}

/// What one job decodes: short curves go together, as a job costs more than they do, but both
/// lanes have their share.
std::vector<unsigned> CurveLoader::takeWaiting()
{
    constexpr std::size_t Least = 100'000; // samples
    constexpr std::size_t Most = 750'000;
    const auto samplesOf = [this](unsigned place) {
        return mFlight->series(*mParameters[place], mOffset).size();
    };
    std::size_t waiting = 0;
    for (const unsigned place : mWaiting) {
        waiting += samplesOf(place);
    }
    const std::size_t share = std::clamp(waiting / (2 * Lanes), Least, Most);
    std::vector<unsigned> places;
    for (std::size_t samples = 0; !mWaiting.empty() && samples < share;) {
        places.push_back(mWaiting.front());
        samples += samplesOf(mWaiting.front());
        mWaiting.pop_front();
    }
    return places;
}

void CurveLoader::take(const std::vector<unsigned>& places, const std::vector<DecodedCurve>& curves)
{
    for (std::size_t i = 0; i < places.size(); ++i) {
        mDecoded[mParameters[places[i]]->uid] = curves[i];
    }
    start();
    for (std::size_t i = 0; i < places.size(); ++i) {
        Q_EMIT curveReady(places[i], curves[i]);
    }
    Q_EMIT ready();
}

bool CurveLoader::isBusy() const
{
    return !mWaiting.empty() ||
           std::ranges::any_of(mJobs, &Job<std::vector<DecodedCurve>>::isRunning);
}

std::size_t CurveLoader::leftOut() const
{
    std::size_t samples = 0;
    for (const auto& [uid, curve] : mDecoded) {
        samples += curve.leftOut;
    }
    return samples;
}

} // namespace TARN
