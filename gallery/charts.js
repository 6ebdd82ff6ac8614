// Charts, as SVG of 320 by 180 that takes its colours from the style sheet.
'use strict';

Gallery.charts = (() => {
    const {svg, number, frequency, hex, color} = Gallery.text;
    const width = 320, height = 180;
    const left = 34, right = 308, top = 16, bottom = 154;

    function picture(label, ...children) {
        return svg('svg', {viewBox: `0 0 ${width} ${height}`, role: 'img', 'aria-label': label}, ...children);
    }

    function text(x, y, content, anchor = 'middle', name = 'label') {
        return svg('text', {x, y, 'text-anchor': anchor, class: name}, content);
    }

    function line(x1, y1, x2, y2, name = 'grid') {
        return svg('line', {x1, y1, x2, y2, class: name});
    }

    const shorter = value => Number(value.toFixed(2));

    // Where a value between two bounds is drawn, on a scale that is linear or logarithmic.
    function scale(from, to, start, end, isLogarithmic = false) {
        const place = isLogarithmic ? Math.log : value => value;
        return value => shorter(start + (end - start) * (place(value) - place(from)) / (place(to) - place(from)));
    }

    // A smooth path through points of ascending x that goes no higher and no lower than they do.
    function smoothPath(points) {
        const count = points.length;
        if (count < 3)
            return points.map(([x, y], index) => `${index ? 'L' : 'M'}${x} ${y}`).join('');
        const slope = index => (points[index + 1][1] - points[index][1]) / (points[index + 1][0] - points[index][0]);
        const tangents = points.map((_, index) => {
            if (index === 0 || index === count - 1)
                return slope(Math.min(index, count - 2));
            const before = slope(index - 1), behind = slope(index);
            return before * behind <= 0 ? 0 : 2 * before * behind / (before + behind);
        });
        let path = `M${points[0][0]} ${points[0][1]}`;
        for (let index = 1; index < count; ++index) {
            const [x0, y0] = points[index - 1], [x1, y1] = points[index];
            const third = (x1 - x0) / 3;
            path += `C${shorter(x0 + third)} ${shorter(y0 + third * tangents[index - 1])} ` +
                `${shorter(x1 - third)} ${shorter(y1 - third * tangents[index])} ${x1} ${y1}`;
        }
        return path;
    }

    // Gains in decibels at frequencies in hertz.
    function bands(points) {
        const gains = points.map(([, gain]) => gain);
        const least = Math.min(-12, ...gains), most = Math.max(12, ...gains);
        const x = scale(20, 20000, left, right, true), y = scale(least * 1.08, most * 1.08, bottom, top);
        const step = most - least > 60 ? 20 : most - least > 30 ? 10 : 6;
        const grid = [];
        for (let gain = Math.ceil(least / step) * step; gain <= most; gain += step)
            grid.push(line(left, y(gain), right, y(gain), gain === 0 ? 'axis' : 'grid'),
                text(left - 6, y(gain) + 3, number(gain), 'end'));
        for (const hertz of [100, 1000, 10000])
            grid.push(line(x(hertz), top, x(hertz), bottom), text(x(hertz), bottom + 14, frequency(hertz)));
        const sorted = [...points].filter(([hertz]) => hertz > 0).sort((a, b) => a[0] - b[0]);
        const places = sorted.map(([hertz, gain]) => [x(hertz), y(gain)]);
        const unique = places.filter(([place], index) => index === 0 || place > places[index - 1][0]);
        const ends = unique.length ? [[Math.min(left, unique[0][0] - 1), unique[0][1]], ...unique,
            [Math.max(right, unique[unique.length - 1][0] + 1), unique[unique.length - 1][1]]] :
            [[left, y(0)], [right, y(0)]];
        const path = smoothPath(ends);
        return picture(points.length ? `Gain of ${points.length} bands in decibels` : 'No bands: every gain is 0 dB',
            ...grid, svg('path', {class: 'area', d: `${path}L${right} ${y(0)}L${left} ${y(0)}Z`}),
            svg('path', {class: 'curve', d: path}),
            ...sorted.map(([hertz, gain]) => svg('circle', {class: 'point', r: 3, cx: x(hertz), cy: y(gain),
                'data-frequency': hertz, 'data-gain': gain}, svg('title', {}, `${frequency(hertz)}: ${number(gain)} dB`))),
            text(left - 6, top - 5, 'dB', 'end'));
    }

    // Output against input in decibels, with the envelope beside it. `isGate`: what is below the threshold is lowered,
    // rather than what is above. Threshold, ratio, knee, input and output gain are those of a settings record, as
    // factors; times are in milliseconds.
    function dynamics({isGate, threshold, ratio, knee, levelIn, makeup, attack, release}) {
        const decibels = factor => 20 * Math.log10(Math.max(factor, 1e-5));
        const limit = decibels(threshold), softness = Math.max(decibels(knee), 0);
        const x = scale(-70, 0, left, left + 138), y = scale(-70, 0, bottom, top);
        const outputOf = input => {
            const level = input + decibels(levelIn);
            const over = (level - limit) * (isGate ? -1 : 1);
            const slope = isGate ? ratio - 1 : 1 - 1 / ratio;
            const bent = over <= -softness / 2 ? 0 : over >= softness / 2 || !softness ? over :
                (over + softness / 2) ** 2 / (2 * softness);
            return level - slope * bent + decibels(makeup);
        };
        const curve = [];
        for (let input = -70; input <= 0; input += 1)
            curve.push(`${x(input)},${y(Math.min(Math.max(outputOf(input), -70), 0))}`);
        const grid = [-60, -40, -20].flatMap(level => [line(x(level), top, x(level), bottom),
            line(left, y(level), left + 138, y(level)), text(x(level), bottom + 14, number(level)),
            text(left - 6, y(level) + 3, number(level), 'end')]);

        // A burst begins at a quarter of the time and ends in the middle of it.
        const start = left + 166, end = right, span = Math.max(attack * 3 + release * 3, 1);
        const rise = (end - start) * attack * 3 / span;
        const points = [];
        for (let step = 0; step <= 40; ++step) {
            const time = step / 40 * span;
            const level = time < attack * 3 ? 1 - Math.exp(-time / Math.max(attack, 0.01)) :
                Math.exp(-(time - attack * 3) / Math.max(release, 0.01));
            points.push(`${shorter(start + (end - start) * step / 40)},${shorter(104 - 68 * level)}`);
        }
        return picture(`${isGate ? 'Gate' : 'Compressor'}: threshold ${number(limit)} dB, ratio ${number(ratio)}, ` +
            `attack ${number(attack)} ms, release ${number(release)} ms`, ...grid,
            line(left, bottom, left + 138, top, 'grid dashed'), line(x(limit), top, x(limit), bottom, 'mark'),
            svg('polyline', {class: 'curve', points: curve.join(' '), 'data-threshold': limit, 'data-ratio': ratio}),
            text(left + 138, bottom + 14, 'in dB', 'end'), text(left - 6, top - 5, 'out', 'end'),
            line(start, 104, end, 104, 'axis'), line(shorter(start + rise), 32, shorter(start + rise), 104, 'grid'),
            svg('polyline', {class: 'curve second', points: points.join(' ')}),
            text(start, 124, `Attack ${number(attack)} ms`, 'start', 'label strong'),
            text(start, 140, `Release ${number(release)} ms`, 'start', 'label strong'));
    }

    // The sound and its repeats: delays, and levels from 0 to 1.
    function taps(repeats) {
        const longest = Math.max(500, ...repeats.map(([delay]) => delay)) * 1.08;
        const x = scale(0, longest, left, right), y = scale(0, 1, bottom, top + 6);
        const step = longest > 1200 ? 500 : longest > 600 ? 250 : 100;
        const grid = [line(left, bottom, right, bottom, 'axis')];
        for (let delay = 0; delay <= longest; delay += step)
            grid.push(text(x(delay), bottom + 14, number(delay)));
        const bar = (delay, level, name) => svg('rect', {class: name, x: shorter(x(delay) - 4), width: 8, rx: 2,
            y: y(Math.min(Math.max(level, 0), 1)), height: shorter(bottom - y(Math.min(Math.max(level, 0), 1))),
            'data-delay': delay, 'data-level': level}, svg('title', {}, `after ${number(delay)}: ${number(level)}`));
        return picture(repeats.length ? `The sound and ${repeats.length} repeats` : 'The sound, without repeats',
            ...grid, bar(0, 1, 'bar quiet'), ...repeats.map(([delay, level]) => bar(delay, level, 'bar')),
            text(left - 6, y(1) + 3, '1', 'end'), text(left - 6, bottom + 3, '0', 'end'));
    }

    // What the engine gets for each setting of a parameter; `[setting, level]`.
    function levels(points, current, settingUnit, levelUnit) {
        const settings = points.map(point => point[0]), outputs = points.map(point => point[1]);
        const least = Math.min(...outputs), most = Math.max(...outputs), margin = Math.max((most - least) * 0.1, 1);
        const x = scale(settings[0], settings[settings.length - 1], left, right);
        const y = scale(least - margin, most + margin, bottom, top);
        const [setting, level] = current;
        return picture(`Level ${number(level)} ${levelUnit} at ${number(setting)} ${settingUnit}`,
            line(left, bottom, right, bottom, 'axis'),
            ...[least, most].map(value => text(left - 6, y(value) + 3, number(value), 'end')),
            ...[settings[0], settings[settings.length - 1]].map(value => text(x(value), bottom + 14,
                `${number(value)} ${settingUnit}`, value === settings[0] ? 'start' : 'end')),
            svg('polyline', {class: 'curve', points: points.map(([a, b]) => `${x(a)},${y(b)}`).join(' ')}),
            ...points.map(([a, b]) => svg('circle', {class: 'point small', r: 2, cx: x(a), cy: y(b), 'data-setting': a,
                'data-level': b})),
            svg('circle', {class: 'point current', r: 5, cx: x(setting), cy: y(level)}),
            text(left - 6, top - 5, levelUnit, 'end'));
    }

    // A ratio of pitches on a scale of semitones, an octave to either side.
    function pitch(ratio) {
        const x = scale(0.5, 2, left, right, true);
        const ticks = [];
        for (let semitone = -12; semitone <= 12; ++semitone) {
            const place = x(2 ** (semitone / 12));
            const isOctave = semitone % 12 === 0;
            ticks.push(line(place, 96, place, isOctave ? 120 : 108, 'axis'));
            if (semitone % 6 === 0)
                ticks.push(text(place, 136, number(semitone)));
        }
        const semitones = 12 * Math.log2(Math.max(ratio, 0.01));
        const place = x(Math.min(Math.max(ratio, 0.5), 2));
        const sign = semitones > 0 ? '+' : '';
        return picture(`Pitch ${number(ratio)}, ${number(semitones)} semitones`, line(left, 96, right, 96, 'axis'),
            ...ticks, line(place, 66, place, 96, 'curve'),
            svg('circle', {class: 'point current', r: 6, cx: place, cy: 66, 'data-pitch': ratio}),
            text(place, 48, `${sign}${semitones.toFixed(1).replace('-', '\u2212')}`, 'middle', 'label strong'),
            text((left + right) / 2, 156, 'semitones'));
    }

    // Levels of sound up to full scale, where nothing but the engine knows the target.
    function loudness() {
        const x = scale(-60, 0, left, right);
        const ticks = [-60, -48, -36, -24, -12, 0].flatMap(level =>
            [line(x(level), 102, x(level), 112, 'axis'), text(x(level), 128, number(level))]);
        return picture('A scale of levels up to full scale', svg('rect', {class: 'bar quiet', x: left, y: 70,
            width: right - left, height: 26, rx: 3}), svg('rect', {class: 'bar', x: x(-24), y: 70,
            width: right - x(-24), height: 26, rx: 3, opacity: 0.5}), line(left, 102, right, 102, 'axis'), ...ticks,
            text((left + right) / 2, 148, 'dB below full scale'),
            text(left, 56, 'The engine measures, and chooses the gain', 'start'));
    }

    // --- Frames ---

    const frameWidth = 208, frameHeight = 117;

    // The corners of the unit square about the origin, through a matrix of nine numbers.
    function corners(matrix) {
        return [[-0.5, -0.5], [0.5, -0.5], [0.5, 0.5], [-0.5, 0.5]].map(([x, y]) => {
            const w = matrix[2] * x + matrix[5] * y + matrix[8] || 1;
            return [(matrix[0] * x + matrix[3] * y + matrix[6]) / w + 0.5,
                (matrix[1] * x + matrix[4] * y + matrix[7]) / w + 0.5];
        });
    }

    function inverse(m) {
        const [a, b, c, d, e, f, g, h, i] = m;
        const cofactors = [e * i - f * h, c * h - b * i, b * f - c * e, f * g - d * i, a * i - c * g, c * d - a * f,
            d * h - e * g, b * g - a * h, a * e - b * d];
        const determinant = a * cofactors[0] + b * cofactors[3] + c * cofactors[6];
        return determinant ? cofactors.map(value => value / determinant) : null;
    }

    // A shape that fills the square of a matrix, in a frame at a place.
    function shape(matrix, {x, y, frameWidth, frameHeight}, attributes, isEllipse = false) {
        const points = corners(matrix).map(([px, py]) => [shorter(x + px * frameWidth), shorter(y + py * frameHeight)]);
        const area = corners(matrix).map(point => point.map(shorter)).flat().join(' ');
        if (!isEllipse)
            return svg('polygon', {points: points.map(point => point.join(',')).join(' '), 'data-corners': area,
                ...attributes});
        const transform = `matrix(${matrix[0] * frameWidth} ${matrix[1] * frameHeight} ${matrix[3] * frameWidth} ` +
            `${matrix[4] * frameHeight} ${x + (0.5 + matrix[6]) * frameWidth} ${y + (0.5 + matrix[7]) * frameHeight})`;
        return svg('circle', {r: 0.5, transform, 'vector-effect': 'non-scaling-stroke', 'data-corners': area, ...attributes});
    }

    let ids = 0;

    function frameOf(x, y, w, h, ...children) {
        const clip = `clip-${++ids}`;
        return [svg('clipPath', {id: clip}, svg('rect', {x, y, width: w, height: h})),
            svg('rect', {class: 'screen', x, y, width: w, height: h}),
            svg('g', {'clip-path': `url(#${clip})`}, ...children),
            svg('rect', {class: 'frame', x, y, width: w, height: h})];
    }

    const wholeFrame = {x: (width - frameWidth) / 2, y: (height - frameHeight) / 2, frameWidth, frameHeight};

    // The part of the picture that stays.
    function crop(matrix) {
        const kept = inverse(matrix);
        const {x, y} = wholeFrame;
        return picture('The part of the picture that is kept', ...frameOf(x, y, frameWidth, frameHeight,
            ...kept ? [shape(kept, wholeFrame, {class: 'region'})] : []));
    }

    // Where a picture is put.
    function placement(matrix) {
        const {x, y} = wholeFrame;
        return picture('Where the picture is put in the frame', ...frameOf(x, y, frameWidth, frameHeight,
            shape(matrix, wholeFrame, {class: 'region'})));
    }

    // Which part of one picture goes where beside the other.
    function sideBySide(source, target) {
        const size = {frameWidth: 128, frameHeight: 72};
        const from = {x: 20, y: 54, ...size}, to = {x: 172, y: 54, ...size};
        return picture('The part that is taken, and where it is put', ...frameOf(from.x, from.y, 128, 72,
            shape(source, from, {class: 'region'})), ...frameOf(to.x, to.y, 128, 72, shape(target, to, {class: 'region'})),
            svg('path', {class: 'axis arrow', d: 'M153 90h14m-4 -4l4 4l-4 4'}), text(84, 146, 'taken'), text(236, 146, 'put'));
    }

    // A frame that is turned by degrees or mirrored: the letter R shows which way.
    function orientation({angle = 0, flipX = false, flipY = false}) {
        const turned = angle % 180 !== 0;
        const [w, h] = turned ? [96, 140] : [176, 99];
        return picture('How the picture lies', svg('g', {transform: 'translate(160 90)'},
            svg('rect', {class: 'screen frame', x: -w / 2, y: -h / 2, width: w, height: h}),
            svg('g', {transform: `rotate(${angle}) scale(${flipX ? -1 : 1} ${flipY ? -1 : 1})`},
                svg('path', {class: 'glyph', d: 'M-14 30V-30H4A17 17 0 0 1 4 4H-14M2 4L18 30'}))));
    }

    // Which halves are copied over the others, 0 for none.
    function mirror(vertical, horizontal) {
        const {x, y} = wholeFrame;
        const halves = [];
        if (vertical)
            halves.push(line(x, y + frameHeight / 2, x + frameWidth, y + frameHeight / 2, 'curve dashed'));
        if (horizontal)
            halves.push(line(x + frameWidth / 2, y, x + frameWidth / 2, y + frameHeight, 'curve dashed'));
        return picture('Axes at which the picture is mirrored', ...frameOf(x, y, frameWidth, frameHeight, ...halves));
    }

    // Areas over time: at each time a list of { shape, matrix }, with null where there is none.
    function mask(times, isTracked) {
        const size = {frameWidth: 92, frameHeight: 52};
        const positions = ['start', '25 %', '50 %', '75 %', 'end'];
        const shown = isTracked ? times : times.slice(0, 1);
        const label = isTracked ? 'Areas that follow a motion track' : 'Areas that stay where they are';
        if (!isTracked) {
            const {x, y} = wholeFrame;
            return picture(label, ...frameOf(x, y, frameWidth, frameHeight, ...(shown[0] || []).filter(Boolean)
                .map(area => shape(area.matrix, wholeFrame, {class: `region${area.outline ? ' outlined' : ''}`},
                    area.shape === 1))));
        }
        return picture(label, ...shown.flatMap((areas, index) => {
            const place = {x: 12 + (index % 3) * 102, y: 18 + Math.floor(index / 3) * 80, ...size};
            return [...frameOf(place.x, place.y, 92, 52, ...areas.filter(Boolean).map(area =>
                shape(area.matrix, place, {class: 'region', 'data-time': index}, area.shape === 1))),
                text(place.x + 46, place.y + 66, positions[index])];
        }));
    }

    // --- Colours, pictures, chains ---

    // What shows through where a colour or a picture is transparent.
    function checks(attributes) {
        const id = `checks-${++ids}`;
        return [svg('pattern', {id, width: 16, height: 16, patternUnits: 'userSpaceOnUse'},
            svg('rect', {class: 'checks-a', width: 16, height: 16}), svg('path', {class: 'checks-b',
                d: 'M0 0h8v16h8v-8h-16z'})), svg('rect', {fill: `url(#${id})`, ...attributes})];
    }

    // Packed colours with names.
    function swatches(colors) {
        const gap = 12, size = (width - 48 - gap * (colors.length - 1)) / colors.length;
        return picture(colors.map(({label, value}) => `${label} ${hex(value)}`).join(', '), ...colors.flatMap(
            ({label, value}, index) => {
                const x = 24 + index * (size + gap);
                return [...checks({x, y: 24, width: size, height: 96, rx: 4}),
                    svg('rect', {class: 'swatch', x, y: 24, width: size, height: 96, rx: 4,
                        style: `fill: ${color(value)}`, 'data-color': hex(value)}),
                    text(x, 140, label, 'start', 'label strong'), text(x, 156, hex(value), 'start')];
            }));
    }

    function image({file, width: w, height: h}, label) {
        const factor = Math.min(264 / w, 148 / h, 1.5);
        return picture(label, ...checks({x: 16, y: 10, width: 288, height: 160, rx: 4}),
            svg('image', {href: file, x: (width - w * factor) / 2, y: (height - h * factor) / 2, width: w * factor,
                height: h * factor}));
    }

    function chain(names) {
        const rows = names.slice(0, 5);
        const step = Math.min(32, 148 / Math.max(rows.length, 1)), start = (height - step * rows.length) / 2;
        return picture(names.length ? `Effects in their order: ${names.join(', ')}` : 'No effects',
            ...rows.flatMap((name, index) => {
                const y = start + step * index;
                const isLast = index === rows.length - 1;
                return [svg('circle', {class: 'point', r: 4, cx: 92, cy: y + step / 2}),
                    isLast ? null : line(92, y + step / 2 + 6, 92, y + step * 1.5 - 6, 'axis'),
                    text(108, y + step / 2 + 4, isLast && names.length > 5 ? `and ${names.length - 4} more` : name, 'start',
                        'label strong')].filter(Boolean);
            }));
    }

    // Where presets lie between the bounds of parameters: `{label, from, to, values, current, texts}` each.
    function strips(rows) {
        const shown = rows.slice(0, 6);
        const step = Math.min(40, 156 / Math.max(shown.length, 1)), start = (height - step * shown.length) / 2;
        return picture(shown.map(row => `${row.label} ${row.text}`).join(', '), ...shown.flatMap((row, index) => {
            const y = start + step * (index + 0.5);
            const x = scale(row.from, row.to, 128, 296);
            const clamped = value => x(Math.min(Math.max(value, Math.min(row.from, row.to)), Math.max(row.from, row.to)));
            const label = row.label.length > 17 ? `${row.label.slice(0, 16)}\u2026` : row.label;
            return [text(16, y + 4, label, 'start'), line(128, y, 296, y, 'rail'),
                ...row.values.map(value => svg('circle', {class: 'neighbour', r: 3, cx: clamped(value), cy: y})),
                svg('circle', {class: 'point current', r: 4.5, cx: clamped(row.current), cy: y,
                    'data-value': row.current}, svg('title', {}, `${row.label}: ${row.text}`))];
        }));
    }

    function note(content) {
        return picture(content, line(136, 90, 184, 90, 'rail'), text(width / 2, 116, content));
    }

    return {bands, chain, crop, dynamics, image, levels, loudness, mask, mirror, note, orientation, pitch, placement,
        sideBySide, strips, swatches, taps};
})();
