#include "Capture.h"
#include "PlainReader.h"
#include "Suite.h"
#include "record/Record.h"

#include <array>
#include <cstdio>
#include <sstream>

namespace TARN::Bench {

namespace {

template <typename Visitor>
void forEachLine(const std::string& command, Visitor visit)
{
    std::FILE* pipe = popen(command.c_str(), "r");
    require(pipe != nullptr, "no process");
    std::array<char, 256> line{};
    while (std::fgets(line.data(), line.size(), pipe) != nullptr) {
        visit(std::string(line.data()));
    }
    pclose(pipe);
}

std::string outputOf(const std::string& command)
{
    std::string text;
    forEachLine(command, [&](const std::string& line) { text += line; });
    return text;
}

/// An interpreter that has the module, empty when there is none. One that comes first on the path
/// may hide the system's, which has what the packages install.
std::string pythonWith(const std::string& module)
{
    for (const std::string python : {"python3", "/usr/bin/python3"}) {
        if (!outputOf(python + " -c 'import " + module + "; print(1)' 2>/dev/null").empty()) {
            return python;
        }
    }
    return "";
}

void requireAnswer(const std::string& who, std::size_t samples, std::size_t lists,
                   std::size_t megabytes)
{
    require(samples == megabytes * 1'000'000 / SampleSize && lists == busMessages().size(),
            who + "'s answer differs");
}

Measurement ourLoadOf(const std::string& path, std::size_t megabytes)
{
    return [=] {
        Record record;
        const double seconds =
            secondsOf([&] { record.readRecordData({QString::fromStdString(path)}); });
        const RecordData& data = record.recordData();
        requireAnswer("ORNA", data.count(), data.lists().size(), megabytes);
        return seconds;
    };
}

/// The script times itself, so that the start of its interpreter is not counted.
double scriptLoad(const std::string& python, const std::string& script, const std::string& path,
                  std::size_t megabytes)
{
    std::istringstream line(
        outputOf(python + " '" ORNA_BENCH_FOLDER "/" + script + "' '" + path + "'"));
    double seconds = 0.0;
    std::size_t samples = 0;
    std::size_t lists = 0;
    line >> seconds >> samples >> lists;
    requireAnswer(script, samples, lists, megabytes);
    return seconds;
}

void scriptFigure(Suite& suite, const std::string& name, const std::string& module,
                  const std::string& script, std::size_t megabytes, int rounds)
{
    const std::string python = pythonWith(module);
    if (python.empty()) {
        return;
    }
    suite.peer(name, [&] {
        const std::string& path = suite.busRecording(megabytes);
        const auto theirs = [&] { return scriptLoad(python, script, path, megabytes); };
        return ratioOf(theirs, ourLoadOf(path, megabytes), rounds);
    });
}

/// It prints the samples as they come, so grouping them is done here, while it works on the next.
/// Its start, which is most of a run that stops at the first sample, is not counted.
double tsharkLoad(const std::string& capture, std::size_t megabytes)
{
    const std::string command =
        "tshark -n -r '" + capture +
        "' -T fields -e frame.interface_id -e can.id -e frame.time_epoch -e data.data 2>/dev/null";
    constexpr std::size_t PayloadText = 2 * 8 + 2; // with the tab before it and the line's end
    std::map<std::string, std::vector<std::string>> lists;
    std::size_t samples = 0;
    const double start = secondsOf([&] { outputOf(command + " -c 1"); });
    const double all = secondsOf([&] {
        forEachLine(command, [&](const std::string& line) {
            lists[line.substr(0, line.find('\t', line.find('\t') + 1))].push_back(line);
            samples += line.size() - line.rfind('\t') == PayloadText ? 1 : 0;
        });
    });
    requireAnswer("tshark", samples, lists.size(), megabytes);
    return all - start;
}

void tsharkFigure(Suite& suite, std::size_t megabytes, int rounds)
{
    if (outputOf("tshark --version 2>/dev/null").empty()) {
        return;
    }
    suite.peer("peer.tshark", [&] {
        const std::string& path = suite.busRecording(megabytes);
        const std::string capture = path + ".pcapng";
        writeCapture(capture, PlainRecord(path).samples());
        const auto theirs = [&] { return tsharkLoad(capture, megabytes); };
        return ratioOf(theirs, ourLoadOf(path, megabytes), rounds);
    });
}

} // namespace

void peerFigures(Suite& suite)
{
    if (!suite.options().peers) {
        return;
    }
    scriptFigure(suite, "peer.numpy", "numpy", "numpy_peer.py", 100, 7);
    // The others take microseconds a sample, so a small recording tells enough.
    tsharkFigure(suite, 10, 5);
    scriptFigure(suite, "peer.python-can", "can", "python_can_peer.py", 10, 5);
}

} // namespace TARN::Bench
