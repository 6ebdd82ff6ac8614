#include "Quote.h"

#include <nlohmann/json.hpp>

namespace External::ShaderISF {

std::string shorten(std::string const & text)
{
    constexpr int longest = 200;
    // What is beyond this many bytes is beyond the longest text, too: a character takes four at most.
    QString const shown = QString::fromStdString(text.substr(0, 4 * longest + 4));
    return shown.size() <= longest ? text : (shown.left(longest) + QStringLiteral("...")).toStdString();
}

std::string quote(std::string const & text)
{
    using nlohmann::json;
    return json(shorten(text)).dump(-1, ' ', false, json::error_handler_t::replace);
}

std::string quote(QString const & text)
{
    return quote(text.toStdString());
}

} // namespace External::ShaderISF
