/// Any recording with any profile through events, table and every export. What the exports leave
/// behind is read again.

#include "base/ClockTime.h"
#include "base/XmlHandler.h"
#include "display/TableModel.h"
#include "export/ExportCan.h"
#include "export/ExportCsv.h"
#include "export/ExportKml.h"
#include "faults/EventDetector.h"
#include "faults/EventModel.h"
#include "faults/EventTimes.h"
#include "faults/FaultHistory.h"
#include "fuzz/Fuzz.h"
#include "profile/Profile.h"
#include "profile/UnknownIdentifiers.h"

#include <algorithm>
#include <cmath>

using namespace TARN;

namespace {

/// A parameter of every sort, for inputs that bring no profile. The identifiers are small, so
/// that the fuzzer hits them.
constexpr const char* FixedProfile = R"(<CanAerospaceProfile>
<EnumList><Enum name="WarningLamp"><Value val="1" label="on"/></Enum></EnumList>
<ThresholdList><Threshold name="T">
<Value val="1" state="OK" color="green"/><Value val="10" state="WARNING" color="yellow"/>
<Value val="20" state="LIMIT" color="red"/></Threshold></ThresholdList>
<Device name="D"><ErrorMatrix id="3" name="M"/>
<Parameter name="Float" unit="V" id="1" startByte="4" dataType="FLOAT" thresholdId="T"/>
<Parameter name="Lamp" id="2" startByte="7" dataType="UCHAR" enumId="WarningLamp"/>
<Parameter name="Bit" id="3" startByte="4" startBit="1" endBit="1" dataType="BLONG"
errorType="Fault"/>
<Parameter name="Lat" id="4" startByte="4" dataType="NMEA" kmlId="Latitude"/>
<Parameter name="Lon" id="4" channel="1" startByte="4" dataType="FLOAT" kmlId="Longitude"/>
<Parameter name="Alt" id="5" startByte="4" dataType="SHORT" factor="0.3" kmlId="Altitude"/>
<Parameter name="All" id="0x7FFFFFFF" startByte="12" dataType="LONG48" thresholdId="T"/>
</Device></CanAerospaceProfile>)";

bool isWithin(double time, const RecordInfo& info)
{
    return info.startTime <= time && time <= info.stopTime;
}

void checkEvents(Record& record, const Profile& profile)
{
    detectEvents(record, profile);
    const RecordData& data = record.recordData();
    EventModel model("events");
    for (const auto* events : {&data.limits, &data.warnings}) {
        Fuzz::require(std::ranges::is_sorted(*events, {}, &RecordEvent::time), "events by time");
        model.setEvents(events);
        for (int row = 0; row < model.rowCount(); ++row) {
            const double time = (*events)[static_cast<std::size_t>(row)].time;
            Fuzz::require(isWithin(time, record.recordInfo()), "events lie in the recording");
            Fuzz::require(model.rowAt(time) >= row, "an event is found by its time");
            Fuzz::require(!model.data(model.index(row, 1)).toString().isEmpty(),
                          "events have a text");
        }
    }
    const EventTimes times(record, profile);
    std::optional<double> time = times.next(-1.0);
    Fuzz::require(time.has_value() != times.empty(), "the first event comes next");
    for (int steps = 0; time && steps < 1000; ++steps) {
        const auto next = times.next(*time);
        Fuzz::require(!next || *next > *time, "from event to event time goes on");
        time = next;
    }
}

void checkUnknown(const RecordData& data, const Profile& profile)
{
    const UnknownIdentifiers unknown = unknownIdentifiers(data, profile);
    Fuzz::require(unknown.identifiers <= data.lists().size() && unknown.samples <= data.count() &&
                      unknown.remark().isEmpty() == (unknown.identifiers == 0),
                  "unknown identifiers are among those that are there");
}

void checkFaults(const Record& record, const Profile& profile)
{
    const RecordInfo& info = record.recordInfo();
    for (const FaultMatrix& matrix : profile.data().faultMatrices) {
        const FaultHistory history(record.recordData(), matrix);
        for (const auto* points : {&history.info(), &history.warning(), &history.fault()}) {
            for (const FaultPoint& point : *points) {
                FaultHistory::timelineX(point.time, info.startTime, info.stopTime, 1000);
            }
        }
        history.bitsAt(info.startTime);
        history.bitsAt(info.stopTime);
    }
}

