#pragma once

#include "record/RecordEntry.h"

#include <span>
#include <string>

namespace TARN::Bench {

/// Writes samples with 11-bit identifiers as a pcapng capture of SocketCAN frames, each of the
/// two channels an interface. A capture has no place for the rest of a sample.
void writeCapture(const std::string& path, std::span<const RecordEntry> samples);

} // namespace TARN::Bench
