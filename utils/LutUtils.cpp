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
        std::string const text = data.trimmed().toStdString();
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
