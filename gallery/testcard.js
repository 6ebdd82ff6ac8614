// A picture to look at tables and shaders with: an evening landscape with skin tones, greys and pure colours, painted
// by numbers, so that it is the same in every browser.
'use strict';

Gallery.testcard = (() => {
    const mix = (a, b, part) => a.map((value, index) => value + (b[index] - value) * part);
    const smooth = (low, high, value) => {
        const part = Math.min(Math.max((value - low) / (high - low), 0), 1);
        return part * part * (3 - 2 * part);
    };
    // Noise that depends on the position alone.
    const noise = (x, y) => {
        const value = Math.sin(x * 127.1 + y * 311.7) * 43758.5453;
        return value - Math.floor(value);
    };
    const ridge = (x, height, roughness, seed) =>
        height + roughness * (Math.sin(x * 7.3 + seed) * 0.5 + Math.sin(x * 17.1 + seed * 2.3) * 0.25 +
            Math.sin(x * 41 + seed * 0.7) * 0.08);

    const skins = [[0.96, 0.80, 0.69], [0.82, 0.60, 0.45], [0.55, 0.36, 0.25], [0.30, 0.19, 0.14]];
    const patches = [[0.75, 0.10, 0.12], [0.95, 0.55, 0.10], [0.97, 0.85, 0.15], [0.20, 0.60, 0.25], [0.10, 0.55, 0.65],
        [0.12, 0.25, 0.65], [0.50, 0.20, 0.60], [0.85, 0.35, 0.55]];

    // Red, green and blue, 0 to 1, at a position from 0 to 1 whose y points down.
    function colorAt(x, y, aspect) {
        const sky = mix([0.16, 0.32, 0.58], [0.98, 0.73, 0.46], smooth(0, 0.6, y));
        let color = sky;
        const fromSun = Math.hypot((x - 0.72) * aspect, y - 0.40);
        color = mix(color, [1, 0.92, 0.72], Math.exp(-fromSun * fromSun * 18) * 0.8);
        color = mix(color, [1, 0.98, 0.90], 1 - smooth(0.062, 0.068, fromSun));
        const hills = [[ridge(x, 0.52, 0.06, 1.3), [0.42, 0.40, 0.55]], [ridge(x, 0.60, 0.07, 4.1), [0.22, 0.33, 0.36]],
            [ridge(x, 0.69, 0.05, 2.2), [0.13, 0.25, 0.14]]];
        for (const [top, shade] of hills)
            if (y > top)
                color = mix(shade, mix(shade, [0.95, 0.75, 0.5], 0.35), smooth(0.12, 0, y - top));
        if (y > ridge(x, 0.69, 0.05, 2.2)) {
            const grass = noise(Math.floor(x * 240), Math.floor(y * 135));
            color = mix(color, [0.45, 0.52, 0.16], grass * 0.35 * smooth(0.66, 0.85, y));
        }
        // Four balls in skin tones, lit from the sun.
        for (let index = 0; index < skins.length; ++index) {
            const centerX = 0.10 + index * 0.115, centerY = 0.60, radius = 0.082;
            const offsetX = (x - centerX) * aspect / radius, offsetY = (y - centerY) / radius;
            const square = offsetX * offsetX + offsetY * offsetY;
            if (square < 1) {
                const height = Math.sqrt(1 - square);
                const light = Math.max(0.62 * offsetX - 0.42 * offsetY + 0.66 * height, 0);
                color = mix(skins[index].map(value => value * (0.28 + 0.78 * light)), [1, 0.95, 0.85],
                    Math.pow(light, 24) * 0.35);
            }
        }
        if (y > 0.86) {
            const column = Math.floor(x * 16);
            color = y < 0.93 ? [0, 1, 2].map(() => Math.min(column / 15, 1)) : patches[Math.floor(x * 8) % 8];
        }
        return color;
    }

    const cache = {};

    // The pixels, in a canvas of that size. Treat it as constant.
    function canvas(width, height) {
        const key = `${width}x${height}`;
        if (cache[key])
            return cache[key];
        const target = document.createElement('canvas');
        target.width = width;
        target.height = height;
        const context = target.getContext('2d', {willReadFrequently: true});
        const pixels = context.createImageData(width, height);
        for (let y = 0, at = 0; y < height; ++y) {
            for (let x = 0; x < width; ++x) {
                for (const value of colorAt((x + 0.5) / width, (y + 0.5) / height, width / height))
                    pixels.data[at++] = Math.round(Math.min(Math.max(value, 0), 1) * 255);
                pixels.data[at++] = 255;
            }
        }
        context.putImageData(pixels, 0, 0);
        return cache[key] = target;
    }

    return {canvas, patches, skins};
})();
