// Reads a project's effects, in either form, and tells what they are.

#include <EditorModel/EffectArchive.h>
#include <effects/Effects.h>

#include <fstream>
#include <iostream>
#include <iterator>

namespace {

void tell(Effect::Object const & effect, std::string const & margin)
{
    std::cout << margin << effect.GetNameInArchive() << ", tag \"" << effect.tag.toStdString() << "\", "
              << (effect.type() == Effect::Type::Audio ? "audio" : "video") << '\n';
    // A holder may have empty slots.
    if (auto const * const holder = dynamic_cast<Effect::EffectsHolder const *>(&effect))
        for (auto const & held : holder->effects)
            held ? tell(*held, margin + "  ") : void(std::cout << margin << "  (empty)\n");
}

} // namespace

int main(int argc, char ** argv)
{
    for (int index = 1; index < argc; ++index) {
        std::ifstream file(argv[index], std::ios::binary);
        std::string const bytes{std::istreambuf_iterator<char>(file), {}};
        bool const isJson = !bytes.empty() && bytes[0] == '{';
        try {
            tell(isJson ? *Effect::Archive::fromJson(bytes) : *Effect::Archive::fromBinary(bytes), "");
        } catch (std::exception const & error) {
            std::cerr << argv[index] << ": " << error.what() << '\n';
            return 1;
        }
    }
}
