// Converts effects into what the render engine executes, for a clip of four seconds in full HD.

#include <EditorModel/CollectionProvider.h>
#include <EditorModel/EffectFactory.h>
#include <effects/Effects.h>

#include <iostream>

#include "ReadEffect.h"

namespace {

void convert(Effect::Object const & effect)
{
    Effect::Factory::VideoParams params;
    params.frameGeometry = {1920, 1080};
    params.duration = 4 * MTime::unitsPerSecond;
    auto const record = effect.type() == Effect::Type::Audio ? Effect::Factory::audioEffectSettings(effect, {})
                                                             : Effect::Factory::videoEffectSettings(effect, params);
    std::cout << effect.GetNameInArchive() << ": stage " << int(record.stageCode) << ", " << record.implementation
              << '\n';
    for (auto const & settings : record.settings)
        std::cout << "  " << settings->GetClassId() << '\n';
}

} // namespace

int main(int argc, char ** argv)
{
    if (argc < 2) {
        std::cerr << "usage: convert_for_render FILE...\n";
        return 2;
    }
    // The factory is installed for as long as the provider lives; this host wants no catalogue with it.
    EditorCollection::NullItemStorage noItems;
    EditorCollection::CollectionProvider::setItemStorage(&noItems);
    Effect::ContentProvider const provider;
    try {
        for (int index = 1; index < argc; ++index)
            convert(*readEffect(argv[index]));
    } catch (std::exception const & error) {
        std::cerr << error.what() << '\n';
        return 1;
    }
}
