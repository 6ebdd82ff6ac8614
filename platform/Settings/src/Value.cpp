#include <Settings/Value.h>

#include <algorithm>
#include <array>
#include <charconv>

namespace Quoril::Proc {

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
                return '"' + data + '"';
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
