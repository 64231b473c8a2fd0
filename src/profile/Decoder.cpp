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
constexpr int SampleSize = static_cast<int>(sizeof(RecordEntry));
constexpr int TypeByte = 1; ///< payload byte with the message's type code
constexpr int DataByte = 4; ///< first payload byte of the message's data

const std::uint8_t* bytesOf(const RecordEntry& entry)
{
    return reinterpret_cast<const std::uint8_t*>(&entry);
}

template <typename Map>
auto findOrNull(const Map& map, int key) -> const typename Map::mapped_type*
{
    const auto found = map.find(key);
    return found != map.end() ? &found->second : nullptr;
}

/// Mask of a bit field's lowest bits; wide arithmetic, as a profile may name any bit numbers.
std::uint32_t maskOf(int startBit, int endBit)
{
    const std::int64_t count = std::int64_t(endBit) - startBit + 1;
    if (count <= 0 || startBit < 0 || startBit > 31) {
        return 0;
    }
    return count >= 32 ? ~0U : (1U << count) - 1;
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

} // namespace

Decoder::Decoder(const ProfileInfo& profile, const ProfileParameter& parameter)
    : mKind(kindOf(parameter.dataType)), mStartByte(parameter.startByte),
      mStartBit(parameter.startBit & 31), mMask(maskOf(parameter.startBit, parameter.endBit)),
      mFactor(parameter.factor), mOffset(parameter.offset),
      mThreshold(findOrNull(profile.thresholds, parameter.thresholdId)),
      mEnum(findOrNull(profile.enums, parameter.enumId))
{}

Decoder::Kind Decoder::kindOf(int typeCode)
{
    switch (typeCode) {
    case DataType::Float:
        return Kind::Float;
    case DataType::Nmea:
        return Kind::Nmea;
    case DataType::Long:
        return Kind::Long;
    case DataType::ULong:
        return Kind::ULong;
    case DataType::BLong:
        return Kind::BLong;
    case DataType::Short:
    case DataType::Short2:
        return Kind::Short;
    case DataType::UShort:
    case DataType::UShort2:
        return Kind::UShort;
    case DataType::BShort:
        return Kind::BShort;
    case DataType::Char:
    case DataType::Char2:
    case DataType::Char3:
    case DataType::Char4:
        return Kind::Char;
    case DataType::UChar:
    case DataType::UChar2:
    case DataType::UChar3:
    case DataType::UChar4:
        return Kind::UChar;
    case DataType::Long48:
        return Kind::Long48;
    default:
        return Kind::None;
    }
}

template <typename Unsigned>
Unsigned Decoder::load(const RecordEntry& entry) const
{
    if (mStartByte >= 0 && mStartByte <= SampleSize - static_cast<int>(sizeof(Unsigned))) {
        if constexpr (sizeof(Unsigned) == 1) {
            return bytesOf(entry)[mStartByte];
        } else {
            return loadBig<Unsigned>(bytesOf(entry) + mStartByte);
        }
    }
    return static_cast<Unsigned>(loadBytes(entry, sizeof(Unsigned)));
}

std::uint64_t Decoder::loadBytes(const RecordEntry& entry, int width) const
{
    std::uint64_t value = 0;
    for (int i = 0; i < width; ++i) {
        const std::int64_t at = std::int64_t(mStartByte) + i;
        value = value << 8 | (at >= 0 && at < SampleSize ? bytesOf(entry)[at] : 0U);
    }
    return value;
}

float Decoder::loadFloat(const RecordEntry& entry) const
{
    return std::bit_cast<float>(load<std::uint32_t>(entry));
}

std::uint32_t Decoder::bitField(std::uint32_t word) const
{
    return word >> mStartBit & mMask;
}

