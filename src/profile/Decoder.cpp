#include "profile/Decoder.h"

#include "base/ByteOrder.h"
#include "base/Numbers.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <type_traits>

namespace TARN {

namespace {

constexpr int TextDigits = 12;
constexpr int TypeByte = 1; ///< payload byte with the message's type code
constexpr int DataByte = 4; ///< first payload byte of the message's data

template <typename Map>
auto findOrNull(const Map& map, int key) -> const typename Map::mapped_type*
{
    const auto found = map.find(key);
    return found != map.end() ? &found->second : nullptr;
}

/// Degrees from degrees and minutes, 4807.038 being 48 degrees 7.038 minutes, in steps of type
/// \p Real: graphs and paths convert in double precision, texts in single.
template <typename Real>
Real degreesOf(Real degreesAndMinutes)
{
    const auto hundredth = static_cast<Real>(degreesAndMinutes * 0.01);
    const auto degrees = static_cast<double>(truncatedTo<std::int32_t>(hundredth));
    return static_cast<Real>((hundredth - degrees) / 0.6 + degrees);
}

/// The value of a bit field and what it is called.
void appendBits(int value, const ProfileEnum* names, const char* withoutEnum,
                const char* withoutValue, std::string& text)
{
    text += std::to_string(value);
    const ProfileEnumValue* named = names != nullptr ? findOrNull(names->values, value) : nullptr;
    if (named != nullptr) {
        text += ": " + named->label.toStdString();
    } else {
        text += names == nullptr ? withoutEnum : withoutValue;
    }
}

} // namespace

Decoder::Decoder(const ProfileInfo& profile, const ProfileParameter& parameter)
    : mKind(valueKindOf(parameter.dataType)),
      mField(parameter.startByte, parameter.startBit, parameter.endBit), mFactor(parameter.factor),
      mOffset(parameter.offset), mThresholds(findOrNull(profile.thresholds, parameter.thresholdId),
                                             parameter.factor, parameter.offset),
      mEnum(findOrNull(profile.enums, parameter.enumId))
{}

int Decoder::toInt(const RecordEntry& entry) const
{
    switch (valueKindOf(entry.data[TypeByte])) {
    case ValueKind::Long:
    case ValueKind::ULong:
        return static_cast<std::int32_t>(mField.load<std::uint32_t>(entry));
    case ValueKind::BLong:
        return static_cast<std::int32_t>(mField.loadBits<std::uint32_t>(entry));
    case ValueKind::Short:
        return static_cast<std::int16_t>(mField.load<std::uint16_t>(entry));
    case ValueKind::UShort:
        return mField.load<std::uint16_t>(entry);
    case ValueKind::BShort:
        return static_cast<int>(mField.loadBits<std::uint16_t>(entry));
    case ValueKind::Char:
        return static_cast<std::int8_t>(mField.load<std::uint8_t>(entry));
    case ValueKind::UChar:
        return mField.load<std::uint8_t>(entry);
    default:
        return 0; // the two types of our own are no types of a message
    }
}

template <ValueKind kind>
double Decoder::rawNumber(const RecordEntry& entry) const
{
    if constexpr (kind == ValueKind::Float || kind == ValueKind::Nmea) {
        return mField.loadFloat(entry);
    } else if constexpr (kind == ValueKind::Long) {
        return static_cast<std::int32_t>(mField.load<std::uint32_t>(entry));
    } else if constexpr (kind == ValueKind::ULong) {
        return mField.load<std::uint32_t>(entry);
    } else if constexpr (kind == ValueKind::Short) {
        return static_cast<std::int16_t>(mField.load<std::uint16_t>(entry));
    } else if constexpr (kind == ValueKind::UShort) {
        return mField.load<std::uint16_t>(entry);
    } else if constexpr (kind == ValueKind::Char) {
        return static_cast<std::int8_t>(mField.load<std::uint8_t>(entry));
    } else if constexpr (kind == ValueKind::UChar) {
        return mField.load<std::uint8_t>(entry);
    } else if constexpr (kind == ValueKind::Long48) {
        return static_cast<double>(mField.loadBytes(entry, 6));
    } else if constexpr (kind == ValueKind::BLong) {
        return mField.loadBits<std::uint32_t>(entry);
    } else if constexpr (kind == ValueKind::BShort) {
        return mField.loadBits<std::uint16_t>(entry);
    } else {
        return 0.0;
    }
}

template <ValueKind kind>
double Decoder::number(const RecordEntry& entry, bool scaled) const
{
    const double raw = rawNumber<kind>(entry);
    if constexpr (kind == ValueKind::BLong || kind == ValueKind::BShort ||
                  kind == ValueKind::None) {
        return raw;
    } else if constexpr (kind == ValueKind::Nmea) {
        return degreesOf<double>(scaled ? scale(raw) : raw);
    } else if constexpr (kind == ValueKind::Float || kind == ValueKind::Long48) {
        return scaled ? scale(raw) : raw;
    } else {
        const double single = static_cast<float>(raw);
        return scaled ? scale(single) : single;
    }
}

template <typename Visitor>
auto Decoder::dispatch(Visitor visit) const
{
    switch (mKind) {
    case ValueKind::Float:
        return visit(std::integral_constant<ValueKind, ValueKind::Float>());
    case ValueKind::Nmea:
        return visit(std::integral_constant<ValueKind, ValueKind::Nmea>());
    case ValueKind::Long:
        return visit(std::integral_constant<ValueKind, ValueKind::Long>());
    case ValueKind::ULong:
        return visit(std::integral_constant<ValueKind, ValueKind::ULong>());
    case ValueKind::Short:
        return visit(std::integral_constant<ValueKind, ValueKind::Short>());
    case ValueKind::UShort:
        return visit(std::integral_constant<ValueKind, ValueKind::UShort>());
    case ValueKind::Char:
        return visit(std::integral_constant<ValueKind, ValueKind::Char>());
    case ValueKind::UChar:
        return visit(std::integral_constant<ValueKind, ValueKind::UChar>());
    case ValueKind::Long48:
        return visit(std::integral_constant<ValueKind, ValueKind::Long48>());
    case ValueKind::BLong:
        return visit(std::integral_constant<ValueKind, ValueKind::BLong>());
    case ValueKind::BShort:
        return visit(std::integral_constant<ValueKind, ValueKind::BShort>());
    case ValueKind::None:
        break;
    }
    return visit(std::integral_constant<ValueKind, ValueKind::None>());
}

double Decoder::toDouble(const RecordEntry& entry, bool scaled) const
{
    return dispatch([&](auto kind) { return number<kind()>(entry, scaled); });
}

void Decoder::toDoubles(std::span<const RecordEntry> entries, bool scaled, double* values) const
{
    dispatch([&](auto kind) {
        for (const RecordEntry& entry : entries) {
            *values++ = number<kind()>(entry, scaled);
        }
    });
}

int Decoder::state(const RecordEntry& entry) const
{
    if (entry.data[TypeByte] != DataType::Float) {
        return StateOk;
    }
    const auto value = std::bit_cast<float>(loadBig<std::uint32_t>(entry.data + DataByte));
    return mThresholds.stateOf(mThresholds.reachedBy(static_cast<float>(scale(value))));
}

void Decoder::states(std::span<const RecordEntry> entries, std::uint8_t* states) const
{
    if (mThresholds.threshold() == nullptr) {
        std::fill_n(states, entries.size(), std::uint8_t(StateOk));
        return;
    }
    for (const RecordEntry& entry : entries) {
        *states++ = static_cast<std::uint8_t>(state(entry));
    }
}

int Decoder::reachedLimit(const RecordEntry& entry) const
{
    return isNumeric() ? mThresholds.reachedBy(reading(entry).compared) : -1;
}

int Decoder::cellState(const RecordEntry& entry) const
{
    return mThresholds.stateOf(reachedLimit(entry));
}

void Decoder::cellStates(std::span<const RecordEntry> entries, std::uint8_t* states) const
{
    for (const RecordEntry& entry : entries) {
        *states++ = static_cast<std::uint8_t>(cellState(entry));
    }
}

QColor Decoder::appendDisplay(const RecordEntry& entry, std::string& text) const
{
    if (!isNumeric()) {
        appendWords(entry, text);
        return Qt::white;
    }
    const Reading shown = reading(entry);
    appendGeneral(shown.value, TextDigits, text);
    return mThresholds.colorOf(mThresholds.reachedBy(shown.compared));
}

QColor Decoder::cellColor(const RecordEntry& entry) const
{
    return mThresholds.colorOf(reachedLimit(entry));
}

void Decoder::appendText(const RecordEntry& entry, std::string& text) const
{
    if (isNumeric()) {
        appendGeneral(reading(entry).value, TextDigits, text);
    } else {
        appendWords(entry, text);
    }
}

void Decoder::appendShort(const RecordEntry& entry, std::string& text) const
{
    if (isSingle()) {
        appendShortest(static_cast<float>(reading(entry).value), text);
    } else {
        appendText(entry, text);
    }
}

Decoder::Reading Decoder::reading(const RecordEntry& entry) const
{
    switch (mKind) {
    case ValueKind::Float: {
        const auto value = static_cast<float>(scale(mField.loadFloat(entry)));
        return {value, value};
    }
    case ValueKind::Nmea:
        return nmeaReading(entry);
    case ValueKind::Char:
    case ValueKind::UChar:
        return byteReading(entry);
    case ValueKind::Long48:
        // The reading takes no part in the colour of these cells.
        return {scale(rawNumber<ValueKind::Long48>(entry)), 0.0};
    default: {
        const double raw = dispatch([&](auto kind) { return rawNumber<kind()>(entry); });
        return {scale(raw), raw};
    }
    }
}

Decoder::Reading Decoder::nmeaReading(const RecordEntry& entry) const
{
    const auto value = static_cast<float>(scale(mField.loadFloat(entry)));
    return {degreesOf<float>(value), value};
}

/// Bytes stay bytes after scaling: the result wraps.
Decoder::Reading Decoder::byteReading(const RecordEntry& entry) const
{
    const bool isSigned = mKind == ValueKind::Char;
    const double raw =
        isSigned ? rawNumber<ValueKind::Char>(entry) : rawNumber<ValueKind::UChar>(entry);
    const double wrapped = std::fmod(std::trunc(scale(raw)), 256.0);
    const auto byte = static_cast<std::uint8_t>(truncatedTo<int>(wrapped));
    const double value = isSigned ? static_cast<std::int8_t>(byte) : byte;
    return {value, value};
}

void Decoder::appendWords(const RecordEntry& entry, std::string& text) const
{
    if (mKind == ValueKind::BLong) {
        const auto value = static_cast<std::int32_t>(mField.loadBits<std::uint32_t>(entry));
        appendBits(value, mEnum, ": Invalid ENUM Type", ": Invalid ENUM Value", text);
    } else if (mKind == ValueKind::BShort) {
        appendBits(static_cast<int>(mField.loadBits<std::uint16_t>(entry)), mEnum, "", "", text);
    } else {
        text += "Datatype " + std::to_string(entry.data[TypeByte]) + " not implemented";
    }
}

} // namespace TARN
