#include <inspect/Hash.h>

#include <algorithm>

#include <QByteArray>
#include <QCryptographicHash>

namespace Effect::Inspect {

std::string sha256(std::string_view bytes)
{
    // Without a copy; in pieces, as Qt counts bytes in an int.
    constexpr std::size_t piece = std::size_t(1) << 30;
    QCryptographicHash hash(QCryptographicHash::Sha256);
    for (; !bytes.empty(); bytes.remove_prefix(std::min(piece, bytes.size())))
        hash.addData(bytes.data(), static_cast<int>(std::min(piece, bytes.size())));
    return hash.result().toHex().toStdString();
}

} // namespace Effect::Inspect
