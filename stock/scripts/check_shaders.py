#!/usr/bin/python3
"""Compiles the stock shaders with glslangValidator (Debian: glslang-tools), for desktop GL and for GL ES.

An ISF file (.fs) is compiled as a host would: the JSON comment at its head gives the uniforms, and the functions and
variables of the format are declared before its text. A .frag file is compiled unchanged.
"""

import json
import pathlib
import subprocess
import sys
import tempfile

SHADERS = pathlib.Path(__file__).resolve().parent.parent / "VideoEffects/shaders"
DIALECTS = {"GLSL 1.20": "#version 120\n", "GLSL ES 1.00": "#version 100\nprecision highp float;\n"}
UNIFORMS = {"image": "sampler2D", "float": "float", "color": "vec4", "bool": "bool", "long": "int",
            "point2D": "vec2", "event": "bool"}
ISF = """
uniform vec2 RENDERSIZE;
uniform float TIME;
uniform float TIMEDELTA;
uniform vec4 DATE;
uniform int PASSINDEX;
uniform int FRAMEINDEX;
varying vec2 isf_FragNormCoord;
#define IMG_NORM_PIXEL(image, position) texture2D(image, position)
#define IMG_PIXEL(image, position) texture2D(image, (position) / RENDERSIZE)
#define IMG_THIS_PIXEL(image) texture2D(image, isf_FragNormCoord)
#define IMG_THIS_NORM_PIXEL(image) texture2D(image, isf_FragNormCoord)
#define IMG_SIZE(image) RENDERSIZE
"""


def declarations(text):
    if not text.startswith("/*{"):
        raise ValueError("the file does not begin with a JSON comment")
    head = json.loads(text[2:text.index("*/")])
    inputs = [f"uniform {UNIFORMS[entry['TYPE']]} {entry['NAME']};" for entry in head["INPUTS"]]
    return ISF + "\n".join(inputs) + "\n"


def errors(source):
    """What the compiler has to say, empty if it is content."""
    with tempfile.NamedTemporaryFile("w", suffix=".frag") as file:
        file.write(source)
        file.flush()
        result = subprocess.run(["glslangValidator", file.name], capture_output=True, text=True, check=False)
    return result.stdout if result.returncode else ""


def main():
    failed = False
    for path in sorted(SHADERS.iterdir()):
        text = path.read_text(encoding="utf-8")
        for dialect, version in DIALECTS.items():
            message = errors(version + (declarations(text) if path.suffix == ".fs" else "") + text)
            failed |= bool(message)
            print(f"{path.name}: {dialect}: {message or 'ok'}")
    return failed


if __name__ == "__main__":
    sys.exit(main())
