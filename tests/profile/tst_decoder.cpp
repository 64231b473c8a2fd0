#include "base/Numbers.h"
#include "profile/Decoder.h"
#include "support/CoreTest.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstring>
#include <limits>
#include <random>

using namespace TARN;

namespace {

constexpr double Inf = std::numeric_limits<double>::infinity();
constexpr int Lowest = std::numeric_limits<int>::min();
constexpr int Highest = std::numeric_limits<int>::max();

/// Decoding done the plain way, a byte at a time and a rule after the other.
struct PlainDecoder
{
    const ProfileInfo& profile;
    const ProfileParameter& parameter;
    const RecordEntry& entry;

    static int family(int type)
    {
        const std::map<int, int> first = {{12, 6}, {13, 7},  {15, 9},  {18, 9},
                                          {26, 9}, {16, 10}, {19, 10}, {27, 10}};
        return first.contains(type) ? first.at(type) : type;
    }
    static bool isSingle(int type) { return type == 2 || type == 70; }
    static bool isField(int type) { return type == 5 || type == 8; }
    static bool isNumber(int type)
    {
        return isSingle(type) || type == 30 || (type >= 3 && type <= 10 && !isField(type));
    }

    std::uint64_t big(int width, std::int64_t from) const
    {
        unsigned char bytes[28];
        std::memcpy(bytes, &entry, sizeof bytes);
        std::uint64_t value = 0;
        for (std::int64_t i = from; i < from + width; ++i) {
            value = value << 8 | (i >= 0 && i < 28 ? bytes[i] : 0U);
        }
        return value;
    }
    float single(int from) const { return std::bit_cast<float>(std::uint32_t(big(4, from))); }
    double scale(double raw) const { return raw * parameter.factor + parameter.offset; }

    std::uint32_t field(std::uint64_t word) const
    {
        const std::int64_t bits = std::int64_t(parameter.endBit) - parameter.startBit + 1;
        if (parameter.startBit < 0 || parameter.startBit > 31 || bits <= 0) {
            return 0;
        }
        word >>= parameter.startBit;
        return static_cast<std::uint32_t>(bits >= 32 ? word : word & ((1ULL << bits) - 1));
    }

    /// The integer of a type family.
    std::int64_t whole(int type) const
    {
        const int width = type <= 5 ? 4 : type <= 8 ? 2 : type <= 10 ? 1 : 6;
        const std::uint64_t word = big(width, parameter.startByte);
        const bool isSigned = type == 3 || type == 6 || type == 9;
        const bool isNegative = isSigned && word >> (8 * width - 1) != 0;
        return isField(type)
                   ? field(word)
                   : static_cast<std::int64_t>(word) - (isNegative ? 1LL << 8 * width : 0);
    }

    int toInt() const
    {
        const int type = family(entry.data[1]);
        return type >= 3 && type <= 10 ? static_cast<int>(whole(type)) : 0;
    }

    template <typename Real>
    static Real degrees(Real value)
    {
        const auto x = static_cast<Real>(value * 0.01);
        const int d = std::isnan(x) ? 0 : static_cast<int>(std::clamp<double>(x, Lowest, Highest));
        return static_cast<Real>((x - double(d)) / 0.6 + d);
    }

    double toDouble(bool scaled) const
    {
        const int type = family(parameter.dataType);
        if (!isNumber(type)) {
            return isField(type) ? static_cast<double>(whole(type)) : 0.0;
        }
        const double raw = isSingle(type) ? single(parameter.startByte)
                           : type == 30   ? static_cast<double>(whole(type))
                                          : static_cast<float>(whole(type));
        const double value = scaled ? scale(raw) : raw;
        return type == 70 ? degrees(value) : value;
    }

    /// Place of the last threshold value that \p reading has reached one after the other.
    int reached(double reading) const
    {
        const auto found = profile.thresholds.find(parameter.thresholdId);
        int count = 0;
        while (found != profile.thresholds.end() && count < int(found->second.values.size()) &&
               !(scale(found->second.values[count].val) > reading)) {
            ++count;
        }
        return count - 1;
    }
    const ProfileThrValue& limit(int place) const
    {
        return profile.thresholds.at(parameter.thresholdId).values.at(place);
    }

    int state() const
    {
        const int place = reached(static_cast<float>(scale(single(4))));
        return entry.data[1] == 2 && place >= 0 ? limit(place).state : 0;
    }

    std::string words(int type) const
    {
        const int n = static_cast<int>(whole(type));
        const auto found = profile.enums.find(parameter.enumId);
        const bool exists = found != profile.enums.end();
        return std::to_string(n) + (exists && found->second.values.contains(n)
                                        ? ": " + found->second.values.at(n).label.toStdString()
                                    : type == 8 ? ""
                                    : exists    ? ": Invalid ENUM Value"
                                                : ": Invalid ENUM Type");
    }

    struct Cell
    {
        std::string text;
        std::string shortText = text;
        QColor color = Qt::white;
        int reached = -1; ///< place of the threshold value that colours it
        int state = 0;
    };

