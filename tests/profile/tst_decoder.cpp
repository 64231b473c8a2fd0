#include "profile/Decoder.h"
#include "support/CoreTest.h"

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
        const auto found = first.find(type);
        return found != first.end() ? found->second : type;
    }

    std::uint64_t big(int width) const
    {
        unsigned char bytes[28];
        std::memcpy(bytes, &entry, sizeof bytes);
        std::uint64_t value = 0;
        for (std::int64_t i = parameter.startByte, end = i + width; i < end; ++i) {
            value = value << 8 | (i >= 0 && i < 28 ? bytes[i] : 0U);
        }
        return value;
    }
    float single() const { return std::bit_cast<float>(static_cast<std::uint32_t>(big(4))); }
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
        const std::uint64_t word = big(width);
        if (type == 5 || type == 8) {
            return field(word);
        }
        const bool isSigned = type == 3 || type == 6 || type == 9;
        const bool isNegative = isSigned && word >> (8 * width - 1) != 0;
        return static_cast<std::int64_t>(word) - (isNegative ? 1LL << 8 * width : 0);
    }

    int toInt() const
    {
        const int type = family(entry.data[1]);
        return type >= 3 && type <= 10 ? static_cast<int>(whole(type)) : 0;
    }

    static int wholeDegrees(double x)
    {
        const double limited = std::min(std::max(x, -2147483648.0), 2147483647.0);
        return std::isnan(x) ? 0 : static_cast<int>(limited);
    }

    double toDouble(bool scaled) const
    {
        const int type = family(parameter.dataType);
        const auto maybe = [&](double raw) { return scaled ? scale(raw) : raw; };
        if (type == 2) {
            return maybe(single());
        }
        if (type == 70) {
            const double x = maybe(single()) * 0.01;
            const int d = wholeDegrees(x);
            return (x - d) / 0.6 + d;
        }
        if (type == 5 || type == 8) {
            return static_cast<double>(whole(type));
        }
        if (type == 30) {
            return maybe(static_cast<double>(whole(type)));
        }
        return type >= 3 && type <= 10 ? maybe(static_cast<float>(whole(type))) : 0.0;
    }

    /// The last threshold value that \p reading has reached.
    const ProfileThrValue* reached(double reading) const
    {
        const ProfileThrValue* last = nullptr;
        const auto found = profile.thresholds.find(parameter.thresholdId);
        if (found != profile.thresholds.end()) {
            for (const ProfileThrValue& value : found->second.values) {
                if (scale(value.val) > reading) {
                    break;
                }
                last = &value;
            }
        }
        return last;
    }

    int state() const
    {
        ProfileParameter fixed = parameter;
        fixed.startByte = 4;
        const PlainDecoder payload{profile, fixed, entry};
        const auto* last = reached(static_cast<float>(payload.scale(payload.single())));
        return last != nullptr && entry.data[1] == 2 ? last->state : 0;
    }

    QString words(int type) const
    {
        const int n = static_cast<int>(whole(type));
        const auto found = profile.enums.find(parameter.enumId);
        const bool exists = found != profile.enums.end();
        if (exists && found->second.values.contains(n)) {
            return QString("%1: %2").arg(n).arg(found->second.values.at(n).label);
        }
        return QString::number(n) + (type == 8 ? ""
                                     : exists  ? ": Invalid ENUM Value"
                                               : ": Invalid ENUM Type");
    }

    QString display(QColor& color) const
    {
        color = Qt::white;
        const int type = family(parameter.dataType);
        if (type == 5 || type == 8) {
            return words(type);
        }
        if (type != 70 && type != 30 && (type < 2 || type > 10)) {
            return QString("Datatype %1 not implemented").arg(entry.data[1]);
        }
        double shown = scale(static_cast<double>(whole(type)));
        double compared = type == 30 ? 0.0 : static_cast<double>(whole(type));
        if (type == 9 || type == 10) {
            // From 2^63 on every double is a multiple of 256.
            const auto byte =
                std::abs(shown) < 0x1p63 ? static_cast<std::int64_t>(shown) & 0xFF : 0;
            shown = compared = static_cast<double>(type == 9 && byte > 127 ? byte - 256 : byte);
        } else if (type == 2 || type == 70) {
            shown = compared = static_cast<float>(scale(single()));
        }
        if (type == 70) {
            const double x = static_cast<float>(compared * 0.01);
            const int d = wholeDegrees(x);
            shown = static_cast<float>((x - d) / 0.6 + d);
        }
        if (const auto* last = reached(compared)) {
            color = last->color;
        }
        char text[64];
        std::snprintf(text, sizeof text, "%.12g", shown);
        return text;
    }
};

/// Enumeration 1: 3 is "three", -1 is "minus". Threshold 1: 10 OK green, 20 WARNING yellow,
/// 30 LIMIT red. Threshold 2: 0 green, 100 red.
ProfileInfo smallProfile()
{
    ProfileInfo profile;
    profile.enums[1].values[3].label = "three";
    profile.enums[1].values[-1].label = "minus";
    const auto addStep = [&](int id, double val, const QColor& color, int state) {
        ProfileThrValue& value = profile.thresholds[id].values.emplace_back();
        value.val = val;
        value.color = color;
        value.state = state;
    };
    addStep(1, 10, Qt::green, StateOk);
    addStep(1, 20, Qt::yellow, StateWarning);
    addStep(1, 30, Qt::red, StateLimit);
    addStep(2, 0, Qt::green, StateOk);
    addStep(2, 100, Qt::red, StateLimit);
    return profile;
}

