/*{
    "ISFVSN": "2",
    "CATEGORIES": ["Test"],
    "INPUTS": [
        {"NAME": "inputImage", "TYPE": "image"},
        {"NAME": "reset", "TYPE": "event"},
        {"NAME": "invert", "TYPE": "bool", "DEFAULT": 1.0, "IDENTITY": false},
        {"NAME": "mode", "TYPE": "long", "VALUES": [0, 1, 4], "LABELS": ["Off", "On"], "DEFAULT": 4},
        {"NAME": "level", "TYPE": "float", "LABEL": "Level", "MIN": -2, "MAX": 2.5e0, "DEFAULT": 0.25},
        {"NAME": "center", "TYPE": "point2D", "MIN": [0, 0], "MAX": [1, 1], "DEFAULT": [0.5, 0.5]},
        {"NAME": "tint", "TYPE": "color", "DEFAULT": [1.0, 0.5, 0.0, 1.0]},
        {"NAME": "wave", "TYPE": "audio", "MAX": 512},
        {"NAME": "spectrum", "TYPE": "audioFFT"}
    ]
}*/
void main() { gl_FragColor = mix(IMG_THIS_PIXEL(inputImage), tint, level); }
