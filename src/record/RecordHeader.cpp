#include "record/RecordHeader.h"

#include "base/ByteOrder.h"
#include "record/RecordEntry.h"

#include <algorithm>

namespace TARN {

namespace {

constexpr std::uint16_t Magic = 0xABBA;

/// Takes fields off the header one by one; past the end every field is 0.
class FieldReader
{
public:
    explicit FieldReader(std::span<const unsigned char> bytes) : mBytes(bytes) {}

    void setSwap(bool swap) { mSwap = swap; }

    template <typename T>
    T number()
    {
        const auto field = take(sizeof(T));
        if (field.empty()) {
            return 0;
        }
        return mSwap ? loadBig<T>(field.data()) : loadLittle<T>(field.data());
    }

    int byte()
    {
        const auto field = take(1);
        return field.empty() ? 0 : field[0];
    }

    QString text(std::size_t length)
    {
        const auto field = take(length);
        const auto end = std::find(field.begin(), field.end(), '\0');
        return QString::fromUtf8(reinterpret_cast<const char*>(field.data()), end - field.begin());
    }

    void skip(std::size_t length) { take(length); }

private:
    std::span<const unsigned char> take(std::size_t length)
    {
        if (length > mBytes.size()) {
            mBytes = {}; // a short read leaves the position at the end
            return {};
        }
        const auto field = mBytes.first(length);
        mBytes = mBytes.subspan(length);
        return field;
    }

    std::span<const unsigned char> mBytes;
    bool mSwap = false;
};

/// In UTC: a header states a wall-clock time, which must not be bent by the summer time of the
/// place where the card is read.
QDateTime readDateTime(FieldReader& reader)
{
    const int year = static_cast<std::int16_t>(reader.number<std::uint16_t>());
    const int month = reader.byte();
    const int day = reader.byte();
    const int hour = reader.byte();
    const int minute = reader.byte();
    const int second = reader.byte();
    return QDateTime(QDate(year, month, day), QTime(hour, minute, second), Qt::UTC);
}

} // namespace

HeaderFacts parseRecordHeader(std::span<const unsigned char> header, RecordInfo& info)
{
    FieldReader reader(header);
    HeaderFacts facts;
    facts.swapped = reader.number<std::uint16_t>() != Magic;
    reader.setSwap(facts.swapped);
    reader.skip(6);
    reader.skip(4);
    info.dateTime = readDateTime(reader);
    reader.skip(1);
    const auto startHigh = reader.number<std::uint32_t>();
    const auto startLow = reader.number<std::uint32_t>();
    facts.startTime = RecordEntry::secondsOf(startHigh, startLow);
    info.busType = reader.number<std::uint32_t>();
    info.ecuSerialNumber = reader.number<std::uint32_t>();
    info.softwarePartA = reader.text(13);
    info.ecuType = reader.text(13);
    info.engineSerialNr = reader.text(13);
    info.engineType = reader.text(13);
    info.softwarePartB = reader.text(13);
    info.emuSwVersion = reader.text(7);
    return facts;
}

} // namespace TARN
