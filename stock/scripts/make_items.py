#!/usr/bin/python3
"""Writes the items of the stock collections.

    make_items.py EFFECTCTL FOLDER

An item is a row of a table below: the class, the variant, the categories, and what differs from the class's default
effect, whose archive document comes from `EFFECTCTL show --class`. A keyword is a key of the class's own; `intensity`,
`resource` and `resourcePath` are those of Effect::Object. A key that the class does not have is an error.

The file's name is the class's and the variant's. The tag is the class's too, and with a variant that follows it: items
are found by it. A row without a variant is the effect as the library makes it: where that does something by itself, or
where a tool starts from it.
"""

import argparse
import copy
import json
import pathlib
import re
import subprocess

OBJECT = "Effect::Object"
IMAGE, BLOB = 3, 4  # types of resources


class Documents:
    """The archive documents of default objects."""

    def __init__(self, effectctl):
        self.effectctl = effectctl
        self.cache = {}

    def default(self, name):
        if name not in self.cache:
            result = subprocess.run([self.effectctl, "show", "--json", "--class", name], check=True,
                                    capture_output=True, text=True)
            self.cache[name] = json.loads(result.stdout)
        return copy.deepcopy(self.cache[name])

    def changed(self, name, changes):
        """The default document of a class with some of its own keys or its bases' replaced."""
        document = self.default("Effect::" + name)
        for key, value in changes.items():
            level = document
            while key not in level:
                bases = [base for base in level if base.startswith("Effect::")]
                if not bases:
                    raise KeyError(f"{name} has no key {key}")
                level = level[bases[0]]
            level[key] = self.resolved(value)
        return document

    def resolved(self, value):
        if isinstance(value, Inner):
            return self.changed(value.name, value.changes)
        if isinstance(value, list):
            return [self.resolved(element) for element in value]
        return value


class Inner:
    """An object inside an effect."""

    def __init__(self, name, **changes):
        self.name = name
        self.changes = changes


class Item:
    def __init__(self, name, variant, *categories, **changes):
        self.name = name
        self.variant = variant
        self.categories = sorted(categories)
        self.changes = changes

    def file_name(self):
        words = re.sub(r"(?<=[a-z0-9])(?=[A-Z])", "_", self.name).lower()
        return words + (f"_{self.variant}" if self.variant else "") + ".effect.json"

    def document(self, documents):
        effect = documents.changed(self.name, self.changes)
        level = effect
        while OBJECT not in level:
            level = next(value for key, value in level.items() if key.startswith("Effect::"))
        if self.variant and "tag" not in self.changes:
            level[OBJECT]["tag"] += "_" + self.variant
        return {"categories": self.categories, "effect": effect}


def numbered(name, key, numbers, *categories, **changes):
    """One item for each number of a preset."""
    return [Item(name, f"{number:02}", *categories, **{key: number}, **changes) for number in numbers]


def named(name, key, names, *categories, **changes):
    """One item for each preset, from 0, that has a name."""
    return [Item(name, variant, *categories, **{key: number}, **changes) for number, variant in enumerate(names)]


def transform(scale_x=1.0, scale_y=1.0, left=0.0, down=0.0):
    """Scales from the middle of the picture, then moves; the picture's width and height are 1."""
    return {"m": [scale_x, 0, 0, 0, scale_y, 0, left, down, 1]}


def resource(name, kind):
    return {"name": name, "type": kind}


def color(rgb):
    """Opaque, as 0xAARRGGBB."""
    return 0xFF000000 | rgb


# Categories that have no text in the host yet bear names of the same kind.
ADJUST = "category_adjust"
ARTISTIC = "category_artistic"
BLUR = "category_blur"
COLOR_FILTERS = "category_color_filters"
FLYING = "category_flying_objects"
LIGHT_LEAKS = "category_light_leaks"
MOSAIC = "category_mosaic"
NOISE = "category_add_noise"
RETRO = "category_retro_movie"
VIGNETTES = "Vignettes"
COMPOSITION = "category_composition"
DISTORTION = "category_distortion"
GEOMETRY = "category_geometry"
LENS_FLARES = "category_lens_flares"
LOOKS = "category_looks"
SHADERS = "category_shaders"

