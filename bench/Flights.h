#pragma once

#include "Traffic.h"
#include "flight/Flight.h"
#include "profile/Selection.h"

namespace TARN::Bench {

/// Writes a profile in which every message is a parameter with limits, and a BLONG that is seldom
/// sent a lamp.
void writeProfile(const std::string& path, const std::vector<Message>& messages);

/// The profile of that file, read.
std::shared_ptr<const Profile> profileOf(const std::vector<Message>& messages);

std::shared_ptr<const Record> loadRecord(const std::string& path);

/// A recording of these messages as its profile understands it.
std::shared_ptr<const Flight> flightOf(const std::string& path,
                                       const std::vector<Message>& messages);

} // namespace TARN::Bench