/// Each sample of a column stands in a row, and no row is without one.
void checkTable(const Record& record, const Profile& profile)
{
    TableModel model;
    model.updateProfile(profile);
    model.updateRecord(&record);
    const int rows = std::min(model.rowCount(), 300);
    for (int row = 0; row < rows; ++row) {
        bool isEmpty = true;
        for (int column = 1; column < model.columnCount(); ++column) {
            const QModelIndex cell = model.index(row, column);
            isEmpty = isEmpty && model.data(cell).toString().isEmpty();
            model.data(cell, Qt::BackgroundRole);
        }
        Fuzz::require(!isEmpty, "no row of the table is empty");
        const double time = model.data(model.index(row, 0), Qt::UserRole).toDouble() * 0.001;
        Fuzz::require(model.rowAt(time) == row, "a row is found by its time");
    }
}

/// The text that the last row of a CSV file shows for a parameter: that of the sample in the last
/// grid step, of several in one step the last.
std::string lastText(const Record& record, const Profile& profile,
                     const ProfileParameter& parameter, const CsvExportOptions& options)
{
    const RecordData& data = record.recordData();
    const RecordIdList* list =
        data.find(static_cast<unsigned>(parameter.channel), static_cast<unsigned>(parameter.id));
    const RecordEntry* last = nullptr;
    double lastTick = 0.0;
    for (std::size_t i = 0; list != nullptr && i < list->entries.size(); ++i) {
        const RecordEntry& entry = list->entries[i];
        const double time = entry.time() + list->shift(data.offset);
        const double tick = std::trunc(time * (1.0 / (options.resolution * 0.001)) + 0.5);
        if (options.startTime <= time && time <= options.stopTime &&
            (last == nullptr || tick >= lastTick)) {
            last = &entry;
            lastTick = tick;
        }
    }
    QColor color;
    return last == nullptr ? std::string()
                           : profile.getDataString(*last, parameter, color).toStdString();
}

void checkCsv(Record& record, const Profile& profile, CsvExportOptions options)
{
    options.fileName = "out.csv";
    options.separator = '\x1f'; // stands in no text
    const ExportResult result = ExportCsv(profile).exportData(record, options);
    Fuzz::require(result.done || !result.message.isEmpty(), "a table is written or refused");
    if (!result) {
        return;
    }
    const std::string text = Fuzz::read("out.csv").toStdString();
    Fuzz::require(text.starts_with("Time"), "a table begins with its titles");
    Fuzz::require(text.ends_with('\n'), "a table ends with a whole line");
    std::string last;
    for (const ProfileParameter* parameter : profile.selectedParameters()) {
        last += options.separator + lastText(record, profile, *parameter, options);
    }
    if (last.find_first_not_of(options.separator) == std::string::npos) {
        return; // no sample, no row
    }
    // The first row, which may be the last one too, lacks an empty cell at its end.
    const bool isShorter =
        last.ends_with(options.separator) && text.ends_with(last.substr(0, last.size() - 1) + "\n");
    Fuzz::require(isShorter || text.ends_with(last + "\n"), "the last row shows the last samples");
}

void checkKml(const Record& record, const Profile& profile, const CsvExportOptions& range,
              std::uint8_t choice)
{
    KmlExportOptions options;
    options.directory = range.directory;
    options.fileName = "out.kml";
    options.startTime = range.startTime;
    options.stopTime = range.stopTime;
    options.timeStamp = 1 << (choice & 15);
    options.placeMarkInterval = 1 + (choice >> 4);
    Fuzz::require(ExportKml(profile).exportData(record, options).done, "a path is written");
    QDomDocument document;
    Fuzz::require(XmlHandler().xmlReadFile(document, options.path()), "a path is XML");
}

/// The high word of an excerpt's times is a signed integer; nine thousand years.
constexpr double LongestExcerpt = 2147483647.0 * 134.217728;