struct Case
{
    const char* name;
    int dataType, messageType;
    const char* data; ///< payload bytes 4 to 7 in hexadecimal
    int startByte, startBit, endBit;
    double factor;
    const char* expected; ///< integer, scaled, raw, state, colour, text
};

// Worked out by hand from the bytes.
constexpr Case Cases[] = {
    {"FLOAT", 2, 2, "41280000", 4, 0, 0, 2, "0 21 10.5 0 green 21"},
    {"FLOAT in a SHORT message", 2, 6, "42280000", 4, 0, 0, 1, "16936 42 42 0 red 42"},
    {"FLOAT at a threshold", 2, 2, "41A00000", 4, 0, 0, 1, "0 20 20 1 yellow 20"},
    {"FLOAT rounded below 0.7", 2, 2, "41A00000", 4, 0, 0, .035, "0 0.7 20 0 green 0.699999988079"},
    {"FLOAT turned around", 2, 2, "41A00000", 4, 0, 0, -1, "0 -20 20 0 white -20"},
    {"FLOAT infinite", 2, 2, "FF800000", 4, 0, 0, 1, "0 -inf -inf 0 white -inf"},
    {"no number is above all", 2, 2, "7FC00000", 4, 0, 0, 1, "0 nan nan 2 red nan"},
    {"NMEA is scaled before", 70, 2, "4516F000", 4, 0, 0, 2, "0 48.5 24.25 2 red 48.5"},
    {"NMEA colour before degrees", 70, 2, "41A00000", 4, 0, 0, 3, "0 1 0.3333333333333 1 yellow 1"},
    {"LONG single, text double", 3, 3, "01000001", 4, 0, 0, 1,
     "16777217 16777216 16777216 0 red 16777217"},
    {"LONG colour unscaled", 3, 2, "00000014", 4, 0, 0, .5, "0 10 20 0 red 10"},
    {"LONG state of the float", 3, 2, "41A00000", 4, 0, 0, 1,
     "0 1101004800 1101004800 1 red 1101004800"},
    {"ULONG", 4, 4, "FFFFFFFF", 4, 0, 0, 1, "-1 4294967296 4294967296 0 red 4294967295"},
    {"USHORT_2", 13, 13, "0000FFFE", 6, 0, 0, .001, "65534 65.534 65534 0 red 65.534"},
    {"CHAR wraps", 15, 15, "64000000", 4, 0, 0, 2, "100 200 100 0 white -56"},
    {"UCHAR wraps", 10, 10, "C8000000", 4, 0, 0, 2, "200 400 200 0 red 144"},
    {"UCHAR wraps to nothing", 10, 10, "80000000", 4, 0, 0, 2, "128 256 128 0 white 0"},
    {"BLONG all bits", 5, 5, "FFFFFFFF", 4, 0, 31, 1, "-1 4294967295 4294967295 0 white -1: minus"},
    {"BLONG more than all", 5, 5, "7FFFFFF8", 4, 1, 99, 1,
     "1073741820 1073741820 1073741820 0 white 1073741820: Invalid ENUM Value"},
    {"BLONG no bits", 5, 5, "FFFFFFFF", 4, 4, 3, 1, "0 0 0 0 white 0: Invalid ENUM Value"},
    {"BLONG shifted out", 5, 5, "FFFFFFFF", 4, 32, 40, 1, "0 0 0 0 white 0: Invalid ENUM Value"},
    {"BSHORT named", 8, 8, "00180000", 4, 3, 15, 1, "3 3 3 0 white 3: three"},
    {"LONG48 keeps its colour", 30, 3, "FFFFFFFF", 3, 0, 0, 1,
     "16777215 1099511627656 1099511627656 0 green 1.09951162766e+12"},
    {"MEMID", 21, 7, "00010000", 4, 0, 0, 1, "1 0 0 0 white Datatype 7 not implemented"},
    {"before the sample", 7, 7, "00000000", -1, 0, 0, 1, "18 18 18 0 green 18"},
    {"last byte", 7, 7, "00000000", 27, 0, 0, 1, "41216 41216 41216 0 red 41216"},
    {"beyond the sample", 3, 3, "00000000", 28, 0, 0, 1, "0 0 0 0 white 0"},
};

bool same(double a, double b)
{
    return (std::isnan(a) && std::isnan(b)) ||
           std::bit_cast<std::uint64_t>(a) == std::bit_cast<std::uint64_t>(b);
}

} // namespace

class TestDecoder : public CoreTest
{
    Q_OBJECT

private Q_SLOTS:
    void types_data()
    {
        QTest::addColumn<int>("index");
        for (int i = 0; i < static_cast<int>(std::size(Cases)); ++i) {
            QTest::addRow("%s", Cases[i].name) << i;
        }
    }

