#include "profile/UnknownIdentifiers.h"

#include "profile/Profile.h"
#include "record/RecordData.h"
#include "record/UtcDetector.h"

#include <QtCore/QCoreApplication>

#include <set>
#include <utility>

namespace TARN {

namespace {

using Identifier = std::pair<unsigned, unsigned>; // channel, identifier

std::set<Identifier> sourcesOf(const ProfileInfo& profile)
{
    std::set<Identifier> sources;
    for (const auto& [id, device] : profile.devices) {
        for (const auto& [uid, parameter] : device.parameters) {
            sources.emplace(parameter.channel, parameter.id);
        }
    }
    for (const FaultMatrix& matrix : profile.faultMatrices) {
        sources.emplace(0, matrix.id);
    }
    return sources;
}

bool isOfClock(unsigned id)
{
    return id == UtcDetector::TimeId || id == UtcDetector::DateId;
}

} // namespace

QString UnknownIdentifiers::remark() const
{
    return identifiers == 0
               ? QString()
               : QCoreApplication::translate(
                     "UnknownIdentifiers",
                     "Identifiers that the profile does not describe: %1, their samples: %2")
                     .arg(identifiers)
                     .arg(samples);
}

UnknownIdentifiers unknownIdentifiers(const RecordData& data, const Profile& profile)
{
    const std::set<Identifier> known = sourcesOf(profile.data());
    UnknownIdentifiers unknown;
    for (const RecordIdList& list : data.lists()) {
        if (!isOfClock(list.id) && !known.contains({list.channel, list.id})) {
            ++unknown.identifiers;
            unknown.samples += list.entries.size();
        }
    }
    return unknown;
}

} // namespace TARN
