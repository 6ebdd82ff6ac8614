// Reads a project's effects, in either form, and prints what they are.

#include <effects/Effects.h>

#include <iostream>

#include "ReadEffect.h"

namespace {

void print(Effect::Object const & effect, std::string const & margin)
{
    std::cout << margin << effect.GetNameInArchive() << ", tag \"" << effect.tag.toStdString() << "\", "
              << (effect.type() == Effect::Type::Audio ? "audio" : "video") << '\n';
    // A holder may have empty slots.
    if (auto const * const holder = dynamic_cast<Effect::EffectsHolder const *>(&effect))
        for (auto const & held : holder->effects)
            held ? print(*held, margin + "  ") : void(std::cout << margin << "  (empty)\n");
}

} // namespace

int main(int argc, char ** argv)
{
    if (argc < 2) {
        std::cerr << "usage: read_effects FILE...\n";
        return 2;
    }
    try {
        for (int index = 1; index < argc; ++index)
            print(*readEffect(argv[index]), "");
    } catch (std::exception const & error) {
        std::cerr << error.what() << '\n';
        return 1;
    }
}
