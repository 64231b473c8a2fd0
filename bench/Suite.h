#pragma once

#include "Harness.h"
#include "Traffic.h"

#include <filesystem>
#include <initializer_list>
#include <map>
#include <optional>
#include <string>

namespace TARN::Bench {

struct Options
{
    bool quick = false;
    bool peers = false;
    std::string only; ///< start of the names of the figures to measure; empty for all
};

/// Measures figures and prints each as a line "NAME VALUE TARGET ok|short" on standard output.
/// Owns the recordings that are measured on; they are deleted with it.
class Suite
{
public:
    explicit Suite(Options options);
    ~Suite();
    Suite(const Suite&) = delete;
    Suite& operator=(const Suite&) = delete;

    const Options& options() const { return mOptions; }

    bool isWanted(const std::string& name) const { return name.starts_with(mOptions.only); }

    /// Asks for at most \p target. Does nothing when the figure was not asked for.
    void figure(const std::string& name, double target, const Measurement& value);

    /// A rival's ratio that nothing is asked of: "NAME VALUE - peer". Only with --peers.
    void peer(const std::string& name, const Measurement& value);

    /// A recording of the bus with \p megabytes of samples, made when it is first asked for.
    const std::string& busRecording(std::size_t megabytes);
    /// The same with its blocks of 256 samples in a random order.
    const std::string& shuffledRecording(std::size_t megabytes);
    /// A recording in which each of tableMessages() sends once in every tenth of a second.
    const std::string& tableRecording(std::size_t rows);

    const std::filesystem::path& folder() const { return mFolder; }
    /// A folder of files in memory, whose speed is the same each time; where there is none with
    /// room for \p bytes, folder().
    const std::filesystem::path& memoryFolder(std::uintmax_t bytes);

    /// A recording of csvMessages() over an hour, with --quick over six minutes.
    const std::string& csvRecording();
    /// Its rows at a tenth of a second.
    std::size_t csvRows() const { return mOptions.quick ? 3'600 : 36'000; }

private:
    const std::string& recording(const std::string& name,
                                 const std::function<void(const std::string& path)>& write);

    Options mOptions;
    std::filesystem::path mFolder;
    std::filesystem::path mMemory;                  ///< empty until it is asked for
    std::map<std::string, std::string> mRecordings; ///< path by name
};

/// Fills \p options from the command line. A status to end with where there is nothing to measure.
std::optional<int> parseOptions(Options& options, int argc, char** argv);

/// Measures groups of figures; the status to end with.
int measure(const Options& options, std::initializer_list<void (*)(Suite&)> groups);

// The figures, one source for each subject.
void loadFigures(Suite& suite);
void decodeFigures(Suite& suite);
void statisticsFigures(Suite& suite);
void reportFigures(Suite& suite);
void logbookFigures(Suite& suite);
void tableFigures(Suite& suite);
void graphFigures(Suite& suite);
void exportFigures(Suite& suite);
void peerFigures(Suite& suite);

} // namespace TARN::Bench
