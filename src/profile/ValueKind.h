#pragma once

namespace TARN {

/// How the bytes of a value are to be read. Several type codes are of one kind.
enum class ValueKind
{
    Float,
    Nmea, ///< a FLOAT of degrees and minutes
    Long,
    ULong,
    Short,
    UShort,
    Char,
    UChar,
    Long48,
    BLong,  ///< bits of 32
    BShort, ///< bits of 16
    None    ///< not decoded
};

ValueKind valueKindOf(int typeCode);

/// Whether a value is a number, not a word or a bit field.
constexpr bool isNumber(ValueKind kind)
{
    return kind != ValueKind::BLong && kind != ValueKind::BShort && kind != ValueKind::None;
}

} // namespace TARN
