/// Any recording with any profile as a flight, through events, table and every export. What the
/// exports leave behind is read again.

#include "base/XmlHandler.h"
#include "events/EventModel.h"
#include "export/ExportCan.h"
#include "export/ExportCsv.h"
#include "export/ExportGpx.h"
#include "export/ExportKml.h"
#include "export/GeoTrack.h"
#include "fuzz/Fuzz.h"
#include "report/ExportReport.h"
#include "table/TableModel.h"

#include <QtCore/QXmlStreamReader>

#include <cmath>
#include <set>

using namespace TARN;
using Fuzz::require;

namespace {

/// A parameter of every sort, for inputs that bring no profile. The identifiers are small, so
/// that the fuzzer hits them.
constexpr const char* FixedProfile = R"(<CanAerospaceProfile>
<EnumList><Enum name="WarningLamp"><Value val="1" label="on"/></Enum></EnumList>
<ThresholdList><Threshold name="T">
<Value val="1" state="OK" color="green"/><Value val="10" state="WARNING" color="yellow"/>
<Value val="20" state="LIMIT" color="red"/></Threshold><Threshold name="Low">
<Value val="-99" state="LIMIT" color="red"/><Value val="9" state="OK"/></Threshold></ThresholdList>
<Device name="D"><ErrorMatrix id="3" name="M"/>
<Parameter name="Float" unit="V" id="1" startByte="4" dataType="FLOAT" thresholdId="T"/>
<Parameter name="Lamp" id="2" startByte="7" dataType="UCHAR" enumId="WarningLamp"/>
<Parameter name="Bit" id="3" startByte="4" startBit="1" endBit="1" dataType="BLONG"
errorType="Fault"/>
<Parameter name="Lat" id="4" startByte="4" dataType="NMEA" kmlId="Latitude"/>
<Parameter name="Lon" id="4" channel="1" startByte="4" dataType="FLOAT" kmlId="Longitude"/>
<Parameter name="Alt" id="5" startByte="4" dataType="SHORT" factor="0.3" kmlId="Altitude"
thresholdId="Low"/>
<Parameter name="All" id="0x7FFFFFFF" startByte="12" dataType="LONG48" thresholdId="T"/>
</Device></CanAerospaceProfile>)";

/// The input's profile; the fixed one, which is read once, where it brings none.
std::shared_ptr<const Profile> profileOf(Fuzz::Bytes xml)
{
    static const auto fixed =
        Profile::load(Fuzz::write("profile.xml", Fuzz::bytesOf(FixedProfile)));
    return xml.empty() ? fixed : Profile::load(Fuzz::write("profile.xml", xml));
}

std::shared_ptr<const Record> recordOf(Fuzz::Bytes bytes, const QString& name)
{
    auto record = std::make_shared<Record>();
    require(record->readRecordData({Fuzz::write(name, bytes)}));
    return record;
}

/// The episodes of a parameter do not overlap, hold all its samples out of range, and are
/// announced by just those limit events whose samples are in them.
void checkEpisodes(const ExportInput& input, const ProfileParameter& parameter,
                   const std::vector<Episode>& episodes)
{
    const Series series = input.series(parameter);
    const auto isOut = [&](const RecordEntry& entry) {
        return series.decoder().cellState(entry) != StateOk;
    };
    std::ptrdiff_t samples = 0;
    double end = -INFINITY;
    std::multiset<std::size_t> announcing; // places
    for (const Episode& episode : episodes) {
        if (episode.parameter == &parameter) {
            require(end <= episode.start && episode.start <= episode.end);
            require(episode.state == StateWarning || episode.state == StateLimit);
            samples += static_cast<std::ptrdiff_t>(episode.samples);
            end = episode.end;
            announcing.insert(episode.announcedBy.begin(), episode.announcedBy.end());
        }
    }
    require(samples == std::ranges::count_if(series.entries(), isOut));
    std::multiset<std::size_t> events;
    for (const RecordLimit& event : input.flight->events().limits) {
        if (event.parameter == &parameter && isOut(series.entries()[event.place])) {
            events.insert(event.place);
        }
    }
    require(announcing == events);
}

void checkEvents(const ExportInput& input)
{
    Progress progress;
    const auto episodes = std::make_shared<const std::vector<Episode>>(
        input.flight->episodes(input.offset, progress));
    require(std::ranges::is_sorted(*episodes, {}, &Episode::start));
    for (const auto& [device, parameter] : input.flight->profile()->parameters()) {
        checkEpisodes(input, *parameter, *episodes);
    }
    const Events& all = input.flight->events();
    const RecordInfo& info = input.flight->info();
    EventModel model(EventKind::Limits, "events");
    for (const auto* events : {&all.limits, &all.warnings}) {
        require(std::ranges::is_sorted(*events, {}, &RecordEvent::time));
        model.setEvents(input.flight, events);
        model.setEpisodes(episodes);
        for (int row = 0; row < model.rowCount(); ++row) {
            require(!model.index(row, EventModel::TextColumn).data().toString().isEmpty());
            model.index(row, EventModel::PeakColumn).data();
            if (row < static_cast<int>(events->size())) {
                const double time = (*events)[static_cast<std::size_t>(row)].time;
                require(info.startTime <= time && time <= info.stopTime);
                require(model.rows().rowAt(time) >= row);
            }
        }
    }
    const EventMarks& marks = input.flight->marks();
    require(marks.next(-1.0).empty() == marks.empty());
    double time = -1.0;
    for (auto next = marks.next(time); !next.empty(); next = marks.next(time)) {
        require(next.front().time > time);
        time = next.front().time;
        require(time == marks.marks().front().time || !marks.previous(time).empty());
    }
}

