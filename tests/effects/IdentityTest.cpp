// The identity of every class, row by row: saved projects hold these values.

#include <set>
#include <string>
#include <vector>

#include <EditorModel/EffectObject.h>
#include <EditorSerialization/Registry.h>
#include <effects/Identity.h>
#include <effects/PrivateIdentity.h>
#include <support/Variations.h>

#include <gtest/gtest.h>

namespace {

using namespace Effect;
using Testing::created;

struct Row
{
    char const * className; // without its namespace
    QString const & idConstant;
    char const * id;
    QString const * tagConstant; // null for a class without a tag
    char const * tag;
    char const * groupId;
};

void PrintTo(Row const & row, std::ostream * stream)
{
    *stream << row.className;
}

class IdentityTest : public testing::TestWithParam<Row>
{};

TEST_P(IdentityTest, ConstantsHaveTheirValues)
{
    EXPECT_EQ(GetParam().idConstant, QLatin1String(GetParam().id));
    EXPECT_EQ(GetParam().idConstant.size(), 36);
    if (GetParam().tagConstant) {
        EXPECT_EQ(*GetParam().tagConstant, QLatin1String(GetParam().tag));
    }
}

TEST_P(IdentityTest, NewEffectsBearThem)
{
    auto const object = created(std::string("Effect::") + GetParam().className);
    auto const & effect = dynamic_cast<Effect::Object const &>(*object);
    EXPECT_EQ(effect.id, QLatin1String(GetParam().id));
    EXPECT_EQ(effect.tag, QLatin1String(GetParam().tag));
    EXPECT_EQ(effect.groupId, QLatin1String(GetParam().groupId));
}

std::vector<Row> const & rows()
{
    static std::vector<Row> const all{
        {"AddNoize", Id::AddNoize, "87824c03-f25f-4043-9cb6-3a90eb27b699", &Tags::tagAddNoize, "effect_add_noize",
            "87824c03-f25f-4043-9cb6-3a90eb27b699"},
        {"AlphaInserter", Id::AlphaInserter, "66f3f615-ebb8-4126-9e8f-2a9308317fea", nullptr, "",
            "66f3f615-ebb8-4126-9e8f-2a9308317fea"},
        {"AudioAiDenoise", Id::AiDenoise, "8451e4e1-2e63-5796-3529-3d21fc8a5b2e", &Tags::tagAiDenoise,
            "effect_aidenoise", "4b8b30d0-f345-48c1-b8d3-acca60bf2083"},
        {"AudioCompressor", Id::Compressor, "hvd3pnmb-6mmg-j57r-z79r-hg8vym3kxezq", &Tags::tagAudioCompressor,
            "effect_audio_compressor", "hvd3pnmb-6mmg-j57r-z79r-hg8vym3kxezq"},
        {"AudioDistortion", Id::Distortion, "ms35vb5f-8pyz-5wt4-3cdj-yvtuyyy29qdf", &Tags::tagAudioDistortion,
            "effect_audio_distortion", "ms35vb5f-8pyz-5wt4-3cdj-yvtuyyy29qdf"},
        {"AudioEcho", Id::AudioEcho, "2f95ac2d-7ee2-4f3e-8391-9a1ee8674521", &Tags::tagAudioEcho, "effect_echo",
            "2f95ac2d-7ee2-4f3e-8391-9a1ee8674521"},
        {"AudioEnhance", Id::AudioEnhance, "ufcj22tb-5tjx-v4xm-gtd4-m6n53eceqxfu", &Tags::tagAudioEnhance,
            "effect_audio_enhance", "ufcj22tb-5tjx-v4xm-gtd4-m6n53eceqxfu"},
        {"AudioEqualizer", Id::AudioEqualizer, "edb66866-0bfe-40ad-9669-7152e1e31a1d", &Tags::tagAudioEqualizer,
            "effect_audioequalizer", "edb66866-0bfe-40ad-9669-7152e1e31a1d"},
        {"AudioFlanger", Id::Flanger, "4xs5ynjf-bvz3-evjm-wqy4-rxzzjrxfgwzk", &Tags::tagAudioFlanger,
            "effect_audio_flanger", "4xs5ynjf-bvz3-evjm-wqy4-rxzzjrxfgwzk"},
        {"AudioMonoChannel", Id::AudioMonoChannel, "0cf0c2c7-6690-4595-8b07-f8aaffddecc1", &Tags::tagAudioMonoChannel,
            "effect_audio_mono_channel", "0cf0c2c7-6690-4595-8b07-f8aaffddecc1"},
        {"AudioMuffle", Id::AudioMuffle, "4e96f14f-3abe-46e7-9600-6b7cba9702c2", &Tags::tagAudioMuffle, "effect_muffle",
            "4e96f14f-3abe-46e7-9600-6b7cba9702c2"},
        {"AudioNoiseGate", Id::NoiseGate, "gk3gd6va-p9z5-8m7q-e46u-7qj5zt3zagnr", &Tags::tagAudioNoiseGate,
            "effect_audio_noise_gate", "gk3gd6va-p9z5-8m7q-e46u-7qj5zt3zagnr"},
        {"AudioNoiseSuppress", Id::NoiseSuppress, "08fa3c82-5bea-4629-b7d5-d62b5bc3f7e5", &Tags::tagNoizeSupress,
            "effect_noisesuppress", "4b8b30d0-f345-48c1-b8d3-acca60bf2083"},
        {"AudioNormalize", Id::Normalize, "6c7a85ac-2a34-44a0-bd07-504f95370354", &Tags::tagAudioNormalize,
            "effect_audio_normalize", "6c7a85ac-2a34-44a0-bd07-504f95370354"},
        {"AudioPhone", Id::AudioPhone, "75ec87aa-b009-4e27-8b9a-716e5c8eca42", &Tags::tagAudioPhone, "effect_phone",
            "75ec87aa-b009-4e27-8b9a-716e5c8eca42"},
        {"AudioPitch", Id::AudioPitch, "6282435b-aef6-47fd-a234-9eb95a83ea58", &Tags::tagAudioPitch, "effect_pitch",
            "6282435b-aef6-47fd-a234-9eb95a83ea58"},
        {"AudioRadio", Id::AudioRadio, "4c412762-56f7-4703-a840-ea2ccf5f7321", &Tags::tagAudioRadio, "effect_radio",
            "4c412762-56f7-4703-a840-ea2ccf5f7321"},
        {"AudioReverb", Id::Reverb, "96bvwkvt-9qzc-prak-7es3-w3vv5h4bff8n", &Tags::tagAudioReverb,
            "effect_audio_reverb", "96bvwkvt-9qzc-prak-7es3-w3vv5h4bff8n"},
        {"AudioRobot", Id::AudioRobot, "a10632bf-c9ad-4399-ab6b-cf2fd39b93f6", &Tags::tagAudioRobot, "effect_robot",
            "a10632bf-c9ad-4399-ab6b-cf2fd39b93f6"},
        {"AudioVibrato", Id::Vibrato, "5hv7ahhu-kmfe-rbyp-5sy2-v6rvzgb6pvg8", &Tags::tagAudioVibrato,
            "effect_audio_vibrato", "5hv7ahhu-kmfe-rbyp-5sy2-v6rvzgb6pvg8"},
        {"AutoContrast", Id::AutoContrast, "fe49dfef-2cc8-4a94-976e-6dce9a0d3e55", &Tags::tagAutoContrast,
            "effect_auto_contrast", "fe49dfef-2cc8-4a94-976e-6dce9a0d3e55"},
        {"AutoSaturation", Id::AutoSaturation, "96d1bead-399f-43a1-a448-b1e3ff7ddf80", &Tags::tagAutoSaturation,
            "effect_auto_saturation", "96d1bead-399f-43a1-a448-b1e3ff7ddf80"},
        {"BackgroundRemove", Id::BackgroundRemove, "fba3cf32-25de-4284-8b40-404d2be8e667", &Tags::tagBackgroundRemove,
            "effect_background_remove", "fba3cf32-25de-4284-8b40-404d2be8e667"},
        {"Blur", Id::Blur, "5cd3b609-1357-4f98-86c7-1302c9dea530", &Tags::tagBlur, "effect_blur",
            "5cd3b609-1357-4f98-86c7-1302c9dea530"},
        {"BokehBlur", Id::BokehBlur, "103da8a8-713c-4618-b11e-52cf492e2061", &Tags::tagBokehBlur, "effect_bokeh_blur",
            "103da8a8-713c-4618-b11e-52cf492e2061"},
        {"CameraShake", Id::CameraShake, "49faba34-ebef-42cd-a315-efb43d76cbb0", &Tags::tagCameraShake,
            "effect_camera_shake", "49faba34-ebef-42cd-a315-efb43d76cbb0"},
        {"ChromaKey", Id::ChromaKey, "a19188b6-c1fc-49e1-9395-8e8c2c17078b", &Tags::tagChromaKey, "effect_chroma_key",
            "a19188b6-c1fc-49e1-9395-8e8c2c17078b"},
        {"ChromaticAberration", Id::ChromaticAberration, "c48ed439-dc5b-4888-b7cc-ff9b0c1ab662",
            &Tags::tagChromaticAberration, "effect_chromatic_aberration", "c48ed439-dc5b-4888-b7cc-ff9b0c1ab662"},
        {"ColorBlending", Id::ColorBlending, "0045796c-a028-46e4-b060-602365be311a", &Tags::tagColorBlending,
            "effect_color_blending", "0045796c-a028-46e4-b060-602365be311a"},
        {"ColorBrush", Id::ColorBrush, "342d639d-1182-4b70-b071-1831d484cb85", &Tags::tagColorBrush,
            "effect_colorBrush", "342d639d-1182-4b70-b071-1831d484cb85"},
        {"ColorFilter", Id::ColorFilter, "5b9d1194-edb7-44fa-a01c-3f4ed2b160e8", &Tags::tagColorFilter,
            "effect_colorFilter", "5b9d1194-edb7-44fa-a01c-3f4ed2b160e8"},
        {"ColorMixBurn", Id::ColorMixBurn, "e738de79-e6e1-4d25-9ae2-6bec3b427525", &Tags::tagColorMixBurn,
            "effect_colorMixBurn", "e738de79-e6e1-4d25-9ae2-6bec3b427525"},
        {"ColorMixExchange", Id::ColorMixExchange, "72edac99-e300-45d8-8e57-0f7bfef3bf54", &Tags::tagColorMixExchange,
            "effect_colorMixExchange", "72edac99-e300-45d8-8e57-0f7bfef3bf54"},
        {"ColorSelect", Id::ColorSelect, "5899d84f-ec6c-4896-b9b9-8c2556468536", &Tags::tagColorSelect,
            "effect_colorSelect", "5899d84f-ec6c-4896-b9b9-8c2556468536"},
        {"Crop", Id::Crop, "85d96ab3-23ff-4b5d-9249-2e6e239d1445", &Tags::tagCrop, "effect_crop",
            "85d96ab3-23ff-4b5d-9249-2e6e239d1445"},
        {"Diffuse", Id::Diffuse, "43ce922f-5666-492c-ad2d-b08da41e3b26", &Tags::tagDiffuse, "effect_diffuse",
            "43ce922f-5666-492c-ad2d-b08da41e3b26"},
        {"Erosion", Id::Erosion, "0429bc71-f252-4a38-9ac2-57689f07ec46", &Tags::tagErosion, "effect_errosion",
            "0429bc71-f252-4a38-9ac2-57689f07ec46"},
        {"ExternalShader", Id::ExternalShader, "5b20e4ed-1a5e-40f6-aee8-0dffc499f0fb", &Tags::tagExternalShader,
            "effect_external_shader", "5b20e4ed-1a5e-40f6-aee8-0dffc499f0fb"},
        {"FilmStrip", Id::FilmStrip, "23426fc3-a681-413a-a9fe-340503101431", &Tags::tagFilmStrip, "effect_filmStrip",
            "23426fc3-a681-413a-a9fe-340503101431"},
        {"FindEdges", Id::FindEdges, "333ac8ef-3fba-4491-b936-de0c3e9d1b16", &Tags::tagFindEdges, "effect_find_edges",
            "333ac8ef-3fba-4491-b936-de0c3e9d1b16"},
        {"FishEye", Id::FishEye, "7f10aa3a-79c9-4bdf-9a5c-7005690a961a", &Tags::tagFishEye, "effect_fishEye",
            "7f10aa3a-79c9-4bdf-9a5c-7005690a961a"},
        {"FixVertVideo", Id::FixVertVideo, "5b04a03a-bdca-4988-b10a-5c3d50303ab9", &Tags::tagVerticalVideo,
            "effect_fixVerticalVideo", "5b04a03a-bdca-4988-b10a-5c3d50303ab9"},
        {"Flip", Id::Flip, "45fc4a8b-2261-452e-90e2-fb882118a392", &Tags::tagFlip, "effect_flip",
            "45fc4a8b-2261-452e-90e2-fb882118a392"},
        {"FlyingObjects", Id::FlyingObjects, "d3d9f297-74da-41d6-a955-8109cbed0020", &Tags::tagFlyingObjects,
            "effect_flying_objects", "d3d9f297-74da-41d6-a955-8109cbed0020"},
        {"GlassMosaic", Id::GlassMosaic, "804fa74a-f079-4538-a588-6cfa4f20ea81", &Tags::tagGlassMosaic,
            "effect_glass_mosaic", "804fa74a-f079-4538-a588-6cfa4f20ea81"},
        {"GlitchMpeg", Id::GlitchMpeg, "d32c1f98-2c2c-4152-be12-14987b67e345", &Tags::tagGlitchMpeg,
            "effect_glitch_mpeg", "d32c1f98-2c2c-4152-be12-14987b67e345"},
        {"GlitchSecurityCam", Id::GlitchSecurityCam, "fbbf0206-4625-4da0-a003-581537f35fe9",
            &Tags::tagGlitchSecurityCam, "effect_glitch_security_cam", "fbbf0206-4625-4da0-a003-581537f35fe9"},
        {"HalfTone", Id::HalfTone, "6ebb17e3-db4e-4cd4-9948-a154a43f3282", &Tags::tagHalfTone, "effect_halfTone",
            "6ebb17e3-db4e-4cd4-9948-a154a43f3282"},
        {"Invert", Id::Invert, "d20134d6-99d6-4b3f-b2b6-30e460012f51", &Tags::tagInvert, "effect_invert",
            "d20134d6-99d6-4b3f-b2b6-30e460012f51"},
        {"LensDistortion", Id::LensDistortion, "6beb1769-1d5d-479e-aab8-85a55ecefe8c", &Tags::tagLensDistortion,
            "effect_lens_distortion", "6beb1769-1d5d-479e-aab8-85a55ecefe8c"},
        {"LensFlare", Id::LensFlare, "e1cbf0ef-3d75-4626-aaaf-c41e47c9c9c4", &Tags::tagLensFlare, "effect_lensFlare",
            "e1cbf0ef-3d75-4626-aaaf-c41e47c9c9c4"},
        {"LightLeaks", Id::LightLeaks, "f0c18b60-b891-453d-b80e-dedd20f349fb", &Tags::tagLightLeaks,
            "effect_lightLeaks", "f0c18b60-b891-453d-b80e-dedd20f349fb"},
        {"Lut", Id::Lut, "296139e9-c085-4e73-aacd-df41093c132a", &Tags::tagLut, "effect_lut", "no resource"},
        {"MagicEnhance", Id::MagicEnhance, "2292fad1-77b2-4384-b9fe-c52358e19419", &Tags::tagMagicEnhance,
            "effect_magic_enhance", "2292fad1-77b2-4384-b9fe-c52358e19419"},
        {"ManualEnhance", Id::ManualEnhance, "7cbc055b-98bf-4fcc-be7d-f431a05e608a", &Tags::tagManualEnhance,
            "effect_manual_enhance", "7cbc055b-98bf-4fcc-be7d-f431a05e608a"},
        {"Mask", Id::Mask, "b1c2b46d-c898-4874-9619-a1c58992162c", &Tags::tagMask, "effect_mask",
            "b1c2b46d-c898-4874-9619-a1c58992162c"},
        {"Mirror", Id::Mirror, "ef8bf68b-761a-48c2-8923-6ff4137819f9", &Tags::tagMirror, "effect_mirror",
            "ef8bf68b-761a-48c2-8923-6ff4137819f9"},
        {"Mosaic", Id::Mosaic, "7e31a057-3681-47b8-a842-337cb0200d84", &Tags::tagMosaic, "effect_mosaic",
            "7e31a057-3681-47b8-a842-337cb0200d84"},
        {"MotionBlur", Id::MotionBlur, "95743761-e5fa-4bc7-9553-30450ad0bae7", &Tags::tagMotionBlur,
            "effect_motionBlur", "95743761-e5fa-4bc7-9553-30450ad0bae7"},
        {"OilPaint", Id::OilPaint, "1e308612-4ad6-4590-80a1-4cdc9dfa30e7", &Tags::tagOilPaint, "effect_oil_paint",
            "1e308612-4ad6-4590-80a1-4cdc9dfa30e7"},
        {"Opacity", Id::Opacity, "139fbe65-4066-476f-987c-a143f5bcbab7", &Tags::tagOpacity, "effect_opacity",
            "139fbe65-4066-476f-987c-a143f5bcbab7"},
        {"Overlay", Id::Overlay, "81f4175f-093f-451e-8068-5a008e13ae20", &Tags::tagOverlay, "effect_overlay",
            "81f4175f-093f-451e-8068-5a008e13ae20"},
        {"PictureInPicture", Id::PictureInPicture, "f60a32dd-2591-4cd3-859a-69f9c6a6838f", &Tags::tagPIP,
            "effect_picture_in_picture", "bf86d91d-8347-4030-9e6c-2872dfcf1628"},
        {"PopArt", Id::PopArt, "2647e4b8-5689-4bf1-b45f-7f4b3b35e49b", &Tags::tagPopArt, "effect_pop_art",
            "2647e4b8-5689-4bf1-b45f-7f4b3b35e49b"},
        {"Posterize", Id::Posterize, "9218c5c2-64b4-4676-b4d3-f861cb80aae4", &Tags::tagPosterize, "effect_posterize",
            "9218c5c2-64b4-4676-b4d3-f861cb80aae4"},
        {"RetroArtefacts", Id::RetroArtefacts, "e8400386-05fe-428e-97e6-5a52eaed904c", &Tags::tagRetroArtefacts,
            "effect_retro_artefacts", "e8400386-05fe-428e-97e6-5a52eaed904c"},
        {"RetroColors", Id::RetroColors, "72984ac5-3af2-4c27-8342-d940507f188f", &Tags::tagRetroColors,
            "effet_retro_colors", "72984ac5-3af2-4c27-8342-d940507f188f"},
        {"ShaderISF", Id::ShaderISF, "eb0a39d5-67b4-422e-829f-6365c03c01c5", &Tags::tagShaderISF, "effect_isf",
            "no resource"},
        {"Sharpen", Id::Sharpen, "c60d4a11-b946-49db-ab9d-93898ce04e54", &Tags::tagSharpen, "effect_sharpen",
            "c60d4a11-b946-49db-ab9d-93898ce04e54"},
        {"SideBySide", Id::SideBySide, "daa4afbf-4572-45ff-9d7d-6c4bccb2e121", &Tags::tagSideBySide,
            "effect_side_by_side", "bf86d91d-8347-4030-9e6c-2872dfcf1628"},
        {"Stripes", Id::Stripes, "4ddc3604-027d-433b-9837-1c4870fb32e0", &Tags::tagStripes, "effect_stripes",
            "4ddc3604-027d-433b-9837-1c4870fb32e0"},
        {"Television70s", Id::Television70s, "5404dd53-fab2-43a8-9678-25afe0dcbb52", &Tags::tagTelevision70s,
            "effect_television70s", "5404dd53-fab2-43a8-9678-25afe0dcbb52"},
        {"TiltShift", Id::TiltShift, "bea0efc7-dbab-44fd-ae07-6c4801ade623", &Tags::tagTiltShift, "effect_tilt_shift",
            "bea0efc7-dbab-44fd-ae07-6c4801ade623"},
        {"Transpose", Id::Transpose, "ca7a128c-90f0-4faf-afe2-1756a37379c8", &Tags::tagTranspose, "effect_transpose",
            "ca7a128c-90f0-4faf-afe2-1756a37379c8"},
        {"Twirl", Id::Twirl, "b6202955-dc7b-4592-9b42-d812d47d240c", &Tags::tagTwirl, "effect_twirl",
            "b6202955-dc7b-4592-9b42-d812d47d240c"},
        {"VHS", Id::VHS, "5830bcba-b2de-4f36-9230-636b6263c9be", &Tags::tagVHS, "effect_vhs",
            "5830bcba-b2de-4f36-9230-636b6263c9be"},
        {"Vertigo", Id::Vertigo, "d01a98be-9a59-4217-95f5-06a955782b8a", &Tags::tagVertigo, "effect_vertigo",
            "d01a98be-9a59-4217-95f5-06a955782b8a"},
        {"VignetteFilter", Id::VignetteFilter, "523d41e0-d692-4e08-817a-cc69788c6ab2", &Tags::tagVignetteFilter,
            "effect_vignette", "523d41e0-d692-4e08-817a-cc69788c6ab2"},
        {"WhiteBalance", Id::WhiteBalance, "4b7ee600-1cdf-4a97-9b06-f6c23f35fced", &Tags::tagWhiteBalance,
            "effect_white_balance", "4b7ee600-1cdf-4a97-9b06-f6c23f35fced"},
    };
    return all;
}

INSTANTIATE_TEST_SUITE_P(EveryEffect, IdentityTest, testing::ValuesIn(rows()),
    [](testing::TestParamInfo<Row> const & row) { return std::string(row.param.className); });

TEST(Identity, EveryEffectHasARow)
{
    std::set<std::string> named;
    for (Row const & row : rows())
        EXPECT_TRUE(named.insert(row.className).second) << row.className << " has two rows";
    for (std::string const & name : Serialize::Registry::names()) {
        if (name.rfind("Effect::", 0) != 0)
            continue; // a class of the test program
        auto const object = created(name);
        auto const * effect = dynamic_cast<Effect::Object const *>(object.get());
        if (effect && !effect->id.isEmpty()) {
            EXPECT_EQ(named.count(name.substr(8)), 1U) << name << " has no row";
        }
    }
}

TEST(Identity, ValuesAreUnique)
{
    std::set<QString> ids;
    std::set<QString> tags;
    for (Row const & row : rows()) {
        EXPECT_TRUE(ids.insert(row.idConstant).second) << row.className;
        if (row.tagConstant) {
            EXPECT_TRUE(tags.insert(*row.tagConstant).second) << row.className;
        }
    }
}

TEST(Identity, OfAClassThatTheLibraryOnlyNames)
{
    EXPECT_EQ(Id::ColorMixField, "4675ad3e-cffd-4979-ae1f-5cbf07e8cbdd");
    EXPECT_EQ(Tags::tagColorMixField, "effect_colorMixField");
}

TEST(Identity, Groups)
{
    EXPECT_EQ(Group::GroupAudioNoiseReduction, "4b8b30d0-f345-48c1-b8d3-acca60bf2083");
    EXPECT_EQ(Group::GroupPip, "bf86d91d-8347-4030-9e6c-2872dfcf1628");
    EXPECT_EQ(Group::GroupZoom, "d405a097-0ee0-4b72-830e-683899314730");
}

} // namespace
