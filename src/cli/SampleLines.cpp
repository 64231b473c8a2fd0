#include "cli/SampleLines.h"

#include "cli/Json.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <ostream>
#include <string_view>

namespace TARN {

namespace {

constexpr const char* Names[] = {"device", "parameter", "channel", "id",   "time", "int",
                                 "double", "raw",       "state",   "text", "color"};

char separatorOf(LineFormat format)
{
    return format == LineFormat::Tsv ? '\t' : ',';
}

/// As few digits as tell it from every other number; laid out as all our JSON is.
void appendNumber(double value, std::string& to)
{
    constexpr double Shortest = 1e-4;
    constexpr double Longest = 1e15;
    char digits[32];
    const double size = std::fabs(value);
    const bool isFixed = value == 0.0 || (size >= Shortest && size < Longest);
    const auto end =
        std::to_chars(digits, digits + sizeof digits, value,
                      isFixed ? std::chars_format::fixed : std::chars_format::scientific)
            .ptr;
    to.append(digits, end);
    if (isFixed && std::find(digits, end, '.') == end) {
        to += ".0";
    }
}

bool isPlain(std::string_view text, std::string_view special)
{
    return std::ranges::none_of(text, [=](char c) {
        return static_cast<unsigned char>(c) < ' ' || special.find(c) != special.npos;
    });
}

void appendJson(const std::string& text, std::string& to)
{
    constexpr int NoIndent = -1;
    const bool isAscii =
        std::ranges::none_of(text, [](char c) { return static_cast<unsigned char>(c) > 0x7E; });
    if (isAscii && isPlain(text, "\"\\")) {
        to.append(1, '"').append(text).append(1, '"');
    } else {
        to += Json(text).dump(NoIndent, ' ', false, Json::error_handler_t::replace);
    }
}

void appendCsv(const std::string& text, std::string& to)
{
    if (!text.empty() && isPlain(text, ",\"") && text.front() != ' ' && text.back() != ' ') {
        to += text;
        return;
    }
    to += '"';
    for (const char c : text) {
        to.append(c == '"' ? 2 : 1, c);
    }
    to += '"';
}

void appendTsv(const std::string& text, std::string& to)
{
    for (const char c : text) {
        const auto escape = std::string_view("\t\n\r\\").find(c);
        if (escape != std::string_view::npos) {
            to.append(1, '\\').append(1, "tnr\\"[escape]);
        } else {
            to += c;
        }
    }
}

} // namespace

SampleLines::SampleLines(LineFormat format, std::ostream& out) : mFormat(format), mOut(out)
{
    if (mFormat != LineFormat::JsonLines) {
        for (const char* name : Names) {
            mBuffer.append(name).append(1, separatorOf(mFormat));
        }
        mBuffer.back() = '\n';
    }
}

void SampleLines::begin(const ProfileDevice& device, const ProfileParameter& parameter)
{
    std::swap(mBuffer, mBeginning); // it is written where lines are
    mBuffer = mFormat == LineFormat::JsonLines ? "{\"device\":" : "";
    appendText(device.name.toStdString());
    field("parameter");
    appendText(parameter.name.toStdString());
    field("channel");
    mBuffer += std::to_string(static_cast<unsigned>(parameter.channel));
    field("id");
    mBuffer += std::to_string(static_cast<unsigned>(parameter.id));
    std::swap(mBuffer, mBeginning);
}

void SampleLines::add(const RecordEntry& entry, const Decoder& decoder)
{
    constexpr std::size_t Full = 1 << 16;
    mText.clear();
    const QColor color = decoder.appendDisplay(entry, mText);
    mBuffer += mBeginning;
    number("time", entry.time());
    number("int", decoder.toInt(entry));
    number("double", decoder.toDouble(entry, true));
    number("raw", decoder.toDouble(entry, false));
    number("state", decoder.state(entry));
    field("text");
    appendText(mText);
    field("color");
    appendColor(color);
    mBuffer += mFormat == LineFormat::JsonLines ? "}\n" : "\n";
    if (mBuffer.size() >= Full) {
        flush();
    }
}

void SampleLines::flush()
{
    mOut.write(mBuffer.data(), static_cast<std::streamsize>(mBuffer.size()));
    mBuffer.clear();
}

void SampleLines::field(const char* name)
{
    mBuffer += separatorOf(mFormat);
    if (mFormat == LineFormat::JsonLines) {
        mBuffer.append(1, '"').append(name).append("\":");
    }
}

void SampleLines::number(const char* name, double value)
{
    field(name);
    if (std::isfinite(value)) {
        appendNumber(value, mBuffer);
    } else {
        appendNull();
    }
}

void SampleLines::number(const char* name, int value)
{
    char digits[16];
    field(name);
    mBuffer.append(digits, std::to_chars(digits, digits + sizeof digits, value).ptr);
}

void SampleLines::appendText(const std::string& text)
{
    switch (mFormat) {
    case LineFormat::JsonLines:
        return appendJson(text, mBuffer);
    case LineFormat::Csv:
        return appendCsv(text, mBuffer);
    case LineFormat::Tsv:
        return appendTsv(text, mBuffer);
    }
}

/// As QColor::name does, without making a text.
void SampleLines::appendColor(const QColor& color)
{
    if (!color.isValid()) {
        return appendNull();
    }
    const char* quote = mFormat == LineFormat::JsonLines ? "\"" : "";
    const QRgb rgb = color.rgb();
    mBuffer.append(quote).append(1, '#');
    for (int shift = 20; shift >= 0; shift -= 4) {
        mBuffer += "0123456789abcdef"[rgb >> shift & 0xF];
    }
    mBuffer.append(quote);
}

void SampleLines::appendNull()
{
    mBuffer += mFormat == LineFormat::JsonLines ? "null" : mFormat == LineFormat::Tsv ? "\\N" : "";
}

} // namespace TARN