VIDEO_EFFECTS = [
    Item("AutoContrast", "", ADJUST),
    Item("AutoSaturation", "", ADJUST),
    Item("MagicEnhance", "", ADJUST),
    Item("WhiteBalance", "", ADJUST),
    Item("WhiteBalance", "lamp_light", ADJUST, color=color(0xFFE2B8)),
    Item("WhiteBalance", "shade", ADJUST, color=color(0xD2E1F5)),
    Item("WhiteBalance", "fluorescent", ADJUST, color=color(0xE4F2DC)),
    Item("Sharpen", "", ADJUST),
    Item("Sharpen", "slight", ADJUST, intensity=0.35),
    Item("BackgroundRemove", "", ADJUST),
    Item("BackgroundRemove", "fine", ADJUST, downscalingFrameSize=512),

    Item("Crop", "", GEOMETRY),
    Item("Crop", "closer", GEOMETRY, transform=transform(1.25, 1.25)),
    Item("Crop", "close_up", GEOMETRY, transform=transform(2, 2)),
    Item("Crop", "left_half", GEOMETRY, transform=transform(2, 2, 0.5)),
    Item("Crop", "right_half", GEOMETRY, transform=transform(2, 2, -0.5)),
    Item("Transpose", "quarter_turn", GEOMETRY, angle=90),
    Item("Transpose", "half_turn", GEOMETRY, angle=180),
    Item("Transpose", "three_quarter_turn", GEOMETRY, angle=270),
    Item("FixVertVideo", "", GEOMETRY),
    Item("Flip", "horizontal", GEOMETRY, horizontal=True),
    Item("Flip", "vertical", GEOMETRY, vertical=True),
    *(Item("Mirror", f"horizontal_{half}", GEOMETRY, horizontal=half) for half in (1, 2)),
    *(Item("Mirror", f"vertical_{half}", GEOMETRY, vertical=half) for half in (1, 2)),
    Item("Mirror", "kaleidoscope", GEOMETRY, vertical=1, horizontal=1),

    Item("Opacity", "", COMPOSITION),
    Item("Opacity", "half", COMPOSITION, opacity=0.5),
    Item("Opacity", "hint", COMPOSITION, opacity=0.2),
    Item("ChromaKey", "", COMPOSITION),
    Item("ChromaKey", "blue", COMPOSITION, color=color(0x0047BB)),
    Item("ChromaKey", "uneven_light", COMPOSITION, hueTolerance=100, noiseLevel=12, harshness=4, transparency=20),
    Item("ColorBlending", "", COMPOSITION),
    Item("AlphaInserter", "", COMPOSITION, tag="effect_alpha_inserter"),

    Item("Blur", "", BLUR),
    Item("Blur", "soft", BLUR, intensity=4),
    Item("Blur", "strong", BLUR, intensity=20),
    Item("MotionBlur", "", BLUR),
    Item("TiltShift", "", BLUR),
    Item("TiltShift", "miniature", BLUR, c1=0.38, c2=0.62, smns=0.3),
    Item("TiltShift", "tabletop", BLUR, c1=0.55, c2=0.85, smns=0.25),
    *named("BokehBlur", "preset",
           ["bang", "blossom", "bokeh", "butterfly", "clover", "diamonds", "heart", "ice", "star"], BLUR),

    Item("Twirl", "", DISTORTION),
    Item("Twirl", "whirlpool", DISTORTION, startTwirl=0.4, speedTwirl=0.5, speedRotate=0.25),
    Item("Vertigo", "", DISTORTION),
    Item("Vertigo", "slow", DISTORTION, scale=0.04, speed=0.02),
    Item("FishEye", "", DISTORTION),
    Item("FishEye", "peephole", DISTORTION, deviation=-0.12),
    Item("LensDistortion", "", DISTORTION),
    Item("LensDistortion", "pincushion", DISTORTION, zoom=0.5, distortion=0.2),
    Item("LensDistortion", "action_camera", DISTORTION, zoom=0.3, distortion=-0.35, memberCount=2),
    Item("CameraShake", "hand_held", DISTORTION, shuft_x=0.006, shuft_y=0.008, rotate=0.4, frequency=1.2,
         persistence=0.5),
    Item("CameraShake", "earthquake", DISTORTION, shuft_x=0.03, shuft_y=0.04, rotate=1.5, frequency=7, persistence=0.6),
    Item("ChromaticAberration", "", DISTORTION),
    Item("ChromaticAberration", "slight", DISTORTION, intensity=0.3),

    Item("OilPaint", "", ARTISTIC),
    Item("OilPaint", "broad_brush", ARTISTIC, radius=12),
    *numbered("PopArt", "preset", range(4), ARTISTIC),
    Item("Posterize", "", ARTISTIC),
    Item("Posterize", "poster", ARTISTIC, colorsNumber=3),
    Item("Posterize", "soft", ARTISTIC, colorsNumber=12, intensity=0.7),
    *numbered("FindEdges", "type", range(2), ARTISTIC),
    Item("FindEdges", "pencil", ARTISTIC, type=1, sensibility=0.6),
    Item("HalfTone", "newspaper", ARTISTIC, bkgnd=color(0xF4EFE2), dtclr=color(0x1B1B1B), scale=0.006, angle=45),
    Item("HalfTone", "riso_red", ARTISTIC, bkgnd=color(0xFBF3E7), dtclr=color(0xE4312B), scale=0.008, angle=15),
    Item("HalfTone", "blueprint", ARTISTIC, bkgnd=color(0x123A6B), dtclr=color(0xDCE9F7), scale=0.005, angle=30),
    *numbered("Erosion", "type", range(2), ARTISTIC),
    Item("Diffuse", "", ARTISTIC),
    Item("Diffuse", "frosted", ARTISTIC, level=0.12, prob=0.6),
    Item("Stripes", "", ARTISTIC),
    Item("Stripes", "blinds", ARTISTIC, count=12, deep=0.85),
    *numbered("Mosaic", "type", range(2), MOSAIC),
    Item("Mosaic", "fine", MOSAIC, amountVer=54, amountHor=96),
    Item("Mosaic", "coarse", MOSAIC, amountVer=9, amountHor=16),
    Item("GlassMosaic", "", MOSAIC),
    Item("GlassMosaic", "ribbed", MOSAIC, angle=0, curve=0.05, repeatsh=0.08, repeatsv=1),
    *numbered("AddNoize", "type", range(2), NOISE),
    Item("AddNoize", "fine_grain", NOISE, intensity=0.12),

    Item("RetroArtefacts", "silent_film", RETRO, shake=True, vignetting=True, grain=60, scratches=40, rollerTrack=20),
    Item("RetroArtefacts", "home_movie", RETRO, shake=True, grain=25, scratches=10),
    Item("RetroArtefacts", "newsreel", RETRO, vignetting=True, grain=45, scratches=30, rollerTrack=10),
    *numbered("RetroColors", "type", range(4), RETRO),
    Item("VHS", "", RETRO),
    Item("VHS", "worn_tape", RETRO, speed=0.15, shift=0.12, smoothness=0.12, relief=0.1),
    Item("Television70s", "", RETRO),
    Item("Television70s", "fine_lines", RETRO, stripesWidth=0.35),
    Item("GlitchMpeg", "", RETRO),
    Item("GlitchSecurityCam", "", RETRO),
    Item("GlitchSecurityCam", "weak_signal", RETRO, randDistortion=2.6, constDistortion=0.3),
    *numbered("FilmStrip", "type", range(3), RETRO),

    *named("FlyingObjects", "preset",
           ["leaf", "balloon", "bunny", "cupid", "gift_box", "ghost", "heart", "envelope", "paper_plane", "umbrella",
            "rose", "flower", "star", "air_balloon", "swinging_snowflake", "spinning_snowflake"], FLYING),
    *numbered("LensFlare", "Presets", [0, 1, 2, 3, 6, 7], LENS_FLARES),
    *numbered("LightLeaks", "Presets", range(16), LIGHT_LEAKS),
    *numbered("VignetteFilter", "preset", range(9), VIGNETTES),

    *(Item("ShaderISF", name, SHADERS, groupId=f"{name}.fs", resource=resource(f"{name}.fs", BLOB),
           resourcePath=f"shaders/{name}.fs") for name in ("edge_glow", "scanlines")),
    Item("ExternalShader", "film_fade", SHADERS, RETRO, supportsIntensity=True, shaderResource="film_fade.frag",
         resource=resource("film_fade.frag", BLOB), resourcePath="shaders/film_fade.frag"),

    Item("EffectsHolder", "old_cinema", LOOKS, RETRO, tag="effects_old_cinema", effects=[
        Inner("RetroColors", type=1),
        Inner("RetroArtefacts", shake=True, grain=40, scratches=25),
        Inner("VignetteFilter", preset=1),
    ]),
    Item("EffectsHolder", "dream", LOOKS, BLUR, tag="effects_dream", effects=[
        Inner("Blur", intensity=3),
        Inner("LightLeaks", Presets=3, intensity=0.6),
        Inner("VignetteFilter", preset=3, intensity=0.7),
    ]),
    Item("EffectsHolder", "surveillance", LOOKS, tag="effects_surveillance", effects=[
        Inner("GlitchSecurityCam"),
        Inner("AddNoize", intensity=0.15),
        Inner("LensDistortion", zoom=0.3, distortion=-0.3),
    ]),
]

