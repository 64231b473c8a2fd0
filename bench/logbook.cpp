#include "logbook/Logbook.h"

#include "Suite.h"
#include "demo/Card.h"
#include "logbook/FlightAdder.h"

#include <filesystem>
#include <fstream>

namespace TARN::Bench {

namespace {

/// Folders with a recording each, all of the same samples on days of their own, and a logbook.
class LogbookBench
{
public:
    LogbookBench(Suite& suite, std::size_t flights, int minutes)
        : mFolder(suite.memoryFolder(bytesOf(flights, minutes)) / "logbook"),
          mProfile(Profile::load(ORNA_BENCH_PROFILE))
    {
        Demo::CardOptions demo;
        demo.folder = (suite.folder() / "one").string();
        demo.minutes = minutes;
        demo.files = 1;
        require(Demo::writeCard(demo).empty(), "the demo flight was not written");
        const auto one = std::filesystem::path(demo.folder) / "LOG_0001.CAN";
        for (std::size_t k = 0; k < flights; ++k) {
            const auto folder = mFolder / std::to_string(k);
            std::filesystem::create_directories(folder);
            mFiles.push_back((folder / "LOG_0001.CAN").string());
            std::filesystem::copy_file(one, mFiles.back());
            setDay(mFiles.back(), k);
        }
    }

    double ratio()
    {
        return ratioOf([this] { return addSeconds(); }, [this] { return secondsOfReading(mFiles); },
                       3);
    }

private:
    static std::uintmax_t bytesOf(std::size_t flights, int minutes)
    {
        constexpr std::uintmax_t OfMinute = 650'000; // with what is kept of it
        return flights * static_cast<std::uintmax_t>(minutes) * OfMinute;
    }

    /// Days of months that all years have.
    static void setDay(const std::string& file, std::size_t k)
    {
        constexpr std::streamoff Month = 14; // in the header; the day is behind it
        constexpr std::size_t Days = 28;
        std::fstream header(file, std::ios::in | std::ios::out | std::ios::binary);
        header.seekp(Month);
        header.put(static_cast<char>(1 + k / Days % 12)).put(static_cast<char>(1 + k % Days));
        require(header.good(), "a recording was not written");
    }

    double addSeconds()
    {
        const std::string path = (mFolder / "Logbook.sqlite").string();
        for (const char* suffix : {"", "-wal", "-shm"}) {
            std::filesystem::remove(path + suffix);
        }
        Progress none;
        const QString url = "sqlite:" + QString::fromStdString(path);
        AddTotals totals;
        const double seconds = secondsOf([&] {
            totals = addFlights({QString::fromStdString(mFolder.string())}, url, mProfile, 0,
                                {[](const AddOutcome&, const AddTotals&) {}, {}}, none);
        });
        require(totals.added == mFiles.size(), "not every flight was added");
        return seconds;
    }

    std::filesystem::path mFolder;
    std::vector<std::string> mFiles;
    std::shared_ptr<const Profile> mProfile;
};

} // namespace

void logbookFigures(Suite& suite)
{
    if (suite.isWanted("logbook.add")) {
        const bool isQuick = suite.options().quick;
        LogbookBench bench(suite, isQuick ? 10 : 50, 32); // of 20 MB
        suite.figure("logbook.add", 4.0, [&] { return bench.ratio(); });
    }
}

} // namespace TARN::Bench
