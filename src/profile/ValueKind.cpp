#include "profile/ValueKind.h"

#include "profile/ProfileTypes.h"

namespace TARN {

ValueKind valueKindOf(int typeCode)
{
    switch (typeCode) {
    case DataType::Float:
        return ValueKind::Float;
    case DataType::Nmea:
        return ValueKind::Nmea;
    case DataType::Long:
        return ValueKind::Long;
    case DataType::ULong:
        return ValueKind::ULong;
    case DataType::BLong:
        return ValueKind::BLong;
    case DataType::Short:
    case DataType::Short2:
        return ValueKind::Short;
    case DataType::UShort:
    case DataType::UShort2:
        return ValueKind::UShort;
    case DataType::BShort:
        return ValueKind::BShort;
    case DataType::Char:
    case DataType::Char2:
    case DataType::Char3:
    case DataType::Char4:
        return ValueKind::Char;
    case DataType::UChar:
    case DataType::UChar2:
    case DataType::UChar3:
    case DataType::UChar4:
        return ValueKind::UChar;
    case DataType::Long48:
        return ValueKind::Long48;
    default:
        return ValueKind::None;
    }
}

} // namespace TARN