COLOR_FILTER_ITEMS = [
    Item("ManualEnhance", "brighter", ADJUST, brightness=0.15, shadows=0.1),
    Item("ManualEnhance", "open_shadows", ADJUST, shadows=0.45, highlights=-0.2),
    Item("ManualEnhance", "punch", ADJUST, contrast=0.3, saturation=0.2, shadows=-0.1),
    Item("ManualEnhance", "warm_evening", ADJUST, temperature=0.35, tint=-0.05, saturation=0.1),
    Item("ManualEnhance", "cold_morning", ADJUST, temperature=-0.35, contrast=-0.05, brightness=0.05),
    Item("ManualEnhance", "faded", ADJUST, contrast=-0.3, saturation=-0.35, gamma=0.1),
    Item("ManualEnhance", "noir", ADJUST, saturation=-1, contrast=0.45, shadows=-0.2),
    Item("ManualEnhance", "day_for_night", ADJUST, brightness=-0.35, temperature=-0.55, saturation=-0.4, contrast=0.15),
    *numbered("ColorFilter", "preset", range(36), COLOR_FILTERS),
    *numbered("ColorBrush", "pType", range(2), COLOR_FILTERS, ARTISTIC),
    Item("ColorMixBurn", "", COLOR_FILTERS),
    Item("ColorMixBurn", "slight", COLOR_FILTERS, intensity=0.4),
    Item("ColorSelect", "", COLOR_FILTERS),
    Item("ColorSelect", "red", COLOR_FILTERS, color=color(0xD0202A), hueTolerance=40),
    Item("ColorSelect", "blue", COLOR_FILTERS, color=color(0x1E4FC2), hueTolerance=50),
    Item("ColorMixExchange", "teal", COLOR_FILTERS, color=color(0x148A8A)),
    Item("ColorMixExchange", "amber", COLOR_FILTERS, color=color(0xE39A2D)),
    Item("Invert", "", COLOR_FILTERS),
]

