// Prints the JSON archive of a default crop, having read it back.
#include <iostream>
#include <memory>
#include <string>

#include <effects/Effects.h>

#include <EditorModel/EffectArchive.h>

int main()
{
    Effect::Crop const crop;
    std::string const archive = Effect::Archive::toJson(crop);
    std::unique_ptr<Effect::Object> const copy = Effect::Archive::fromJson(archive);
    auto const * const read = dynamic_cast<Effect::Crop const *>(copy.get());
    if (!read || !(*read == crop)) {
        std::cerr << "the crop did not come back from " << archive << '\n';
        return 1;
    }
    std::cout << archive << '\n';
}
