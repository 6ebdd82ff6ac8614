/*{
    "ISFVSN": "2",
    "DESCRIPTION": "The picture of an old tube: dark scan lines, a bright band that rolls down, coloured stripes.",
    "CREDIT": "EditorEffects",
    "CATEGORIES": ["Retro"],
    "INPUTS": [
        {
            "NAME": "inputImage",
            "TYPE": "image"
        },
        {
            "NAME": "pitch",
            "LABEL": "Distance of the lines in pixels",
            "TYPE": "float",
            "DEFAULT": 4.0,
            "MIN": 2.0,
            "MAX": 16.0
        },
        {
            "NAME": "darkness",
            "LABEL": "Darkness between the lines",
            "TYPE": "float",
            "DEFAULT": 0.45,
            "MIN": 0.0,
            "MAX": 1.0
        },
        {
            "NAME": "rollSpeed",
            "LABEL": "Passes of the bright band a second",
            "TYPE": "float",
            "DEFAULT": 0.25,
            "MIN": 0.0,
            "MAX": 2.0
        },
        {
            "NAME": "stripes",
            "LABEL": "Phosphor stripes",
            "TYPE": "bool",
            "DEFAULT": true
        }
    ]
}*/

const float TWO_PI = 6.28318531;

void main()
{
    vec4 source = IMG_THIS_PIXEL(inputImage);
    vec2 position = isf_FragNormCoord * RENDERSIZE;

    float line = 0.5 + 0.5 * cos(TWO_PI * position.y / pitch);
    vec3 color = source.rgb * (1.0 - darkness * (1.0 - line));

    // The band has a sharp lower edge and fades upwards, where it has come from.
    float behind = fract(isf_FragNormCoord.y + TIME * rollSpeed);
    color *= 1.0 + 0.18 * pow(1.0 - behind, 6.0);

    if (stripes)
    {
        float column = mod(floor(position.x), 3.0);
        vec3 stripe = vec3(step(column, 0.5), step(0.5, column) * step(column, 1.5), step(1.5, column));
        color *= mix(vec3(0.82), vec3(1.18), stripe);
    }
    gl_FragColor = vec4(clamp(color, 0.0, 1.0), source.a);
}
