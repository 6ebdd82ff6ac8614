#include <EditorSerialization/MessageText.h>

#include <nlohmann/json.hpp>

#include <QString>

namespace Serialize {

namespace {

QString textOf(std::string_view bytes)
{
    return QString::fromUtf8(bytes.data(), static_cast<int>(bytes.size()));
}

} // namespace

std::string messageText(std::string_view bytes)
{
    constexpr int longestHalf = 1000;
    QString text = textOf(bytes);
    if (text.size() > 2 * longestHalf)
        text = text.left(longestHalf) + QStringLiteral(" ... ") + text.right(longestHalf);
    for (QChar & unit : text)
        if (unit.category() == QChar::Other_Control)
            unit = QChar::ReplacementCharacter;
    return text.toStdString();
}

std::string shortenedText(std::string_view bytes)
{
    constexpr int longest = 200;
    // What is beyond this many bytes is beyond the longest text, too: a unit takes three at most.
    QString text = textOf(bytes.substr(0, 3 * (longest + 2)));
    if (text.size() > longest) {
        // A pair of surrogates is one character.
        text.truncate(text.at(longest - 1).isHighSurrogate() ? longest - 1 : longest);
        text += QStringLiteral("...");
    }
    return text.toStdString();
}

std::string quotedText(std::string_view bytes)
{
    return nlohmann::json(shortenedText(bytes)).dump();
}

} // namespace Serialize
