#include "Suite.h"
#include "record/Record.h"

#include <array>
#include <cstdio>
#include <sstream>

namespace TARN::Bench {

namespace {

/// First line that a command prints; empty when there is none.
std::string outputOf(const std::string& command)
{
    std::FILE* pipe = popen(command.c_str(), "r");
    require(pipe != nullptr, "no process");
    std::array<char, 256> line{};
    const bool any = std::fgets(line.data(), line.size(), pipe) != nullptr;
    pclose(pipe);
    return any ? line.data() : "";
}

bool hasNumPy()
{
    return !outputOf("python3 -c 'import numpy; print(1)' 2>/dev/null").empty();
}

/// The script times itself, so that the start of its interpreter is not counted.
double numPyLoad(const std::string& path, std::size_t samples)
{
    std::istringstream line(outputOf("python3 " ORNA_BENCH_FOLDER "/numpy_peer.py " + path));
    double seconds = 0.0;
    std::size_t gotSamples = 0;
    std::size_t gotLists = 0;
    line >> seconds >> gotSamples >> gotLists;
    require(gotSamples == samples && gotLists == busMessages().size(), "NumPy's answer differs");
    return seconds;
}

} // namespace

void peerFigures(Suite& suite)
{
    if (!suite.options().peers || !hasNumPy()) {
        return;
    }
    suite.peer("peer.numpy", [&] {
        const std::string& path = suite.busRecording(100);
        const auto ours = [&] {
            Record record;
            return secondsOf([&] { record.readRecordData({QString::fromStdString(path)}); });
        };
        const auto numPy = [&] { return numPyLoad(path, 100'000'000 / SampleSize); };
        return ratioOf(numPy, ours);
    });
}

} // namespace TARN::Bench
