#include <cmath>
#include <limits>

#include <EditorSerialization/Error.h>
#include <EditorSerialization/JsonArchive.h>

#include <QByteArray>

#include <nlohmann/json.hpp>

#include "JsonForms.h"
#include "Utf8.h"

namespace Serialize::Json {

using nlohmann::json;

namespace Detail {

namespace {

using namespace Forms;

[[noreturn]] void failType(json const & value, std::string const & expected)
{
    throw ArchiveError(ArchiveError::other_exception, expected + " is expected, found " + value.type_name());
}

/// The value of an object with this one key; null for anything else.
json const * onlyValue(json const & value, char const * key)
{
    if (!value.is_object() || value.size() != 1)
        return nullptr;
    auto const found = value.find(key);
    return found == value.end() ? nullptr : &*found;
}

template <class Integer> void loadInteger(json const & value, Integer & number)
{
    if (!value.is_number_integer())
        failType(value, "an integer");
    using Limits = std::numeric_limits<Integer>;
    bool const fits = value.is_number_unsigned()
                          ? value.get<std::uint64_t>() <= static_cast<std::uint64_t>(Limits::max())
                          : value.get<std::int64_t>() >= std::int64_t(Limits::min()) &&
                                value.get<std::int64_t>() <= std::int64_t(Limits::max());
    if (!fits)
        throw ArchiveError(ArchiveError::other_exception, "the number " + value.dump() + " is out of range");
    number = value.get<Integer>();
}

bool isAscii(QString const & text)
{
    for (QChar const unit : text)
        if (unit.unicode() > 0x7F)
            return false;
    return true;
}

/// Whether `text` equals the ASCII text `bytes`. Compared without a conversion, since most texts are unchanged
/// defaults.
bool isSame(QString const & text, std::string const & bytes)
{
    if (text.isNull() || static_cast<std::size_t>(text.size()) != bytes.size())
        return false;
    QChar const * units = text.constData();
    for (char const byte : bytes)
        if (static_cast<unsigned char>(byte) > 0x7F || (units++)->unicode() != static_cast<ushort>(byte))
            return false;
    return true;
}

} // namespace

void save(json & value, std::string const & text)
{
    if (isUtf8(text))
        value = text;
    else
        value = json{
            {bytesKey, QByteArray::fromRawData(text.data(), static_cast<int>(text.size())).toBase64().toStdString()}};
}

void save(json & value, QString const & text)
{
    if (text.isNull()) {
        value = nullptr;
    } else if (isAscii(text)) {
        std::string ascii(static_cast<std::size_t>(text.size()), '\0');
        QChar const * units = text.constData();
        for (char & byte : ascii)
            byte = static_cast<char>((units++)->unicode());
        value = std::move(ascii);
    } else if (isUtf16(text)) {
        value = text.toStdString();
    } else {
        json units = json::array();
        for (QChar const unit : text)
            units.push_back(unit.unicode());
        value = json{{utf16Key, std::move(units)}};
    }
}

void save(json & value, bool flag)
{
    value = flag;
}

void save(json & value, double number)
{
    if (std::isfinite(number))
        value = number;
    else
        value = std::isnan(number) ? notANumber : number > 0 ? infinity : minusInfinity;
}

void save(json & value, int number)
{
    value = number;
}

void save(json & value, unsigned number)
{
    value = number;
}

void save(json & value, std::int64_t number)
{
    value = number;
}

void load(json const & value, std::string & text)
{
    if (json const * const bytes = onlyValue(value, bytesKey)) {
        if (!bytes->is_string())
            failType(*bytes, "a string of base64");
        auto const encoded = QByteArray::fromStdString(bytes->get_ref<std::string const &>());
        auto const decoded = QByteArray::fromBase64Encoding(encoded, QByteArray::AbortOnBase64DecodingErrors);
        if (!decoded)
            throw ArchiveError(ArchiveError::other_exception, "the string is no base64");
        text = decoded.decoded.toStdString();
        return;
    }
    if (!value.is_string())
        failType(value, "a string");
    text = value.get_ref<std::string const &>();
}

void load(json const & value, QString & text)
{
    if (value.is_string()) {
        auto const & bytes = value.get_ref<std::string const &>();
        if (!isSame(text, bytes))
            text = fromUtf8(bytes);
        return;
    }
    if (value.is_null()) {
        text = QString();
        return;
    }
    json const * const units = onlyValue(value, utf16Key);
    if (!units || !units->is_array())
        failType(value, "a string");
    QString spelt(QLatin1String(""));
    for (json const & unit : *units) {
        unsigned code = 0;
        load(unit, code);
        if (code > 0xFFFF)
            throw ArchiveError(ArchiveError::other_exception, "the number " + unit.dump() + " is out of range");
        spelt += QChar(static_cast<ushort>(code));
    }
    text = spelt;
}

void load(json const & value, bool & flag)
{
    if (!value.is_boolean())
        failType(value, "true or false");
    flag = value.get<bool>();
}

void load(json const & value, double & number)
{
    if (value.is_number()) {
        number = value.get<double>();
        return;
    }
    if (value == infinity)
        number = std::numeric_limits<double>::infinity();
    else if (value == minusInfinity)
        number = -std::numeric_limits<double>::infinity();
    else if (value == notANumber)
        number = std::numeric_limits<double>::quiet_NaN();
    else
        failType(value, "a number");
}

void load(json const & value, int & number)
{
    loadInteger(value, number);
}

void load(json const & value, unsigned & number)
{
    loadInteger(value, number);
}

void load(json const & value, std::int64_t & number)
{
    loadInteger(value, number);
}

} // namespace Detail

} // namespace Serialize::Json
