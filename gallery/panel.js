// The panel of a card: a control for each parameter, made from its description.
'use strict';

Gallery.panel = (() => {
    const {element, number, withUnit, hex} = Gallery.text;
    let ids = 0;

    // What a reader should know about a parameter beside its value.
    function factsOf(parameter) {
        const facts = [];
        const shown = value => {
            const choice = (parameter.choices || []).find(one => one.value === value);
            if (choice)
                return choice.label;
            if (parameter.kind === 'colour')
                return hex(value);
            if (typeof value === 'number')
                return withUnit(value, parameter.unit);
            if (parameter.kind === 'transform')
                return value.m.map(number).join(' ');
            return value === '' ? 'empty' : JSON.stringify(value);
        };
        const span = (least, most) => least !== null && most !== null ? `${number(least)} to ${number(most)}` :
            least !== null ? `at least ${number(least)}` : most !== null ? `at most ${number(most)}` : '';
        const bounds = span(parameter.minimum, parameter.maximum);
        const suggested = span(parameter.suggestedMinimum, parameter.suggestedMaximum);
        if (parameter.default !== null && !['list', 'resource'].includes(parameter.kind))
            facts.push(`default ${shown(parameter.default)}`);
        if (bounds)
            facts.push(bounds);
        if (suggested)
            facts.push(`usually ${suggested}`);
        if (parameter.unit)
            facts.push(parameter.unit === 'engine' ? 'unit of the render engine' : `in ${parameter.unit}`);
        if (parameter.beyond)
            facts.push({passed: 'values beyond are passed on', clamped: 'values beyond are clamped',
                nearest: 'other values count as the nearest', refused: 'other values are refused',
                fallback: `other values count as ${parameter.fallback === null ? 'the default' : shown(parameter.fallback)}`,
            }[parameter.beyond]);
        if (parameter.effective === false)
            facts.push('no settings depend on it');
        return facts.join(' \u00b7 ');
    }

    const isReal = parameter => parameter.kind === 'real';

    // Controls by kind. Each gets the parameter, its value, the id for the label, and what to call with a new value.
    const controls = {
        boolean: (parameter, value, id, change) => [element('input', {id, type: 'checkbox', checked: value === true,
            change: event => change(event.target.checked)})],

        enumeration: (parameter, value, id, change) => {
            const known = parameter.choices.some(choice => choice.value === value);
            return [element('select', {id, change: event => change(Number(event.target.value))},
                ...known ? [] : [element('option', {value, selected: true}, String(value))],
                ...parameter.choices.map(choice => element('option', {value: choice.value,
                    selected: choice.value === value}, choice.label)))];
        },

        number: (parameter, value, id, change) => {
            const from = parameter.suggestedMinimum ?? parameter.minimum, to = parameter.suggestedMaximum ?? parameter.maximum;
            const read = text => isReal(parameter) ? Number(text) : Math.round(Number(text));
            const input = element('input', {id, type: 'number', step: isReal(parameter) ? 'any' : 1, value,
                input: event => {
                    if (event.target.value === '' || !event.target.validity.valid)
                        return;
                    if (slider)
                        slider.value = event.target.value;
                    change(read(event.target.value));
                }});
            const slider = from === null || to === null ? null : element('input', {type: 'range',
                min: Math.min(from, value), max: Math.max(to, value), value,
                step: isReal(parameter) ? 'any' : 1, 'aria-label': parameter.label, input: event => {
                    const next = isReal(parameter) ? Number(Number(event.target.value).toPrecision(4)) :
                        read(event.target.value);
                    input.value = next;
                    change(next);
                }});
            if (slider)
                slider.value = value;
            return [slider, input].filter(Boolean);
        },

        colour: (parameter, value, id, change) => {
            let packed = value;
            const update = (rgb, alpha) => {
                packed = ((alpha & 0xFF) << 24 | rgb) >>> 0;
                change(packed);
            };
            return [element('input', {id, type: 'color', value: `#${(packed & 0xFFFFFF).toString(16).padStart(6, '0')}`,
                input: event => update(parseInt(event.target.value.slice(1), 16), packed >>> 24)}),
                element('input', {type: 'range', min: 0, max: 255, value: packed >>> 24,
                    'aria-label': `${parameter.label}, opacity`,
                    input: event => update(packed & 0xFFFFFF, Number(event.target.value))})];
        },

        text: (parameter, value, id, change) => [element('input', {id, type: 'text', spellcheck: 'false',
            value: typeof value === 'string' ? value : '', input: event => change(event.target.value)})],

        transform: (parameter, value, id, change) => {
            const numbers = [...value.m];
            const names = ['x to x', 'x to y', 'x to w', 'y to x', 'y to y', 'y to w', 'shift in x', 'shift in y', 'w'];
            return [element('div', {class: 'matrix'}, ...numbers.map((one, index) => element('input', {type: 'number',
                step: 0.05, value: one, id: index ? null : id, 'aria-label': `${parameter.label}, ${names[index]}`,
                input: event => {
                    if (event.target.value === '')
                        return;
                    numbers[index] = Number(event.target.value);
                    change({...value, m: [...numbers]});
                }})))];
        },

        resource: (parameter, value, id, change) => [element('input', {id, type: 'text', spellcheck: 'false',
            value: (value || {}).name ?? '', input: event => change({...value, name: event.target.value})})],
    };
    controls.integer = controls.real = controls.time = controls.number;

    // The class of the elements of "std::deque<Effect::Frame>"; empty for a list of effects, which may be of any.
    const elementClass = parameter => (/<(Effect::[\w:]+)>$/.exec(parameter.type) || [])[1] || '';

    function list(parameter, value, change) {
        const name = elementClass(parameter);
        if (!name)
            return element('p', {class: 'facts'}, `${value.length} effects; edit them in the archive below.`);
        const entries = [...value];
        const body = element('div', {class: 'entries'});
        const render = () => {
            body.replaceChildren(...entries.map((entry, index) => {
                const group = element('fieldset', {}, element('legend', {}, `${parameter.label}, ${index + 1}`),
                    ...parameter.elements.map(inner => row(inner, () => Gallery.State.read(entry, inner), next => {
                        Gallery.State.write(entry, inner, next);
                        change(entries);
                    })), element('button', {type: 'button', class: 'quiet', click: () => {
                        entries.splice(index, 1);
                        change(entries);
                        render();
                    }}, 'Remove'));
                return group;
            }), element('button', {type: 'button', class: 'quiet', click: () => {
                const entry = {$meta: {class: name}};
                for (const inner of parameter.elements)
                    Gallery.State.write(entry, inner, JSON.parse(JSON.stringify(inner.default)));
                entries.push(entry);
                change(entries);
                render();
            }}, 'Add'));
        };
        render();
        return body;
    }

    function record(parameter, value, change) {
        return element('fieldset', {}, element('legend', {}, parameter.label), ...parameter.elements.map(inner =>
            row(inner, () => Gallery.State.read(value, inner), next => {
                Gallery.State.write(value, inner, next);
                change(value);
            })));
    }

    // One parameter. `read` gives its value, `change` takes a new one.
    function row(parameter, read, change) {
        const id = `control-${++ids}`;
        const value = read();
        const facts = factsOf(parameter);
        const control = controls[parameter.kind];
        const isSingle = control && value !== null && value !== undefined;
        const head = element(isSingle ? 'label' : 'p', {class: 'row-label', for: isSingle ? id : null}, parameter.label);
        const body = parameter.kind === 'list' ? [list(parameter, value || [], change)] :
            parameter.kind === 'record' && value ? [record(parameter, value, change)] :
            isSingle ? control(parameter, value, id, change) : [element('p', {class: 'facts'}, 'none')];
        const described = parameter.description && parameter.description !== parameter.label ?
            element('p', {class: 'row-text'}, parameter.description) : null;
        return element('div', {class: `row ${parameter.kind}`, 'data-pointer': parameter.pointer, 'data-key': parameter.key},
            head, element('div', {class: 'row-control'}, ...body), described,
            facts ? element('p', {class: 'facts'}, facts) : null);
    }

    // All parameters of a card's effect. `changed` is called after each change of the archive.
    function make(state, changed) {
        const rowOf = parameter => row(parameter, () => state.value(parameter), value => {
            Gallery.State.write(state.effect, parameter, value);
            changed();
        });
        const {description} = state;
        const isOwn = parameter => parameter.class !== 'Effect::Object' && parameter.class !== 'Effect::EffectDescriptor' ||
            parameter.key === 'intensity' && description.hasIntensity;
        const own = description.parameters.filter(isOwn);
        const common = description.parameters.filter(parameter => !isOwn(parameter));
        return element('div', {class: 'panel'},
            ...own.length ? own.map(rowOf) : [element('p', {class: 'facts'}, 'This effect has no parameters of its own.')],
            element('details', {class: 'common'}, element('summary', {}, 'Identity, resource and range'), ...common.map(rowOf)));
    }

    // Controls for the inputs of a running shader, made from its header.
    function shaderInputs(shader, redraw) {
        const rows = shader.inputs.filter(input => input.NAME in shader.values).map(input => {
            const id = `control-${++ids}`;
            const label = input.LABEL || input.NAME;
            const value = shader.values[input.NAME];
            const change = next => {
                shader.values[input.NAME] = next;
                redraw();
            };
            let control;
            if (input.TYPE === 'bool')
                control = [element('input', {id, type: 'checkbox', checked: Boolean(value),
                    change: event => change(event.target.checked)})];
            else if (input.TYPE === 'event')
                control = [element('button', {id, type: 'button', class: 'quiet', click: () => change(true)}, 'Trigger')];
            else if (input.TYPE === 'long' && (input.VALUES || []).length)
                control = [element('select', {id, change: event => change(Number(event.target.value))},
                    ...input.VALUES.map((one, index) => element('option', {value: one, selected: one === value},
                        String((input.LABELS || [])[index] ?? one))))];
            else if (input.TYPE === 'color') {
                const byte = part => Math.round(Math.min(Math.max(part, 0), 1) * 255).toString(16).padStart(2, '0');
                control = [element('input', {id, type: 'color', value: `#${value.slice(0, 3).map(byte).join('')}`,
                    input: event => {
                        const packed = parseInt(event.target.value.slice(1), 16);
                        change([packed >> 16, packed >> 8 & 0xFF, packed & 0xFF].map(one => one / 255)
                            .concat(shader.values[input.NAME][3] ?? 1));
                    }})];
            } else {
                const axes = Array.isArray(value) ? ['x', 'y'] : [''];
                control = axes.map((axis, index) => {
                    const at = (bound, fallback) => Array.isArray(bound) ? bound[index] : bound ?? fallback;
                    const slider = element('input', {id: index ? null : id, type: 'range', min: at(input.MIN, 0),
                        max: at(input.MAX, 1), step: input.TYPE === 'long' ? 1 : 'any',
                        'aria-label': axis ? `${label}, ${axis}` : null, input: event => {
                            const next = Number(event.target.value);
                            change(axis ? Object.assign([...shader.values[input.NAME]], {[index]: next}) : next);
                        }});
                    slider.value = axis ? value[index] : value;
                    return slider;
                });
            }
            return element('div', {class: 'row', 'data-input': input.NAME}, element('label', {class: 'row-label', for: id},
                label), element('div', {class: 'row-control'}, ...control));
        });
        return rows.length ? element('div', {class: 'panel'}, ...rows) : null;
    }

    return {make, shaderInputs};
})();
