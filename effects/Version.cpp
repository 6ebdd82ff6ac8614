#include <effects/Version.h>

namespace Effect {

int version() noexcept
{
    return EDITOREFFECTS_VERSION;
}

char const * versionString() noexcept
{
    return EDITOREFFECTS_VERSION_STRING;
}

} // namespace Effect
