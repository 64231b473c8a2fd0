/// Any bytes as one recording file or two: what is loaded is held against a plain reading of them.

#include "fuzz/Fuzz.h"
#include "record/Record.h"
#include "record/RecordText.h"
#include "record/Silences.h"

#include <map>
#include <vector>

using namespace TARN;
using Fuzz::require;

namespace {

/// Reverses the bytes of the first fields behind the payload.
void swapFields(RecordEntry& entry, std::size_t count)
{
    constexpr int Fields[][2] = {{10, 12}, {12, 16}, {16, 18}, {18, 20}, {20, 24}, {24, 28}};
    auto* bytes = reinterpret_cast<std::uint8_t*>(&entry);
    for (const auto& [begin, end] : std::span(Fields).first(count)) {
        std::reverse(bytes + begin, bytes + end);
    }
}

/// A file as the format has it, taken apart byte by byte.
struct PlainFile
{
    explicit PlainFile(Fuzz::Bytes content) : bytes(content)
    {
        isBig = number(0, 2) != 0xABBA;
        for (std::size_t at = 128; at + sizeof(RecordEntry) <= bytes.size();
             at += sizeof(RecordEntry)) {
            RecordEntry entry;
            std::memcpy(&entry, &bytes[at], sizeof entry);
            swapFields(entry, isBig ? 6 : 0);
            entry.id &= 0x7FFFFFFF;
            samples.push_back(entry);
        }
    }

    /// A field that is not there whole is 0.
    std::uint32_t number(std::size_t at, std::size_t width) const
    {
        std::uint32_t value = 0;
        for (std::size_t i = 0; i < width && at + width <= bytes.size(); ++i) {
            value = value << 8 | bytes[isBig ? at + i : at + width - 1 - i];
        }
        return value;
    }

