/// @file
/// Effects that apply a file: a lookup table or a shader.
#pragma once

#include <string>

#include <effects/Base.h>

namespace Effect {

/// Maps the colours through a lookup table. `resource` names the file. A file that is missing or is not a table leaves
/// the picture as it is.
struct EFFECTS_API Lut : VideoEffect
{
    EFFECT_FILTER_CLASS(Lut)

    /// @param name  of the resource and of the group; "no resource" in a default effect
    explicit Lut(QString const & name);

    static constexpr auto describe()
    {
        return description("Changes the colours with a lookup table from a file, such as a film look.",
            readsIntensity(), readsResource().text("The file with the lookup table"));
    }
};

/// Runs a shader in the Interactive Shader Format. `resource` names the file and `resourcePath` locates it. The
/// intensity is ignored.
struct EFFECTS_API ShaderISF : VideoEffect
{
    EFFECT_CLASS(ShaderISF)
    ShaderISF();

    /// @param name  of the resource and of the group; "no resource" in a default effect
    explicit ShaderISF(QString const & name);

    /// The values of the shader's inputs. A text that is not empty replaces the configuration text that the loader of
    /// shader files makes from the file, and has the same form.
    std::string inputs;

    DownloadResourceType downloadResourceType() const override; ///< a shader
    QString defaultTag() const override;

    static constexpr auto describe()
    {
        return description("Draws the picture with a shader file in the Interactive Shader Format.",
            readsResource().text("The shader file"), readsResourcePath(),
            parameter("inputs", &ShaderISF::inputs)
                .label("Inputs")
                .text("Values of the shader's own controls; empty for those in the file"));
    }
};

/// Runs a fragment shader from a file, which can use a second picture. A file that is missing or empty leaves the
/// picture as it is.
struct EFFECTS_API ExternalShader : VideoEffect
{
    EFFECT_CLASS(ExternalShader)
    ExternalShader();

    int apiVersion = 0;                          ///< version of the engine's interface that the shader uses
    bool supportsIntensity = false;              ///< whether the shader reads the intensity
    QString shaderResource{QLatin1String("")};   ///< resource name of the shader file
    QString auxImageResource{QLatin1String("")}; ///< resource name of the second picture; empty for none

    bool hasIntensity() const override; ///< returns `supportsIntensity`

    static constexpr auto describe()
    {
        return description("Draws the picture with a shader from a file, which can use a second picture.",
            readsIntensity().text("How strong the effect is, where the shader supports it; 1 is full strength"),
            parameter("apiVersion", &ExternalShader::apiVersion)
                .label("Interface version")
                .text("What the shader expects of the render engine"),
            parameter("supportsIntensity", &ExternalShader::supportsIntensity)
                .label("Supports intensity")
                .text("Whether the strength of the shader can be set"),
            parameter("shaderResource", &ExternalShader::shaderResource)
                .label("Shader")
                .text("Name of the shader file; without one the picture stays as it is"),
            parameter("auxImageResource", &ExternalShader::auxImageResource)
                .label("Second picture")
                .text("Name of an image that the shader uses; may be empty"));
    }
};

} // namespace Effect
