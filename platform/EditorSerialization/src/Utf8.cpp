#include "Utf8.h"

namespace Serialize {

int utf8Length(char const * begin, char const * end)
{
    auto const * const bytes = reinterpret_cast<unsigned char const *>(begin);
    if (begin == end)
        return 0;
    unsigned char const lead = bytes[0];
    if (lead < 0x80)
        return 1;
    int const length = lead >= 0xC2 && lead <= 0xDF   ? 2
                       : lead >= 0xE0 && lead <= 0xEF ? 3
                       : lead >= 0xF0 && lead <= 0xF4 ? 4
                                                      : 0;
    if (length == 0 || end - begin < length)
        return 0;
    unsigned char const least = lead == 0xE0 ? 0xA0 : lead == 0xF0 ? 0x90 : 0x80;
    unsigned char const most = lead == 0xED ? 0x9F : lead == 0xF4 ? 0x8F : 0xBF;
    if (bytes[1] < least || bytes[1] > most)
        return 0;
    for (int index = 2; index < length; ++index)
        if (bytes[index] < 0x80 || bytes[index] > 0xBF)
            return 0;
    return length;
}

bool isUtf8(std::string_view bytes)
{
    char const * next = bytes.data();
    char const * const end = next + bytes.size();
    while (next != end) {
        int const length = utf8Length(next, end);
        if (length == 0)
            return false;
        next += length;
    }
    return true;
}

bool isUtf16(QString const & text)
{
    for (int index = 0; index < text.size(); ++index) {
        if (!text[index].isSurrogate())
            continue;
        if (!text[index].isHighSurrogate() || ++index == text.size() || !text[index].isLowSurrogate())
            return false;
    }
    return true;
}

void appendUtf8(std::string & bytes, unsigned code)
{
    auto const append = [&bytes](unsigned byte) { bytes += static_cast<char>(byte); };
    auto const more = [&](unsigned shift) { append(0x80 | ((code >> shift) & 0x3F)); };
    if (code < 0x80) {
        append(code);
    } else if (code < 0x800) {
        append(0xC0 | (code >> 6));
        more(0);
    } else if (code < 0x10000) {
        append(0xE0 | (code >> 12));
        more(6);
        more(0);
    } else {
        append(0xF0 | (code >> 18));
        more(12);
        more(6);
        more(0);
    }
}

QString fromUtf8(std::string_view bytes)
{
    constexpr std::string_view mark = "\xEF\xBB\xBF";
    int marks = 0;
    for (; bytes.substr(0, mark.size()) == mark; bytes.remove_prefix(mark.size()))
        ++marks;
    QString const text =
        bytes.empty() ? QString(QLatin1String("")) : QString::fromUtf8(bytes.data(), static_cast<int>(bytes.size()));
    return marks == 0 ? text : QString(marks, QChar(QChar::ByteOrderMark)) + text;
}

} // namespace Serialize
