#include <collection/Effects/Loading.h>

#include <EditorModel/Resource.h>
#include <EditorSerialization/MessageText.h>

#include <glog/logging.h>

namespace Effect::Factory {

std::optional<QByteArray> resourceText(QString const & resourceName, QString & problem)
{
    auto const blob = Resource::provideBlobResource(resourceName, &problem);
    if (!blob || blob->data.isEmpty()) {
        if (problem.isEmpty())
            problem = Resource::registeredPath(resourceName) + QLatin1String(": is empty");
        return std::nullopt;
    }
    QByteArray text = blob->data.mid(0, blob->data.indexOf('\0'));
    if (text.isEmpty())
        problem = Resource::registeredPath(resourceName) + QLatin1String(": begins with a zero byte");
    return text;
}

void warnOfMissing(char const * what, QString const & name, QString const & problem)
{
    LOG(WARNING) << "Couldn't load " << what << ' ' << Serialize::quotedText(name.toStdString()) << ": "
                 << Serialize::messageText(problem.toStdString());
}

} // namespace Effect::Factory
