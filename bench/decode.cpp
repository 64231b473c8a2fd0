#include "Suite.h"
#include "base/ByteOrder.h"
#include "profile/Decoder.h"

#include <bit>
#include <charconv>
#include <vector>

namespace TARN::Bench {

namespace {

/// Samples of one message as a loaded recording holds them.
std::vector<RecordEntry> floatSamples(std::size_t count)
{
    const Message message{0, 520, DataType::Float, 1, 0};
    Random random;
    std::vector<RecordEntry> samples(count);
    for (std::size_t i = 0; i < count; ++i) {
        fillPayload(message, i, random, samples[i].data);
        samples[i].id = message.id;
        samples[i].timeLow = static_cast<std::uint32_t>(i);
    }
    return samples;
}

ProfileParameter floatParameter()
{
    ProfileParameter parameter;
    parameter.dataType = DataType::Float;
    parameter.startByte = 4;
    parameter.factor = 0.25;
    parameter.offset = 1.5;
    parameter.thresholdId = 1;
    return parameter;
}

/// A profile whose threshold splits the values of floatParameter() into five ranges.
ProfileInfo fourStepProfile()
{
    ProfileInfo profile;
    for (const double value : {20.0, 50.0, 80.0, 110.0}) {
        ProfileThrValue step;
        step.val = value;
        step.color = QColor(static_cast<int>(value), 200, 100);
        profile.thresholds[1].values.push_back(step);
    }
    return profile;
}

float rawFloat(const RecordEntry& sample)
{
    return std::bit_cast<float>(loadBig<std::uint32_t>(sample.data + 4));
}

double columnRatio()
{
    const ProfileInfo profile = fourStepProfile();
    const ProfileParameter parameter = floatParameter();
    const Decoder decoder(profile, parameter);
    const std::vector<RecordEntry> samples = floatSamples(1'000'000);
    const auto decode = [&] {
        std::vector<double> values(samples.size()); // already touched: its pages are no decoding
        return secondsOf([&] {
            decoder.toDoubles(samples, true, values.data());
            keep(values);
        });
    };
    const auto sum = [&] {
        return secondsOf([&] {
            double total = 0.0;
            for (const RecordEntry& sample : samples) {
                total += rawFloat(sample);
            }
            keep(total);
        });
    };
    std::vector<double> values(samples.size());
    decoder.toDoubles(samples, true, values.data());
    for (std::size_t i = 0; i < samples.size(); ++i) {
        require(values[i] == rawFloat(samples[i]) * 0.25 + 1.5, "a value differs");
    }
    return ratioOf(decode, sum, 15);
}

std::string printed(double value)
{
    char buffer[64];
    return {buffer,
            std::to_chars(buffer, std::end(buffer), value, std::chars_format::general, 12).ptr};
}

void checkText(const Decoder& decoder, const ProfileInfo& profile, const RecordEntry& sample)
{
    const double raw = rawFloat(sample);
    const auto value = static_cast<float>(raw * 0.25 + 1.5);
    QColor expected = Qt::white;
    for (const ProfileThrValue& step : profile.thresholds.at(1).values) {
        expected = step.val * 0.25 + 1.5 <= value ? step.color : expected;
    }
    std::string text;
    require(decoder.appendDisplay(sample, text) == expected, "a colour differs");
    require(text == printed(value), "a text differs");
}

double textRatio()
{
    const ProfileInfo profile = fourStepProfile();
    const ProfileParameter parameter = floatParameter();
    const Decoder decoder(profile, parameter);
    const std::vector<RecordEntry> samples = floatSamples(200'000);
    std::vector<double> values;
    for (const RecordEntry& sample : samples) {
        checkText(decoder, profile, sample);
        values.push_back(static_cast<float>(rawFloat(sample) * 0.25 + 1.5));
    }
    const auto display = [&] {
        std::string text;
        return secondsOf([&] {
            for (const RecordEntry& sample : samples) {
                text.clear();
                keep(decoder.appendDisplay(sample, text));
                keep(text);
            }
        });
    };
    const auto print = [&] {
        char buffer[64];
        return secondsOf([&] {
            for (const double value : values) {
                keep(std::to_chars(buffer, std::end(buffer), value, std::chars_format::general, 12)
                         .ptr);
            }
        });
    };
    return ratioOf(display, print, 9);
}

} // namespace

void decodeFigures(Suite& suite)
{
    suite.figure("decode.column", 3.0, columnRatio);
    suite.figure("decode.text", 2.5, textRatio);
}

} // namespace TARN::Bench
