/*{
    "ISFVSN": "2",
    "PASSES": [
        {"TARGET": "history", "PERSISTENT": true, "FLOAT": 1, "WIDTH": "floor($WIDTH/4.0)", "HEIGHT": 16},
        {}
    ],
    "IMPORTED": {"noise": {"PATH": "noise.png"}, "sky": {"PATH": ["l", "r", "b", "t", "f", "k"]}}
}*/
void main() { gl_FragColor = PASSINDEX == 0 ? vec4(1.0) : IMG_NORM_PIXEL(history, isf_FragNormCoord); }
