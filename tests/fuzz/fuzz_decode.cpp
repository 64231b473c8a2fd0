/// Any fields of a parameter and any samples: every way to decode a sample gives the same.

#include "base/ByteOrder.h"
#include "base/Numbers.h"
#include "fuzz/Fuzz.h"
#include "profile/Decoder.h"
#include "profile/Profile.h"

#include <bit>
#include <vector>

using namespace TARN;
using Fuzz::require;

namespace {

/// Where a field may begin and end: mostly in the sample, now and then anywhere.
int position(Fuzz::Input& input)
{
    const auto byte = input.take<std::int8_t>();
    return byte == -128 ? input.take<std::int32_t>() : byte;
}

ProfileParameter takeParameter(Fuzz::Input& input)
{
    ProfileParameter parameter;
    parameter.dataType = input.take<std::uint8_t>();
    parameter.startByte = position(input);
    parameter.startBit = position(input);
    parameter.endBit = position(input);
    parameter.factor = input.take<double>();
    parameter.offset = input.take<double>();
    parameter.thresholdId = 1;
    parameter.enumId = 1;
    return parameter;
}

/// Thresholds and labels, as many as the next byte says; none is none.
ProfileInfo takeProfile(Fuzz::Input& input)
{
    ProfileInfo profile;
    const auto counts = input.take<std::uint8_t>();
    for (int i = 0; i < (counts & 7); ++i) {
        ProfileThrValue value;
        value.val = input.take<float>();
        value.state = input.take<std::uint8_t>() % 3;
        value.color = QColor(10 + i, 20, 30);
        profile.thresholds[1].values.push_back(value);
    }
    for (int i = 0; i < (counts >> 3 & 7); ++i) {
        const auto value = input.take<std::int16_t>();
        profile.enums[1].values[value] = {value, "label", 1};
    }
    return profile;
}

std::uint64_t bits(double value)
{
    return std::bit_cast<std::uint64_t>(value);
}

float number(const std::string& text)
{
    return std::strtof(text.c_str(), nullptr);
}

/// The threshold that a sample reached tells its colour and its state.
void checkColor(const Decoder& decoder, const RecordEntry& entry, const QColor& color)
{
    const int reached = decoder.reachedLimit(entry);
    require(reached < 0 || decoder.thresholds().threshold() != nullptr);
    const ProfileThrValue none{0.0, Qt::white};
    const ProfileThrValue& limit =
        reached < 0
            ? none
            : decoder.thresholds().threshold()->values.at(static_cast<std::size_t>(reached));
    require(color == limit.color && decoder.cellColor(entry) == color);
    require(decoder.cellState(entry) == limit.state);
}

/// Numbers are printed by a way of our own that is faster than the library's.
void checkPrinting(double value)
{
    for (int digits = 1; digits <= 18; ++digits) {
        char expected[64];
        std::snprintf(expected, sizeof expected, "%.*g", digits, value);
        std::string text;
        appendGeneral(value, digits, text);
        require(text == expected);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Fuzz::Input input({data, size});
    const ProfileParameter parameter = takeParameter(input);
    const ProfileInfo profile = takeProfile(input);
    const Decoder decoder(profile, parameter);

    std::vector<RecordEntry> entries(input.rest().size() / sizeof(RecordEntry));
    for (RecordEntry& entry : entries) {
        entry = input.take<RecordEntry>();
    }
    std::vector<double> scaled(entries.size());
    std::vector<double> raw(entries.size());
    std::vector<std::uint8_t> states(entries.size());
    std::vector<std::uint8_t> cellStates(entries.size());
    decoder.toDoubles(entries, true, scaled.data());
    decoder.toDoubles(entries, false, raw.data());
    decoder.states(entries, states.data());
    decoder.cellStates(entries, cellStates.data());
    for (std::size_t i = 0; i < entries.size(); ++i) {
        const RecordEntry& entry = entries[i];
        require(bits(decoder.toDouble(entry, true)) == bits(scaled[i]));
        require(bits(decoder.toDouble(entry, false)) == bits(raw[i]));
        require(decoder.state(entry) == states[i] && decoder.cellState(entry) == cellStates[i]);
        decoder.toInt(entry);
        std::string text;
        std::string shown;
        std::string shortest;
        decoder.appendText(entry, text);
        decoder.appendShort(entry, shortest);
        checkColor(decoder, entry, decoder.appendDisplay(entry, shown));
        require(text == shown && !text.empty());
        require(shortest == text || (decoder.isSingle() && number(shortest) == number(text)));
        checkPrinting(scaled[i]);
        checkPrinting(loadLittle<double>(entry.data));
    }
    return 0;
}
