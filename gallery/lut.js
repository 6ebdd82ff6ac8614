// Lookup tables: the colours through them, their curves, and their grid as a turning cube.
'use strict';

Gallery.lut = (() => {
    const {element, svg} = Gallery.text;

    // The numbers of the entries, red fastest, from 16 bits each.
    function unpack({least, most, base64}) {
        const bytes = atob(base64);
        const numbers = new Float32Array(bytes.length / 2);
        const scale = (most - least) / 65535;
        for (let index = 0; index < numbers.length; ++index)
            numbers[index] = least + scale * (bytes.charCodeAt(2 * index) | bytes.charCodeAt(2 * index + 1) << 8);
        return numbers;
    }

    const tables = new Map();

    // The table of that part of the data.
    async function load(part) {
        if (!tables.has(part)) {
            const table = await Gallery.part(part);
            tables.set(part, {...table, numbers: unpack(table.entries)});
        }
        return tables.get(part);
    }

    // A curve of knots: straight lines between them, level beyond the ends. Without knots, the input.
    function shaped(knots, value) {
        if (!knots.length)
            return value;
        if (value <= knots[0][0])
            return knots[0][1];
        for (let index = 1; index < knots.length; ++index) {
            const [x0, y0] = knots[index - 1], [x1, y1] = knots[index];
            if (value <= x1)
                return y0 + (y1 - y0) * (value - x0) / (x1 - x0);
        }
        return knots[knots.length - 1][1];
    }

    // Red, green and blue through the table, linear between its entries.
    function apply(table, color) {
        const {size, numbers, domainMin, domainMax} = table;
        const is1D = size[1] === 1 && size[2] === 1;
        const low = [], part = [];
        for (let channel = 0; channel < 3; ++channel) {
            const count = is1D ? size[0] : size[channel];
            const value = shaped(table.shaper[channel], color[channel]);
            const range = domainMax[channel] - domainMin[channel];
            const position = Math.min(Math.max((value - domainMin[channel]) / range, 0), 1) * (count - 1);
            low[channel] = Math.min(Math.floor(position), count - 2);
            part[channel] = position - low[channel];
        }
        if (is1D)
            return [0, 1, 2].map(channel => {
                const at = low[channel] * 3 + channel;
                return numbers[at] + (numbers[at + 3] - numbers[at]) * part[channel];
            });
        const result = [0, 0, 0];
        for (let corner = 0; corner < 8; ++corner) {
            const red = corner & 1, green = corner >> 1 & 1, blue = corner >> 2;
            const weight = (red ? part[0] : 1 - part[0]) * (green ? part[1] : 1 - part[1]) *
                (blue ? part[2] : 1 - part[2]);
            if (!weight)
                continue;
            const at = 3 * (low[0] + red + size[0] * (low[1] + green + size[1] * (low[2] + blue)));
            for (let channel = 0; channel < 3; ++channel)
                result[channel] += weight * numbers[at + channel];
        }
        return result;
    }

    // Draws the pixels of one canvas into another of the same size, through the table.
    function draw(table, source, target) {
        const {width, height} = source;
        const pixels = source.getContext('2d').getImageData(0, 0, width, height);
        const {data} = pixels;
        for (let at = 0; at < data.length; at += 4) {
            const color = apply(table, [data[at] / 255, data[at + 1] / 255, data[at + 2] / 255]);
            for (let channel = 0; channel < 3; ++channel)
                data[at + channel] = Math.round(Math.min(Math.max(color[channel], 0), 1) * 255);
        }
        target.width = width;
        target.height = height;
        target.getContext('2d', {willReadFrequently: true}).putImageData(pixels, 0, 0);
    }

    // Hues from left to right, from white through the pure colour to black, and greys at the right end.
    function chart(width, height) {
        const canvas = document.createElement('canvas');
        canvas.width = width;
        canvas.height = height;
        const context = canvas.getContext('2d', {willReadFrequently: true});
        const columns = 25, rows = 8;
        for (let column = 0; column < columns; ++column)
            for (let row = 0; row < rows; ++row) {
                const lightness = 100 * (1 - (row + 0.5) / rows);
                context.fillStyle = column === columns - 1 ? `hsl(0 0% ${lightness}%)` :
                    `hsl(${column * 15} 85% ${lightness}%)`;
                const left = Math.round(column * width / columns), top = Math.round(row * height / rows);
                context.fillRect(left, top, Math.round((column + 1) * width / columns) - left,
                    Math.round((row + 1) * height / rows) - top);
            }
        return canvas;
    }

    // What the table makes of greys, a curve for each channel.
    function curves(table) {
        const lines = ['red', 'green', 'blue'].map((name, channel) => {
            const points = [];
            for (let step = 0; step <= 64; ++step) {
                const value = step / 64;
                const output = Math.min(Math.max(apply(table, [value, value, value])[channel], 0), 1);
                points.push(`${(24 + 160 * value).toFixed(1)},${(168 - 152 * output).toFixed(1)}`);
            }
            return svg('polyline', {class: `curve ${name}`, points: points.join(' ')});
        });
        const text = (x, y, anchor, label) => svg('text', {x, y, 'text-anchor': anchor, class: 'label'}, label);
        return svg('svg', {viewBox: '0 0 200 192', role: 'img', 'aria-label': 'Curves of red, green and blue for greys'},
            svg('rect', {x: 24, y: 16, width: 160, height: 152, class: 'frame'}),
            svg('line', {x1: 24, y1: 168, x2: 184, y2: 16, class: 'grid dashed'}), ...lines,
            text(24, 184, 'start', 'black in'), text(184, 184, 'end', 'white in'));
    }

    // The colours that the table gives, in the cube of all colours, turning about its axis of greys. Returns the canvas.
    function cube(table) {
        const canvas = element('canvas', {width: 400, height: 384, role: 'img',
            'aria-label': 'The colours that the table gives, in the cube of red, green and blue'});
        const steps = 9;
        const points = [];
        for (let red = 0; red < steps; ++red)
            for (let green = 0; green < steps; ++green)
                for (let blue = 0; blue < steps; ++blue)
                    points.push(apply(table, [red, green, blue].map(value => value / (steps - 1))));
        const corners = [0, 1, 2, 3, 4, 5, 6, 7].map(bits => [bits & 1, bits >> 1 & 1, bits >> 2]);
        const edges = [];
        for (let from = 0; from < 8; ++from)
            for (const bit of [1, 2, 4])
                if (!(from & bit))
                    edges.push([from, from | bit]);
        const root2 = Math.SQRT2, root3 = Math.sqrt(3), root6 = Math.sqrt(6);
        const context = canvas.getContext('2d');
        const project = ([red, green, blue], angle) => {
            const x = (red - green) / root2, z = (red + green - 2 * blue) / root6;
            const y = (red + green + blue) / root3 - root3 / 2;
            const turnedX = x * Math.cos(angle) - z * Math.sin(angle), depth = x * Math.sin(angle) + z * Math.cos(angle);
            const near = 1 / (1 + 0.18 * depth);
            return [200 + 190 * turnedX * near, 192 - 190 * (y * 0.92 + depth * 0.28) * near, depth];
        };
        canvas.turn = angle => {
            context.clearRect(0, 0, 400, 384);
            context.strokeStyle = getComputedStyle(canvas).color;
            context.globalAlpha = 0.35;
            for (const [from, to] of edges) {
                const [x0, y0] = project(corners[from], angle), [x1, y1] = project(corners[to], angle);
                context.beginPath();
                context.moveTo(x0, y0);
                context.lineTo(x1, y1);
                context.stroke();
            }
            context.globalAlpha = 1;
            const drawn = points.map(color => [...project(color, angle), color]).sort((a, b) => b[2] - a[2]);
            for (const [x, y, depth, color] of drawn) {
                context.fillStyle = `rgb(${color.map(value => Math.round(Math.min(Math.max(value, 0), 1) * 255)).join(' ')})`;
                context.beginPath();
                context.arc(x, y, 4.6 - 1.4 * depth, 0, 2 * Math.PI);
                context.fill();
            }
        };
        canvas.turn(0.6);
        return canvas;
    }

    return {apply, chart, cube, curves, draw, load};
})();
