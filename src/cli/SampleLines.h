#pragma once

#include "profile/Decoder.h"
#include "profile/ProfileTypes.h"

#include <iosfwd>
#include <string>

namespace TARN {

/// How samples are written, one a line. All have the same fields in the same order: device,
/// parameter, channel, id, time, int, double, raw, state, text, color; numbers round-trip exactly.
enum class LineFormat
{
    JsonLines, ///< objects; what is no finite number and an invalid colour are null
    Csv, ///< separated by commas, quoted where it must be, after a line of names; null is empty
    Tsv  ///< separated by tabs, \t \n \r \\ escaped, after a line of names; null is \N
};

/// Writes samples, many at once.
class SampleLines
{
public:
    /// Both streams and texts outlive it; what is left is written by flush.
    SampleLines(LineFormat format, std::ostream& out);

    /// Of which parameter what follows is.
    void begin(const ProfileDevice& device, const ProfileParameter& parameter);
    void add(const RecordEntry& entry, const Decoder& decoder);
    void flush();

private:
    void field(const char* name);
    void number(const char* name, double value);
    void number(const char* name, int value);
    void appendText(const std::string& text);
    void appendColor(const QColor& color);
    void appendNull();

    LineFormat mFormat;
    std::ostream& mOut;
    std::string mBuffer;
    std::string mBeginning; ///< of each line
    std::string mText;
};

} // namespace TARN
