#pragma once

// printf-style formatting that checks each conversion against its argument. A format that does not fit is an answer and
// never undefined behaviour. Numbers come out as printf gives them in the C locale, whatever locale is in force; what
// is not a number is "nan", without a minus.

#include <array>
#include <concepts>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

// One argument with its type erased. Holds views: it must not outlive the call that it is made for.
class text_argument {
public:
    enum class kind { integer, real, text };

    template<std::integral T>
    text_argument(T value)
        : type(kind::integer), bits(static_cast<std::uint64_t>(value)), is_wide(sizeof(T) > sizeof(std::int32_t)) {}
    text_argument(double value) : type(kind::real), real(value) {}
    text_argument(const char* value) : type(kind::text), text(value ? value : "(null)") {}
    text_argument(const std::string& value) : type(kind::text), text(value) {}
    text_argument(std::string_view value) : type(kind::text), text(value) {}

    kind type;
    std::uint64_t bits = 0; // an integer, sign-extended
    bool is_wide = false;   // the integer has 64 bits, else 32
    double real = 0;
    std::string_view text;
};

// Appends the formatted text to `out`. Understands % with the flags "-+ 0", a width and a precision of up to 500, the
// length letters h, l, ll, z (the argument's own size counts), and the conversions d i u x X o c (any integer), f F e E
// g G (float or double), s (text) and %%. False if a conversion is unknown or incomplete, lacks its argument, or finds
// one of another type; `out` is unchanged then. Arguments left over are ignored, as printf does.
bool append_formatted(std::string& out, std::string_view format, std::span<const text_argument> arguments);

// The formatted text, or nothing if the format does not fit.
template<class... Arguments>
std::optional<std::string> format_text(std::string_view format, const Arguments&... arguments) {
    const std::array<text_argument, sizeof...(arguments)> list{text_argument(arguments)...};
    std::string out;
    if (!append_formatted(out, format, list))
        return std::nullopt;
    return out;
}
