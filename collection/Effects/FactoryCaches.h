/// @file
/// The files that one factory has loaded. The cache lives as long as the factory, so a file that changes is not read
/// again.
#pragma once

#include <memory>

#include <collection/Effects/ImageHolder.h>
#include <EditorModel/EffectFactory.h>

#include <QMap>
#include <QString>

namespace Quoril::Proc::LUT {
struct LUTTable;
} // namespace Quoril::Proc::LUT

namespace External::ShaderISF {
struct ISFSettings;
} // namespace External::ShaderISF

namespace Effect::Factory {

/// A missing or broken file is logged at severity WARNING, one line, on every request, so that the log of each
/// conversion names the files that it lacked, even where a failed file is not read again.
class FactoryCaches
{
public:
    /// The table in the blob of that name; null when there is none. A text that is no table is not read again; a file
    /// that is missing or empty is.
    std::shared_ptr<Quoril::Proc::LUT::LUTTable> lutTable(QString const & resourceName);

    /// The shader first loaded under that name, even from another path; never null.
    std::shared_ptr<External::ShaderISF::ISFSettings> isfSettings(QString const & resourceName, QString const & path);

    ImageHolder images; ///< by path

private:
    struct LutEntry
    {
        std::shared_ptr<Quoril::Proc::LUT::LUTTable> table;
        QString problem; ///< why there is no table
    };

    QMap<QString, LutEntry> m_lutTables;                                            // by resource name
    QMap<QString, std::shared_ptr<External::ShaderISF::ISFSettings>> m_isfSettings; // likewise
};

/// The arguments of a video conversion. Most use only the render's parameters and take a `VideoParams const &`; those
/// that load files take the context.
struct VideoContext : VideoParams
{
    VideoContext(VideoParams const & params, FactoryCaches & factoryCaches)
        : VideoParams(params)
        , caches(factoryCaches)
    {}

    FactoryCaches & caches;
};

} // namespace Effect::Factory
