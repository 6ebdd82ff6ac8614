// The picture of a card: which chart it is, and of what.
//
// What shows parameters themselves follows the archive as the panel changes it. What shows what the engine is given is
// drawn from settings records, which were made with the page: converting is the library's work alone.
'use strict';

// An archive document and the records that belong to it, as a card works on them.
Gallery.State = class {
    constructor(card) {
        const {classes, documents, records} = Gallery.data;
        this.card = card;
        this.description = classes[card.class];
        this.document = JSON.parse(JSON.stringify(documents[card.id]));
        this.record = records[card.id];
        this.originals = new Map(this.description.parameters.map(parameter =>
            [parameter.pointer, JSON.stringify(this.value(parameter))]));
    }

    // Of an item the effect in it, else the document.
    get effect() {
        return 'effect' in this.document && !('$meta' in this.document) ? this.document.effect : this.document;
    }

    parameter(key) {
        return this.description.parameters.filter(parameter => parameter.key === key).pop();
    }

    // The value of a parameter, or of the one with that key; the default where the document leaves it out.
    value(parameter) {
        const wanted = typeof parameter === 'string' ? this.parameter(parameter) : parameter;
        return Gallery.State.read(this.effect, wanted);
    }

    static read(object, parameter) {
        let value = object;
        for (const key of parameter.pointer.split('/').slice(1))
            value = value === null || value === undefined ? undefined : value[key];
        return value === undefined ? parameter.default : value;
    }

    static write(object, parameter, value) {
        const keys = parameter.pointer.split('/').slice(1);
        let place = object;
        for (const key of keys.slice(0, -1)) {
            if (!place[key])
                place[key] = {$meta: {class: key}};
            place = place[key];
        }
        place[keys[keys.length - 1]] = value;
    }

    // Parameters whose value is no longer the one that the record was made of, and which it depends on.
    changed() {
        return this.description.parameters.filter(parameter => parameter.effective &&
            JSON.stringify(this.value(parameter)) !== this.originals.get(parameter.pointer));
    }

    // The settings for the archive as it is now, as far as they are known: `settings`, and a `note` where they are those
    // of a neighbouring value or, for several changes at once, those of the card's own values.
    settings() {
        const original = {settings: this.record.settings, note: ''};
        const changed = this.changed();
        if (!changed.length)
            return original;
        const steps = (this.record.steps || {})[changed[0].pointer];
        const value = this.value(changed[0]);
        if (changed.length > 1 || !steps)
            return {...original, note: 'The record of the values before the change: this page has none for these.'};
        const number = step => typeof value === 'number' && typeof step === 'number' ? Math.abs(step - value) :
            step === value ? 0 : Infinity;
        let nearest = 0;
        steps.values.forEach((step, index) => {
            if (number(step) < number(steps.values[nearest]))
                nearest = index;
        });
        if (number(steps.values[nearest]) === Infinity)
            return {...original, note: 'The record of the values before the change: this page has none for these.'};
        const isExact = number(steps.values[nearest]) < 1e-9;
        return {settings: steps.settings[nearest], note: isExact ? '' :
            `The record for ${changed[0].label} ${Gallery.text.withUnit(steps.values[nearest], changed[0].unit)}, ` +
            'the nearest one on this page.'};
    }
};