int Decoder::toInt(const RecordEntry& entry) const
{
    switch (kindOf(entry.data[TypeByte])) {
    case Kind::Long:
    case Kind::ULong:
        return static_cast<std::int32_t>(load<std::uint32_t>(entry));
    case Kind::BLong:
        return static_cast<std::int32_t>(bitField(load<std::uint32_t>(entry)));
    case Kind::Short:
        return static_cast<std::int16_t>(load<std::uint16_t>(entry));
    case Kind::UShort:
        return load<std::uint16_t>(entry);
    case Kind::BShort:
        return static_cast<int>(bitField(load<std::uint16_t>(entry)));
    case Kind::Char:
        return static_cast<std::int8_t>(load<std::uint8_t>(entry));
    case Kind::UChar:
        return load<std::uint8_t>(entry);
    default:
        return 0; // the two types of our own are no types of a message
    }
}

template <Decoder::Kind kind>
double Decoder::rawNumber(const RecordEntry& entry) const
{
    if constexpr (kind == Kind::Float || kind == Kind::Nmea) {
        return loadFloat(entry);
    } else if constexpr (kind == Kind::Long) {
        return static_cast<std::int32_t>(load<std::uint32_t>(entry));
    } else if constexpr (kind == Kind::ULong) {
        return load<std::uint32_t>(entry);
    } else if constexpr (kind == Kind::Short) {
        return static_cast<std::int16_t>(load<std::uint16_t>(entry));
    } else if constexpr (kind == Kind::UShort) {
        return load<std::uint16_t>(entry);
    } else if constexpr (kind == Kind::Char) {
        return static_cast<std::int8_t>(load<std::uint8_t>(entry));
    } else if constexpr (kind == Kind::UChar) {
        return load<std::uint8_t>(entry);
    } else if constexpr (kind == Kind::Long48) {
        return static_cast<double>(loadBytes(entry, 6));
    } else if constexpr (kind == Kind::BLong) {
        return bitField(load<std::uint32_t>(entry));
    } else if constexpr (kind == Kind::BShort) {
        return bitField(load<std::uint16_t>(entry));
    } else {
        return 0.0;
    }
}

template <Decoder::Kind kind>
double Decoder::number(const RecordEntry& entry, bool scaled) const
{
    const double raw = rawNumber<kind>(entry);
    if constexpr (kind == Kind::BLong || kind == Kind::BShort || kind == Kind::None) {
        return raw;
    } else if constexpr (kind == Kind::Nmea) {
        return degreesOf<double>(scaled ? scale(raw) : raw);
    } else if constexpr (kind == Kind::Float || kind == Kind::Long48) {
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
    case Kind::Float:
        return visit(std::integral_constant<Kind, Kind::Float>());
    case Kind::Nmea:
        return visit(std::integral_constant<Kind, Kind::Nmea>());
    case Kind::Long:
        return visit(std::integral_constant<Kind, Kind::Long>());
    case Kind::ULong:
        return visit(std::integral_constant<Kind, Kind::ULong>());
    case Kind::Short:
        return visit(std::integral_constant<Kind, Kind::Short>());
    case Kind::UShort:
        return visit(std::integral_constant<Kind, Kind::UShort>());
    case Kind::Char:
        return visit(std::integral_constant<Kind, Kind::Char>());
    case Kind::UChar:
        return visit(std::integral_constant<Kind, Kind::UChar>());
    case Kind::Long48:
        return visit(std::integral_constant<Kind, Kind::Long48>());
    case Kind::BLong:
        return visit(std::integral_constant<Kind, Kind::BLong>());
    case Kind::BShort:
        return visit(std::integral_constant<Kind, Kind::BShort>());
    case Kind::None:
        break;
    }
    return visit(std::integral_constant<Kind, Kind::None>());
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
    return mThreshold != nullptr ? stateIn(entry, scaledLimits().data()) : StateOk;
}

void Decoder::states(std::span<const RecordEntry> entries, int* states) const
{
    if (mThreshold == nullptr) {
        std::fill_n(states, entries.size(), StateOk);
        return;
    }
    const std::vector<double> limits = scaledLimits();
    for (const RecordEntry& entry : entries) {
        *states++ = stateIn(entry, limits.data());
    }
}

/// Threshold values are scaled like readings before the two are compared.
std::vector<double> Decoder::scaledLimits() const
{
    std::vector<double> limits;
    limits.reserve(mThreshold->values.size());
    for (const ProfileThrValue& step : mThreshold->values) {
        limits.push_back(scale(step.val));
    }
    return limits;
}

