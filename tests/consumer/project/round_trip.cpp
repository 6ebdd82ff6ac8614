// Prints the JSON archive of a crop, having read it back.
#include <iostream>
#include <memory>
#include <string>

#include <effects/Effects.h>

#include <EditorModel/EffectArchive.h>

int main()
{
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
