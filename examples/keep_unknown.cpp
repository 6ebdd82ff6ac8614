// Edits one parameter of a project that a newer version of the editor has saved, and loses nothing of what that version
// put there: an effect of a class that this library does not have, and keys that it does not know.

#include <exception>
#include <fstream>
#include <iostream>
#include <iterator>

#include <EditorModel/EffectDocument.h>
#include <effects/Effects.h>

int main(int argc, char ** argv)
{
    if (argc != 2) {
        std::cerr << "usage: keep_unknown FILE\n";
        return 2;
    }
    try {
        std::ifstream file(argv[1], std::ios::binary);
        if (!file) {
            std::cerr << argv[1] << ": cannot be read\n";
            return 1;
        }
        std::string const bytes{std::istreambuf_iterator<char>(file), {}};
        auto document = Effect::Archive::Document::read(bytes);
        for (Effect::Archive::Finding const & finding : document.findings())
            std::cout << "line " << finding.line.value_or(0) << ": " << finding.message << '\n';

        auto * const holder = dynamic_cast<Effect::EffectsHolder *>(document.effect());
        if (!holder) {
            std::cerr << argv[1] << " holds no list of effects\n";
            return 1;
        }
        // Slots of unknown classes are empty here, and whole in the file.
        int unknown = 0;
        for (auto & effect : holder->effects) {
            auto const * const opacity = dynamic_cast<Effect::Opacity const *>(effect.get());
            unknown += effect ? 0 : 1;
            if (!opacity)
                continue;
            auto changed = std::make_unique<Effect::Opacity>(*opacity);
            changed->setOpacity(0.25);
            effect = std::move(changed);
        }
        std::cout << holder->effects.size() << " effects, " << unknown << " of them unknown\n";

        std::cout << document.toJson();
        return 0;
    } catch (std::exception const & error) {
        std::cerr << error.what() << '\n';
        return 1;
    }
}
