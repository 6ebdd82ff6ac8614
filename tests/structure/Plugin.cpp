// A plug-in that uses the library, for a host that does not know of it.

#include <EditorModel/EffectArchive.h>
#include <EditorSerialization/Registry.h>
#include <effects/Effects.h>

/// Puts an effect of every class into one holder and takes that through both archives. Returns how many effects there
/// are, or -1 when the holder does not come back as it was.
extern "C" __attribute__((visibility("default"))) int archiveEveryEffect()
{
    Effect::EffectsHolder holder;
    int count = 0;
    for (std::string const & name : Serialize::Registry::names()) {
        auto object = Serialize::Registry::create(name);
        auto * const effect = dynamic_cast<Effect::Object *>(object.get());
        if (!effect)
            continue;
        object.release();
        holder.addEffect(std::unique_ptr<Effect::Object>(effect));
        ++count;
    }
    std::string const text = Effect::Archive::toJson(holder);
    auto const fromJson = Effect::Archive::fromJson(text);
    auto const fromBinary = Effect::Archive::fromBinary(Effect::Archive::toBinary(holder));
    bool const isSame = Effect::Archive::toJson(*fromJson) == text && Effect::Archive::toJson(*fromBinary) == text;
    return isSame ? count : -1;
}
