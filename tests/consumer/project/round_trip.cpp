// Prints the JSON archive of a crop, having read it back.
#include <iostream>
#include <memory>
#include <string>

#include <effects/Effects.h>

#include <EditorModel/EffectArchive.h>

#if EDITOREFFECTS_VERSION < EDITOREFFECTS_MAKE_VERSION(1, 0, 0)
#error "the headers have no version"
#endif

int main()
{
    if (Effect::version() != EDITOREFFECTS_VERSION) {
        std::cerr << "the headers are of " EDITOREFFECTS_VERSION_STRING ", the library of " << Effect::versionString()
                  << '\n';
        return 1;
    }
    Effect::Crop crop;
    crop.intensity = 0.5;
    std::string const archive = Effect::Archive::toJson(crop);
    std::unique_ptr<Effect::Object> const copy = Effect::Archive::fromJson(archive);
    if (!dynamic_cast<Effect::Crop const *>(copy.get()) || copy->intensity != 0.5) {
        std::cerr << "the crop did not come back from " << archive << '\n';
        return 1;
    }
    std::cout << archive << '\n';
}
