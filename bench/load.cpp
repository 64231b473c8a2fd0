#include "PlainReader.h"
#include "Suite.h"
#include "record/Record.h"

#include <cstdlib>
#include <fcntl.h>
#include <malloc.h>
#include <memory>
#include <unistd.h>

namespace TARN::Bench {

namespace {

void load(Record& record, const std::string& path, unsigned threads = 0)
{
    Progress none;
    require(record.readRecordData({QString::fromStdString(path)}, 0.0, none, threads),
            "can't load " + path);
}

Measurement loadOf(const std::string& path, unsigned threads = 0)
{
    return [=] {
        Record record;
        return secondsOf([&] { load(record, path, threads); });
    };
}

Measurement plainReadOf(const std::string& path)
{
    return [path] { return secondsOfReading({path}); };
}

double bytesFromSystem()
{
    const struct mallinfo2 info = mallinfo2();
    return static_cast<double>(info.arena + info.hblkhd);
}

Measurement bytesPerSampleOf(const std::string& path)
{
    return [path] {
        const double before = bytesFromSystem();
        Record record;
        load(record, path);
        return (bytesFromSystem() - before) / static_cast<double>(record.recordData().count());
    };
}

Measurement perSample(const Measurement& time, std::size_t megabytes)
{
    return [=] { return time() / static_cast<double>(megabytes); };
}

/// Every list and both orders, sample by sample, against a reader that does the plain thing.
void checkLoad(const std::string& path)
{
    inChild([&] {
        Record record;
        load(record, path);
        const PlainRecord plain(path);
        const RecordData& data = record.recordData();
        require(data.count() == plain.samples().size(), "wrong number of samples");
        std::map<ListKey, Digest> lists;
        for (const RecordIdList& list : data.lists()) {
            lists[{list.channel, list.id}] = Digest::of(list.entries);
        }
        require(lists == plain.lists(), "a list differs");
        Digest inFileOrder;
        Digest inTimeOrder;
        for (std::size_t k = 0; k < data.count(); ++k) {
            inFileOrder.add(data.inFileOrder(k));
            inTimeOrder.add(data.inTimeOrder(k));
        }
        require(inFileOrder == Digest::of(plain.samples()), "the file order differs");
        require(inTimeOrder == plain.inTimeOrder(), "the time order differs");
        return 0.0;
    });
}

double checkedRatio(const std::string& path, const Measurement& ours, const Measurement& rival)
{
    checkLoad(path);
    return ratioOf(ours, rival);
}

double growth(Suite& suite)
{
    constexpr std::size_t Small = 10;
    const std::size_t large = suite.options().quick ? 100 : 1000;
    for (const std::size_t megabytes : {std::size_t(1), Small, large}) {
        checkLoad(suite.busRecording(megabytes));
    }
    return ratioOf(perSample(loadOf(suite.busRecording(large)), large),
                   perSample(loadOf(suite.busRecording(Small)), Small));
}

} // namespace

void loadFigures(Suite& suite)
{
    for (const auto& [name, target, threads] :
         {std::tuple("load.time", 1.4, 2U), std::tuple("load.one", 2.2, 1U)}) {
        suite.figure(name, target, [&] {
            const std::string& path = suite.busRecording(100);
            return checkedRatio(path, loadOf(path, threads), plainReadOf(path));
        });
    }
    suite.figure("load.growth", 1.3, [&] { return growth(suite); });
    suite.figure("load.disorder", 2.5, [&] {
        const std::string& path = suite.shuffledRecording(100);
        return checkedRatio(path, loadOf(path), plainReadOf(path));
    });
    // A recording that is not in order holds a second index, so this is the larger case.
    suite.figure("load.memory", 46.0,
                 [&] { return medianOf(bytesPerSampleOf(suite.shuffledRecording(100))); });
}

} // namespace TARN::Bench
