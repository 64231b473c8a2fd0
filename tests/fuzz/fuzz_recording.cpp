/// Any bytes as one recording file or two: what is loaded is held against a plain reading of them.

#include "fuzz/Fuzz.h"
#include "record/Record.h"
#include "record/RecordText.h"

#include <algorithm>
#include <map>
#include <utility>
#include <vector>

using namespace TARN;

namespace {

/// A file as the format has it, taken apart byte by byte.
struct PlainFile
{
    explicit PlainFile(Fuzz::Bytes content) : bytes(content)
    {
        swapped = number(0, 2) != 0xABBA;
        for (std::size_t at = 128; at + 28 <= bytes.size(); at += 28) {
            RecordEntry entry;
            std::copy_n(&bytes[at], 8, entry.data);
            entry.b8 = bytes[at + 8];
            entry.b9 = bytes[at + 9];
            entry.channel = static_cast<std::uint16_t>(number(at + 10, 2));
            entry.id = number(at + 12, 4) & 0x7FFFFFFF;
            entry.w16 = static_cast<std::uint16_t>(number(at + 16, 2));
            entry.w18 = static_cast<std::uint16_t>(number(at + 18, 2));
            entry.timeHigh = number(at + 20, 4);
            entry.timeLow = number(at + 24, 4);
            samples.push_back(entry);
        }
    }

    /// A field that is not there whole is 0.
    std::uint32_t number(std::size_t at, std::size_t width) const
    {
        std::uint32_t value = 0;
        for (std::size_t i = 0; i < width && at + width <= bytes.size(); ++i) {
            value = value << 8 | bytes[swapped ? at + i : at + width - 1 - i];
        }
        return value;
    }

