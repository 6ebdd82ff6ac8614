#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <memory>
#include <regex>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include <collection/Effects/ContentProvider.h>
#include <EditorModel/CollectionProvider.h>
#include <EditorModel/EffectArchive.h>
#include <EditorModel/EffectFactory.h>
#include <EditorModel/Resource.h>
#include <EditorSerialization/Registry.h>
#include <EditorSettings/Settings.h>
#include <EditorUtil/ItemStorage.h>
#include <effects/Artistic.h>
#include <effects/Blur.h>
#include <effects/ColorFilters.h>
#include <effects/Equalizer.h>
#include <effects/Holder.h>
#include <effects/Light.h>
#include <effects/Modulation.h>
#include <effects/Retro.h>
#include <effects/Shaders.h>
#include <effects/Version.h>
#include <support/Conversion.h>
#include <support/LogCapture.h>
#include <utils/CollectionNames.h>
#include <utils/EffectUtils.h>
#include <utils/LutUtils.h>

#include <QFileInfo>
#include <QGuiApplication>
#include <QTemporaryDir>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace {

using namespace EditorCollection;
using testing::IsEmpty;

/// The whole stock, brought up once.
class Stock
{
public:
    Stock()
    {
        ::Settings::setStockRoot(EDITOR_STOCK);
        ::Settings::setUserRoot(m_user.path());
        CollectionProvider::setItemStorage(&m_storage);
        m_provider = std::make_unique<Effect::ContentProvider>();
        m_storage.waitForAll();
    }
    ~Stock()
    {
        m_provider.reset();
        CollectionProvider::setItemStorage(nullptr);
    }

    struct Entry
    {
        std::string collection;
        IItem const & item;

        Effect::Object const & effect() const { return item.payload(); }
        std::string name() const
        {
            return collection + ": " + effect().GetNameInArchive() + ' ' + effect().tag.toStdString();
        }
    };

    std::vector<Entry> entries() const
    {
        std::vector<Entry> entries;
        for (ICollection const * const collection : CollectionProvider::collections())
            for (IItem const * const item : collection->items())
                entries.push_back({collection->name().toStdString(), *item});
        return entries;
    }

    std::vector<std::string> const & errors() const { return m_log.errors(); }

private:
    int m_argumentCount = 1;
    char m_name[6] = "tests";
    char * m_arguments[2] = {m_name, nullptr};
    QGuiApplication m_application{m_argumentCount, m_arguments}; // pictures cannot be made without
    QTemporaryDir m_user;
    LogCapture m_log;
    ItemStorage m_storage;
    std::unique_ptr<Effect::ContentProvider> m_provider;
};

class StockTest : public testing::Test
{
protected:
    static void SetUpTestSuite() { s_stock = std::make_unique<Stock>(); }
    static void TearDownTestSuite() { s_stock.reset(); }

    static Stock const & stock() { return *s_stock; }

    /// What the effects of a class have in a field, each once.
    template <class Class, class Field> static std::set<int> numbers(Field Class::*field)
    {
        std::set<int> numbers;
        for (auto const & entry : stock().entries())
            if (auto const * const effect = dynamic_cast<Class const *>(&entry.effect()))
                numbers.insert(static_cast<int>(effect->*field));
        return numbers;
    }

private:
    static std::unique_ptr<Stock> s_stock;
};

std::unique_ptr<Stock> StockTest::s_stock;

std::set<int> upTo(int count)
{
    std::set<int> numbers;
    for (int number = 0; number < count; ++number)
        numbers.insert(number);
    return numbers;
}

TEST_F(StockTest, EveryFileIsAnItem)
{
    EXPECT_THAT(stock().errors(), IsEmpty());
    std::size_t files = 0;
    for (auto const & entry : std::filesystem::recursive_directory_iterator(EDITOR_STOCK))
        files += entry.path().native().find(".effect.json") != std::string::npos;
    EXPECT_EQ(stock().entries().size(), files);
}

TEST_F(StockTest, EveryClassHasAnItem)
{
    std::set<std::string> missing;
    for (std::string const & name : Serialize::Registry::names()) {
        auto const object = Serialize::Registry::create(name);
        auto const * const effect = dynamic_cast<Effect::Object const *>(object.get());
        // The bases have no identifier; among them only the holder is of use by itself.
        if (effect && (!effect->id.isEmpty() || dynamic_cast<Effect::EffectsHolder const *>(effect)))
            missing.insert(name);
    }
    EXPECT_GE(missing.size(), 70U);
    for (auto const & entry : stock().entries())
        missing.erase(entry.effect().GetNameInArchive());
    EXPECT_THAT(missing, IsEmpty());
}

