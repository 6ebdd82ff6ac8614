#include <collection/Effects/Conversions.h>
#include <collection/Effects/Loading.h>
#include <EditorExternalResourses/ShaderISF.h>
#include <EditorModel/Resource.h>
#include <effects/Identity.h>
#include <effects/Shaders.h>
#include <Settings/SettingsShader.h>

namespace Effect::Factory {

namespace {

/// Shows the picture as it is.
constexpr char passThroughShader[] = R"(
varying vec2 TexCoord0;
uniform sampler2D tex;

void main() {
	gl_FragColor = texture2D(tex, TexCoord0);
})";

std::string shaderText(QString const & name)
{
    if (name.isEmpty())
        return passThroughShader;
    QString problem;
    auto const text = resourceText(name, problem);
    if (!problem.isEmpty())
        warnOfMissing("shader", name, problem);
    return text ? text->toStdString() : passThroughShader;
}

/// Null if the picture cannot be loaded.
ImageHolder::Image auxImage(QString const & name)
{
    Resource::ID const id(name, Resource::Type::Image);
    if (!id.isValid())
        return nullptr;
    QString problem;
    auto const image = Resource::provideImageResource(id.name(), &problem);
    if (!image || !image->pixmap || image->pixmap->isNull()) {
        warnOfMissing("image", name, problem);
        return nullptr;
    }
    return holdImage(image->pixmap->toImage());
}

} // namespace

void addShaders(Conversions & table)
{
    table.add<ExternalShader, Proc::SettingsEffectTemplateQES>(
        Id::ExternalShader,
        [](auto & settings, ExternalShader const & effect) {
            settings.SetVersion(effect.apiVersion);
            settings.SetIntensity(effect.hasIntensity() ? floatIntensity(effect) : -1.0F);
            settings.SetShader(shaderText(effect.shaderResource));
            // A picture that cannot be loaded is passed as null.
            if (!effect.auxImageResource.isEmpty())
                settings.SetAuxImage(auxImage(effect.auxImageResource));
        },
        Stage::openGl, Proc::ImplNames::OGL);

    table.add<Lut, Proc::SettingsEffectLUT>(Id::Lut, [](auto & settings, Lut const & effect, auto const & context) {
        QString const & name = effect.resource.name();
        if (name.isEmpty())
            return;
        auto const lut = context.caches.lutTable(name);
        if (!lut)
            return;
        settings.intensity = floatIntensity(effect);
        settings.SetTable(lut);
        settings.SetMode(Proc::SettingsEffectLUT::InterpolateMode::Linear);
    });

    table.add<ShaderISF, Proc::SettingsEffectISF>(
        Id::ShaderISF, [](auto & settings, ShaderISF const & effect, auto const & context) {
            auto const loaded = context.caches.isfSettings(effect.resource.name(), effect.resourcePath);
            External::ShaderISF::ISFSettings const & shader = *loaded;
            settings.SetConfig(effect.inputs.empty() ? shader.config : effect.inputs);
            settings.SetPixelShader(shader.pixelShader);
            if (!shader.vertexShader.empty())
                settings.SetVertexShader(shader.vertexShader);
        });
}

} // namespace Effect::Factory