void checkFaults(const Flight& flight)
{
    const RecordInfo& info = flight.info();
    for (const FaultHistory& history : flight.faults()) {
        for (const int type : {ErrorInfo, ErrorWarning, ErrorFault}) {
            for (const FaultPoint& point : history.points(type)) {
                FaultHistory::timelineX(point.time, info.startTime, info.stopTime, 1000);
            }
        }
        history.changeNear(500, info.startTime, info.stopTime, 1000);
        history.bitsAt(info.startTime);
        history.bitsAt(info.stopTime);
    }
    const UnknownIdentifiers& unknown = flight.unknown();
    require(unknown.identifiers <= flight.samples().lists().size() &&
            unknown.samples <= flight.samples().count() &&
            unknown.remark().isEmpty() == (unknown.identifiers == 0));
}

/// Each sample of a column stands in a row, and no row is without one.
void checkTable(const ExportInput& input)
{
    Progress progress;
    TableModel model;
    model.setRows(
        std::make_shared<const TableRows>(input.flight, input.selection, input.offset, progress));
    const int rows = std::min(model.rowCount(), 300);
    for (int row = 0; row < rows; ++row) {
        bool isEmpty = true;
        for (int column = 1; column < model.columnCount(); ++column) {
            const QModelIndex cell = model.index(row, column);
            isEmpty = isEmpty && cell.data().toString().isEmpty();
            cell.data(Qt::BackgroundRole);
        }
        require(!isEmpty);
        const double time = model.index(row, 0).data(Qt::UserRole).toDouble() * 0.001;
        require(model.rowAt(time) == row);
    }
}

/// The text that the last row of a CSV file shows for a parameter: that of the sample in the last
/// grid step, of several in one step the last.
std::string lastText(const ExportInput& input, const ProfileParameter& parameter,
                     const CsvExportOptions& options)
{
    const Series series = input.series(parameter);
    const RecordEntry* last = nullptr;
    double lastTick = 0.0;
    for (const RecordEntry& entry : series.entries()) {
        const double time = entry.time() + series.shift();
        const double tick = std::trunc(time * (1.0 / (options.resolution * 0.001)) + 0.5);
        if (options.range().contains(time) && (last == nullptr || tick >= lastTick)) {
            last = &entry;
            lastTick = tick;
        }
    }
    std::string text;
    if (last != nullptr) {
        series.decoder().appendText(*last, text);
    }
    return text;
}

void checkCsv(const ExportInput& input, CsvExportOptions options)
{
    Progress progress;
    options.fileName = "out.csv";
    options.separator = '\x1f'; // stands in no text
    const ExportResult result = ExportCsv(options).run(input, progress);
    require(result.done || !result.message.isEmpty());
    if (!result) {
        return;
    }
    std::string last;
    for (const ProfileParameter* parameter : input.selection.parameters(*input.flight->profile())) {
        last += options.separator + lastText(input, *parameter, options);
    }
    const auto trimmed = [&](const std::string& text) { // of cells that are empty, and of the end
        return text.substr(0, text.find_last_not_of({options.separator, '\n'}) + 1);
    };
    const std::string text = Fuzz::read("out.csv").toStdString();
    require(text.starts_with("Time") && text.ends_with('\n'));
    require(trimmed(text).ends_with(trimmed(last)));
}

void checkKml(const ExportInput& input, const ExportOptions& range, std::uint8_t choice)
{
    Progress progress;
    KmlExportOptions options;
    static_cast<ExportOptions&>(options) = range;
    options.fileName = "out.kml";
    options.timeStamp = 1 << (choice & 15);
    options.placeMarkInterval = 1 + (choice >> 4);
    require(ExportKml(options).run(input, progress).done);
    QDomDocument document;
    require(XmlHandler().xmlReadFile(document, options.path()));
}

void parse(const QString& name)
{
    QXmlStreamReader document(Fuzz::read(name));
    while (!document.atEnd()) {
        document.readNext();
    }
    require(!document.hasError());
}

