#include <inspect/FileNames.h>

#include <algorithm>

#include <QFile>
#include <QTextCodec>

namespace Effect::Inspect {

namespace {

// A byte that is no UTF-8 becomes a low surrogate on its own, which no text in UTF-8 decodes to.
constexpr ushort escapeBase = 0xDC00;
constexpr ushort firstEscape = escapeBase + 0x80;
constexpr ushort lastEscape = escapeBase + 0xFF;

class FileNameCodec final : public QTextCodec
{
public:
    QByteArray name() const override { return "file-names"; }
    int mibEnum() const override { return 0; } // not registered

private:
    QString convertToUnicode(char const * bytes, int length, ConverterState *) const override
    {
        QString text;
        if (append(text, bytes, length))
            return text;
        constexpr int longest = 4; // bytes of a character
        for (int at = 0; at < length;) {
            int size = std::min(longest, length - at);
            while (size > 0 && !append(text, bytes + at, size))
                --size;
            if (size == 0)
                text += QChar(static_cast<ushort>(escapeBase + static_cast<uchar>(bytes[at])));
            at += std::max(size, 1);
        }
        return text;
    }

    QByteArray convertFromUnicode(QChar const * units, int length, ConverterState *) const override
    {
        QByteArray bytes;
        int done = 0;
        for (int at = 0; at < length; ++at) {
            ushort const unit = units[at].unicode();
            bool const isAlone = at == 0 || !units[at - 1].isHighSurrogate();
            if (unit < firstEscape || unit > lastEscape || !isAlone)
                continue;
            bytes += QString::fromRawData(units + done, at - done).toUtf8();
            bytes += static_cast<char>(unit - escapeBase);
            done = at + 1;
        }
        return bytes + QString::fromRawData(units + done, length - done).toUtf8();
    }

    /// Appends the text of bytes that are UTF-8; for others returns false.
    static bool append(QString & text, char const * bytes, int length)
    {
        QString const decoded = QString::fromUtf8(bytes, length);
        bool const isExact = decoded.toUtf8() == QByteArray::fromRawData(bytes, length);
        if (isExact)
            text += decoded;
        return isExact;
    }
};

} // namespace

void keepFileNames()
{
    QTextCodec::setCodecForLocale(new FileNameCodec); // Qt deletes it
}

QString fileName(std::string const & bytes)
{
    return QFile::decodeName(bytes.c_str());
}

std::string toBytes(QString const & fileName)
{
    return QFile::encodeName(fileName).toStdString();
}

} // namespace Effect::Inspect
