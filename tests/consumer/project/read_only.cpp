// Reads the archive on standard input and prints the name of the effect's class. It calls the editor's model and
// nothing of the effects library: a linker may think that this program does not need the library.
#include <iostream>
#include <iterator>
#include <string>

#include <EditorModel/EffectArchive.h>

int main()
{
    std::string const archive{std::istreambuf_iterator<char>(std::cin), {}};
    std::cout << Effect::Archive::fromJson(archive)->GetNameInArchive() << '\n';
}