    void types()
    {
        QFETCH(const int, index);
        const Case& c = Cases[index];
        ProfileParameter parameter;
        parameter.dataType = c.dataType;
        parameter.startByte = c.startByte;
        parameter.startBit = c.startBit;
        parameter.endBit = c.endBit;
        parameter.factor = c.factor;
        parameter.enumId = 1;
        parameter.thresholdId = c.dataType == DataType::Long48 ? 2 : 1;
        RecordEntry entry{{0x12, static_cast<std::uint8_t>(c.messageType), 0, 0, 0, 0, 0, 0},
                          0x88,
                          0,
                          1,
                          1200,
                          0,
                          0,
                          0,
                          0xA1B2C3D4};
        std::memcpy(entry.data + 4, QByteArray::fromHex(c.data).constData(), 4);
        const ProfileInfo profile = smallProfile();
        const Decoder decoder(profile, parameter);
        std::string text;
        const QRgb rgb = decoder.appendDisplay(entry, text).rgb();
        const char* color = rgb == 0xFFFFFFFF   ? "white"
                            : rgb == 0xFF00FF00 ? "green"
                            : rgb == 0xFFFFFF00 ? "yellow"
                                                : "red";
        const auto number = [](double value) { return QString::number(value, 'g', 13); };
        QCOMPARE(QStringList(
                     {QString::number(decoder.toInt(entry)), number(decoder.toDouble(entry, true)),
                      number(decoder.toDouble(entry, false)), QString::number(decoder.state(entry)),
                      color, QString::fromStdString(text)})
                     .join(' '),
                 QString(c.expected));
    }

    void agreesWithPlainDecoding()
    {
        std::mt19937_64 random(20240117);
        const auto below = [&](unsigned n) { return static_cast<int>(random() % n); };
        const auto oneOf = [&](auto... values) {
            const std::common_type_t<decltype(values)...> all[] = {values...};
            return all[random() % sizeof...(values)];
        };
        ProfileInfo profile = smallProfile();
        RecordEntry entries[4];
        for (int round = 0; round < 40000; ++round) {
            ProfileParameter parameter;
            parameter.dataType = below(5) == 0 ? oneOf(70, -1, 71, Highest) : below(32);
            parameter.startByte =
                below(20) == 0 ? oneOf(Lowest, Highest, Highest - 3) : below(36) - 4;
            parameter.startBit = below(20) == 0 ? oneOf(Lowest, Highest, -1) : below(36) - 1;
            parameter.endBit = below(20) == 0 ? oneOf(Lowest, Highest) : below(40) - 2;
            parameter.factor =
                oneOf(1.0, 1.0, 0.1, -2.5, 0.0, 3e7, 1e-3, 1e30, 1e300, Inf, std::nan(""));
            parameter.offset = oneOf(0.0, 0.0, -40.0, 0.5, 1e12, -Inf);
            parameter.enumId = below(3);
            parameter.thresholdId = below(4);
            profile.thresholds[1].values[0].val = oneOf(10.0, -1e9, std::nan(""));
            profile.thresholds[2].values[1].color = oneOf(QColor(), QColor(Qt::red));
            const Decoder decoder(profile, parameter);
            double column[4];
            for (RecordEntry& entry : entries) {
                unsigned char bytes[28];
                for (unsigned char& byte : bytes) {
                    const int any = below(256);
                    byte = static_cast<unsigned char>(oneOf(any, any, 0, 3, 0x80, 0xFF));
                }
                bytes[1] = static_cast<unsigned char>(below(8) == 0 ? below(256) : below(31));
                std::memcpy(&entry, bytes, sizeof bytes);
            }
            decoder.toDoubles(entries, round % 2 == 0, column);
            for (int i = 0; i < 4; ++i) {
                const RecordEntry& entry = entries[i];
                const PlainDecoder plain{profile, parameter, entry};
                QColor expectedColor;
                const QString expectedText = plain.display(expectedColor).replace("-nan", "nan");
                std::string text;
                std::string textAlone;
                const QColor color = decoder.appendDisplay(entry, text);
                decoder.appendText(entry, textAlone);
                const auto where = QString("round %1, data type %2, message type %3")
                                       .arg(round)
                                       .arg(parameter.dataType)
                                       .arg(entry.data[1])
                                       .toUtf8();
                QVERIFY2(decoder.toInt(entry) == plain.toInt(), where);
                QVERIFY2(same(decoder.toDouble(entry, true), plain.toDouble(true)), where);
                QVERIFY2(same(decoder.toDouble(entry, false), plain.toDouble(false)), where);
                QVERIFY2(same(column[i], plain.toDouble(round % 2 == 0)), where);
                QVERIFY2(decoder.state(entry) == plain.state(), where);
                QVERIFY2(color == expectedColor && textAlone == text, where);
                QVERIFY2(QString::fromStdString(text).replace("-nan", "nan") == expectedText,
                         where + " " + text.c_str() + " is not " + expectedText.toUtf8());
            }
        }
    }
};

QTEST_APPLESS_MAIN(TestDecoder)
#include "tst_decoder.moc"