/// Two kinds of files of one track: with as many points, each where somebody can be.
void checkTracks(const ExportInput& input, const ExportOptions& range, std::uint8_t choice)
{
    Progress progress;
    GpxExportOptions gpx;
    static_cast<ExportOptions&>(gpx) = range;
    gpx.fileName = "out.gpx";
    gpx.timeStamp = 1 << (choice & 15);
    require(ExportGpx(gpx).run(input, progress).done);
    parse("out.gpx");
    const GeoTrack track(*input.flight, input.offset, gpx.slotWidth(), gpx.range());
    const auto points = static_cast<qsizetype>(track.points().size());
    require(Fuzz::read("out.gpx").count("<trkpt ") == points);
    require(std::ranges::is_sorted(track.points(), {}, &TrackPoint::time));
    for (const TrackPoint& point : track.points()) {
        require(gpx.range().contains(point.time) && std::abs(point.place.longitude) <= 180.0);
    }
    KmlExportOptions kml;
    static_cast<ExportOptions&>(kml) = range;
    kml.fileName = "timed.kml";
    kml.isTimed = true;
    kml.timeStamp = gpx.timeStamp;
    kml.placeMarkInterval = 1 + (choice >> 4);
    const ExportResult result = ExportKml(kml).run(input, progress);
    require(result.done || !result.message.isEmpty());
    if (result) {
        parse("timed.kml");
        require(Fuzz::read("timed.kml").count("<gx:coord>") == points);
    }
}

/// Nothing in the input makes it anything but a page of text, tables and pictures.
void checkReport(ExportInput input, const ExportOptions& range)
{
    constexpr double Shift = 0.25; // seconds: the flight against itself
    input.reference = {input.flight, input.offset, Shift};
    static const std::set<QString> Elements = {
        "html",     "head",    "meta",       "title",    "style", "body",  "h1", "h2",
        "h3",       "p",       "span",       "table",    "thead", "tbody", "tr", "th",
        "td",       "figure",  "figcaption", "svg",      "rect",  "path",  "g",  "text",
        "polyline", "polygon", "clipPath",   "colgroup", "col"};
    Progress progress;
    ReportOptions options;
    static_cast<ExportOptions&>(options) = range;
    options.fileName = "out.html";
    require(ExportReport(options).run(input, progress).done);
    QXmlStreamReader page(Fuzz::read("out.html"));
    while (!page.atEnd()) {
        if (page.readNext() == QXmlStreamReader::StartElement) {
            require(Elements.contains(page.name().toString()));
            for (const QXmlStreamAttribute& attribute : page.attributes()) {
                require(!attribute.name().startsWith(u"on") && attribute.name() != u"href");
            }
        }
    }
    require(!page.hasError());
}

void checkCan(const ExportInput& input, CsvExportOptions options)
{
    /// The high word of an excerpt's times is a signed integer; nine thousand years.
    constexpr double Longest = 2147483647.0 * 134.217728;
    Progress progress;
    options.fileName = "OUT_0000.CAN";
    require(ExportCan(options).run(input, progress).done);
    Record excerpt;
    require(excerpt.readRecordData({options.path()}));
    const RecordData& data = input.flight->samples();
    const RecordData& copies = excerpt.recordData();
    std::size_t copied = 0;
    for (std::size_t k = 0; k < data.count(); ++k) {
        const RecordEntry& entry = data.inTimeOrder(k);
        if (!options.range().contains(entry.time())) {
            continue;
        }
        require(copied < copies.count());
        const RecordEntry& copy = copies.inFileOrder(copied++);
        require(std::memcmp(&copy, &entry, 20) == 0);
        const double tolerance = 1e-7 + entry.time() * 1e-15;
        const double time = std::min(entry.time() - options.startTime, Longest);
        require(std::fabs(copy.time() - time) <= tolerance || time == Longest);
    }
    require(copied == copies.count());
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

} // namespace

/// Resolution, start, whether the range goes on to the end, path options, file name, offset, length
/// of the profile (0 takes the fixed one), profile, recording.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Fuzz::Input input({data, size});
    Fuzz::Input choices(input.take(4));
    const bool highFile = (input.take<std::uint8_t>() & 1) != 0;
    const double offset = input.take<float>();
    const auto profile = profileOf(input.take(input.take<std::uint16_t>()));
    const auto record = recordOf(input.rest(), highFile ? "REC_8000.CAN" : "REC_0000.CAN");
    const ExportInput flight{Flight::make(record, profile), Selection::all(*profile),
                             std::isfinite(offset) ? offset : 0.0};
    CsvExportOptions options = takeOptions(choices, record->recordInfo());
    checkEvents(flight);
    checkFaults(*flight.flight);
    checkTable(flight);
    checkCsv(flight, options);
    if ((choices.take<std::uint8_t>() & 1) != 0) {
        options.stopTime = record->recordInfo().stopTime; // these two grow with the samples only
    }
    const auto choice = choices.take<std::uint8_t>();
    checkKml(flight, options, choice);
    checkTracks(flight, options, choice);
    checkReport(flight, options);
    checkCan(flight, options);
    return 0;
}
