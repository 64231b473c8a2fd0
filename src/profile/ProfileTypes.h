#pragma once

#include <QtCore/QString>
#include <QtGui/QColor>

#include <atomic>
#include <map>
#include <optional>
#include <vector>

namespace TARN {

/// CANaerospace data type codes, and two of our own outside the standard range.
namespace DataType {
enum Code : int
{
    NoData = 0,
    Float = 2,
    Long = 3,
    ULong = 4,
    BLong = 5,
    Short = 6,
    UShort = 7,
    BShort = 8,
    Char = 9,
    UChar = 10,
    Short2 = 12,
    UShort2 = 13,
    Char4 = 15,
    UChar4 = 16,
    Char2 = 18,
    UChar2 = 19,
    Char3 = 26,
    UChar3 = 27,
    Long48 = 30,
    Nmea = 70
};
}

/// Threshold states.
enum State : int
{
    StateOk = 0,
    StateWarning = 1,
    StateLimit = 2
};

/// Error types of a fault matrix bit.
enum ErrorType : int
{
    ErrorNone = 0,
    ErrorInfo = 1,
    ErrorWarning = 2,
    ErrorFault = 3
};

/// Process-wide numbers by which views remember parts of a profile.
struct ProfileUid
{
    static int next() { return mUid.fetch_add(1, std::memory_order_relaxed); }

private:
    static inline std::atomic<int> mUid = 1; ///< profiles may be loaded on several threads
};

struct ProfileUnit
{
    int code = 0;
    QString acronym;
    QString name;
};

struct ProfileEnumValue
{
    int val = 0;
    QString label;
    int uid = ProfileUid::next();
};

struct ProfileEnum
{
    int id = 0;
    QString name;
    std::map<int, ProfileEnumValue> values; ///< by value
    int uid = 0;
};

struct ProfileThrValue
{
    double val = 0.0; ///< unscaled: compared after the parameter's own factor and offset
    QColor color;     ///< invalid when the profile names none
    int uid = ProfileUid::next();
    int state = StateOk;
};

struct ProfileThr
{
    int id = 0;
    QString name;
    std::vector<ProfileThrValue> values; ///< in document order, meant to ascend
    int uid = ProfileUid::next();
};

struct ProfileParameter
{
    QString name;
    QString fullName; ///< device name, "/", parameter name
    QString unit;
    QString viewId;
    int dataType = DataType::NoData;
    int enumId = 0;      ///< 0 none
    int thresholdId = 0; ///< 0 none
    int id = 0;          ///< CAN identifier
    int startByte = 0;   ///< index into the sample, 0 is the first payload byte
    int startBit = 0;
    int endBit = 0;
    int channel = 0;
    double offset = 0.0;
    double factor = 1.0;
    int uid = ProfileUid::next();
    int errorType = ErrorNone;
    /// Percent by which its values may differ where a flight is steady; nothing: they don't count.
    std::optional<double> steady;
    std::optional<double> steadyAbove; ///< scaled; above it they are where a flight is steady

    /// Name, with the unit in brackets where there is one: "RPM [1/min]".
    QString title() const { return unit.isEmpty() ? name : QString("%1 [%2]").arg(name, unit); }
};

struct ProfileDevice
{
    int id = 0;
    QString name;
    std::map<int, ProfileParameter> parameters; ///< by uid: document order
    int uid = ProfileUid::next();
};

struct FaultMatrix
{
    int id = 0; ///< CAN identifier of the status message
    QString name;
    std::map<int, ProfileParameter> parameters; ///< by bit number, 0 ... Bits - 1

    static constexpr int Bits = 32;
};

struct ProfileInfo
{
    QString name;
    std::map<int, ProfileDevice> devices; ///< by id, 1 ... in document order
    std::map<int, ProfileEnum> enums;     ///< by id, 1 ... in document order
    std::map<int, ProfileUnit> units;     ///< by code
    std::map<int, ProfileThr> thresholds; ///< by id, 1 ... in document order
    std::vector<FaultMatrix> faultMatrices;
    int uid = ProfileUid::next();

    void clear();
};

/// Where the position of the flight path comes from; all 0 until a parameter names it.
struct KmlInfo
{
    int latitudeChannel = 0;
    int latitudeId = 0;
    int longitudeChannel = 0;
    int longitudeId = 0;
    int altitudeChannel = 0;
    int altitudeId = 0;
};

} // namespace TARN