LUTS = [
    Item("Lut", look, "category_lut_" + look.split("_")[0], groupId=f"{look}.cube",
         resource=resource(f"{look}.cube", BLOB), resourcePath=f"{look}.cube")
    for look in ("cold_bleach", "cold_moonlight", "cold_nordic", "cold_steel",
                 "warm_amber_film", "warm_candlelight", "warm_golden_hour", "warm_sepia_print")
]

OVERLAYS = [
    Item("Overlay", picture, "category_overlay_" + category, groupId=f"{picture}.png",
         resource=resource(f"{picture}.png", IMAGE), resourcePath=f"images/{picture}.png")
    for picture, category in (
        ("artsy_brush", "artsy"), ("artsy_canvas", "artsy"), ("cyberpunk_grid", "cyberpunk"),
        ("cyberpunk_hud", "cyberpunk"), ("frame_film", "frames"), ("frame_polaroid", "frames"),
        ("shadow_blinds", "shadows"), ("shadow_leaves", "shadows"))
]

CORNER = "category_pip_corner"
CENTER = "category_pip_center"
SPLIT = "category_pip_split"


def split(variant, width, height, left, down):
    """A part of the frame, filled with as large a part of the picture, from its middle."""
    return Item("SideBySide", variant, SPLIT, transformSrc=transform(width, height),
                transformDst=transform(width, height, left, down))


