// Film that has lain in the sun: blacks turn to a bluish grey, whites to cream, colours and corners fade.
// `intensity` runs from 0, the picture unchanged, to 1.

#ifdef GL_ES
precision mediump float;
#endif

varying vec2 TexCoord0;
uniform sampler2D tex;
uniform float intensity;

const vec3 LUMA = vec3(0.2126, 0.7152, 0.0722);
const vec3 FADED_BLACK = vec3(0.10, 0.11, 0.16);
const vec3 FADED_WHITE = vec3(1.00, 0.96, 0.86);

void main() {
    vec4 source = texture2D(tex, TexCoord0);
    vec3 color = mix(vec3(dot(source.rgb, LUMA)), source.rgb, 0.72);
    color = mix(FADED_BLACK, FADED_WHITE, color);

    // Light that crept in from the edges of the reel.
    float corner = smoothstep(0.45, 0.80, distance(TexCoord0, vec2(0.5)));
    color += vec3(0.16, 0.07, 0.02) * corner;

    gl_FragColor = vec4(mix(source.rgb, clamp(color, 0.0, 1.0), clamp(intensity, 0.0, 1.0)), source.a);
}
