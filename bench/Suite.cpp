#include "Suite.h"

#include "base/Diagnostics.h"

#include <CLI/CLI.hpp>
#include <cstdio>
#include <cstdlib>

namespace TARN::Bench {

namespace {

std::filesystem::path newFolderIn(const std::filesystem::path& parent)
{
    std::string folder = (parent / "orna-bench-XXXXXX").string();
    require(mkdtemp(folder.data()) != nullptr, "no folder for the recordings");
    return folder;
}

} // namespace

Suite::Suite(Options options)
    : mOptions(std::move(options)), mFolder(newFolderIn(std::filesystem::temp_directory_path()))
{}

Suite::~Suite()
{
    std::error_code ignored;
    for (const auto& folder : {mFolder, mMemory}) {
        if (!folder.empty()) {
            std::filesystem::remove_all(folder, ignored);
        }
    }
}

const std::filesystem::path& Suite::memoryFolder(std::uintmax_t bytes)
{
    const std::filesystem::path memory = "/dev/shm";
    std::error_code missing;
    const auto space = std::filesystem::space(memory, missing);
    if (missing || space.available < bytes) {
        std::fprintf(stderr, "orna-bench: too little memory for files, the disk is measured\n");
        return mFolder;
    }
    if (mMemory.empty()) {
        mMemory = newFolderIn(memory);
    }
    return mMemory;
}

void Suite::figure(const std::string& name, double target, const Measurement& value)
{
    if (!isWanted(name)) {
        return;
    }
    const double got = value();
    std::printf("%s %.4g <=%g %s\n", name.c_str(), got, target, got <= target ? "ok" : "short");
    std::fflush(stdout);
}

void Suite::peer(const std::string& name, const Measurement& value)
{
    if (mOptions.peers && isWanted(name)) {
        std::printf("%s %.4g - peer\n", name.c_str(), value());
        std::fflush(stdout);
    }
}

const std::string& Suite::recording(const std::string& name,
                                    const std::function<void(const std::string& path)>& write)
{
    std::string& path = mRecordings[name];
    if (path.empty()) {
        path = (mFolder / (name + ".CAN")).string();
        write(path);
    }
    return path;
}

const std::string& Suite::busRecording(std::size_t megabytes)
{
    return recording("bus" + std::to_string(megabytes), [&](const std::string& path) {
        writeRecording(path, busMessages(), megabytes * 1'000'000 / SampleSize);
    });
}

const std::string& Suite::shuffledRecording(std::size_t megabytes)
{
    const std::string& ordered = busRecording(megabytes);
    return recording("shuffled" + std::to_string(megabytes),
                     [&](const std::string& path) { shuffleBlocks(ordered, path); });
}

const std::string& Suite::tableRecording(std::size_t rows)
{
    return recording("table" + std::to_string(rows), [&](const std::string& path) {
        writeRecording(path, tableMessages(), rows * tableMessages().size());
    });
}

const std::string& Suite::csvRecording()
{
    return recording("csv", [&](const std::string& path) {
        writeRecording(path, csvMessages(), csvRows() * csvMessages().size());
    });
}

std::optional<int> parseOptions(Options& options, int argc, char** argv)
{
    CLI::App app("Measures ORNA against limits and rivals timed in the same run.");
    app.add_flag("--quick", options.quick, "Leave the 1 GB recording out");
    app.add_flag("--peers", options.peers,
                 "Also compare with other tools where they are installed");
    app.add_flag_callback("--rounds", showRounds, "Tell each round on standard error");
    app.add_option("only", options.only, "Measure the figures whose names begin like this");
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        return app.exit(error);
    }
    return std::nullopt;
}

int measure(const Options& options, std::initializer_list<void (*)(Suite&)> groups)
{
    setDiagnosticStream(std::fopen("/dev/null", "w")); // standard output is for the figures
    try {
        Suite suite(options);
        for (const auto group : groups) {
            group(suite);
        }
    } catch (const std::exception& error) {
        std::fprintf(stderr, "orna-bench: %s\n", error.what());
        return 1;
    }
    return 0;
}

} // namespace TARN::Bench
