#include <utils/LutUtils.h>

#include <exception>
#include <string>

#include <ParserLUT/ParserLUTFactory.h>

#include <QByteArray>
#include <QString>

namespace Effect::Utils {

std::shared_ptr<Quoril::Proc::LUT::LUTTable> parseLutEffect(QByteArray const & data, QString * error)
{
    try {
        // Blank lines ahead stay: the parsers skip them, and count them in their messages.
        std::string text = data.toStdString();
        text.erase(text.find_last_not_of(" \t\n\v\f\r") + 1);
        auto const parser = Quoril::Proc::LUT::ParserLUTFactory::GetParser(text);
        return parser ? parser->Parse(text) : nullptr;
    } catch (std::exception const & exception) {
        if (error)
            *error = QString::fromUtf8(exception.what());
        return nullptr;
    }
}

bool validateLutEffect(QByteArray const & data, QString * error)
{
    return parseLutEffect(data, error) != nullptr;
}

} // namespace Effect::Utils