void checkCan(Record& record, CsvExportOptions options)
{
    options.fileName = "OUT_0000.CAN";
    Fuzz::require(ExportCan().exportData(record, options).done, "an excerpt is written");
    Record excerpt;
    Fuzz::require(excerpt.readRecordData({options.path()}), "an excerpt is a recording");
    const RecordData& data = record.recordData();
    const RecordData& copies = excerpt.recordData();
    std::size_t copied = 0;
    for (std::size_t k = 0; k < data.count(); ++k) {
        const RecordEntry& entry = data.inTimeOrder(k);
        if (!(options.startTime <= entry.time() && entry.time() <= options.stopTime)) {
            continue;
        }
        Fuzz::require(copied < copies.count(), "an excerpt holds every sample of its range");
        const RecordEntry& copy = copies.inFileOrder(copied++);
        Fuzz::require(std::memcmp(&copy, &entry, 20) == 0, "an excerpt's samples are the same");
        const double tolerance = 1e-7 + entry.time() * 1e-15;
        const double time = std::min(entry.time() - options.startTime, LongestExcerpt);
        Fuzz::require(std::fabs(copy.time() - time) <= tolerance || time == LongestExcerpt,
                      "an excerpt counts time from its start");
    }
    Fuzz::require(copied == copies.count(), "an excerpt holds no other sample");
}

/// A range of few grid steps, since a table may have as many rows as its disk has room for.
CsvExportOptions takeOptions(Fuzz::Input& input, const RecordInfo& info)
{
    constexpr int Resolutions[] = {100, 10, 1, 100};
    CsvExportOptions options;
    options.directory = Fuzz::path("").toStdString();
    options.resolution = Resolutions[input.take<std::uint8_t>() & 3];
    const double length = info.stopTime - info.startTime;
    options.startTime = info.startTime + length * (input.take<std::uint8_t>() / 255.0);
    options.stopTime = std::min(info.stopTime, options.startTime + 2.0 * options.resolution);
    return options;
}

/// Loads the input's profile, or the fixed one where it brings none. That is most inputs, and
/// reading it takes longer than all the rest, so it is kept until another is loaded.
void loadProfile(Profile& profile, Fuzz::Bytes xml)
{
    static bool isFixed = false;
    if (!xml.empty() || !isFixed) {
        const auto* fixed = reinterpret_cast<const std::uint8_t*>(FixedProfile);
        profile.loadProfile(Fuzz::write(
            "profile.xml", xml.empty() ? Fuzz::Bytes(fixed, std::strlen(FixedProfile)) : xml));
        profile.forEachParameter(
            [](const ProfileDevice&, ProfileParameter& parameter) { parameter.selected = true; });
    }
    isFixed = xml.empty();
}

void loadRecord(Fuzz::Input& input, Record& record, bool highFile, double offset)
{
    record.readRecordData({Fuzz::write(highFile ? "REC_8000.CAN" : "REC_0000.CAN", input.rest())});
    record.recordData().offset = std::isfinite(offset) ? offset : 0.0;
}

} // namespace

/// Resolution, start, whether the range goes on to the end, path options, file name, offset, length
/// of the profile (0 takes the fixed one), profile, recording.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Fuzz::Input input({data, size});
    Fuzz::Input choices(input.take(4));
    Record record;
    Profile& profile = *Profile::instance();
    const bool highFile = (input.take<std::uint8_t>() & 1) != 0;
    const double offset = input.take<float>();
    loadProfile(profile, input.take(input.take<std::uint16_t>()));
    loadRecord(input, record, highFile, offset);
    CsvExportOptions options = takeOptions(choices, record.recordInfo());
    checkUnknown(record.recordData(), profile);
    checkEvents(record, profile);
    checkFaults(record, profile);
    checkTable(record, profile);
    checkCsv(record, profile, options);
    if ((choices.take<std::uint8_t>() & 1) != 0) {
        options.stopTime = record.recordInfo().stopTime; // these two grow with the samples only
    }
    checkKml(record, profile, options, choices.take<std::uint8_t>());
    checkCan(record, options);
    return 0;
}
