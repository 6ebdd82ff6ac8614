/*{
    "ISFVSN": "2",
    "DESCRIPTION": "Draws the edges of the picture as glowing lines.",
    "CREDIT": "EditorEffects",
    "CATEGORIES": ["Stylize"],
    "INPUTS": [
        {
            "NAME": "inputImage",
            "TYPE": "image"
        },
        {
            "NAME": "glowColor",
            "LABEL": "Glow color",
            "TYPE": "color",
            "DEFAULT": [0.15, 0.95, 1.0, 1.0]
        },
        {
            "NAME": "strength",
            "LABEL": "Strength",
            "TYPE": "float",
            "DEFAULT": 1.5,
            "MIN": 0.0,
            "MAX": 4.0
        },
        {
            "NAME": "radius",
            "LABEL": "Width of the lines in pixels",
            "TYPE": "float",
            "DEFAULT": 1.5,
            "MIN": 0.5,
            "MAX": 6.0
        },
        {
            "NAME": "picture",
            "LABEL": "Brightness of the picture below",
            "TYPE": "float",
            "DEFAULT": 0.35,
            "MIN": 0.0,
            "MAX": 1.0
        }
    ]
}*/

float luma(vec2 position)
{
    return dot(IMG_NORM_PIXEL(inputImage, clamp(position, 0.0, 1.0)).rgb, vec3(0.2126, 0.7152, 0.0722));
}

// Length of the luma's gradient by the Sobel operator, 4 at a full black to white step.
float edge(vec2 position, vec2 reach)
{
    float topLeft = luma(position + reach * vec2(-1.0, 1.0));
    float top = luma(position + reach * vec2(0.0, 1.0));
    float topRight = luma(position + reach * vec2(1.0, 1.0));
    float left = luma(position + reach * vec2(-1.0, 0.0));
    float right = luma(position + reach * vec2(1.0, 0.0));
    float bottomLeft = luma(position + reach * vec2(-1.0, -1.0));
    float bottom = luma(position + reach * vec2(0.0, -1.0));
    float bottomRight = luma(position + reach * vec2(1.0, -1.0));
    float horizontal = topRight + 2.0 * right + bottomRight - topLeft - 2.0 * left - bottomLeft;
    float vertical = topLeft + 2.0 * top + topRight - bottomLeft - 2.0 * bottom - bottomRight;
    return length(vec2(horizontal, vertical));
}

void main()
{
    vec2 pixel = 1.0 / RENDERSIZE;
    vec4 source = IMG_THIS_PIXEL(inputImage);

    // A sharp line and a wide, faint one around it make the glow.
    float line = edge(isf_FragNormCoord, pixel * radius);
    float halo = edge(isf_FragNormCoord, pixel * radius * 4.0);
    float light = strength * (smoothstep(0.15, 1.2, line) + 0.35 * smoothstep(0.1, 1.6, halo));

    vec3 lit = source.rgb * picture + glowColor.rgb * glowColor.a * light;
    gl_FragColor = vec4(clamp(lit, 0.0, 1.0), source.a);
}
