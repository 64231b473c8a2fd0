#include "graph/CurveLoader.h"

#include <algorithm>

namespace TARN {

CurveLoader::CurveLoader(QObject* parent) : QObject(parent)
{
    for (Decoding& job : mJobs) {
        job.setOutOfMemory([this] {
            mWaiting = std::make_shared<Waiting>();
            Q_EMIT outOfMemory();
        });
    }
}

void CurveLoader::load(std::shared_ptr<const Flight> flight,
                       const std::vector<const ProfileParameter*>& parameters, double offset)
{
    for (Decoding& job : mJobs) {
        job.cancel();
    }
    if (flight != mFlight || offset != mOffset) {
        mDecoded.clear();
    }
    mFlight = std::move(flight);
    mOffset = offset;
    mParameters = parameters;
    mWaiting = std::make_shared<Waiting>();
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
            mWaiting->curves.emplace_back(place, parameters[place]);
        }
    }
    Q_EMIT ready();
}

void CurveLoader::start()
{
    for (Decoding& job : mJobs) {
        if (!job.isRunning() && !mWaiting->isEmpty()) {
            startJob(job);
        }
    }
}

/// Curves until there is none left or many samples are decoded: short ones go together, as a job
/// costs more than they do. Each lane takes the next one, so both end at the same time.
void CurveLoader::startJob(Decoding& job)
{
    job.start(
        [flight = mFlight, waiting = mWaiting, offset = mOffset](Progress& progress) {
            constexpr std::size_t Most = 750'000; // samples
            std::vector<Placed> decoded;
            for (std::size_t samples = 0; samples < Most && !progress.stopRequested();) {
                const std::size_t next = waiting->next++;
                if (next >= waiting->curves.size()) {
                    break;
                }
                const auto& [place, parameter] = waiting->curves[next];
                decoded.push_back({place, decodeCurve(flight, *parameter, offset, progress)});
                samples += flight->series(*parameter, offset).size();
            }
            return decoded;
        },
        [this](const std::vector<Placed>& decoded) { take(decoded); });
}

void CurveLoader::take(const std::vector<Placed>& decoded)
{
    for (const auto& [place, curve] : decoded) {
        mDecoded[mParameters[place]->uid] = curve;
    }
    start();
    for (const auto& [place, curve] : decoded) {
        Q_EMIT curveReady(place, curve);
    }
    Q_EMIT ready();
}

bool CurveLoader::isBusy() const
{
    return !mWaiting->isEmpty() || std::ranges::any_of(mJobs, &Decoding::isRunning);
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
