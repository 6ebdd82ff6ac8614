#include <EditorModel/UserBlob.h>

#include <EditorModel/Resource.h>

#include <QFileInfo>

namespace UserBlob {

bool loadBlob(QString const & path)
{
    QFileInfo const file(path);
    if (!file.isFile() || !file.isReadable())
        return false;
    Resource::registerResource(
        Resource::ID(file.fileName(), Resource::Type::Blob), file.absoluteFilePath(), 0, MTime(), Resource::Timing());
    return true;
}

} // namespace UserBlob
