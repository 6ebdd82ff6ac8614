#include <effects/Base.h>

#include <typeinfo>

#include "Register.h"

namespace Effect::Registration {

/// On the interfaces the type is archived for a plain descriptor only: a subclass's constructor fixes it.
template <class Archive> void walk(Archive & archive, EffectDescriptor & object, ArchiveBase<Object> base)
{
    if constexpr (::Serialize::isInterface<Archive>)
        if (typeid(object) != typeid(EffectDescriptor))
            return ::Serialize::fields<Object>(archive, object);
    walk<Archive, EffectDescriptor, Object>(archive, object, base);
}

} // namespace Effect::Registration

#define FAMILY Base
#define FAMILY_IS_BASE
#include "Family.h"
