#include <EditorModel/EffectArchive.h>
#include <effects/Identity.h>
#include <effects/Shaders.h>
#include <support/Documents.h>

#include <gtest/gtest.h>

namespace {

using namespace Effect;
using nlohmann::json;
using Testing::ownKeys;
using Testing::readKeys;
using Download = EditorCollection::Payload::DownloadResourceType;

// What identifies a class, and what its operations answer.
struct Row
{
    VideoEffect const & effect;
    QString id, groupId, tag;
    Resource::ID resource;
    QString defaultTag;
    bool hasIntensity;
    Download download;
};

TEST(Shaders, Classes)
{
    Lut const lut;
    Lut const warm("warm");
    ShaderISF const isf;
    ShaderISF const glow("glow");
    ExternalShader const external;
    auto const blob = [](char const * name) { return Resource::ID(name, Resource::Type{4}); };
    Row const rows[] = {
        {lut, Id::Lut, "no resource", "effect_lut", blob("no resource"), Tags::tagLut, true, Download::None},
        {warm, Id::Lut, "warm", "effect_lut", blob("warm"), Tags::tagLut, true, Download::None},
        {isf, Id::ShaderISF, "no resource", "effect_isf", blob("no resource"), Tags::tagShaderISF, false,
            Download::Shader},
        {glow, Id::ShaderISF, "glow", "effect_isf", blob("glow"), Tags::tagShaderISF, false, Download::Shader},
        {external, Id::ExternalShader, Id::ExternalShader, "effect_external_shader", Resource::ID(), "", false,
            Download::None},
    };
    for (Row const & row : rows) {
        SCOPED_TRACE(row.effect.GetNameInArchive() + " " + row.groupId.toStdString());
        EXPECT_EQ(row.effect.id, row.id);
        EXPECT_EQ(row.effect.groupId, row.groupId);
        EXPECT_EQ(row.effect.tag, row.tag);
        EXPECT_EQ(row.effect.resource, row.resource);
        EXPECT_EQ(row.effect.resourcePath, "");
        EXPECT_EQ(row.effect.defaultTag(), row.defaultTag);
        EXPECT_EQ(row.effect.hasIntensity(), row.hasIntensity);
        EXPECT_EQ(row.effect.downloadResourceType(), row.download);
        EXPECT_FALSE(row.effect.isTwoInput());
        EXPECT_EQ(row.effect.intensity, 1.0);
        EXPECT_EQ(row.effect.type(), Type::Video);
        EXPECT_EQ(row.effect.impl(), Impl::Effect);
    }
    EXPECT_EQ(static_cast<int>(Download::Shader), 2);
}

TEST(Lut, HasNoKeysOfItsOwn)
{
    EXPECT_EQ(ownKeys(Lut()), json::object());
    // Its file is stored in the field that every effect has.
    json const document = json::parse(Archive::toJson(Lut("warm")));
    EXPECT_EQ(
        document["Effect::VideoEffect"]["Effect::Object"]["resource"], json::parse(R"({"name": "warm", "type": 4})"));
}

TEST(Lut, WithoutItsResourceInTheDocumentKeepsTheDefault)
{
    EXPECT_EQ(readKeys<Lut>(json::object())->resource, Resource::ID("no resource", Resource::Type::Blob));
}

TEST(ShaderISF, Keys)
{
    ShaderISF effect;
    EXPECT_EQ(effect.inputs, "");
    EXPECT_EQ(ownKeys(effect), json::parse(R"({"inputs": ""})"));
    effect.inputs = "{\"INPUTS\": []}\n";
    EXPECT_EQ(ownKeys(effect), json::parse(R"({"inputs": "{\"INPUTS\": []}\n"})"));
    EXPECT_EQ(readKeys<ShaderISF>({{"inputs", "größer"}})->inputs, "größer");
    EXPECT_EQ(readKeys<ShaderISF>(json::object())->inputs, "");
}

TEST(ExternalShader, Keys)
{
    ExternalShader const byDefault;
    EXPECT_FALSE(byDefault.shaderResource.isNull());
    EXPECT_FALSE(byDefault.auxImageResource.isNull());
    EXPECT_EQ(ownKeys(byDefault),
        json::parse(R"({"apiVersion": 0, "supportsIntensity": false, "shaderResource": "", "auxImageResource": ""})"));
    auto const read = readKeys<ExternalShader>(json::parse(
        R"({"apiVersion": -2, "supportsIntensity": true, "shaderResource": "glow", "auxImageResource": "paper"})"));
    EXPECT_EQ(read->apiVersion, -2);
    EXPECT_TRUE(read->supportsIntensity);
    EXPECT_EQ(read->shaderResource, "glow");
    EXPECT_EQ(read->auxImageResource, "paper");
}

TEST(ExternalShader, SaysItselfWhetherItHasAnIntensity)
{
    ExternalShader effect;
    EXPECT_FALSE(effect.hasIntensity());
    effect.supportsIntensity = true;
    EXPECT_TRUE(effect.hasIntensity());
}

// Through both archives, as the dynamic type.
template <class Class> void expectRoundTrips(Class const & effect)
{
    for (auto const & read :
        {Archive::fromBinary(Archive::toBinary(effect)), Archive::fromJson(Archive::toJson(effect))})
        EXPECT_EQ(Archive::toJson(dynamic_cast<Class const &>(*read)), Archive::toJson(effect));
}

TEST(Shaders, RoundTrip)
{
    Lut lut("warm");
    lut.intensity = 0.25;
    lut.resourcePath = "luts/warm.cube";
    expectRoundTrips(lut);
    ShaderISF isf("glow");
    isf.inputs = "{}";
    expectRoundTrips(isf);
    ExternalShader external;
    external.apiVersion = 3;
    external.supportsIntensity = true;
    external.shaderResource = "shader";
    external.auxImageResource = "picture";
    expectRoundTrips(external);
}

} // namespace