    Fuzz::Bytes bytes;
    bool isBig = false;
    std::vector<RecordEntry> samples;
};

bool isSame(const RecordEntry& a, const RecordEntry& b)
{
    return std::memcmp(&a, &b, sizeof a) == 0;
}

void checkInfo(const QString& path, const PlainFile& file)
{
    Record record;
    require(record.readRecordInfo(path));
    const RecordInfo& info = record.recordInfo();
    require(std::cmp_equal(std::max<qint64>(0, info.samples), file.samples.size()));
    require(info.busType == file.number(28, 4) && info.ecuSerialNumber == file.number(32, 4));
    require(info.engineType.size() <= 13 && info.emuSwVersion.size() <= 7);
    require(info.dateTime.isValid() != info.dateTimeText().isEmpty());
    require(file.samples.empty() || (info.startTime == file.samples.front().time() &&
                                     info.stopTime == file.samples.back().time()));
}

void checkLists(const RecordData& data, const std::vector<RecordEntry>& samples,
                std::size_t firstHigh)
{
    using Key = std::pair<unsigned, unsigned>;
    std::map<Key, std::vector<RecordEntry>> lists;
    std::map<Key, bool> isHigh; // the file that touched a list last decides
    std::map<Key, std::vector<RecordEntry>> all = {{{0, RecordData::AllOfChannel0}, {}},
                                                   {{1, RecordData::AllOfChannel1}, {}}};
    for (std::size_t k = 0; k < samples.size(); ++k) {
        RecordEntry entry = samples[k];
        lists[{entry.channel, entry.id}].push_back(entry);
        isHigh[{entry.channel, entry.id}] = k >= firstHigh;
        const Key key(entry.channel, RecordData::AllOfChannel0 - entry.channel);
        if (entry.channel <= 1) {
            all[key].insert(all[key].end(), entry.id == key.second ? 1 : 0, entry);
            swapFields(entry, 4);
            all[key].push_back(entry);
        }
    }
    require(data.lists().size() == lists.size());
    auto found = data.lists().begin();
    for (const auto& [key, entries] : lists) {
        require(Key(found->channel, found->id) == key && found->highFile == isHigh[key]);
        require(std::ranges::equal(found->entries, entries, isSame));
        require(all.contains(key) || data.find(key.first, key.second) == &*found);
        const Key next(key.first, key.second + 1);
        require(lists.contains(next) || next.second >= RecordData::AllOfChannel1 ||
                data.find(next.first, next.second) == nullptr);
        ++found;
    }
    for (const auto& [key, entries] : all) {
        const RecordIdList* list = data.find(key.first, key.second);
        require(std::ranges::equal(list != nullptr ? list->entries : std::span<const RecordEntry>(),
                                   entries, isSame));
    }
}

void checkOrders(const RecordData& data, std::vector<RecordEntry> samples)
{
    require(data.count() == samples.size());
    for (std::size_t k = 0; k < samples.size(); ++k) {
        require(isSame(data.inFileOrder(k), samples[k]));
    }
    std::ranges::stable_sort(samples, {}, &RecordEntry::time);
    std::vector<Silences::Stretch> silences;
    for (std::size_t k = 0; k < samples.size(); ++k) {
        require(isSame(data.inTimeOrder(k), samples[k]));
        const double before = k > 0 ? samples[k - 1].time() : samples[k].time();
        if (samples[k].time() - before > Silences::Shortest) {
            silences.push_back({before, samples[k].time()});
        }
    }
    require(std::ranges::equal(Silences(data, 0.0).stretches(), silences,
                               [](auto& a, auto& b) { return a.from == b.from && a.to == b.to; }));
}

/// What is told of a file that could be read to its end.
void checkIntegrity(const FileIntegrity& told, const PlainFile& file)
{
    const std::size_t size = file.bytes.size();
    const auto others = std::ranges::count_if(
        file.samples, [](const RecordEntry& entry) { return entry.channel > 1; });
    require(told.samples == file.samples.size() && told.unread == 0);
    require(std::cmp_equal(told.otherChannels, others));
    require(std::cmp_equal(told.info.missingHeaderBytes, size < 128 ? 128 - size : 0));
    require(std::cmp_equal(told.info.ignoredBytes, size < 128 ? 0 : (size - 128) % 28));
    const TimeFindings& found = told.found;
    require(found.impossibleTimes + found.gaps <= told.samples &&
            found.firstImpossible <= told.samples && (found.longestGap > 0.0) == (found.gaps > 0));
    require(!recordSection(told).fields.isEmpty());
}

} // namespace

/// The first byte says whether there are two files and the next two where the second begins.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Fuzz::Input input({data, size});
    const bool hasTwo = (input.take<std::uint8_t>() & 1) != 0;
    const std::size_t split = input.take<std::uint16_t>();
    std::vector<PlainFile> files = {PlainFile(hasTwo ? input.take(split) : input.rest())};
    if (hasTwo) {
        files.emplace_back(input.rest());
    }
    std::list<QString> paths;
    std::vector<RecordEntry> samples;
    for (const PlainFile& file : files) {
        paths.push_back(Fuzz::write(paths.empty() ? "REC_0000.CAN" : "REC_8000.CAN", file.bytes));
        checkInfo(paths.back(), file);
        samples.insert(samples.end(), file.samples.begin(), file.samples.end());
    }

    Record record;
    require(record.readRecordData(paths));
    for (std::size_t k = 0; k < files.size(); ++k) {
        checkIntegrity(record.integrity().files[k], files[k]);
    }
    recordRemarks(record.integrity());
    checkOrders(record.recordData(), samples);
    checkLists(record.recordData(), samples, files.front().samples.size());
    if (!samples.empty()) {
        const auto [earliest, latest] = std::ranges::minmax(samples, {}, &RecordEntry::time);
        require(record.recordInfo().startTime == earliest.time() &&
                record.recordInfo().stopTime == latest.time());
    }
    return 0;
}
