#include <Settings/Value.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <limits>

namespace Quoril::Proc {

namespace {

/// A text between quotes, with JSON's escapes for what would end it or its line.
std::string quoted(std::string const & text)
{
    std::string quoted = "\"";
    for (char const byte : text) {
        switch (byte) {
        case '"':
            quoted += "\\\"";
            break;
        case '\\':
            quoted += "\\\\";
            break;
        case '\n':
            quoted += "\\n";
            break;
        case '\r':
            quoted += "\\r";
            break;
        case '\t':
            quoted += "\\t";
            break;
        default:
            quoted += byte;
        }
    }
    return quoted + '"';
}

Value::Data dataOf(std::uint64_t number)
{
    if (number <= static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max())) {
        return static_cast<std::int64_t>(number);
    }
    return static_cast<double>(number);
}

} // namespace

Value::Value() noexcept = default;
Value::Value(std::nullptr_t) noexcept {}
Value::Value(double number) noexcept
    : m_data(number)
{}
Value::Value(char const * text)
    : m_data(std::string(text))
{}
Value::Value(std::string text) noexcept
    : m_data(std::move(text))
{}
Value::Value(List list) noexcept
    : m_data(std::move(list))
{}
Value::Value(Object object) noexcept
    : m_data(std::move(object))
{}
Value::Value(Tag, bool on) noexcept
    : m_data(on)
{}
Value::Value(Tag, std::int64_t number) noexcept
    : m_data(number)
{}
Value::Value(Tag, std::uint64_t number) noexcept
    : m_data(dataOf(number))
{}

Value::Value(Value const & other) = default;
Value::Value(Value && other) noexcept = default;
Value & Value::operator=(Value const & other) = default;
Value & Value::operator=(Value && other) noexcept = default;
Value::~Value() = default;

Value const * Value::find(std::string const & key) const
{
    auto const * object = as<Object>();
    if (object == nullptr) {
        return nullptr;
    }
    auto const entry =
        std::find_if(object->begin(), object->end(), [&key](auto const & named) { return named.first == key; });
    return entry == object->end() ? nullptr : &entry->second;
}

std::string Value::toString() const
{
    return std::visit(
        [](auto const & data) -> std::string {
            using T = std::decay_t<decltype(data)>;
            if constexpr (std::is_same_v<T, std::nullptr_t>) {
                return "null";
            } else if constexpr (std::is_same_v<T, bool>) {
                return data ? "true" : "false";
            } else if constexpr (std::is_arithmetic_v<T>) {
                std::array<char, 32> text{};
                return {text.data(), std::to_chars(text.data(), text.data() + text.size(), data).ptr};
            } else if constexpr (std::is_same_v<T, std::string>) {
                return quoted(data);
            } else if constexpr (std::is_same_v<T, List>) {
                std::string text;
                for (Value const & entry : data) {
                    text += (text.empty() ? "" : ", ") + entry.toString();
                }
                return '[' + text + ']';
            } else {
                std::string text;
                for (auto const & [key, value] : data) {
                    text += (text.empty() ? "\"" : ", \"") + key + "\": " + value.toString();
                }
                return '{' + text + '}';
            }
        },
        m_data);
}

} // namespace Quoril::Proc
