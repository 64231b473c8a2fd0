#include "base/Numbers.h"

#include <algorithm>
#include <array>
#include <bit>
#include <charconv>
#include <cstdint>
#include <cstdlib>
#include <iterator>
#include <string_view>

namespace TARN {

namespace {

__extension__ using Wide = unsigned __int128;

constexpr int MostDigits = 17;     ///< printed in integers; products of them fit Wide
constexpr int LowestExponent = -4; ///< of ten; smaller numbers are printed as "1e-05"
constexpr double LowestValue = 1e-4;
constexpr double LimitValue = 1e17; ///< no number of MostDigits digits before the point is larger

template <std::uint64_t base, std::size_t count>
constexpr std::array<std::uint64_t, count> powersOf()
{
    std::array<std::uint64_t, count> powers = {1};
    for (std::size_t i = 1; i < count; ++i) {
        powers[i] = powers[i - 1] * base;
    }
    return powers;
}

constexpr auto PowersOfFive = powersOf<5, MostDigits - LowestExponent + 1>();
constexpr auto PowersOfTen = powersOf<10, MostDigits + 1>();

/// The integer nearest fraction * 2^exponent * 10^k, halves to even. The product with 5^k is
/// exact, 53 and 49 bits at most; so what the shift drops is known to the last bit.
std::uint64_t scaledInteger(std::uint64_t fraction, int exponent, int k)
{
    const Wide product = Wide(fraction) * PowersOfFive[static_cast<std::size_t>(k)];
    const int drop = -(exponent + k);
    if (drop <= 0) {
        return static_cast<std::uint64_t>(product << -drop);
    }
    const auto whole = static_cast<std::uint64_t>(product >> drop);
    const Wide rest = product - (Wide(whole) << drop);
    const Wide half = Wide(1) << (drop - 1);
    return whole + static_cast<std::uint64_t>(rest > half || (rest == half && whole % 2 == 1));
}

/// Places the point after the digit of 10^\p exponent and drops zeros behind it.
char* placePoint(std::string_view digits, int exponent, char* out)
{
    constexpr std::string_view Zeros = "0.000";
    const std::size_t used = digits.find_last_not_of('0') + 1;
    if (exponent < 0) {
        out = std::ranges::copy(Zeros.substr(0, static_cast<std::size_t>(1 - exponent)), out).out;
        return std::ranges::copy(digits.substr(0, used), out).out;
    }
    const auto whole = static_cast<std::size_t>(exponent + 1);
    out = std::ranges::copy(digits.substr(0, whole), out).out;
    if (used > whole) {
        *out++ = '.';
        out = std::ranges::copy(digits.substr(whole, used - whole), out).out;
    }
    return out;
}

/// Prints a number that needs no exponent, in half the library's time: tables and exports
/// are made of millions of them. Null when the number does need one, or is zero.
char* printPlain(double value, int digits, char* out)
{
    const double size = std::abs(value);
    if (!(size >= LowestValue && size < LimitValue) || digits < 1 || digits > MostDigits) {
        return nullptr;
    }
    const auto bits = std::bit_cast<std::uint64_t>(size);
    const std::uint64_t fraction = (bits & ((1ULL << 52) - 1)) | 1ULL << 52;
    const int binary = static_cast<int>(bits >> 52) - 1075;
    // log10 of 2^n, rounded down: the exponent of ten or the one below it.
    for (int exponent = (binary + 52) * 1233 >> 12; exponent < digits; ++exponent) {
        const std::uint64_t number = scaledInteger(fraction, binary, digits - 1 - exponent);
        if (number < PowersOfTen[static_cast<std::size_t>(digits)]) {
            char text[20];
            const auto end = std::to_chars(text, std::end(text), number).ptr;
            if (std::signbit(value)) {
                *out++ = '-';
            }
            return placePoint({text, end}, exponent, out);
        }
    }
    return nullptr;
}

std::string_view withoutLeadingBlanks(std::string_view text)
{
    const auto first = text.find_first_not_of(" \t\n\v\f\r");
    text.remove_prefix(first == std::string_view::npos ? text.size() : first);
    return text;
}

} // namespace

void appendGeneral(double value, int digits, std::string& out)
{
    char buffer[64];
    const char* end = printPlain(value, digits, buffer);
    if (end == nullptr) {
        end =
            std::to_chars(buffer, std::end(buffer), value, std::chars_format::general, digits).ptr;
    }
    out.append(buffer, static_cast<std::size_t>(end - buffer));
}

void appendShortest(float value, std::string& out)
{
    constexpr int HighestExponent = 11; // of ten
    char buffer[32];
    const auto end =
        std::to_chars(buffer, std::end(buffer), value, std::chars_format::scientific).ptr;
    const std::string_view text(buffer, static_cast<std::size_t>(end - buffer));
    const auto mark = text.find('e');
    if (mark == std::string_view::npos) {
        out.append(text); // infinite, or no number
        return;
    }
    const int exponent = leadingInt(std::string(text.substr(mark + 1)));
    if (exponent < LowestExponent || exponent > HighestExponent) {
        out.append(text);
        return;
    }
    std::string digits;
    std::ranges::copy_if(text.substr(0, mark), std::back_inserter(digits),
                         [](char c) { return c >= '0' && c <= '9'; });
    if (value == 0.0F) {
        out += '0';
        return;
    }
    if (std::signbit(value)) {
        out += '-';
    }
    // The point never stands behind the last digit.
    digits.append(static_cast<std::size_t>(std::max(0, exponent + 1)), '0');
    char plain[64];
    out.append(plain, placePoint(digits, exponent, plain));
}

void appendTenths(double value, std::string& out)
{
    const auto tenths = truncatedTo<std::int64_t>(std::floor(value * 10.0 + 0.5));
    if (tenths < 0) {
        out += '-';
    }
    const std::uint64_t size =
        tenths < 0 ? -static_cast<std::uint64_t>(tenths) : static_cast<std::uint64_t>(tenths);
    out += std::to_string(size / 10);
    if (size % 10 != 0) {
        out += '.';
        out += static_cast<char>('0' + size % 10);
    }
}

std::string fixedText(double value, int decimals)
{
    char buffer[512]; // the largest double has 309 digits before the point
    const auto end =
        std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::fixed, decimals)
            .ptr;
    return {buffer, end};
}

double leadingDouble(const std::string& text)
{
    std::string_view rest = withoutLeadingBlanks(text);
    if (rest.starts_with('+') && !rest.starts_with("+-")) {
        rest.remove_prefix(1);
    }
    double value = 0.0;
    const auto result = std::from_chars(rest.data(), rest.data() + rest.size(), value);
    if (result.ec == std::errc::result_out_of_range) {
        return std::strtod(std::string(rest).c_str(), nullptr);
    }
    return value;
}

int leadingInt(const std::string& text)
{
    const long value = std::strtol(text.c_str(), nullptr, 10);
    return truncatedTo<int>(static_cast<double>(value));
}

} // namespace TARN
