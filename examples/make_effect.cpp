// Makes an effect, chains its setters, and archives it in both forms.

#include <EditorModel/EffectArchive.h>
#include <effects/Effects.h>

#include <iostream>

int main()
{
    Effect::ManualEnhance effect;
    effect.setGamma(0.25)->setSaturation(-0.5)->setTemperature(0.125);
    effect.range = Types::Range(MTime(2'000'000), MTime(500'000)); // from second 2, for half a second

    std::string const document = Effect::Archive::toJson(effect);
    std::string const bytes = Effect::Archive::toBinary(effect);
    std::cout << document << '\n' << bytes.size() << " bytes in the binary form\n";

    // Both read back as the same effect.
    std::unique_ptr<Effect::Object> const copies[] = {
        Effect::Archive::fromJson(document), Effect::Archive::fromBinary(bytes)};
    for (auto const & read : copies) {
        auto const & panel = dynamic_cast<Effect::ManualEnhance const &>(*read);
        std::cout << panel.GetNameInArchive() << (panel == effect ? ": equal\n" : ": different\n");
    }
}
