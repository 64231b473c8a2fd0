#include "Card.h"

#include "CanWriter.h"
#include "Flight.h"
#include "Traffic.h"
#include "Week.h"

#include <cstdio>
#include <filesystem>
#include <memory>
#include <system_error>
#include <vector>

namespace TARN::Demo {

namespace {

std::uint64_t startTicks(const FlightDay& day)
{
    return static_cast<std::uint64_t>(day.hour * 3600 + day.minute * 60) * kTicksPerSecond;
}

/// The header of a file whose recording begins at \p ticks since midnight.
CanHeader headerAt(const FlightDay& day, std::uint64_t ticks)
{
    CanHeader header;
    header.year = day.year;
    header.month = day.month;
    header.day = day.day;
    int second = static_cast<int>(ticks / kTicksPerSecond);
    header.hour = second / 3600;
    header.minute = second / 60 % 60;
    header.second = second % 60;
    header.startTicks = ticks;
    header.busType = 1;
    header.ecuSerialNumber = 20417;
    header.softwarePartA = "TLV-7310-A04";
    header.ecuType = "TOLVANE EM6";
    header.engineSerialNr = "TV6-300-1187";
    header.engineType = "TV6-300";
    header.softwarePartB = "TLV-7320-B11";
    header.emuSwVersion = "2.4.1";
    return header;
}

// Four decimal digits stay far below the file numbers that mark a recording whose clock has to be
// corrected.
std::string fileName(int number)
{
    char name[32];
    std::snprintf(name, sizeof name, "LOG_%04d.CAN", number);
    return name;
}

class Card
{
public:
    explicit Card(const CardOptions& options)
        : mOptions(options), mDay(weekOf(options.seed).day),
          mTraffic(startTicks(mDay), options.scale, options.seed)
    {}

    std::string write()
    {
        std::error_code code;
        std::filesystem::create_directories(mOptions.folder, code);
        if (code)
            return "cannot create " + mOptions.folder + ": " + code.message();
        if (!record() || !finish())
            return mFiles.back()->error();
        return publish();
    }

private:
    bool record()
    {
        double duration = mOptions.minutes * 60.0;
        Week week = weekOf(mOptions.seed);
        week.wear = mOptions.wear.value_or(week.wear);
        Flight flight(duration, mOptions.seed, week);
        if (!nextFile())
            return false;
        while (flight.timeAfter() < duration - 0.5 * Flight::kStep) {
            flight.step();
            for (const CanSample& sample : mTraffic.messages(flight)) {
                if (sample.ticks >= mFileEnd && !(finish() && nextFile()))
                    return false;
                if (!mFiles.back()->add(sample))
                    return false;
            }
        }
        return true;
    }

    bool nextFile()
    {
        int number = static_cast<int>(mFiles.size()) + 1;
        auto path = std::filesystem::path(mOptions.folder) / fileName(number);
        mFiles.push_back(std::make_unique<CanWriter>(path.string(), mOptions.littleEndian));
        std::uint64_t begin = number == 1 ? startTicks(mDay) : mFileEnd;
        std::uint64_t whole = static_cast<std::uint64_t>(mOptions.minutes) * 60 * kTicksPerSecond;
        auto count = static_cast<std::uint64_t>(mOptions.files);
        mFileEnd = startTicks(mDay) + whole / count * static_cast<std::uint64_t>(number);
        // What the bus delays beyond the end of the flight still belongs to the last file.
        if (number == mOptions.files)
            mFileEnd = UINT64_MAX;
        return mFiles.back()->open(headerAt(mDay, begin));
    }

    bool finish() { return mFiles.back()->close(); }

    std::string publish()
    {
        for (const auto& file : mFiles) {
            if (!file->publish())
                return file->error();
        }
        return {};
    }

    CardOptions mOptions;
    FlightDay mDay;
    Traffic mTraffic;
    std::vector<std::unique_ptr<CanWriter>> mFiles;
    std::uint64_t mFileEnd = 0;
};

} // namespace

std::string writeCard(const CardOptions& options)
{
    return Card(options).write();
}

} // namespace TARN::Demo