    Fuzz::Bytes bytes;
    bool swapped = false;
    std::vector<RecordEntry> samples;
};

bool isSame(const RecordEntry& a, const RecordEntry& b)
{
    return std::memcmp(&a, &b, sizeof a) == 0;
}

bool areSame(std::span<const RecordEntry> a, const std::vector<RecordEntry>& b)
{
    return std::ranges::equal(a, b, isSame);
}

void checkInfo(const QString& path, const PlainFile& file)
{
    Record record;
    Fuzz::require(record.readRecordInfo(path), "a file's information can be read");
    const RecordInfo& info = record.recordInfo();
    const auto count = static_cast<qint64>(file.samples.size());
    Fuzz::require(std::max<qint64>(0, info.samples) == count, "the size tells the samples");
    Fuzz::require(info.busType == file.number(28, 4) && info.ecuSerialNumber == file.number(32, 4),
                  "numbers of the header");
    Fuzz::require(info.engineType.size() <= 13 && info.emuSwVersion.size() <= 7,
                  "texts of the header end with their fields");
    Fuzz::require(info.dateTime.isValid() != info.dateTimeText().isEmpty(), "a date or none");
    if (count > 0) {
        Fuzz::require(info.startTime == file.samples.front().time() &&
                          info.stopTime == file.samples.back().time(),
                      "first and last time");
    }
}

/// Every sample of a channel as the all-of-channel list has it.
std::vector<RecordEntry> allOf(const std::vector<RecordEntry>& samples, unsigned channel,
                               unsigned id)
{
    std::vector<RecordEntry> all;
    for (RecordEntry entry : samples) {
        if (entry.channel == channel) {
            if (entry.id == id) {
                all.push_back(entry);
            }
            std::reverse(&entry.b9 + 1, &entry.b9 + 3);
            auto* bytes = reinterpret_cast<std::uint8_t*>(&entry);
            std::reverse(bytes + 12, bytes + 16);
            std::reverse(bytes + 16, bytes + 18);
            std::reverse(bytes + 18, bytes + 20);
            all.push_back(entry);
        }
    }
    return all;
}

void checkLists(const RecordData& data, const std::vector<RecordEntry>& samples,
                std::size_t firstHigh)
{
    struct List
    {
        std::vector<RecordEntry> entries;
        bool highFile = false;
    };
    std::map<std::pair<unsigned, unsigned>, List> lists;
    for (std::size_t k = 0; k < samples.size(); ++k) {
        List& list = lists[{samples[k].channel, samples[k].id}];
        list.entries.push_back(samples[k]);
        list.highFile = k >= firstHigh;
    }
    Fuzz::require(data.lists().size() == lists.size(), "a list for each identifier");
    auto found = data.lists().begin();
    for (const auto& [key, list] : lists) {
        Fuzz::require(std::pair(found->channel, found->id) == key, "lists by channel and id");
        Fuzz::require(areSame(found->entries, list.entries), "a list's samples in file order");
        Fuzz::require(found->highFile == list.highFile, "the last file decides on the offset");
        const bool isPseudo = key == std::pair(0U, RecordData::AllOfChannel0) ||
                              key == std::pair(1U, RecordData::AllOfChannel1);
        Fuzz::require(isPseudo || data.find(key.first, key.second) == &*found, "lists are found");
        ++found;
        Fuzz::require(lists.contains({key.first, key.second + 1}) ||
                          key.second + 1 >= RecordData::AllOfChannel1 ||
                          data.find(key.first, key.second + 1) == nullptr,
                      "what is not there is not found");
    }
    for (unsigned channel = 0; channel < 2; ++channel) {
        const unsigned id = RecordData::AllOfChannel0 - channel;
        const auto expected = allOf(samples, channel, id);
        const RecordIdList* all = data.find(channel, id);
        Fuzz::require(all == nullptr ? expected.empty() : areSame(all->entries, expected),
                      "all of a channel");
    }
}

void checkOrders(const RecordData& data, std::vector<RecordEntry> samples)
{
    Fuzz::require(data.count() == samples.size(), "every sample is there");
    for (std::size_t k = 0; k < samples.size(); ++k) {
        Fuzz::require(isSame(data.inFileOrder(k), samples[k]), "the order of the files");
    }
    std::ranges::stable_sort(samples, {}, &RecordEntry::time);
    for (std::size_t k = 0; k < samples.size(); ++k) {
        Fuzz::require(isSame(data.inTimeOrder(k), samples[k]), "the order of time");
    }
}

/// What is told of a file that could be read to its end.
void checkIntegrity(const FileIntegrity& told, const PlainFile& file)
{
    const std::size_t size = file.bytes.size();
    const auto others = std::ranges::count_if(
        file.samples, [](const RecordEntry& entry) { return entry.channel > 1; });
    Fuzz::require(told.samples == file.samples.size() && told.unread == 0, "every sample is read");
    Fuzz::require(std::cmp_equal(told.otherChannels, others), "samples of other channels");
    Fuzz::require(std::cmp_equal(told.info.missingHeaderBytes, size < 128 ? 128 - size : 0),
                  "a header cut short");
    Fuzz::require(std::cmp_equal(told.info.ignoredBytes, size < 128 ? 0 : (size - 128) % 28),
                  "bytes at the end");
    const TimeFindings& found = told.found;
    Fuzz::require(found.impossibleTimes + found.gaps <= told.samples &&
                      found.firstImpossible <= told.samples &&
                      (found.longestGap > 0.0) == (found.gaps > 0),
                  "findings are of samples that are there");
    recordSection(told);
}

} // namespace

/// The first byte says whether there are two files and the next two where the second begins.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Fuzz::Input input({data, size});
    const bool hasTwo = (input.take<std::uint8_t>() & 1) != 0;
    const std::size_t split = input.take<std::uint16_t>();
    const PlainFile first(hasTwo ? input.take(split) : input.rest());
    const PlainFile second(hasTwo ? input.rest() : Fuzz::Bytes());
    std::list<QString> paths = {Fuzz::write("REC_0000.CAN", first.bytes)};
    checkInfo(paths.front(), first);

    Record record;
    std::vector<RecordEntry> samples = first.samples;
    Fuzz::require(record.readRecordData(paths), "one file is read");
    checkOrders(record.recordData(), samples);
    if (hasTwo) {
        paths.push_back(Fuzz::write("REC_8000.CAN", second.bytes));
        checkInfo(paths.back(), second);
        samples.insert(samples.end(), second.samples.begin(), second.samples.end());
        Fuzz::require(record.readRecordData(paths), "two files are read");
        checkOrders(record.recordData(), samples);
    }
    checkIntegrity(record.integrity().files.front(), first);
    checkIntegrity(record.integrity().files.back(), hasTwo ? second : first);
    checkLists(record.recordData(), samples, first.samples.size());
    if (!samples.empty()) {
        const auto [earliest, latest] = std::ranges::minmax(samples, {}, &RecordEntry::time);
        Fuzz::require(record.recordInfo().startTime == earliest.time() &&
                          record.recordInfo().stopTime == latest.time(),
                      "the recording's range covers every sample");
    }
    return 0;
}