    Cell cell() const
    {
        const int type = family(parameter.dataType);
        if (!isNumber(type)) {
            return {isField(type)
                        ? words(type)
                        : "Datatype " + std::to_string(entry.data[1]) + " not implemented"};
        }
        double shown = scale(static_cast<double>(whole(type)));
        double compared = type == 30 ? 0.0 : static_cast<double>(whole(type));
        if (type == 9 || type == 10) {
            // From 2^63 on every double is a multiple of 256.
            const auto byte = std::abs(shown) < 0x1p63 ? std::int64_t(shown) & 0xFF : 0;
            shown = compared = static_cast<double>(type == 9 && byte > 127 ? byte - 256 : byte);
        } else if (isSingle(type)) {
            shown = compared = static_cast<float>(scale(single(parameter.startByte)));
        }
        if (type == 70) {
            shown = degrees(static_cast<float>(compared));
        }
        char text[64];
        std::snprintf(text, sizeof text, "%.12g", shown);
        Cell cell{text};
        if (isSingle(type)) {
            cell.shortText.clear();
            appendShortest(static_cast<float>(shown), cell.shortText);
        }
        if (const int place = reached(compared); place >= 0) {
            cell = {text, cell.shortText, limit(place).color, place, limit(place).state};
        }
        return cell;
    }
};

ProfileInfo smallProfile()
{
    ProfileInfo profile;
    profile.enums[1].values[3].label = "three";
    profile.enums[1].values[-1].label = "minus";
    profile.thresholds[1].values = {{10, Qt::green, 0, StateOk},
                                    {20, Qt::yellow, 0, StateWarning},
                                    {30, Qt::red, 0, StateLimit}};
    profile.thresholds[2].values = {{0, Qt::green, 0, StateOk}, {100, Qt::red, 0, StateLimit}};
    return profile;
}

bool same(double a, double b)
{
    return (std::isnan(a) && std::isnan(b)) ||
           std::bit_cast<std::uint64_t>(a) == std::bit_cast<std::uint64_t>(b);
}

} // namespace

class TestDecoder : public CoreTest
{
    Q_OBJECT

    int below(unsigned n) { return static_cast<int>(mRandom() % n); }

    template <typename... Values>
    auto oneOf(Values... values)
    {
        const std::common_type_t<Values...> all[] = {values...};
        return all[mRandom() % sizeof...(values)];
    }

private Q_SLOTS:
    void agreesWithPlainDecoding()
    {
        const auto unsignedNan = [](std::string text) { return text == "-nan" ? "nan" : text; };
        ProfileInfo profile = smallProfile();
        RecordEntry entries[4];
        for (int round = 0; round < 40000; ++round) {
            profile.thresholds[1].values[0].val = oneOf(10.0, -1e9, std::nan(""));
            profile.thresholds[2].values[1].color = oneOf(QColor(), QColor(Qt::red));
            const ProfileParameter parameter = anyParameter();
            std::ranges::generate(entries, [this] { return anyEntry(); });
            const Decoder decoder(profile, parameter);
            double column[4];
            std::uint8_t states[4], cellStates[4];
            decoder.toDoubles(entries, round % 2 == 0, column);
            decoder.states(entries, states);
            decoder.cellStates(entries, cellStates);
            for (int i = 0; i < 4; ++i) {
                const RecordEntry& entry = entries[i];
                const PlainDecoder plain{profile, parameter, entry};
                const PlainDecoder::Cell cell = plain.cell();
                std::string display, text, shortText;
                const QColor color = decoder.appendDisplay(entry, display);
                decoder.appendText(entry, text);
                decoder.appendShort(entry, shortText);
                const QByteArray where = QByteArray::number(round) + ": " + display.c_str() + "|" +
                                         shortText.c_str() + " for " + cell.text.c_str();
                QVERIFY2(decoder.toInt(entry) == plain.toInt() &&
                             same(decoder.toDouble(entry, true), plain.toDouble(true)) &&
                             same(decoder.toDouble(entry, false), plain.toDouble(false)) &&
                             same(column[i], plain.toDouble(round % 2 == 0)),
                         where);
                QVERIFY2(decoder.state(entry) == plain.state() && states[i] == plain.state() &&
                             decoder.reachedLimit(entry) == cell.reached &&
                             decoder.cellState(entry) == cell.state && cellStates[i] == cell.state,
                         where);
                QVERIFY2(color == cell.color && decoder.cellColor(entry) == cell.color &&
                             text == display && unsignedNan(display) == unsignedNan(cell.text) &&
                             unsignedNan(shortText) == unsignedNan(cell.shortText),
                         where);
            }
        }
    }

private:
    ProfileParameter anyParameter()
    {
        ProfileParameter parameter;
        parameter.dataType = below(5) == 0 ? oneOf(70, -1, 71, Highest) : below(32);
        parameter.startByte = below(20) == 0 ? oneOf(Lowest, Highest, Highest - 3) : below(36) - 4;
        parameter.startBit = below(20) == 0 ? oneOf(Lowest, Highest, -1) : below(36) - 1;
        parameter.endBit = below(20) == 0 ? oneOf(Lowest, Highest) : below(40) - 2;
        parameter.factor =
            oneOf(1.0, 1.0, 0.1, -2.5, 0.0, 3e7, 1e-3, 1e30, 1e300, Inf, std::nan(""));
        parameter.offset = oneOf(0.0, 0.0, -40.0, 0.5, 1e12, -Inf);
        parameter.enumId = below(3);
        parameter.thresholdId = below(4);
        return parameter;
    }

    RecordEntry anyEntry()
    {
        std::array<unsigned char, sizeof(RecordEntry)> bytes;
        for (unsigned char& byte : bytes) {
            const int any = below(256);
            byte = static_cast<unsigned char>(oneOf(any, any, 0, 3, 0x80, 0xFF));
        }
        bytes[1] = static_cast<unsigned char>(below(8) == 0 ? below(256) : below(31));
        if (below(4) == 0) { // a reading at a limit
            const float value = oneOf(10.0F, 20.0F, 30.0F, 100.0F, -2000.0F);
            std::ranges::reverse_copy(std::bit_cast<std::array<unsigned char, 4>>(value),
                                      bytes.begin() + 4);
        }
        return std::bit_cast<RecordEntry>(bytes);
    }

    std::mt19937_64 mRandom{20240117};
};

QTEST_APPLESS_MAIN(TestDecoder)
#include "tst_decoder.moc"