PIP_EFFECTS = [
    Item("PictureInPicture", "", CENTER),
    Item("PictureInPicture", "middle", CENTER, transform=transform(0.5, 0.5)),
    Item("PictureInPicture", "presentation", CENTER, transform=transform(0.7, 0.7, 0, -0.1)),
    *(Item("PictureInPicture", f"{row}_{column}", CORNER, transform=transform(0.3, 0.3, 0.32 * x, 0.32 * y))
      for row, y in (("top", -1), ("bottom", 1)) for column, x in (("left", -1), ("right", 1))),
    Item("PictureInPicture", "lower_left_large", CORNER, transform=transform(0.45, 0.45, -0.25, 0.25)),
    Item("SideBySide", "", SPLIT),
    split("right", 0.5, 1, 0.25, 0),
    split("top", 1, 0.5, 0, -0.25),
    split("bottom", 1, 0.5, 0, 0.25),
    *(split(f"quarter_{row}_{column}", 0.5, 0.5, 0.25 * x, 0.25 * y)
      for row, y in (("top", -1), ("bottom", 1)) for column, x in (("left", -1), ("right", 1))),
]

HIGHLIGHT = "category_mask_highlight"
CONCEAL = "category_mask_conceal"
RECTANGLE, ELLIPSE = 0, 1
FILL, BLURRED, PIXELS = 0, 1, 2

MASKS = [
    Item("Mask", "spotlight", HIGHLIGHT, backgroundOpacity=0.75, backgroundSmoothness=0.3, highlightFrames=[
        Inner("FrameHighlight", shape=ELLIPSE, transform=transform(0.4, 0.6))]),
    Item("Mask", "soft_focus", HIGHLIGHT, backgroundFill=1, backgroundOpacity=1, backgroundSmoothness=0.5,
         highlightFrames=[Inner("FrameHighlight", shape=ELLIPSE, transform=transform(0.6, 0.8))]),
    Item("Mask", "letterbox", HIGHLIGHT, backgroundOpacity=1, highlightFrames=[
        Inner("FrameHighlight", transform=transform(1, 0.75))]),
    Item("Mask", "binoculars", HIGHLIGHT, backgroundOpacity=1, backgroundSmoothness=0.05, highlightFrames=[
        Inner("FrameHighlight", shape=ELLIPSE, transform=transform(0.42, 0.75, -0.17)),
        Inner("FrameHighlight", shape=ELLIPSE, transform=transform(0.42, 0.75, 0.17))]),
    Item("Mask", "outlined_box", HIGHLIGHT, backgroundOpacity=0.35, highlightFrames=[
        Inner("FrameHighlight", outline=True)]),
    Item("Mask", "pixel_face", CONCEAL, concealFrames=[
        Inner("FrameConceal", shape=ELLIPSE, method=PIXELS, pixelSize=0.06, transform=transform(0.25, 0.4))]),
    Item("Mask", "blur_face", CONCEAL, concealFrames=[
        Inner("FrameConceal", shape=ELLIPSE, method=BLURRED, smoothness=0.2, transform=transform(0.25, 0.4))]),
    Item("Mask", "number_plate", CONCEAL, concealFrames=[
        Inner("FrameConceal", shape=RECTANGLE, method=BLURRED, transform=transform(0.2, 0.08, 0, 0.2))]),
    Item("Mask", "black_bar", CONCEAL, concealFrames=[
        Inner("FrameConceal", shape=RECTANGLE, method=FILL, transform=transform(0.35, 0.1, 0, -0.1))]),
]

CLEAN_UP = "category_clean_up"
DYNAMICS = "category_dynamics"
EQUALIZER = "category_equalizer"
MODULATION = "category_modulation"
SPACE = "category_space"
VOICE = "category_voice"

