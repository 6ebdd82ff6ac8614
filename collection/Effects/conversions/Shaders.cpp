#include <optional>

#include <collection/Effects/Conversions.h>
#include <EditorExternalResourses/ShaderISF.h>
#include <EditorModel/Resource.h>
#include <effects/Identity.h>
#include <effects/Shaders.h>
#include <FileSystem/FileSystem.h>
#include <Settings/SettingsShader.h>
#include <utils/LutUtils.h>

namespace Effect::Factory {

namespace {

/// Shows the picture as it is.
constexpr char passThroughShader[] = R"(
varying vec2 TexCoord0;
uniform sampler2D tex;

void main() {
	gl_FragColor = texture2D(tex, TexCoord0);
})";

/// The text in a file, which ends at the first zero byte; nothing when the file is missing or empty.
std::optional<QByteArray> resourceText(QString const & name)
{
    auto const blob = Resource::provideBlobResource(name, nullptr);
    if (!blob || blob->data.isEmpty())
        return std::nullopt;
    return blob->data.mid(0, blob->data.indexOf('\0'));
}

std::string shaderText(QString const & name)
{
    auto const text = name.isEmpty() ? std::nullopt : resourceText(name);
    return text ? text->toStdString() : passThroughShader;
}

/// Null when there is no such picture.
ImageHolder::Image auxImage(QString const & name)
{
    Resource::ID const id(name, Resource::Type::Image);
    if (!id.isValid())
        return nullptr;
    auto const image = Resource::provideImageResource(id.name(), nullptr);
    if (!image || !image->pixmap || image->pixmap->isNull())
        return nullptr;
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
            // One that cannot be had is told as null.
            if (!effect.auxImageResource.isEmpty())
                settings.SetAuxImage(auxImage(effect.auxImageResource));
        },
        Stage::openGl, Proc::ImplNames::OGL);

    table.add<Lut, Proc::SettingsEffectLUT>(Id::Lut, [](auto & settings, Lut const & effect, auto const & context) {
        QString const & name = effect.resource.name();
        if (name.isEmpty())
            return;
        auto & tables = context.caches.lutTables;
        auto found = tables.constFind(name);
        if (found == tables.constEnd()) {
            // A file that may yet come is asked for again; what is no table need not be read twice.
            auto const text = resourceText(name);
            if (!text)
                return;
            found = tables.insert(name, Utils::parseLutEffect(*text, nullptr));
        }
        if (!*found)
            return;
        settings.intensity = floatIntensity(effect);
        settings.SetTable(*found);
        settings.SetMode(Proc::SettingsEffectLUT::InterpolateMode::Linear);
    });

    table.add<ShaderISF, Proc::SettingsEffectISF>(
        Id::ShaderISF, [](auto & settings, ShaderISF const & effect, auto const & context) {
            QString const & name = effect.resource.name();
            auto & shaders = context.caches.isfSettings;
            auto found = shaders.constFind(name);
            if (found == shaders.constEnd())
                found = shaders.insert(
                    name, External::ShaderISF::loadEffectISF(name, FS::absolutePath(effect.resourcePath)));
            External::ShaderISF::ISFSettings const & shader = **found;
            settings.SetConfig(effect.inputs.empty() ? shader.config : effect.inputs);
            settings.SetPixelShader(shader.pixelShader);
            if (!shader.vertexShader.empty())
                settings.SetVertexShader(shader.vertexShader);
        });
}

} // namespace Effect::Factory
