#include <effects/Shaders.h>

#include <effects/Identity.h>

namespace Effect {

namespace {

/// What names the file until the host names another.
QString noResource()
{
    return QStringLiteral("no resource");
}

} // namespace

Lut::Lut()
    : Lut(noResource())
{}

Lut::Lut(QString const & name)
    : VideoEffect(Id::Lut, name)
{
    tag = Tags::tagLut;
    resource = Resource::ID(name, Resource::Type::Blob);
}

ShaderISF::ShaderISF()
    : ShaderISF(noResource())
{}

ShaderISF::ShaderISF(QString const & name)
    : VideoEffect(Id::ShaderISF, name)
{
    tag = Tags::tagShaderISF;
    resource = Resource::ID(name, Resource::Type::Blob);
}

ShaderISF::DownloadResourceType ShaderISF::downloadResourceType() const
{
    return DownloadResourceType::Shader;
}

QString ShaderISF::defaultTag() const
{
    return Tags::tagShaderISF;
}

bool ExternalShader::hasIntensity() const
{
    return supportsIntensity;
}

} // namespace Effect