inline int Decoder::stateIn(const RecordEntry& entry, const double* limits) const
{
    if (entry.data[TypeByte] != DataType::Float) {
        return StateOk;
    }
    const auto value = std::bit_cast<float>(loadBig<std::uint32_t>(entry.data + DataByte));
    const auto compared = static_cast<float>(scale(value));
    int state = StateOk;
    for (std::size_t i = 0; i < mThreshold->values.size() && !(limits[i] > compared); ++i) {
        state = mThreshold->values[i].state;
    }
    return state;
}

QColor Decoder::appendDisplay(const RecordEntry& entry, std::string& text) const
{
    if (!isNumeric()) {
        appendWords(entry, text);
        return Qt::white;
    }
    const Reading shown = reading(entry);
    appendGeneral(shown.value, TextDigits, text);
    return colorFor(shown.compared);
}

void Decoder::appendText(const RecordEntry& entry, std::string& text) const
{
    if (isNumeric()) {
        appendGeneral(reading(entry).value, TextDigits, text);
    } else {
        appendWords(entry, text);
    }
}

bool Decoder::isNumeric() const
{
    return mKind != Kind::BLong && mKind != Kind::BShort && mKind != Kind::None;
}

Decoder::Reading Decoder::reading(const RecordEntry& entry) const
{
    switch (mKind) {
    case Kind::Float: {
        const auto value = static_cast<float>(scale(loadFloat(entry)));
        return {value, value};
    }
    case Kind::Nmea:
        return nmeaReading(entry);
    case Kind::Char:
    case Kind::UChar:
        return byteReading(entry);
    case Kind::Long48:
        // The reading takes no part in the colour of these cells.
        return {scale(rawNumber<Kind::Long48>(entry)), 0.0};
    default: {
        const double raw = dispatch([&](auto kind) { return rawNumber<kind()>(entry); });
        return {scale(raw), raw};
    }
    }
}

Decoder::Reading Decoder::nmeaReading(const RecordEntry& entry) const
{
    const auto value = static_cast<float>(scale(loadFloat(entry)));
    return {degreesOf<float>(value), value};
}

/// Bytes stay bytes after scaling: the result wraps.
Decoder::Reading Decoder::byteReading(const RecordEntry& entry) const
{
    const bool isSigned = mKind == Kind::Char;
    const double raw = isSigned ? rawNumber<Kind::Char>(entry) : rawNumber<Kind::UChar>(entry);
    const double wrapped = std::fmod(std::trunc(scale(raw)), 256.0);
    const auto byte = static_cast<std::uint8_t>(truncatedTo<int>(wrapped));
    const double value = isSigned ? static_cast<std::int8_t>(byte) : byte;
    return {value, value};
}

void Decoder::appendWords(const RecordEntry& entry, std::string& text) const
{
    if (mKind == Kind::BLong) {
        const auto value = static_cast<std::int32_t>(bitField(load<std::uint32_t>(entry)));
        appendBitField(value, ": Invalid ENUM Type", ": Invalid ENUM Value", text);
    } else if (mKind == Kind::BShort) {
        appendBitField(static_cast<int>(bitField(load<std::uint16_t>(entry))), "", "", text);
    } else {
        text += "Datatype " + std::to_string(entry.data[TypeByte]) + " not implemented";
    }
}

void Decoder::appendBitField(int value, const char* withoutEnum, const char* withoutValue,
                             std::string& text) const
{
    text += std::to_string(value);
    const ProfileEnumValue* named = mEnum != nullptr ? findOrNull(mEnum->values, value) : nullptr;
    if (named != nullptr) {
        text += ": " + named->label.toStdString();
    } else {
        text += mEnum == nullptr ? withoutEnum : withoutValue;
    }
}

QColor Decoder::colorFor(double compared) const
{
    QColor color = Qt::white;
    if (mThreshold != nullptr) {
        for (const ProfileThrValue& step : mThreshold->values) {
            if (scale(step.val) > compared) {
                break;
            }
            color = step.color;
        }
    }
    return color;
}

} // namespace TARN
