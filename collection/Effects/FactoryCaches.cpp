#include <collection/Effects/FactoryCaches.h>

#include <collection/Effects/Loading.h>
#include <EditorExternalResourses/ShaderISF.h>
#include <EditorModel/Resource.h>
#include <FileSystem/FileSystem.h>
#include <ParserLUT/ParserLUTFactory.h>
#include <utils/LutUtils.h>

namespace Effect::Factory {

std::shared_ptr<Quoril::Proc::LUT::LUTTable> FactoryCaches::lutTable(QString const & resourceName)
{
    auto found = m_lutTables.constFind(resourceName);
    if (found == m_lutTables.constEnd()) {
        LutEntry entry;
        auto const text = resourceText(resourceName, entry.problem);
        if (!text) {
            warnOfMissing("LUT", resourceName, entry.problem);
            return nullptr;
        }
        if (entry.problem.isEmpty()) {
            entry.table = Utils::parseLutEffect(*text, &entry.problem);
            if (!entry.table && entry.problem.isEmpty())
                entry.problem = QString::fromStdString(Quoril::Proc::LUT::ParserLUTFactory::UnknownFormat());
            entry.problem.prepend(Resource::registeredPath(resourceName) + QLatin1String(": "));
        }
        found = m_lutTables.insert(resourceName, entry);
    }
    if (!found->table)
        warnOfMissing("LUT", resourceName, found->problem);
    return found->table;
}

std::shared_ptr<External::ShaderISF::ISFSettings> FactoryCaches::isfSettings(
    QString const & resourceName, QString const & path)
{
    auto found = m_isfSettings.constFind(resourceName);
    if (found == m_isfSettings.constEnd())
        // The loader warns.
        found = m_isfSettings.insert(
            resourceName, External::ShaderISF::loadEffectISF(resourceName, FS::absolutePath(path)));
    else if ((*found)->config.empty())
        warnOfMissing(
            "ISF shader", resourceName, QStringLiteral("it could not be loaded before and is not tried again"));
    return *found;
}

} // namespace Effect::Factory