TEST_F(StockTest, EveryPresetHasAnItem)
{
    using namespace Effect;
    EXPECT_EQ(numbers(&BokehBlur::preset), upTo(9));
    EXPECT_EQ(numbers(&PopArt::preset), upTo(4));
    EXPECT_EQ(numbers(&FindEdges::type), upTo(2));
    EXPECT_EQ(numbers(&Mosaic::type), upTo(2));
    EXPECT_EQ(numbers(&Erosion::type), upTo(2));
    EXPECT_EQ(numbers(&AddNoize::type), upTo(2));
    EXPECT_EQ(numbers(&RetroColors::type), upTo(4));
    EXPECT_EQ(numbers(&FilmStrip::type), upTo(3));
    EXPECT_EQ(numbers(&ColorBrush::pType), upTo(2));
    EXPECT_EQ(numbers(&ColorFilter::preset), upTo(36));
    EXPECT_EQ(numbers(&FlyingObjects::preset), upTo(16));
    EXPECT_EQ(numbers(&LensFlare::Presets), (std::set<int>{0, 1, 2, 3, 6, 7}));
    EXPECT_EQ(numbers(&LightLeaks::Presets), upTo(16));
    EXPECT_EQ(numbers(&VignetteFilter::preset), upTo(9));
    EXPECT_EQ(numbers(&AudioDistortion::type), upTo(5));
    EXPECT_EQ(numbers(&AudioEqualizer::preset), upTo(AudioEqualizer::presetCount));
}

TEST_F(StockTest, EqualizersAreThePresets)
{
    for (auto const & entry : stock().entries()) {
        auto const * const equalizer = dynamic_cast<Effect::AudioEqualizer const *>(&entry.effect());
        if (!equalizer)
            continue;
        EXPECT_TRUE(*equalizer == Effect::AudioEqualizer::makePreset(equalizer->preset)) << entry.name();
        EXPECT_FALSE(equalizer->presetName.isEmpty()) << entry.name();
    }
}

TEST_F(StockTest, EveryItemIsFiledAndFound)
{
    for (auto const & entry : stock().entries()) {
        EXPECT_FALSE(entry.item.categories().empty()) << entry.name();
        auto const * const collection = CollectionProvider::collection(QString::fromStdString(entry.collection));
        for (QString const & category : entry.item.categories())
            EXPECT_TRUE(collection->hasCategory(category)) << entry.name();
        EXPECT_FALSE(entry.effect().tag.isEmpty()) << entry.name();
        EXPECT_EQ(collection->itemByTag(entry.effect().tag), &entry.item) << entry.name();
        EXPECT_FALSE(entry.item.userFlagA()) << entry.name();
    }
}

/// The names in back quotes, or as JSON texts, that begin as categories do.
std::set<std::string> categoriesIn(std::string const & text)
{
    std::set<std::string> names;
    std::regex const name("[`\"](category_\\w+|Vignettes)[`\"]");
    for (std::sregex_iterator found(text.begin(), text.end(), name); found != std::sregex_iterator(); ++found)
        names.insert((*found)[1]);
    return names;
}

TEST_F(StockTest, TheDocumentsListItsCategories)
{
    std::ifstream file(EDITOR_DOCS "/authoring-stock-items.md");
    std::string const page{std::istreambuf_iterator<char>(file), {}};
    std::size_t const begin = page.find("\n## Categories\n");
    ASSERT_NE(begin, page.npos);
    std::set<std::string> const listed = categoriesIn(page.substr(begin, page.find("\n## ", begin + 1) - begin));

    std::set<std::string> used;
    for (auto const & entry : stock().entries())
        for (QString const & category : entry.item.categories())
            used.insert(category.toStdString());
    EXPECT_GE(used.size(), 30U);
    EXPECT_EQ(listed, used);

    // The page's own examples are filed under them as well, but for the one that the editor gives the user's own.
    std::set<std::string> examples = categoriesIn(page);
    examples.erase("category_user");
    EXPECT_EQ(examples, used);

    // And so is what a host refers to in code.
    using namespace Effect::CategoryNames;
    for (QString const & constant : {flyingObjects, blur, addNoise, artistic, colorFilters, mosaic, lutCold, adjust,
             overlayFrames, overlayShadows, lutWarm, retroMovie, vignettes, overlayCyberpunk, overlayArtsy, lightLeaks})
        EXPECT_EQ(used.count(constant.toStdString()), 1U) << constant.toStdString();
}

