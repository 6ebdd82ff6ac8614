#include <effects/Identity.h>

namespace Effect {

namespace Tags {

QString const tagAiDenoise = QLatin1String("effect_aidenoise");
QString const tagAudioCompressor = QLatin1String("effect_audio_compressor");
QString const tagAudioDistortion = QLatin1String("effect_audio_distortion");
QString const tagAudioEnhance = QLatin1String("effect_audio_enhance");
QString const tagAudioEqualizer = QLatin1String("effect_audioequalizer");
QString const tagAudioFlanger = QLatin1String("effect_audio_flanger");
QString const tagAudioMonoChannel = QLatin1String("effect_audio_mono_channel");
QString const tagAudioNoiseGate = QLatin1String("effect_audio_noise_gate");
QString const tagNoizeSupress = QLatin1String("effect_noisesuppress");
QString const tagAudioNormalize = QLatin1String("effect_audio_normalize");
QString const tagAudioReverb = QLatin1String("effect_audio_reverb");
QString const tagAudioVibrato = QLatin1String("effect_audio_vibrato");
QString const tagAutoContrast = QLatin1String("effect_auto_contrast");
QString const tagAutoSaturation = QLatin1String("effect_auto_saturation");
QString const tagBackgroundRemove = QLatin1String("effect_background_remove");
QString const tagChromaKey = QLatin1String("effect_chroma_key");
QString const tagColorBlending = QLatin1String("effect_color_blending");
QString const tagCrop = QLatin1String("effect_crop");
QString const tagExternalShader = QLatin1String("effect_external_shader");
QString const tagVerticalVideo = QLatin1String("effect_fixVerticalVideo");
QString const tagLut = QLatin1String("effect_lut");
QString const tagMagicEnhance = QLatin1String("effect_magic_enhance");
QString const tagManualEnhance = QLatin1String("effect_manual_enhance");
QString const tagMask = QLatin1String("effect_mask");
QString const tagOpacity = QLatin1String("effect_opacity");
QString const tagOverlay = QLatin1String("effect_overlay");
QString const tagPIP = QLatin1String("effect_picture_in_picture");
QString const tagShaderISF = QLatin1String("effect_isf");
QString const tagSideBySide = QLatin1String("effect_side_by_side");
QString const tagTranspose = QLatin1String("effect_transpose");
QString const tagWhiteBalance = QLatin1String("effect_white_balance");

} // namespace Tags

namespace Id {

QString const AlphaInserter = QLatin1String("66f3f615-ebb8-4126-9e8f-2a9308317fea");
QString const AiDenoise = QLatin1String("8451e4e1-2e63-5796-3529-3d21fc8a5b2e");
QString const Compressor = QLatin1String("hvd3pnmb-6mmg-j57r-z79r-hg8vym3kxezq");
QString const Distortion = QLatin1String("ms35vb5f-8pyz-5wt4-3cdj-yvtuyyy29qdf");
QString const AudioEnhance = QLatin1String("ufcj22tb-5tjx-v4xm-gtd4-m6n53eceqxfu");
QString const AudioEqualizer = QLatin1String("edb66866-0bfe-40ad-9669-7152e1e31a1d");
QString const Flanger = QLatin1String("4xs5ynjf-bvz3-evjm-wqy4-rxzzjrxfgwzk");
QString const AudioMonoChannel = QLatin1String("0cf0c2c7-6690-4595-8b07-f8aaffddecc1");
QString const NoiseGate = QLatin1String("gk3gd6va-p9z5-8m7q-e46u-7qj5zt3zagnr");
QString const NoiseSuppress = QLatin1String("08fa3c82-5bea-4629-b7d5-d62b5bc3f7e5");
QString const Normalize = QLatin1String("6c7a85ac-2a34-44a0-bd07-504f95370354");
QString const Reverb = QLatin1String("96bvwkvt-9qzc-prak-7es3-w3vv5h4bff8n");
QString const Vibrato = QLatin1String("5hv7ahhu-kmfe-rbyp-5sy2-v6rvzgb6pvg8");
QString const AutoContrast = QLatin1String("fe49dfef-2cc8-4a94-976e-6dce9a0d3e55");
QString const AutoSaturation = QLatin1String("96d1bead-399f-43a1-a448-b1e3ff7ddf80");
QString const BackgroundRemove = QLatin1String("fba3cf32-25de-4284-8b40-404d2be8e667");
QString const ChromaKey = QLatin1String("a19188b6-c1fc-49e1-9395-8e8c2c17078b");
QString const ColorBlending = QLatin1String("0045796c-a028-46e4-b060-602365be311a");
QString const Crop = QLatin1String("85d96ab3-23ff-4b5d-9249-2e6e239d1445");
QString const ExternalShader = QLatin1String("5b20e4ed-1a5e-40f6-aee8-0dffc499f0fb");
QString const FixVertVideo = QLatin1String("5b04a03a-bdca-4988-b10a-5c3d50303ab9");
QString const Lut = QLatin1String("296139e9-c085-4e73-aacd-df41093c132a");
QString const MagicEnhance = QLatin1String("2292fad1-77b2-4384-b9fe-c52358e19419");
QString const ManualEnhance = QLatin1String("7cbc055b-98bf-4fcc-be7d-f431a05e608a");
QString const Mask = QLatin1String("b1c2b46d-c898-4874-9619-a1c58992162c");
QString const Opacity = QLatin1String("139fbe65-4066-476f-987c-a143f5bcbab7");
QString const Overlay = QLatin1String("81f4175f-093f-451e-8068-5a008e13ae20");
QString const PictureInPicture = QLatin1String("f60a32dd-2591-4cd3-859a-69f9c6a6838f");
QString const ShaderISF = QLatin1String("eb0a39d5-67b4-422e-829f-6365c03c01c5");
QString const SideBySide = QLatin1String("daa4afbf-4572-45ff-9d7d-6c4bccb2e121");
QString const Transpose = QLatin1String("ca7a128c-90f0-4faf-afe2-1756a37379c8");
QString const WhiteBalance = QLatin1String("4b7ee600-1cdf-4a97-9b06-f6c23f35fced");

} // namespace Id

namespace Group {

QString const GroupAudioNoiseReduction = QLatin1String("4b8b30d0-f345-48c1-b8d3-acca60bf2083");
QString const GroupPip = QLatin1String("bf86d91d-8347-4030-9e6c-2872dfcf1628");
QString const GroupZoom = QLatin1String("d405a097-0ee0-4b72-830e-683899314730");

} // namespace Group

} // namespace Effect
