#pragma once

#include "base/ByteOrder.h"
#include "record/RecordEntry.h"

#include <bit>

namespace TARN {

/// Where a parameter's value lies in the 28 bytes of a sample: big-endian from a byte on, of it
/// perhaps some bits. A profile may name any byte and any bit: what lies outside reads as 0.
class PayloadField
{
public:
    PayloadField(int startByte, int startBit, int endBit)
        : mStartByte(startByte), mStartBit(startBit & 31), mMask(maskOf(startBit, endBit))
    {}

    template <typename Unsigned>
    Unsigned load(const RecordEntry& entry) const
    {
        if (mStartByte >= 0 && mStartByte <= SampleSize - static_cast<int>(sizeof(Unsigned))) {
            if constexpr (sizeof(Unsigned) == 1) {
                return bytesOf(entry)[mStartByte];
            } else {
                return loadBig<Unsigned>(bytesOf(entry) + mStartByte);
            }
        }
        return static_cast<Unsigned>(loadBytes(entry, sizeof(Unsigned)));
    }

    /// The next \p width bytes, at most 8.
    std::uint64_t loadBytes(const RecordEntry& entry, int width) const
    {
        std::uint64_t value = 0;
        for (int i = 0; i < width; ++i) {
            const std::int64_t at = std::int64_t(mStartByte) + i;
            value = value << 8 | (at >= 0 && at < SampleSize ? bytesOf(entry)[at] : 0U);
        }
        return value;
    }

    float loadFloat(const RecordEntry& entry) const
    {
        return std::bit_cast<float>(load<std::uint32_t>(entry));
    }

    /// The bits of a word.
    template <typename Unsigned>
    std::uint32_t loadBits(const RecordEntry& entry) const
    {
        return static_cast<std::uint32_t>(load<Unsigned>(entry)) >> mStartBit & mMask;
    }

private:
    static constexpr int SampleSize = static_cast<int>(sizeof(RecordEntry));

    static const std::uint8_t* bytesOf(const RecordEntry& entry)
    {
        return reinterpret_cast<const std::uint8_t*>(&entry);
    }

    /// Mask of a bit field's lowest bits; wide arithmetic, as a profile may name any bit numbers.
    static std::uint32_t maskOf(int startBit, int endBit)
    {
        const std::int64_t count = std::int64_t(endBit) - startBit + 1;
        if (count <= 0 || startBit < 0 || startBit > 31) {
            return 0;
        }
        return count >= 32 ? ~0U : (1U << count) - 1;
    }

    int mStartByte;
    int mStartBit;
    std::uint32_t mMask;
};

} // namespace TARN