TEST_F(StockTest, EveryIdentifierIsThatOfTheClass)
{
    for (auto const & entry : stock().entries()) {
        auto const object = Serialize::Registry::create(entry.effect().GetNameInArchive());
        EXPECT_EQ(entry.effect().id, dynamic_cast<Effect::Object const &>(*object).id) << entry.name();
    }
}

TEST_F(StockTest, EveryResourceIsThereAndRegistered)
{
    std::size_t count = 0;
    for (auto const & entry : stock().entries()) {
        Effect::Object const & effect = entry.effect();
        if (effect.resourcePath.isEmpty())
            continue;
        ++count;
        EXPECT_TRUE(QFileInfo(effect.resourcePath).isFile()) << entry.name();
        EXPECT_TRUE(effect.resource.isValid()) << entry.name();
        // Its own: had another item the same name, this one's file would not be the registered one.
        auto const registration = Resource::registration(effect.resource);
        ASSERT_TRUE(registration) << entry.name();
        EXPECT_EQ(registration->path, effect.resourcePath) << entry.name();
        EXPECT_TRUE(effect.resourcePath.startsWith(EDITOR_STOCK)) << entry.name();
    }
    EXPECT_EQ(count, 8U + 8U + 3U); // LUTs, overlays, shaders
}

TEST_F(StockTest, EveryItemSurvivesBothArchives)
{
    using namespace Effect::Archive;
    for (auto const & entry : stock().entries()) {
        std::string const document = toJson(entry.effect());
        EXPECT_EQ(toJson(*fromJson(document)), document) << entry.name();
        EXPECT_EQ(toJson(*fromBinary(toBinary(entry.effect()))), document) << entry.name();
    }
}

Testing::Converted convert(Effect::Object const & effect)
{
    if (effect.type() == Effect::Type::Audio)
        return Testing::convert(effect, Effect::Factory::AudioParams());
    return Testing::convert(effect, Effect::Factory::VideoParams{{1920, 1080}, 5 * MTime::unitsPerSecond});
}

void expectConversion(Effect::Object const & effect, std::string const & name)
{
    auto const converted = convert(effect);
    EXPECT_FALSE(converted.settings.empty()) << name;
    EXPECT_THAT(converted.log, IsEmpty()) << name;
    EXPECT_THAT(converted.warnings, IsEmpty()) << name;
}

TEST_F(StockTest, EveryItemConverts)
{
    for (auto const & entry : stock().entries()) {
        if (auto const * const holder = dynamic_cast<Effect::EffectsHolder const *>(&entry.effect())) {
            EXPECT_GE(holder->effects.size(), 2U) << entry.name();
            for (auto const & effect : holder->effects) {
                ASSERT_TRUE(effect) << entry.name();
                expectConversion(*effect, entry.name());
            }
        } else if (entry.effect().impl() != Effect::Impl::Descriptor) {
            expectConversion(entry.effect(), entry.name());
        }
    }
}

/// The only argument of the first call of that name in a settings object's description.
nlohmann::json argumentOf(Testing::Converted const & converted, char const * setter)
{
    nlohmann::json const settings = nlohmann::json::parse(converted.settings.at(0));
    for (auto const & call : settings["calls"])
        if (call[0] == setter)
            return call[1];
    return {};
}

// A file that cannot be read converts as well, into something that does nothing.

TEST_F(StockTest, TheFilesAreUsed)
{
    int luts = 0;
    int shaders = 0;
    for (auto const & entry : stock().entries()) {
        if (dynamic_cast<Effect::Lut const *>(&entry.effect())) {
            EXPECT_TRUE(Effect::Utils::validateLutEffect(
                Resource::provideBlobResource(entry.effect().resource.name(), nullptr)->data, nullptr))
                << entry.name();
            ++luts;
        } else if (dynamic_cast<Effect::ExternalShader const *>(&entry.effect())) {
            EXPECT_THAT(
                argumentOf(convert(entry.effect()), "SetShader").get<std::string>(), testing::HasSubstr("FADED_WHITE"))
                << entry.name();
            ++shaders;
        }
    }
    EXPECT_EQ(luts, 8);
    EXPECT_EQ(shaders, 1);
}

TEST_F(StockTest, VoicesCanBeEnhancedInManyWays)
{
    std::size_t chains = 0;
    for (auto const & entry : stock().entries())
        chains += entry.collection == "AudioEnhance" && dynamic_cast<Effect::AudioEnhance const *>(&entry.effect());
    EXPECT_GE(chains, 6U);
}

} // namespace
