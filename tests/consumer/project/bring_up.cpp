// Brings the library up over the stock folder in the first argument, prints how many items it has and which settings a
// blur gets, and then calls something of each of the editor's other libraries.
#include <effects/Effects.h>

#include <cmath>
#include <iostream>

#include <ConfInt/ImplNames.h>
#include <ConfInt/Transform2D.h>
#include <EditorExternalResourses/ShaderISF.h>
#include <EditorModel/CollectionProvider.h>
#include <EditorSerialization/Registry.h>
#include <EditorSettings/Settings.h>
#include <EditorUtil/ItemStorage.h>
#include <FileSystem/FileSystem.h>
#include <ParserLUT/ParserLUTFactory.h>
#include <Settings/Trace.h>

namespace {

bool expect(bool condition, char const * what)
{
    if (!condition)
        std::cerr << "not as it should be: " << what << '\n';
    return condition;
}

bool editorLibrariesAnswer()
{
    using Quoril::Proc::LUT::ParserLUTFactory;
    bool good = expect(FS::joinPath({"a", "b"}, ".c") == "a/b.c", "FileSystem");
    good = expect(ParserLUTFactory::GetParser("LUT_3D_SIZE 2\n")->FormatName() == "cube", "ParserLUT") && good;
    good = expect(External::ShaderISF::parse("/*{}*/ void main() {}").pixelShader == " void main() {}",
               "EditorExternalResourses") &&
           good;
    // A quarter turn, twice, is a half turn.
    auto const quarter = Quoril::Conf::Transform2D::MakeRotation(std::acos(0.0));
    good = expect(std::abs((quarter * quarter)[0] + 1) < 1e-9, "ConfInt and Utils") && good;
    good = expect(MTime(62'500'000).toString() == "0:01:02.500000", "MTime") && good;
    return expect(Serialize::Registry::create("Effect::Crop") != nullptr, "EditorSerialization") && good;
}

} // namespace

int main(int, char ** arguments)
{
    Settings::setStockRoot(arguments[1]);
    Settings::setUserRoot("/nonexistent");
    EditorCollection::ItemStorage storage;
    EditorCollection::CollectionProvider::setItemStorage(&storage);
    Effect::ContentProvider const provider;
    storage.waitForAll();
    auto const progress = storage.progress();
    bool good = expect(progress.delivered > 0 && progress.failed == 0, "the stock items");

    auto const blur = Serialize::Registry::create("Effect::Blur");
    Quoril::Proc::Trace const trace;
    auto const record = Effect::Factory::videoEffectSettings(dynamic_cast<Effect::Object const &>(*blur), {});
    good = expect(record.implementation == Quoril::Proc::ImplNames::DEFAULT, "the implementation") && good;
    good = expect(record.settings.size() == 1 && trace.calls(*record.settings[0]).size() == 1, "the calls") && good;
    good = editorLibrariesAnswer() && good;
    std::cout << record.settings.at(0)->GetClassId() << '\n';
    return good ? 0 : 1;
}
