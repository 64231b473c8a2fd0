#include "card/OverviewFinder.h"

namespace TARN {

OverviewFinder::OverviewFinder(const QString& cacheFile, QObject* parent)
    : QObject(parent), mCache(std::make_shared<OverviewCache>(cacheFile))
{
    mJob.setOutOfMemory([this] { take(std::nullopt); });
}

void OverviewFinder::take(const std::optional<Overview>& overview)
{
    const std::list<QString> files = mWaiting.front();
    mWaiting.pop_front();
    Q_EMIT found(files, overview);
    next();
}

void OverviewFinder::look(const std::vector<std::list<QString>>& flights,
                          std::shared_ptr<const Profile> profile)
{
    mJob.cancel();
    mWaiting.assign(flights.begin(), flights.end());
    mProfile = std::move(profile);
    next();
}

void OverviewFinder::pause(bool on)
{
    mIsPaused = on;
    if (on) {
        mJob.cancel(); // it is looked into anew later
    } else if (!mJob.isRunning()) {
        next();
    }
}

void OverviewFinder::next()
{
    if (mIsPaused || mWaiting.empty()) {
        return;
    }
    constexpr std::size_t SavedEvery = 8;
    const bool isSaved = mWaiting.size() % SavedEvery == 1;
    mJob.start(
        [files = mWaiting.front(), profile = mProfile, cache = mCache,
         isSaved](Progress& progress) {
            const QString key = OverviewCache::keyOf(files, *profile);
            auto overview = cache->find(key);
            if (!overview) {
                overview = overviewOf(files, profile, progress);
                if (overview) {
                    cache->insert(key, *overview);
                }
            }
            if (isSaved) {
                cache->save();
            }
            return overview;
        },
        [this](const std::optional<Overview>& overview) { take(overview); });
}

} // namespace TARN