FREQUENCIES = [31, 63, 125, 250, 500, 1000, 2000, 4000, 8000, 16000]  # hertz
# Gains in decibels, as `Effect::AudioEqualizer::makePreset` has them; a test compares.
EQUALIZERS = [
    ("flat", "Flat", [0, 0, 0, 0, 0, 0, 0, 0, 0, 0]),
    ("neutral", "Neutral", [0, 0, 0, 0, 0, 0, 0, 0, 0, 0]),
    ("clear_voice", "Clear voice", [0, 0, 0, 3.5, 0, 0, 5, 0, 0, 0]),
    ("bright_voice", "Bright voice", [0.75, 3.75, 7, 4.5, 3.75, 2.5, 5, 7, 8.5, 5.5]),
    ("deep_and_airy", "Deep and airy", [6, 4, 0, 0, -2, 0, -1, -5, 5, 1]),
    ("no_rumble", "No rumble", [-20, -7.4, -4.5, 0, -1.2, 0, 0, -1, -0.5, -5]),
    ("more_bass", "More bass", [5, 4, 3, 2, 1, 0, 0, 0, 0, 0]),
    ("less_bass", "Less bass", [-5, -4, -3, -2, -1, 0, 0, 0, 0, 0]),
    ("more_treble", "More treble", [0, 0, 0, 0, 0, 1, 2, 3, 4, 5]),
    ("less_treble", "Less treble", [0, 0, 0, 0, 0, -1, -2, -3, -4, -5]),
    ("acoustic", "Acoustic", [5, 4, 3.5, 1, 2, 2, 3.5, 4, 3.5, 2]),
    ("orchestra", "Orchestra", [4.5, 3.5, 3, 2.5, -1.5, -1.5, 0, 2.5, 3, 4]),
    ("dance", "Dance", [3.5, 6.5, 4.75, 0, 1.5, 4, 4.75, 4.5, 4, 0]),
    ("deep", "Deep", [4.5, 3.5, 1.5, 0.5, 3, 2.75, 1.5, -2, -4, -4.5]),
    ("electronic", "Electronic", [4, 3.5, 1.25, 0, -2, 2.75, 1, 1.25, 4, 4.75]),
    ("beat", "Beat", [4.75, 4, 1.5, 3, -1.2, -1.2, 1.5, -1, 1.75, 3]),
    ("jazz_club", "Jazz club", [4, 3, 1.5, 1.75, -1.5, -1.5, 0, 1.5, 3, 4]),
    ("percussion", "Percussion", [4.5, 3, 0, 0, -1.5, -1.5, -1.5, 0, 3, 4.5]),
    ("lounge", "Lounge", [-3, -1.5, -1, 1.5, 4, 2, 0, -1.5, 1.75, 1]),
    ("piano", "Piano", [3, 1.75, 0, 2, 3, 1.5, 3.25, 4.5, 2.75, 3.25]),
    ("forward_voice", "Forward voice", [-1.5, -1.2, 0, 1.75, 4, 4, 1.75, 0, -1.2, -1.5]),
    ("groove", "Groove", [2.75, 7, 5.2, 1.5, -2, -1.5, 1.75, 2.25, 2.5, 4]),
    ("rock_band", "Rock band", [4.75, 4, 3, 1.5, -0.5, -2, 0.5, 2, 3.5, 4.5]),
    ("small_speakers", "Small speakers", [5, 4.25, 3.5, 2.75, 1.25, 0, -1.5, -2.7, -3.5, -4.5]),
]


def bands(gains):
    return [Inner("AudioEqualizer::BandEq", centralFrequency=frequency, gain=gain)
            for frequency, gain in zip(FREQUENCIES, gains, strict=True)]


def echoes(*pairs):
    """Of delay and share."""
    return [Inner("AudioEcho::Echo", delay=delay, decay=decay) for delay, decay in pairs]


