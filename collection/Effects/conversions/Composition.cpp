#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

#include <collection/Effects/Conversions.h>
#include <effects/Composition.h>
#include <effects/Identity.h>
#include <Settings/SettingsComposition.h>
#include <Settings/SettingsTransform.h>

#include <QRectF>
#include <QTransform>

namespace Effect::Factory {

namespace {

/// The engine's number of each blend mode.
constexpr std::array blendModes{
    11, // 0
    6,  // 1
    24, // 2
    8,  // 3
    9,  // 4
    0,  // 5
    7,  // 6
    18, // 7
    2,  // 8
    1,  // 9
    3,  // 10
    13, // 11
    12, // 12
    19, // 13
};

void fillBlending(Proc::SettingsEffectColorBlender & settings, ColorBlendingBase const & effect)
{
    settings.blendMode =
        blendModes[static_cast<std::size_t>(knownValue(effect.mode, static_cast<int>(blendModes.size())))];
    settings.SetIntensity(floatIntensity(effect));
}

/// The picture's own rectangle, mapped around its middle.
QRectF place(Types::Transform const & transform)
{
    return transform.toQTransform().mapRect(QRectF(-0.5, -0.5, 1, 1)).translated(0.5, 0.5);
}

/// How far a coordinate lies below an edge at 0.
double overhang(double distance)
{
    return std::abs(std::min(distance, 0.0));
}

EffectSettings convertPictureInPicture(PictureInPicture const & effect, VideoParams const &)
{
    // An empty sub-frame shows the whole picture in the whole frame.
    if (effect.transform == Types::Transform())
        return makeEffectSettings(
            std::make_unique<Proc::SettingsEffectSubFrame>(), Stage::video, Proc::ImplNames::DEFAULT);
    auto settings = std::make_unique<Proc::SettingsEffectTransform>();
    settings->mode = Proc::SettingsEffectTransform::Mode::Place;
    settings->matrix = effect.transform.toMatrix3x3();
    return makeEffectSettings(std::move(settings), Stage::video, Proc::ImplNames::DEFAULT);
}

} // namespace

void addComposition(Conversions & table)
{
    table.addRecord<PictureInPicture>(Id::PictureInPicture, convertPictureInPicture);

    table.add<SideBySide, Proc::SettingsEffectSubFrame>(Id::SideBySide, [](auto & settings, SideBySide const & effect) {
        QRectF const picture(0, 0, 1, 1);
        QRectF const mapped = place(effect.transformSrc);
        QRectF const source = mapped & picture;

        // Where the source is cut at the picture's edges, the target is cut in proportion, so that the scale stays
        // the same. For a source of size zero the proportion, and with it the target, is NaN.
        QRectF target = place(effect.transformDst);
        double const left = overhang(mapped.left()) / mapped.width();
        double const top = overhang(mapped.top()) / mapped.height();
        double const right = overhang(1 - mapped.right()) / mapped.width();
        double const bottom = overhang(1 - mapped.bottom()) / mapped.height();
        target.adjust(
            target.width() * left, target.height() * top, -(target.width() * right), -(target.height() * bottom));
        target &= picture;

        settings.srcLeft = source.left();
        settings.srcTop = source.top();
        settings.srcRight = source.right();
        settings.srcBottom = source.bottom();
        settings.dstLeft = target.left();
        settings.dstTop = target.top();
        settings.dstRight = target.right();
        settings.dstBottom = target.bottom();
    });

    table.add<Opacity, Proc::SettingsEffectOpacity>(
        Id::Opacity, [](auto & settings, Opacity const & effect) { settings.opacity = effect.opacity; });

    table.add<ChromaKey, Proc::SettingsEffectChromakey>(Id::ChromaKey, [](auto & settings, ChromaKey const & effect) {
        settings.SetParams(static_cast<double>(effect.hueTolerance),
            static_cast<double>(effect.noiseLevel) * 0.00390625, static_cast<double>(effect.harshness) / 100.0,
            static_cast<double>(effect.transparency) / 100.0);
        auto const [red, green, blue] = channels(effect.color);
        settings.red = red;
        settings.green = green;
        settings.blue = blue;
    });

    table.add<Overlay, Proc::SettingsEffectColorBlender>(
        Id::Overlay, [](auto & settings, Overlay const & effect) { fillBlending(settings, effect); });

    table.add<ColorBlending, Proc::SettingsEffectColorBlender>(
        Id::ColorBlending, [](auto & settings, ColorBlending const & effect) {
            fillBlending(settings, effect);
            settings.SetBaseColor(Proc::ColorF{0, 0, 0, 1});
        });

    table.addBare<AlphaInserter, Proc::SettingsEffectAlphaInserter>(
        Id::AlphaInserter, Stage::openGl, Proc::ImplNames::OGL);
}

} // namespace Effect::Factory
