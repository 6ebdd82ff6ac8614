// The cards, the filters, and the way around the page.
'use strict';

(() => {
    const {element, family, category} = Gallery.text;
    const {cards} = Gallery.data;
    const find = id => document.getElementById(id);
    const grid = find('cards');
    const controls = ['query', 'family', 'kind', 'what', 'category'].map(find);
    const [query, familyFilter, kindFilter, whatFilter, categoryFilter] = controls;

    const isPreset = card => card.collection !== undefined;
    const byId = new Map(cards.map(card => [card.id, card]));
    const titles = new Map(cards.filter(card => !isPreset(card)).map(card => [card.class, card.title]));

    // Families in the order of their names; in each, every effect is followed by its presets.
    const compare = (a, b) => a < b ? -1 : a > b ? 1 : 0;
    const titleOf = card => titles.get(card.class) || card.class;
    cards.sort((a, b) => compare(a.family, b.family) || compare(titleOf(a), titleOf(b)) || compare(a.class, b.class) ||
        isPreset(a) - isPreset(b) || compare(a.user, b.user) || compare(a.title, b.title));

    // --- Cards ---

    function makeCard(card) {
        const kicker = isPreset(card) ? `${titleOf(card)} \u00b7 ${card.user ? 'your preset' : 'preset'}` :
            `${card.type === 'audio' ? 'Audio' : 'Video'} effect`;
        const article = element('article', {class: `card ${card.type}${isPreset(card) ? ' preset' : ''}`, id: card.id,
            'data-class': card.class, 'data-tag': card.tag, 'data-kind': isPreset(card) ? 'preset' : 'effect',
            'data-family': card.family, 'data-type': card.type, 'data-categories': card.categories.join(' '),
            'aria-labelledby': `${card.id}-name`},
            element('div', {class: 'picture'}),
            element('div', {class: 'head'},
                element('p', {class: 'kicker'}, kicker),
                element('h3', {id: `${card.id}-name`}, element('button', {type: 'button', class: 'name',
                    'aria-expanded': 'false'}, card.title)),
                element('p', {class: 'description'}, card.description),
                element('ul', {class: 'tags', 'aria-label': 'Tag and categories'},
                    ...card.tag ? [element('li', {class: 'tag'}, card.tag)] : [],
                    ...card.categories.map((name, index) => element('li', {}, card.categoryTexts[index] || category(name))))));
        card.article = article;
        return article;
    }

    const headings = new Map();

    function headingOf(name) {
        if (!headings.has(name)) {
            const own = cards.filter(card => card.family === name);
            const effects = own.filter(card => !isPreset(card)).length;
            const plural = (count, noun) => `${count} ${noun}${count === 1 ? '' : 's'}`;
            headings.set(name, element('div', {class: 'family'}, element('h2', {}, family(name)),
                element('p', {}, `${plural(effects, 'effect')}, ${plural(own.length - effects, 'preset')}`)));
        }
        return headings.get(name);
    }

    // The first cards are there at once, the others a little later, so that the page shows before all is read.
    const firstCards = 16, moreCards = 100;

    function addCards(start) {
        const end = start + (start === 0 ? firstCards : moreCards);
        const nodes = document.createDocumentFragment();
        for (const card of cards.slice(start, end)) {
            const heading = headingOf(card.family);
            if (!heading.isConnected && heading.parentNode !== nodes)
                nodes.append(heading);
            nodes.append(makeCard(card));
        }
        grid.append(nodes);
        return end;
    }

    // Until the browser has drawn what is there.
    const drawn = () => new Promise(resolve => requestAnimationFrame(() => setTimeout(resolve)));

    // --- Pictures ---

    const states = new Map();

    function stateOf(card) {
        if (!states.has(card))
            states.set(card, new Gallery.State(card));
        return states.get(card);
    }

    const still = matchMedia('(prefers-reduced-motion: reduce)');
    const running = new Set();
    const moving = new IntersectionObserver(entries => {
        for (const {target, isIntersecting} of entries)
            if (isIntersecting)
                running.add(target);
            else
                running.delete(target);
    });

    function animate(time) {
        if (!still.matches && !document.hidden)
            for (const canvas of running)
                if (canvas.isConnected)
                    canvas.frame(time / 1000);
                else
                    running.delete(canvas);
        requestAnimationFrame(animate);
    }

    function drawPicture(card) {
        const place = card.article.querySelector('.picture');
        const drawn = Gallery.pictures.draw(stateOf(card));
        place.replaceChildren(drawn);
        place.classList.add('drawn');
        if (drawn.frame)
            moving.observe(drawn);
        return drawn;
    }

    const appearing = new IntersectionObserver(entries => {
        for (const {target, isIntersecting} of entries)
            if (isIntersecting) {
                appearing.unobserve(target);
                drawOnce(byId.get(target.id));
            }
    }, {rootMargin: '400px'});

    function drawOnce(card) {
        if (!card.article.querySelector('.picture.drawn'))
            drawPicture(card);
    }

    // --- Open cards ---

    async function copy(text, area, button) {
        try {
            await navigator.clipboard.writeText(text);
        } catch (error) {
            // Some browsers keep the clipboard from pages on disk.
            area.select();
            document.execCommand('copy');
        }
        const label = button.textContent;
        button.textContent = 'Copied';
        setTimeout(() => { button.textContent = label; }, 1500);
    }

    function recordText(settings) {
        const shorter = (key, value) => typeof value === 'string' && value.length > 200 ?
            `${value.trim().slice(0, 80)}\u2026 (${value.length} characters)` : value;
        return settings.map(one => [one.class, ...one.calls.map(([setter, ...values]) =>
            `  ${setter}(${values.map(value => JSON.stringify(value, shorter)).join(', ')})`),
            ...Object.entries(one.fields).map(([key, value]) => `  ${key} = ${JSON.stringify(value)}`)].join('\n')).join('\n');
    }

    function makeRecord(state) {
        const {record} = state;
        const held = (record.effects || []).filter(Boolean).map(inside =>
            `${inside.class}\n${recordText(inside.settings).replace(/^/gm, '  ')}`).join('\n');
        const why = state.description.isConverted ? (record.log[0] || 'No settings.') :
            'The render engine does not execute this effect by itself.';
        const code = element('code');
        const note = element('p', {class: 'facts'});
        const section = element('section', {class: 'settings'}, element('h4', {}, 'Settings record'), note,
            element('pre', {tabindex: '0', 'aria-label': 'Settings record'}, code));
        section.update = () => {
            const shown = state.settings();
            const text = recordText(shown.settings) || held;
            code.textContent = text || why;
            note.textContent = shown.note || (record.warnings || []).join(' ') ||
                (text && record.settings.length ? `Stage ${record.stageCode}, implementation ${record.implementation}` : why);
        };
        section.update();
        return section;
    }

    function makeDetails(card) {
        const state = stateOf(card);
        const area = element('textarea', {readonly: true, rows: 14, spellcheck: 'false', id: `${card.id}-archive`});
        const showArchive = () => { area.value = JSON.stringify(state.document, null, 2); };
        showArchive();
        const record = makeRecord(state);
        const inputs = element('div', {class: 'inputs'});
        const changed = () => {
            showArchive();
            record.update();
            if (Gallery.pictures.follows(state))
                drawPicture(card);
        };
        const copyButton = element('button', {type: 'button', class: 'primary', click: () =>
            copy(area.value, area, copyButton)}, 'Copy');
        const reset = element('button', {type: 'button', class: 'quiet', click: () => {
            states.delete(card);
            drawPicture(card);
            card.article.querySelector('.details').replaceWith(makeDetails(card));
        }}, 'Undo changes');
        const details = element('div', {class: 'details', id: `${card.id}-details`},
            element('div', {class: 'column'}, inputs,
                element('section', {}, element('h4', {}, 'Parameters'), Gallery.panel.make(state, changed))),
            element('div', {class: 'column'}, record,
                element('section', {}, element('div', {class: 'bar'},
                    element('h4', {}, element('label', {for: area.id}, isPreset(card) ? 'Item file' : 'Archive')),
                    reset, copyButton), area),
                element('p', {class: 'facts'}, `${card.class} \u00b7 `, element('a', {href: `#${card.id}`},
                    'Link to this card'), card.file ? ` \u00b7 ${card.file}` : '')));
        const {shader} = card.article.querySelector('.picture').firstChild || {};
        const controls = shader && Gallery.panel.shaderInputs(shader, () => {
            if (still.matches)
                card.article.querySelector('canvas').frame(0);
        });
        if (controls)
            inputs.append(element('section', {}, element('h4', {}, 'Inputs of the shader'), controls));
        Gallery.pictures.more(state).then(more => {
            if (!more)
                return;
            details.append(more);
            for (const canvas of more.querySelectorAll('canvas'))
                if (canvas.frame)
                    moving.observe(canvas);
        });
        return details;
    }

    let opened = null;

    function open(card) {
        close();
        drawOnce(card);
        card.article.append(makeDetails(card));
        card.article.classList.add('open');
        const button = card.article.querySelector('.name');
        button.setAttribute('aria-expanded', 'true');
        button.setAttribute('aria-controls', `${card.id}-details`);
        opened = card;
        history.replaceState(null, '', `#${encodeURIComponent(card.id)}`);
    }

    function close() {
        if (!opened)
            return;
        const {article} = opened;
        article.querySelector('.details').remove();
        article.classList.remove('open');
        const button = article.querySelector('.name');
        button.setAttribute('aria-expanded', 'false');
        button.removeAttribute('aria-controls');
        opened = null;
        history.replaceState(null, '', location.pathname + location.search);
    }

    grid.addEventListener('click', event => {
        const button = event.target.closest('.name');
        if (!button)
            return;
        const card = byId.get(button.closest('.card').id);
        if (card === opened) {
            close();
        } else {
            open(card);
            card.article.scrollIntoView({block: 'nearest', behavior: still.matches ? 'auto' : 'smooth'});
        }
    });

    // The card that the address names.
    function follow() {
        const card = byId.get(decodeURIComponent(location.hash.slice(1)));
        if (!card)
            return;
        if (card.article.hidden)
            reset();
        if (card !== opened)
            open(card);
        card.article.scrollIntoView({block: 'start'});
        card.article.querySelector('.name').focus({preventScroll: true});
    }

    // --- Filters ---

    function apply() {
        const text = query.value.trimStart();
        const matches = [];
        for (const card of cards) {
            const isWanted = (!familyFilter.value || card.family === familyFilter.value) &&
                (!kindFilter.value || card.type === kindFilter.value) &&
                (!whatFilter.value || (whatFilter.value === 'preset') === isPreset(card)) &&
                (!categoryFilter.value || card.categories.includes(categoryFilter.value));
            card.score = isWanted ? Gallery.search.score(card, text) : 0;
            card.article.hidden = !card.score;
            if (card.score)
                matches.push(card);
        }
        if (opened && opened.article.hidden)
            close();
        // The best match comes first; without a query, the families are in order.
        const order = text ? [...cards].sort((a, b) => b.score - a.score) : cards;
        const nodes = document.createDocumentFragment();
        for (const card of order) {
            const heading = headingOf(card.family);
            if (!text && heading.parentNode !== nodes)
                nodes.append(heading);
            nodes.append(card.article);
        }
        const families = new Set(matches.map(card => card.family));
        headings.forEach((heading, name) => {
            heading.hidden = Boolean(text) || !families.has(name);
            if (text)
                nodes.append(heading);
        });
        grid.append(nodes);
        find('empty').hidden = matches.length > 0;
        find('count').textContent = matches.length === cards.length ? `${cards.length} cards` :
            `${matches.length} of ${cards.length} cards`;
        find('reset').disabled = controls.every(control => !control.value);
    }

    function reset() {
        for (const control of controls)
            control.value = '';
        apply();
    }

    // --- Keys ---

    // The card in a direction from another one, by where they are on the screen.
    function neighbour(from, key) {
        const shown = [...grid.querySelectorAll('.card:not([hidden])')];
        const at = shown.indexOf(from);
        if (key === 'ArrowRight' || key === 'ArrowLeft')
            return shown[at + (key === 'ArrowRight' ? 1 : -1)];
        if (key === 'Home' || key === 'End')
            return shown[key === 'Home' ? 0 : shown.length - 1];
        const {left, top} = from.getBoundingClientRect();
        const step = key === 'ArrowDown' ? 1 : -1;
        let best = null;
        for (let index = at + step; index in shown; index += step) {
            const place = shown[index].getBoundingClientRect();
            if ((place.top - top) * step <= 1)
                continue;
            if (best && Math.abs(place.top - best.top) > 1)
                break;
            if (!best || Math.abs(place.left - left) < Math.abs(best.left - left))
                best = {node: shown[index], top: place.top, left: place.left};
        }
        return best && best.node;
    }

    document.addEventListener('keydown', event => {
        if (event.ctrlKey || event.metaKey || event.altKey)
            return;
        const isField = event.target.matches('input, select, textarea');
        if (event.key === '/' && !isField) {
            event.preventDefault();
            query.focus();
            query.select();
        } else if (event.key === 'Escape') {
            if (event.target === query && query.value) {
                query.value = '';
                apply();
            } else if (opened) {
                const button = opened.article.querySelector('.name');
                close();
                button.focus();
            }
        } else if (event.key === 'ArrowDown' && event.target === query) {
            const first = grid.querySelector('.card:not([hidden]) .name');
            if (first) {
                event.preventDefault();
                first.focus();
            }
        } else if (event.target.matches('.name') && /^(Arrow|Home$|End$)/.test(event.key)) {
            const next = neighbour(event.target.closest('.card'), event.key);
            if (next) {
                event.preventDefault();
                next.querySelector('.name').focus();
            }
        }
    });

    // --- Theme ---

    const dark = matchMedia('(prefers-color-scheme: dark)');
    const root = document.documentElement;

    function showTheme() {
        const isDark = root.dataset.theme ? root.dataset.theme === 'dark' : dark.matches;
        find('theme').textContent = isDark ? 'Light' : 'Dark';
        find('theme').setAttribute('aria-label', isDark ? 'Use the light theme' : 'Use the dark theme');
        return isDark;
    }

    function stored(value) {
        try {
            if (value)
                localStorage.setItem('theme', value);
            return localStorage.getItem('theme');
        } catch (error) {
            return null; // Storage may be switched off.
        }
    }

    if (stored())
        root.dataset.theme = stored();
    showTheme();
    dark.addEventListener('change', showTheme);
    find('theme').addEventListener('click', () => {
        root.dataset.theme = showTheme() ? 'light' : 'dark';
        stored(root.dataset.theme);
        showTheme();
    });

    // --- Start ---

    async function start() {
        let added = addCards(0);
        await drawn();
        performance.mark('first-card');
        while (added < cards.length)
            added = addCards(added);

        const effects = cards.filter(card => !isPreset(card)).length;
        find('summary').textContent = `${effects} effects and ${cards.length - effects} presets of the video editor, ` +
            'drawn from their own data.';
        for (const name of new Set(cards.map(card => card.family)))
            familyFilter.append(element('option', {value: name}, family(name)));
        const labels = new Map(cards.flatMap(card =>
            card.categories.map((name, index) => [name, card.categoryTexts[index] || category(name)])));
        for (const [name, label] of [...labels].sort((a, b) => compare(a[1], b[1])))
            categoryFilter.append(element('option', {value: name}, label));
        for (const control of controls)
            control.addEventListener('input', apply);
        find('reset').addEventListener('click', reset);
        apply();
        await drawn();
        const scripts = ['testcard.js', 'isf.js', 'lut.js', 'charts.js', 'pictures.js', 'panel.js'];
        await Promise.all(['classes', 'documents', 'records', 'pictures', 'synonyms'].map(Gallery.part));
        for (const script of scripts)
            await Gallery.load(script);
        for (const card of cards)
            appearing.observe(card.article);
        requestAnimationFrame(animate);
        addEventListener('hashchange', follow);
        follow();
        performance.mark('ready');
        document.body.dataset.ready = 'true';
    }

    start();
})();
