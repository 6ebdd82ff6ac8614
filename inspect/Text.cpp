#include <inspect/Text.h>

#include <algorithm>

#include <QString>

namespace Effect::Inspect {

using nlohmann::json;

bool isControl(char byte)
{
    return (byte >= 0 && byte < ' ') || byte == 0x7F;
}

std::string asText(std::string_view bytes)
{
    return QString::fromUtf8(bytes.data(), static_cast<int>(bytes.size())).toStdString();
}

std::string quoted(std::string const & text)
{
    return std::any_of(text.begin(), text.end(), isControl) ? toText(text) : text;
}

std::string joined(std::vector<std::string> const & words, std::string const & between)
{
    std::string text;
    for (std::string const & word : words)
        text += (text.empty() ? "" : between) + word;
    return text;
}

std::string counted(std::size_t count, std::string const & noun)
{
    return std::to_string(count) + ' ' + noun + (count == 1 ? "" : "s");
}

std::string toText(json const & value, int indent)
{
    return value.dump(indent, ' ', false, json::error_handler_t::replace);
}

} // namespace Effect::Inspect