AUDIO_EFFECTS = [
    *(Item("AudioEqualizer", variant, EQUALIZER, preset=number, presetName=name, multiband=bands(gains))
      for number, (variant, name, gains) in enumerate(EQUALIZERS)),

    Item("AudioCompressor", "", DYNAMICS),
    Item("AudioCompressor", "gentle", DYNAMICS, threshold=-24.0, ratio=1.8, attack=30, release=300, gainOut=2.0),
    Item("AudioCompressor", "speech", DYNAMICS, threshold=-20.0, ratio=3.5, attack=8, release=180, gainOut=5.0),
    Item("AudioCompressor", "limiter", DYNAMICS, threshold=-3.0, ratio=20, attack=1, release=60),
    Item("AudioNoiseGate", "", DYNAMICS),
    Item("AudioNoiseGate", "quiet_room", DYNAMICS, threshold=-48.0, ratio=2, attack=5, release=200),
    Item("AudioNoiseGate", "noisy_room", DYNAMICS, threshold=-36.0, ratio=6, attack=3, release=120),

    Item("AudioReverb", "", SPACE),
    Item("AudioReverb", "small_room", SPACE, delay=5, duration=350, dryWetBalance=-0.5, frequency=12000),
    Item("AudioReverb", "hall", SPACE, delay=25, duration=1800, dryWetBalance=-0.2, frequency=9000),
    Item("AudioReverb", "church", SPACE, delay=45, duration=4500, dryWetBalance=0, frequency=6500),
    Item("AudioReverb", "bathroom", SPACE, delay=3, duration=700, dryWetBalance=0.1, frequency=16000),
    Item("AudioEcho", "canyon", SPACE, gainIn=0.8, gainOut=0.9, echos=echoes((500, 0.5), (1000, 0.3), (1500, 0.15))),
    Item("AudioEcho", "alley", SPACE, gainIn=0.8, gainOut=0.9, echos=echoes((90, 0.4), (180, 0.2))),
    Item("AudioEcho", "station", SPACE, gainIn=0.7, gainOut=0.9, echos=echoes((250, 0.45), (430, 0.3), (610, 0.2))),

    *numbered("AudioDistortion", "type", range(5), MODULATION),
    Item("AudioDistortion", "megaphone", MODULATION, type=1, boost=0.45, tone=0.7),
    *numbered("AudioFlanger", "shape", range(2), MODULATION),
    Item("AudioFlanger", "jet", MODULATION, delay=1, depth=6, regen=0.5, speed=0.2),
    Item("AudioVibrato", "", MODULATION),
    Item("AudioVibrato", "slow", MODULATION, frequencyHz=5.0),

    Item("AudioPhone", "", VOICE),
    Item("AudioPhone", "old_line", VOICE, gainUp=6, gainDown=60, lBound=300, rBound=3400),
    Item("AudioMuffle", "", VOICE),
    Item("AudioMuffle", "next_room", VOICE, gainUp=4, gainDown=40, mean=300, dispersion=1.2),
    Item("AudioMuffle", "under_water", VOICE, gainUp=6, gainDown=60, mean=180, dispersion=0.8),
    Item("AudioRadio", "", VOICE),
    Item("AudioRadio", "valve_set", VOICE, gainUp=5, gainDown=45, lBound=150, rBound=4500, crackleP=6, noise=0.08),
    Item("AudioRadio", "walkie_talkie", VOICE, gainUp=8, gainDown=60, lBound=500, rBound=2800, crackleP=9, noise=0.15),
    Item("AudioPitch", "chipmunk", VOICE, pitch=1.6),
    Item("AudioPitch", "giant", VOICE, pitch=0.7),
    Item("AudioPitch", "helium", VOICE, pitch=1.9),
    Item("AudioRobot", "", VOICE),
    Item("AudioRobot", "android", VOICE, level=0.7, pitch=1.1),
    Item("AudioRobot", "machine", VOICE, level=1.0, pitch=0.75),

    Item("AudioNoiseSuppress", "", CLEAN_UP),
    Item("AudioNoiseSuppress", "light", CLEAN_UP, levelPercent=25),
    Item("AudioNoiseSuppress", "strong", CLEAN_UP, levelPercent=85),
    Item("AudioMonoChannel", "", CLEAN_UP),
    Item("AudioAiDenoise", "", CLEAN_UP),
    Item("AudioNormalize", "", CLEAN_UP),
]


def chain(variant, category, *effects):
    return Item("AudioEnhance", variant, category, effects=list(effects))


def equalizer(*gains):
    return Inner("AudioEqualizer", preset=0, multiband=bands(gains))


PODCAST = "category_podcast"
NARRATION = "category_narration"
REPAIR = "category_repair"
MUSIC = "category_music"

