#pragma once

#include <QtCore/QByteArray>

#include <cstdint>

/// One sample to be put into a recording; its payload is given in hexadecimal.
struct TestSample
{
    unsigned id = 500;
    std::uint64_t ticks = 0; ///< of 31.25 ns
    QByteArray payload = {};
    unsigned channel = 0;
    unsigned w16 = 0;
};

/// Ticks of a time in seconds.
constexpr std::uint64_t ticks(double seconds)
{
    return static_cast<std::uint64_t>(seconds * 32e6 + 0.5);
}

/// Writes recordings byte by byte, in either byte order.
class RecordingBuilder
{
public:
    enum Order
    {
        Little,
        Big
    };

    explicit RecordingBuilder(int order = Little) : mBig(order == Big) { number(0, 2, 0xABBA); }

    const QByteArray& bytes() const { return mBytes; }

    RecordingBuilder& date(int year, int month, int day, int hour, int minute, int second)
    {
        number(12, 2, static_cast<std::uint16_t>(year)).setByte(14, month).setByte(15, day);
        return setByte(16, hour).setByte(17, minute).setByte(18, second);
    }
    RecordingBuilder& startTicks(std::uint64_t time) { return stamp(20, time); }
    RecordingBuilder& busType(std::uint32_t value) { return number(28, 4, value); }
    RecordingBuilder& ecuSerialNumber(std::uint32_t value) { return number(32, 4, value); }
    /// Field 0 to 5: softwarePartA, ecuType, engineSerialNr, engineType, softwarePartB,
    /// emuSwVersion. Not terminated where the text fills its field.
    RecordingBuilder& text(int field, const QByteArray& value)
    {
        const int width = field == 5 ? 7 : 13;
        mBytes.replace(36 + 13 * field, width, value.leftJustified(width, '\0', true));
        return *this;
    }

    RecordingBuilder& add(const TestSample& sample)
    {
        const qsizetype at = mBytes.size();
        append(QByteArray::fromHex(sample.payload).leftJustified(8, '\0', true));
        append(QByteArray("\x18\x19").leftJustified(20, '\0'));
        number(at + 10, 2, sample.channel).number(at + 12, 4, sample.id);
        return number(at + 16, 2, sample.w16).stamp(at + 20, sample.ticks);
    }

    RecordingBuilder& setByte(qsizetype at, int value)
    {
        mBytes[at] = static_cast<char>(value);
        return *this;
    }
    RecordingBuilder& append(const QByteArray& bytes)
    {
        mBytes += bytes;
        return *this;
    }

private:
    RecordingBuilder& number(qsizetype at, int width, std::uint64_t value)
    {
        for (int i = 0; i < width; ++i) {
            setByte(at + (mBig ? width - 1 - i : i), static_cast<int>(value >> 8 * i & 0xFF));
        }
        return *this;
    }
    RecordingBuilder& stamp(qsizetype at, std::uint64_t time)
    {
        return number(at, 4, time >> 32).number(at + 4, 4, time);
    }

    bool mBig;
    QByteArray mBytes = QByteArray(128, '\0');
};
