#include <effects/PrivateIdentity.h>

namespace Effect {

namespace Tags {

QString const tagAddNoize = QLatin1String("effect_add_noize");
QString const tagAudioEcho = QLatin1String("effect_echo");
QString const tagAudioMuffle = QLatin1String("effect_muffle");
QString const tagAudioPhone = QLatin1String("effect_phone");
QString const tagAudioPitch = QLatin1String("effect_pitch");
QString const tagAudioRadio = QLatin1String("effect_radio");
QString const tagAudioRobot = QLatin1String("effect_robot");
QString const tagBlur = QLatin1String("effect_blur");
QString const tagBokehBlur = QLatin1String("effect_bokeh_blur");
QString const tagCameraShake = QLatin1String("effect_camera_shake");
QString const tagChromaticAberration = QLatin1String("effect_chromatic_aberration");
QString const tagColorBrush = QLatin1String("effect_colorBrush");
QString const tagColorFilter = QLatin1String("effect_colorFilter");
QString const tagColorMixBurn = QLatin1String("effect_colorMixBurn");
QString const tagColorMixExchange = QLatin1String("effect_colorMixExchange");
QString const tagColorSelect = QLatin1String("effect_colorSelect");
QString const tagDiffuse = QLatin1String("effect_diffuse");
QString const tagErosion = QLatin1String("effect_errosion");
QString const tagFilmStrip = QLatin1String("effect_filmStrip");
QString const tagFindEdges = QLatin1String("effect_find_edges");
QString const tagFishEye = QLatin1String("effect_fishEye");
QString const tagFlip = QLatin1String("effect_flip");
QString const tagFlyingObjects = QLatin1String("effect_flying_objects");
QString const tagGlassMosaic = QLatin1String("effect_glass_mosaic");
QString const tagGlitchMpeg = QLatin1String("effect_glitch_mpeg");
QString const tagGlitchSecurityCam = QLatin1String("effect_glitch_security_cam");
QString const tagHalfTone = QLatin1String("effect_halfTone");
QString const tagInvert = QLatin1String("effect_invert");
QString const tagLensDistortion = QLatin1String("effect_lens_distortion");
QString const tagLensFlare = QLatin1String("effect_lensFlare");
QString const tagLightLeaks = QLatin1String("effect_lightLeaks");
QString const tagMirror = QLatin1String("effect_mirror");
QString const tagMosaic = QLatin1String("effect_mosaic");
QString const tagMotionBlur = QLatin1String("effect_motionBlur");
QString const tagOilPaint = QLatin1String("effect_oil_paint");
QString const tagPopArt = QLatin1String("effect_pop_art");
QString const tagPosterize = QLatin1String("effect_posterize");
QString const tagRetroArtefacts = QLatin1String("effect_retro_artefacts");
QString const tagRetroColors = QLatin1String("effet_retro_colors");
QString const tagSharpen = QLatin1String("effect_sharpen");
QString const tagStripes = QLatin1String("effect_stripes");
QString const tagTelevision70s = QLatin1String("effect_television70s");
QString const tagTiltShift = QLatin1String("effect_tilt_shift");
QString const tagTwirl = QLatin1String("effect_twirl");
QString const tagVHS = QLatin1String("effect_vhs");
QString const tagVertigo = QLatin1String("effect_vertigo");
QString const tagVignetteFilter = QLatin1String("effect_vignette");
QString const tagColorMixField = QLatin1String("effect_colorMixField");

} // namespace Tags

namespace Id {

QString const AddNoize = QLatin1String("87824c03-f25f-4043-9cb6-3a90eb27b699");
QString const AudioEcho = QLatin1String("2f95ac2d-7ee2-4f3e-8391-9a1ee8674521");
QString const AudioMuffle = QLatin1String("4e96f14f-3abe-46e7-9600-6b7cba9702c2");
QString const AudioPhone = QLatin1String("75ec87aa-b009-4e27-8b9a-716e5c8eca42");
QString const AudioPitch = QLatin1String("6282435b-aef6-47fd-a234-9eb95a83ea58");
QString const AudioRadio = QLatin1String("4c412762-56f7-4703-a840-ea2ccf5f7321");
QString const AudioRobot = QLatin1String("a10632bf-c9ad-4399-ab6b-cf2fd39b93f6");
QString const Blur = QLatin1String("5cd3b609-1357-4f98-86c7-1302c9dea530");
QString const BokehBlur = QLatin1String("103da8a8-713c-4618-b11e-52cf492e2061");
QString const CameraShake = QLatin1String("49faba34-ebef-42cd-a315-efb43d76cbb0");
QString const ChromaticAberration = QLatin1String("c48ed439-dc5b-4888-b7cc-ff9b0c1ab662");
QString const ColorBrush = QLatin1String("342d639d-1182-4b70-b071-1831d484cb85");
QString const ColorFilter = QLatin1String("5b9d1194-edb7-44fa-a01c-3f4ed2b160e8");
QString const ColorMixBurn = QLatin1String("e738de79-e6e1-4d25-9ae2-6bec3b427525");
QString const ColorMixExchange = QLatin1String("72edac99-e300-45d8-8e57-0f7bfef3bf54");
QString const ColorSelect = QLatin1String("5899d84f-ec6c-4896-b9b9-8c2556468536");
QString const Diffuse = QLatin1String("43ce922f-5666-492c-ad2d-b08da41e3b26");
QString const Erosion = QLatin1String("0429bc71-f252-4a38-9ac2-57689f07ec46");
QString const FilmStrip = QLatin1String("23426fc3-a681-413a-a9fe-340503101431");
QString const FindEdges = QLatin1String("333ac8ef-3fba-4491-b936-de0c3e9d1b16");
QString const FishEye = QLatin1String("7f10aa3a-79c9-4bdf-9a5c-7005690a961a");
QString const Flip = QLatin1String("45fc4a8b-2261-452e-90e2-fb882118a392");
QString const FlyingObjects = QLatin1String("d3d9f297-74da-41d6-a955-8109cbed0020");
QString const GlassMosaic = QLatin1String("804fa74a-f079-4538-a588-6cfa4f20ea81");
QString const GlitchMpeg = QLatin1String("d32c1f98-2c2c-4152-be12-14987b67e345");
QString const GlitchSecurityCam = QLatin1String("fbbf0206-4625-4da0-a003-581537f35fe9");
QString const HalfTone = QLatin1String("6ebb17e3-db4e-4cd4-9948-a154a43f3282");
QString const Invert = QLatin1String("d20134d6-99d6-4b3f-b2b6-30e460012f51");
QString const LensDistortion = QLatin1String("6beb1769-1d5d-479e-aab8-85a55ecefe8c");
QString const LensFlare = QLatin1String("e1cbf0ef-3d75-4626-aaaf-c41e47c9c9c4");
QString const LightLeaks = QLatin1String("f0c18b60-b891-453d-b80e-dedd20f349fb");
QString const Mirror = QLatin1String("ef8bf68b-761a-48c2-8923-6ff4137819f9");
QString const Mosaic = QLatin1String("7e31a057-3681-47b8-a842-337cb0200d84");
QString const MotionBlur = QLatin1String("95743761-e5fa-4bc7-9553-30450ad0bae7");
QString const OilPaint = QLatin1String("1e308612-4ad6-4590-80a1-4cdc9dfa30e7");
QString const PopArt = QLatin1String("2647e4b8-5689-4bf1-b45f-7f4b3b35e49b");
QString const Posterize = QLatin1String("9218c5c2-64b4-4676-b4d3-f861cb80aae4");
QString const RetroArtefacts = QLatin1String("e8400386-05fe-428e-97e6-5a52eaed904c");
QString const RetroColors = QLatin1String("72984ac5-3af2-4c27-8342-d940507f188f");
QString const Sharpen = QLatin1String("c60d4a11-b946-49db-ab9d-93898ce04e54");
QString const Stripes = QLatin1String("4ddc3604-027d-433b-9837-1c4870fb32e0");
QString const Television70s = QLatin1String("5404dd53-fab2-43a8-9678-25afe0dcbb52");
QString const TiltShift = QLatin1String("bea0efc7-dbab-44fd-ae07-6c4801ade623");
QString const Twirl = QLatin1String("b6202955-dc7b-4592-9b42-d812d47d240c");
QString const VHS = QLatin1String("5830bcba-b2de-4f36-9230-636b6263c9be");
QString const Vertigo = QLatin1String("d01a98be-9a59-4217-95f5-06a955782b8a");
QString const VignetteFilter = QLatin1String("523d41e0-d692-4e08-817a-cc69788c6ab2");
QString const ColorMixField = QLatin1String("4675ad3e-cffd-4979-ae1f-5cbf07e8cbdd");

} // namespace Id

} // namespace Effect