# In the order of a channel strip: noise, gate, tone, level, room.
AUDIO_ENHANCE = [
    chain("podcast", PODCAST,
          Inner("AudioNoiseGate", threshold=-46.0, ratio=3, attack=5, release=200),
          equalizer(-12, -6, 0, -2, -1, 0, 2, 2.5, 1, 0),
          Inner("AudioCompressor", threshold=-22.0, ratio=3, attack=10, release=180, gainOut=5.0)),
    chain("broadcast", PODCAST,
          Inner("AudioNoiseGate", threshold=-44.0, ratio=4, attack=3, release=150),
          equalizer(-10, 1, 3, 0, -2, 0, 2, 3, 2, 1),
          Inner("AudioCompressor", threshold=-24.0, ratio=4.5, attack=5, release=120, gainOut=7.0),
          Inner("AudioCompressor", threshold=-3.0, ratio=20, attack=1, release=60)),
    chain("two_hosts", PODCAST,
          Inner("AudioNoiseSuppress", levelPercent=30),
          Inner("AudioNoiseGate", threshold=-40.0, ratio=4, attack=5, release=250),
          equalizer(-15, -8, -1, -1, 0, 0, 1.5, 2, 0, 0),
          Inner("AudioCompressor", threshold=-24.0, ratio=3.5, attack=8, release=200, gainOut=6.0)),
    chain("remote_guest", PODCAST,
          Inner("AudioNoiseSuppress", levelPercent=60),
          equalizer(-20, -12, 1, 2, -2, -1, 1, 2, 3, 0),
          Inner("AudioCompressor", threshold=-26.0, ratio=4, attack=5, release=150, gainOut=6.0)),
    chain("audiobook", NARRATION,
          Inner("AudioNoiseGate", threshold=-54.0, ratio=2, attack=10, release=300),
          equalizer(-14, -6, 1.5, 1, -1, 0, 1, 1.5, 0.5, 0),
          Inner("AudioCompressor", threshold=-24.0, ratio=2.2, attack=20, release=300, gainOut=4.0)),
    chain("trailer", NARRATION,
          equalizer(2, 4, 3, 0, -2, 0, 1.5, 2.5, 1.5, 0),
          Inner("AudioCompressor", threshold=-28.0, ratio=5, attack=5, release=120, gainOut=9.0),
          Inner("AudioReverb", delay=15, duration=900, dryWetBalance=-0.7, frequency=8000)),
    chain("lecture_hall", REPAIR,
          Inner("AudioNoiseSuppress", levelPercent=45),
          equalizer(-20, -12, -5, -4, -2, 0, 2.5, 3, 1, 0),
          Inner("AudioCompressor", threshold=-26.0, ratio=3, attack=10, release=250, gainOut=6.0)),
    chain("street_interview", REPAIR,
          Inner("AudioNoiseSuppress", levelPercent=75),
          Inner("AudioNoiseGate", threshold=-34.0, ratio=3, attack=3, release=180),
          equalizer(-20, -16, -8, -1, 0, 0, 2, 3, 1, -2),
          Inner("AudioCompressor", threshold=-22.0, ratio=4, attack=5, release=150, gainOut=6.0)),
    chain("small_room", REPAIR,
          Inner("AudioNoiseGate", threshold=-38.0, ratio=2.5, attack=2, release=90),
          equalizer(-12, -5, -2, -5, -4, 0, 1.5, 2, 1, 0),
          Inner("AudioCompressor", threshold=-20.0, ratio=2.5, attack=12, release=150, gainOut=4.0)),
    chain("singer", MUSIC,
          equalizer(-15, -8, 0, -1.5, 0, 0, 1.5, 2.5, 2, 2.5),
          Inner("AudioCompressor", threshold=-20.0, ratio=3, attack=12, release=140, gainOut=4.0),
          Inner("AudioReverb", delay=25, duration=1600, dryWetBalance=-0.6, frequency=10000)),
]

COLLECTIONS = {
    "VideoEffects": VIDEO_EFFECTS,
    "OverlayEffects": OVERLAYS,
    "AudioEffects": AUDIO_EFFECTS,
    "AudioEnhance": AUDIO_ENHANCE,
    "ColorFilters": COLOR_FILTER_ITEMS,
    "Luts": LUTS,
    "PipEffects": PIP_EFFECTS,
    "Masks": MASKS,
}


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("effectctl", help="the program, as built")
    parser.add_argument("folder", type=pathlib.Path, help="where the collections go, such as stock")
    arguments = parser.parse_args()
    documents = Documents(arguments.effectctl)
    for name, items in COLLECTIONS.items():
        folder = arguments.folder / name
        folder.mkdir(parents=True, exist_ok=True)
        written = set()
        for item in items:
            if item.file_name() in written:
                raise ValueError(f"{name}/{item.file_name()} exists already")
            written.add(item.file_name())
            text = json.dumps(item.document(documents), indent=2, ensure_ascii=False) + "\n"
            (folder / item.file_name()).write_text(text, encoding="utf-8", newline="\n")
        # Those of rows that are no longer there.
        for path in folder.glob("*.effect.json"):
            if path.name not in written:
                path.unlink()


if __name__ == "__main__":
    main()
