// Converts effects into what the render engine executes, for a clip of four seconds in full HD.

#include <EditorModel/CollectionProvider.h>
#include <EditorModel/EffectArchive.h>
#include <EditorModel/EffectFactory.h>
#include <effects/Effects.h>

#include <fstream>
#include <iostream>
#include <iterator>

int main(int argc, char ** argv)
{
    // The factory is installed for as long as the provider lives; this host wants no catalogue with it.
    EditorCollection::NullItemStorage noItems;
    EditorCollection::CollectionProvider::setItemStorage(&noItems);
    Effect::ContentProvider const provider;
    Effect::Factory::VideoParams params;
    params.frameGeometry = {1920, 1080};
    params.duration = 4 * MTime::unitsPerSecond;

    for (int index = 1; index < argc; ++index) {
        std::ifstream file(argv[index], std::ios::binary);
        std::string const bytes{std::istreambuf_iterator<char>(file), {}};
        auto const effect = bytes[0] == '{' ? Effect::Archive::fromJson(bytes) : Effect::Archive::fromBinary(bytes);
        auto const record = Effect::Factory::videoEffectSettings(*effect, params);
        std::cout << effect->GetNameInArchive() << ": stage " << int(record.stageCode) << ", " << record.implementation
                  << '\n';
        for (auto const & settings : record.settings)
            std::cout << "  " << settings->GetClassId() << '\n';
    }
}
