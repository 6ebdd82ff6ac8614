// A host whose own libraries have names that the editor's libraries have as well. Takes a crop to JSON and back.
#include <iostream>

#include <EditorModel/EffectArchive.h>
#include <effects/Effects.h>

extern "C" int ownSettings();
extern "C" int ownUtils();
extern "C" int ownFileSystem();
extern "C" int ownMTime();

int main()
{
    if (ownSettings() + ownUtils() + ownFileSystem() + ownMTime() != 4)
        return 1;
    std::cout << Effect::Archive::fromJson(Effect::Archive::toJson(Effect::Crop()))->GetNameInArchive() << '\n';
}
