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

struct FactoryCaches
{
    /// By resource name; null for a text that is no table.
    QMap<QString, std::shared_ptr<Quoril::Proc::LUT::LUTTable>> lutTables;
    /// By resource name.
    QMap<QString, std::shared_ptr<External::ShaderISF::ISFSettings>> isfSettings;
    /// By path.
    ImageHolder images;
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
