#pragma once

#include "profile/ProfileTypes.h"
#include "record/RecordEntry.h"

#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace TARN {

/// Turns the samples of one parameter into values, states and texts: the single place where raw
/// bytes become engineering values. Data type, bit field, scale, threshold and enumeration are
/// looked up once, then any number of samples is decoded.
///
/// Values lie in the 28 bytes of a sample, big-endian, startByte counted from the payload's
/// first byte; bytes before or beyond the sample read as 0. Refers to the profile and the
/// parameter that it was made from: use it before the next load.
class Decoder
{
public:
    Decoder(const ProfileInfo& profile, const ProfileParameter& parameter);

    /// Integer value chosen by the message's own type code (payload byte 1), unscaled.
    int toInt(const RecordEntry& entry) const;

    /// Engineering value chosen by the parameter's data type; 0 for types without a number.
    /// Integers of up to 32 bits pass through single precision; bit fields are never scaled.
    double toDouble(const RecordEntry& entry, bool scaled) const;

    /// toDouble of every entry; \p values has room for as many.
    void toDoubles(std::span<const RecordEntry> entries, bool scaled, double* values) const;

    /// Threshold state of a message of type FLOAT; StateOk for any other.
    int state(const RecordEntry& entry) const;

    /// state of every entry; \p states has room for as many.
    void states(std::span<const RecordEntry> entries, int* states) const;

    /// Appends the display text (UTF-8) and returns the cell colour: white, or that of the
    /// highest threshold reached, which is invalid where the profile names none.
    QColor appendDisplay(const RecordEntry& entry, std::string& text) const;

    /// The text of appendDisplay alone.
    void appendText(const RecordEntry& entry, std::string& text) const;

private:
    enum class Kind
    {
        Float,
        Nmea,
        Long,
        ULong,
        Short,
        UShort,
        Char,
        UChar,
        Long48,
        BLong,
        BShort,
        None
    };

    /// What a sample shows: the number printed, and the one held against the thresholds.
    struct Reading
    {
        double value;
        double compared;
    };

    static Kind kindOf(int typeCode);

    template <typename Unsigned>
    Unsigned load(const RecordEntry& entry) const;
    std::uint64_t loadBytes(const RecordEntry& entry, int width) const;
    float loadFloat(const RecordEntry& entry) const;
    std::uint32_t bitField(std::uint32_t word) const;
    int stateIn(const RecordEntry& entry, const double* limits) const;
    std::vector<double> scaledLimits() const;
    double scale(double raw) const { return raw * mFactor + mOffset; }

    template <Kind kind>
    double rawNumber(const RecordEntry& entry) const;
    template <Kind kind>
    double number(const RecordEntry& entry, bool scaled) const;
    template <typename Visitor>
    auto dispatch(Visitor visit) const;

    Reading reading(const RecordEntry& entry) const;
    Reading nmeaReading(const RecordEntry& entry) const;
    Reading byteReading(const RecordEntry& entry) const;
    void appendWords(const RecordEntry& entry, std::string& text) const;
    void appendBitField(int value, const char* withoutEnum, const char* withoutValue,
                        std::string& text) const;
    bool isNumeric() const;
    QColor colorFor(double compared) const;

    Kind mKind;
    int mStartByte;
    int mStartBit;
    std::uint32_t mMask;
    double mFactor;
    double mOffset;
    const ProfileThr* mThreshold; ///< null when there is none
    const ProfileEnum* mEnum;     ///< null when there is none
};

} // namespace TARN
