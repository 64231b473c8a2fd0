#pragma once

#include "profile/PayloadField.h"
#include "profile/ThresholdSteps.h"
#include "profile/ValueKind.h"

#include <cstdint>
#include <span>
#include <string>

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
    void states(std::span<const RecordEntry> entries, std::uint8_t* states) const;

    /// The threshold value that colours the sample's cell, the last one in document order that it
    /// has reached, as a place among thresholds(); -1 where it has reached none, where the
    /// parameter has no threshold and for types without a number or with an enumeration. It is
    /// reached while no value before it, times factor plus offset, is greater than the reading:
    /// the scaled one, unscaled for integers of 16 and 32 bits, 0 for LONG48. NaN reaches the
    /// last.
    int reachedLimit(const RecordEntry& entry) const;

    /// State of that threshold value, StateOk without one. For FLOAT and NMEA parameters at byte
    /// 4 in messages of type FLOAT the same as state(); other samples have one too.
    int cellState(const RecordEntry& entry) const;

    /// cellState of every entry; \p states has room for as many.
    void cellStates(std::span<const RecordEntry> entries, std::uint8_t* states) const;

    const ThresholdSteps& thresholds() const { return mThresholds; }

    /// Whether a sample is a number, not a word or a bit field.
    bool isNumeric() const { return isNumber(mKind); }
    /// Whether numbers are of single precision as they were sent.
    bool isSingle() const { return mKind == ValueKind::Float || mKind == ValueKind::Nmea; }

    /// Appends the display text (UTF-8) and returns the cell colour: white, or that of the
    /// highest threshold reached, which is invalid where the profile names none.
    QColor appendDisplay(const RecordEntry& entry, std::string& text) const;

    /// The colour of appendDisplay alone.
    QColor cellColor(const RecordEntry& entry) const;

    /// The text of appendDisplay alone.
    void appendText(const RecordEntry& entry, std::string& text) const;

    /// The same for a reader's eyes: a number of single precision has as many digits as it takes
    /// to read the same number back, 4.06 and not 4.05999994278.
    void appendShort(const RecordEntry& entry, std::string& text) const;

private:
    /// What a sample shows: the number printed, and the one held against the thresholds.
    struct Reading
    {
        double value;
        double compared;
    };

    double scale(double raw) const { return raw * mFactor + mOffset; }

    template <ValueKind kind>
    double rawNumber(const RecordEntry& entry) const;
    template <ValueKind kind>
    double number(const RecordEntry& entry, bool scaled) const;
    template <typename Visitor>
    auto dispatch(Visitor visit) const;

    Reading reading(const RecordEntry& entry) const;
    Reading nmeaReading(const RecordEntry& entry) const;
    Reading byteReading(const RecordEntry& entry) const;
    void appendWords(const RecordEntry& entry, std::string& text) const;

    ValueKind mKind;
    PayloadField mField;
    double mFactor;
    double mOffset;
    ThresholdSteps mThresholds;
    const ProfileEnum* mEnum; ///< null when there is none
};

} // namespace TARN