Gallery.pictures = (() => {
    const {charts, text} = Gallery;
    const {element} = text;

    // The arguments of the first call of a setter, also in settings that are an argument themselves.
    function call(settings, setter) {
        for (const one of settings || [])
            for (const [name, ...values] of one.calls || []) {
                if (name === setter)
                    return values;
                const inner = values.filter(value => value && value.calls);
                const found = inner.length && call(inner, setter);
                if (found)
                    return found;
            }
        return null;
    }

    const first = (settings, setter, fallback) => (call(settings, setter) || [fallback])[0];

    function bands(state) {
        if (state.card.class === 'Effect::AudioEqualizer' && state.changed().length)
            return charts.bands(state.value('multiband').map(band => [band.centralFrequency ?? 0, band.gain ?? 0]));
        return charts.bands(first(state.settings().settings, 'SetMultiband', []));
    }

    function dynamics(state) {
        const {settings} = state.settings();
        const isGate = state.card.class === 'Effect::AudioNoiseGate';
        return charts.dynamics({isGate, threshold: first(settings, 'SetThreshold', 1), ratio: first(settings, 'SetRatio', 1),
            knee: first(settings, 'SetKnee', 1), levelIn: first(settings, 'SetLevelIn', 1),
            makeup: first(settings, 'SetMakeup', 1), attack: first(settings, isGate ? 'SetAttackMs' : 'SetAttack', 0),
            release: first(settings, isGate ? 'SetReleaseMs' : 'SetRelease', 0)});
    }

    function taps(state) {
        return charts.taps(state.value('echos').map(echo => [echo.delay ?? 0, echo.decay ?? 0]));
    }

    function noiseLevels(state) {
        const parameter = state.parameter('levelPercent');
        const steps = state.record.steps[parameter.pointer];
        const points = steps.values.map((value, index) => [value, first(steps.settings[index], 'SetLevel', 0)]);
        return charts.levels(points, [state.value(parameter), first(state.settings().settings, 'SetLevel', 0)], '%', 'dB');
    }

    const matrix = transform => transform && transform.m || [1, 0, 0, 0, 1, 0, 0, 0, 1];

    function mask(state) {
        const framesOf = key => state.value(key).map(frame => {
            const description = state.parameter(key).elements;
            const read = name => Gallery.State.read(frame, description.find(parameter => parameter.key === name));
            return {shape: read('shape'), matrix: matrix(read('transform')), outline: read('outline'),
                isTracked: read('trackingId') !== ''};
        });
        const areas = [...framesOf('highlightFrames'), ...framesOf('concealFrames')];
        const functions = first(state.record.settings, 'SetFrameFunctors', []);
        const isTracked = areas.some(area => area.isTracked) && !state.changed().length;
        if (!areas.length)
            return charts.note('No areas');
        if (!isTracked)
            return charts.mask([areas], false);
        return charts.mask([0, 1, 2, 3, 4].map(time => functions.map(results => results[time])), true);
    }

    // Presets of a class: its items.
    const presets = {};

    function presetsOf(className) {
        if (!presets[className])
            presets[className] = Gallery.data.cards.filter(card => card.class === className && card.collection !== undefined)
                .map(card => new Gallery.State(card));
        return presets[className];
    }

    // The ends of a parameter's scale: its bounds or those of a slider, widened to hold every preset.
    function scaleOf(parameter, values) {
        if (parameter.kind === 'boolean')
            return [0, 1];
        const numbers = parameter.choices ? parameter.choices.map(choice => choice.value) : values;
        const from = parameter.suggestedMinimum ?? parameter.minimum, to = parameter.suggestedMaximum ?? parameter.maximum;
        const least = Math.min(...numbers, from ?? Infinity), most = Math.max(...numbers, to ?? -Infinity);
        return most > least ? [least, most] : [least - 1, most + 1];
    }

    function strips(state) {
        const {description} = state;
        const own = description.parameters.filter(parameter => parameter.class !== 'Effect::Object' ?
            ['boolean', 'integer', 'real', 'enumeration', 'time'].includes(parameter.kind) && parameter.key !== 'type' ||
                parameter.kind === 'enumeration' && parameter.effective :
            parameter.key === 'intensity' && description.hasIntensity);
        if (!own.length)
            return charts.note('No parameters');
        // The effect's own parameters are of more interest than the intensity.
        own.sort((a, b) => (a.class === 'Effect::Object') - (b.class === 'Effect::Object'));
        return charts.strips(own.map(parameter => {
            const number = value => typeof value === 'number' || typeof value === 'boolean' ? Number(value) : 0;
            const current = number(state.value(parameter));
            const values = presetsOf(state.card.class).map(preset => number(preset.value(parameter)));
            const [from, to] = scaleOf(parameter, [...values, current]);
            const choice = (parameter.choices || []).find(one => one.value === current);
            return {label: parameter.label, from, to, values, current,
                text: choice ? choice.label : text.withUnit(current, parameter.unit)};
        }));
    }

    function swatches(state) {
        const colors = state.description.parameters.filter(parameter => parameter.kind === 'colour');
        return charts.swatches(colors.map(parameter => ({label: parameter.label, value: state.value(parameter)})));
    }

    function presetImage(state) {
        const shown = (Gallery.data.pictures.presets[state.card.class] || {})[state.value('preset')];
        const choice = state.parameter('preset').choices.find(one => one.value === state.value('preset'));
        return shown ? charts.image(shown, choice ? choice.label : state.card.title) : strips(state);
    }

    function overlay(state) {
        const shown = Gallery.data.pictures.pictures[state.card.id];
        return shown ? charts.image(shown, `The picture that is laid over: ${state.card.title}`) : strips(state);
    }

    function chain(state) {
        return charts.chain((state.value('effects') || []).map(effect => {
            const described = effect && Gallery.data.classes[effect.$meta.class];
            return described ? described.title : 'Empty slot';
        }));
    }

    // Before and after on one canvas; the details below have more.
    function table(state) {
        const part = Gallery.data.pictures.tables[state.card.id];
        if (!part)
            return charts.note('No table');
        const canvas = element('canvas', {class: 'fill', role: 'img', width: 320, height: 180,
            'aria-label': `Test card, the left half as it is, the right half through the table ${state.card.title}`});
        canvas.ready = Gallery.lut.load(part).then(loaded => {
            const source = Gallery.testcard.canvas(320, 180);
            Gallery.lut.draw(loaded, source, canvas);
            const context = canvas.getContext('2d');
            context.drawImage(source, 0, 0, 160, 180, 0, 0, 160, 180);
            context.fillStyle = '#fff';
            context.fillRect(159, 0, 2, 180);
        });
        return canvas;
    }

    // The texts of a shader out of its record; null when it has none.
    function shaderOf(state) {
        const {settings} = state.record;
        const pixelShader = first(settings, 'SetPixelShader', null);
        if (pixelShader)
            return {config: JSON.parse(first(settings, 'SetConfig', '{}')), pixelShader,
                vertexShader: first(settings, 'SetVertexShader', '')};
        const shader = first(settings, 'SetShader', null);
        // The engine's own interface: one picture, an intensity, and the place in the picture.
        return shader && {config: {INPUTS: [{NAME: 'tex', TYPE: 'image'}, {NAME: 'intensity', TYPE: 'float', DEFAULT: 1,
            MIN: 0, MAX: 1, LABEL: 'Intensity'}]}, pixelShader: shader, declaresInputs: true,
            vertexShader: 'varying vec2 TexCoord0; void main() { isf_vertShaderInit(); TexCoord0 = isf_FragNormCoord; }'};
    }

    function shader(state) {
        const texts = shaderOf(state);
        if (!texts)
            return charts.note('No shader');
        const canvas = element('canvas', {class: 'fill', role: 'img', width: Gallery.isf.width, height: Gallery.isf.height,
            'aria-label': `The shader ${state.card.title}, running over the test card`});
        try {
            canvas.shader = new Gallery.isf.Shader(texts);
            canvas.frame = time => canvas.shader.draw(canvas, time);
            canvas.frame(0);
            return canvas;
        } catch (error) {
            return element('div', {class: 'fault', role: 'note'}, element('strong', {}, 'The shader does not compile here'),
                element('pre', {tabindex: '0', 'aria-label': 'Messages of the compiler'}, error.message));
        }
    }

    const byClass = {
        'Effect::AudioCompressor': dynamics,
        'Effect::AudioEcho': taps,
        'Effect::AudioEnhance': chain,
        'Effect::AudioEqualizer': bands,
        'Effect::AudioMuffle': bands,
        'Effect::AudioNoiseGate': dynamics,
        'Effect::AudioNoiseSuppress': noiseLevels,
        'Effect::AudioNormalize': () => charts.loudness(),
        'Effect::AudioPhone': bands,
        'Effect::AudioPitch': state => charts.pitch(first(state.settings().settings, 'SetPitch', 1)),
        'Effect::AudioRadio': bands,
        'Effect::BokehBlur': presetImage,
        'Effect::Crop': state => charts.crop(matrix(state.value('transform'))),
        'Effect::EffectsHolder': chain,
        'Effect::ExternalShader': shader,
        'Effect::Flip': state => charts.orientation({flipX: state.value('horizontal'), flipY: state.value('vertical')}),
        'Effect::FlyingObjects': presetImage,
        'Effect::Lut': table,
        'Effect::Mask': mask,
        'Effect::Mirror': state => charts.mirror(state.value('vertical'), state.value('horizontal')),
        'Effect::Overlay': overlay,
        'Effect::PictureInPicture': state => charts.placement(matrix(state.value('transform'))),
        'Effect::ShaderISF': shader,
        'Effect::SideBySide': state => charts.sideBySide(matrix(state.value('transformSrc')),
            matrix(state.value('transformDst'))),
        'Effect::Transpose': state => charts.orientation({angle: state.value('angle')}),
    };

    // The picture for the archive as it is now.
    function draw(state) {
        const special = byClass[state.card.class];
        if (special)
            return special(state);
        const hasColors = state.description.parameters.some(parameter => parameter.kind === 'colour');
        return hasColors ? swatches(state) : strips(state);
    }

    // Whether `draw` gives another picture once a parameter has changed.
    const follows = state => ![table, shader, overlay].includes(byClass[state.card.class]);

    // More pictures for an open card, or null.
    async function more(state) {
        const part = byClass[state.card.class] === table && Gallery.data.pictures.tables[state.card.id];
        if (!part)
            return null;
        const loaded = await Gallery.lut.load(part);
        const {size, title, format} = loaded;
        const pair = (source, name) => {
            const before = element('canvas', {width: source.width, height: source.height, role: 'img', 'data-lut': 'before',
                'aria-label': `${name}, as it is`});
            before.getContext('2d', {willReadFrequently: true}).drawImage(source, 0, 0);
            const after = element('canvas', {role: 'img', 'data-lut': 'after', 'aria-label': `${name}, through the table`});
            Gallery.lut.draw(loaded, before, after);
            return [before, after].map((canvas, index) => element('figure', {}, canvas,
                element('figcaption', {}, `${name}, ${index ? 'after' : 'before'}`)));
        };
        const cube = Gallery.lut.cube(loaded);
        cube.frame = time => cube.turn(0.6 + time * 0.5);
        const shape = size[1] === 1 && size[2] === 1 ? `${size[0]} entries` : size.join(' \u00d7 ');
        return element('div', {class: 'more', 'data-table': part},
            ...pair(Gallery.testcard.canvas(320, 180), 'Test card'), ...pair(Gallery.lut.chart(320, 96), 'Colours'),
            element('figure', {class: 'square'}, Gallery.lut.curves(loaded), element('figcaption', {}, 'Greys, channel by channel')),
            element('figure', {class: 'square'}, cube, element('figcaption', {},
                `Cube of colours: ${format}, ${shape}${title ? `, \u201c${title}\u201d` : ''}`)));
    }

    return {draw, follows, more};
})();
