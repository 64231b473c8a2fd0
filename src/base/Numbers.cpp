#include "base/Numbers.h"

#include <charconv>
#include <cstdlib>
#include <string_view>

namespace TARN {

namespace {

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
    const auto end =
        std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::general, digits)
            .ptr;
    out.append(buffer, end);
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
