/// @file
/// What one factory has loaded so far. It lasts as long as the factory: a file that changes meanwhile is not read
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

/// Whatever cannot be had is logged in one line at severity WARNING each time that it is asked for, so that the log of
/// each conversion names the files that it lacked, even where a file is not read again.
class FactoryCaches
{
public:
    /// The table in the blob of that name; null when there is none. A text that is no table is not read again; a file
    /// that is missing or empty is.
    std::shared_ptr<Quoril::Proc::LUT::LUTTable> lutTable(QString const & resourceName);

    /// The shader that was loaded for that name first, whatever its path; never null.
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

/// What a video conversion is given. Most need the render's parameters at most and take a `VideoParams const &`; one
/// that loads something takes the context.
struct VideoContext : VideoParams
{
    VideoContext(VideoParams const & params, FactoryCaches & factoryCaches)
        : VideoParams(params)
        , caches(factoryCaches)
    {}

    FactoryCaches & caches;
};

} // namespace Effect::Factory
