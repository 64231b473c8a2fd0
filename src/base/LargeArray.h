#pragma once

#include <cstddef>
#include <cstdlib>
#include <limits>
#include <memory>
#include <type_traits>

#ifdef __linux__
#include <sys/mman.h>
#endif

namespace TARN {

struct FreeLargeArray
{
    void operator()(void* memory) const { std::free(memory); }
};

/// An array of which there may be gigabytes. Its values are not initialised.
template <typename T>
using LargeArray = std::unique_ptr<T[], FreeLargeArray>;

/// Null when there is not enough memory. On Linux the array asks for huge pages: the first touch
/// of memory in pages of 4 KiB costs more than reading a recording into it.
template <typename T>
LargeArray<T> makeLargeArray(std::size_t count)
{
    static_assert(std::is_trivially_copyable_v<T>);
    constexpr std::size_t HugePage = std::size_t(1) << 21;
    if (count > std::numeric_limits<std::size_t>::max() / 2 / sizeof(T)) {
        return nullptr;
    }
    const std::size_t bytes = count * sizeof(T);
    if (bytes < HugePage) {
        return LargeArray<T>(static_cast<T*>(std::malloc(bytes + 1)));
    }
    const std::size_t whole = (bytes + HugePage - 1) / HugePage * HugePage;
    void* memory = std::aligned_alloc(HugePage, whole);
#ifdef __linux__
    if (memory != nullptr) {
        madvise(memory, whole, MADV_HUGEPAGE); // a wish: without huge pages all works the same
    }
#endif
    return LargeArray<T>(static_cast<T*>(memory));
}

} // namespace TARN
