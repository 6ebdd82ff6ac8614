// What all scripts of the page share: the data, elements and texts.
//
// Pages that are opened from disk can neither fetch files nor import modules, so the data comes in scripts, each of
// which hands one part of it to `Gallery.take`, and the scripts share one object.
'use strict';

const Gallery = {
    // Parts of the data, by name: cards, classes, documents, records, pictures, and a lookup table each.
    data: {},
    waiting: {},

    take(part, value) {
        Gallery.data[part] = value;
        for (const resolve of Gallery.waiting[part] || [])
            resolve(value);
        delete Gallery.waiting[part];
    },

    // A part of the data, whose script is loaded when it is needed first.
    part(name) {
        if (name in Gallery.data)
            return Promise.resolve(Gallery.data[name]);
        const isFirst = !Gallery.waiting[name];
        const promise = new Promise(resolve => (Gallery.waiting[name] ||= []).push(resolve));
        if (isFirst)
            Gallery.load(`data/${name}.js`);
        return promise;
    },

    load(path) {
        return new Promise((resolve, reject) => {
            const script = document.createElement('script');
            script.src = path;
            script.onload = resolve;
            script.onerror = () => reject(new Error(`${path} cannot be loaded`));
            document.head.append(script);
        });
    },
};

Gallery.text = {
    // An HTML element. Attributes that are null or false are left out, functions are listeners.
    element(name, attributes = {}, ...children) {
        return Gallery.text.fill(document.createElement(name), attributes, children);
    },

    // The same in SVG.
    svg(name, attributes = {}, ...children) {
        return Gallery.text.fill(document.createElementNS('http://www.w3.org/2000/svg', name), attributes, children);
    },

    fill(element, attributes, children) {
        for (const [key, value] of Object.entries(attributes)) {
            if (value === null || value === undefined || value === false)
                continue;
            if (typeof value === 'function')
                element.addEventListener(key, value);
            else
                element.setAttribute(key, value === true ? '' : value);
        }
        element.append(...children.filter(child => child !== null && child !== undefined));
        return element;
    },

    // A number in as few digits as a reader wants: of a fraction at most four significant ones.
    number(value) {
        if (typeof value !== 'number')
            return String(value);
        const rounded = Number.isInteger(value) ? value : Number(value.toPrecision(4));
        return String(rounded).replace('-', '\u2212');
    },

    frequency(hertz) {
        return hertz >= 1000 ? `${Gallery.text.number(hertz / 1000)} kHz` : `${Gallery.text.number(hertz)} Hz`;
    },

    withUnit(value, unit) {
        const text = Gallery.text.number(value);
        return !unit || unit === 'engine' ? text : `${text} ${unit}`;
    },

    // For a category that the editor has no text for: "category_my_looks" is "My looks".
    category(name) {
        const words = name.replace(/^category_/, '').replace(/_/g, ' ');
        return words.charAt(0).toUpperCase() + words.slice(1);
    },

    // "ColorFilters" is "Color filters".
    family(name) {
        const words = name.replace(/([a-z])([A-Z])/g, '$1 $2').toLowerCase();
        return words.charAt(0).toUpperCase() + words.slice(1);
    },

    // A packed 0xAARRGGBB as a style sheet has it.
    color(packed) {
        const byte = shift => (packed >>> shift) & 0xFF;
        return `rgb(${byte(16)} ${byte(8)} ${byte(0)} / ${Gallery.text.number(byte(24) / 255).replace('\u2212', '-')})`;
    },

    hex(packed) {
        const digits = (packed >>> 0).toString(16).padStart(8, '0');
        return digits.startsWith('ff') ? `#${digits.slice(2)}` : `#${digits}`;
    },
};
