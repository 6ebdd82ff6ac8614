// Converts effects into what the render engine executes.

#include <EditorModel/CollectionProvider.h>
#include <effects/Effects.h>

#include <iostream>

#include "ConvertEffect.h"
#include "ReadEffect.h"

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
        for (int index = 1; index < argc; ++index) {
            auto const effect = readEffect(argv[index]);
            std::cout << effect->GetNameInArchive() << '\n' << convertEffect(*effect);
        }
    } catch (std::exception const & error) {
        std::cerr << error.what() << '\n';
        return 1;
    }
}
