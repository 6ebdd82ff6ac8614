/// @file
/// Effects that run what is in a file: a lookup table or a shader.
#pragma once

#include <string>

#include <effects/Base.h>

namespace Effect {

/// Maps the colours through the lookup table in a file, which `resource` names. A file that is no table leaves the
/// picture as it is.
struct EFFECTS_API Lut : VideoEffect
{
    EFFECT_FILTER_CLASS(Lut)

    /// @param name  of the resource and of the group; "no resource" in a default effect
    explicit Lut(QString const & name);

    static constexpr auto describe()
    {
        return description(
            "Maps the colours through the lookup table in a file, which `resource` names.", readsIntensity());
    }
};

/// Runs a shader in the Interactive Shader Format, which `resource` names and `resourcePath` finds. Its intensity has
/// no effect.
struct EFFECTS_API ShaderISF : VideoEffect
{
    EFFECT_CLASS(ShaderISF)
    ShaderISF();

    /// @param name  of the resource and of the group; "no resource" in a default effect
    explicit ShaderISF(QString const & name);

    /// What the user set the shader's inputs to, in the form of the configuration text that the shader's loader writes,
    /// which it replaces; empty for the configuration that is in the file.
    std::string inputs;

    DownloadResourceType downloadResourceType() const override; ///< a shader
    QString defaultTag() const override;

    static constexpr auto describe()
    {
        return description(
            "Runs a shader in the Interactive Shader Format, which `resource` names and `resourcePath` finds.",
            parameter("inputs", &ShaderISF::inputs));
    }
};

/// Runs a fragment shader from a file, with a second picture at hand. A file that is missing or empty leaves the
/// picture as it is.
struct EFFECTS_API ExternalShader : VideoEffect
{
    EFFECT_CLASS(ExternalShader)
    ExternalShader();

    int apiVersion = 0;                          ///< of what the engine offers to the shader
    bool supportsIntensity = false;              ///< whether the shader reads the intensity
    QString shaderResource{QLatin1String("")};   ///< name of the shader's resource
    QString auxImageResource{QLatin1String("")}; ///< name of the second picture's resource; empty when there is none

    bool hasIntensity() const override; ///< `supportsIntensity`

    static constexpr auto describe()
    {
        return description("Runs a fragment shader from a file, with a second picture at hand.",
            parameter("apiVersion", &ExternalShader::apiVersion),
            parameter("supportsIntensity", &ExternalShader::supportsIntensity),
            parameter("shaderResource", &ExternalShader::shaderResource),
            parameter("auxImageResource", &ExternalShader::auxImageResource));
    }
};

} // namespace Effect
