// Finds cards by words, as the command line does: a card fits when every word of the query has to do with it. A word
// counts most where it is found as it is, less as the beginning of a word, and least with a typing mistake or two.
'use strict';

Gallery.search = (() => {
    const fillers = new Set(['effect', 'effects', 'category']);

    // The words of a text in lower case: parted by whatever is no letter or digit, and where a capital follows a small
    // letter.
    const wordsOf = text => text.replace(/(\p{Ll})(\p{Lu})/gu, '$1 $2').toLowerCase().split(/[^\p{L}\p{N}]+/u)
        .filter(word => word && !fillers.has(word));

    // How many letters have to be changed, left out, put in or swapped with their neighbours to make one word the other.
    function distance(a, b) {
        let before = [], last = Array.from({length: b.length + 1}, (_, index) => index);
        for (let row = 1; row <= a.length; ++row) {
            const now = [row];
            for (let column = 1; column <= b.length; ++column) {
                const change = a[row - 1] === b[column - 1] ? 0 : 1;
                now[column] = Math.min(last[column] + 1, now[column - 1] + 1, last[column - 1] + change);
                if (row > 1 && column > 1 && a[row - 1] === b[column - 2] && a[row - 2] === b[column - 1])
                    now[column] = Math.min(now[column], before[column - 2] + 1);
            }
            [before, last] = [last, now];
        }
        return last[b.length];
    }

    const mistakesIn = length => length < 4 ? 0 : length < 8 ? 1 : 2;

    // How alike two words are: 1 for the same, 0 for nothing in common. `isUnfinished`: the word is still being typed.
    function likeness(word, other, isUnfinished) {
        if (word === other)
            return 1;
        if ((word.length >= 3 || isUnfinished) && other.startsWith(word))
            return 0.75;
        const mistakes = mistakesIn(word.length);
        return mistakes && Math.abs(word.length - other.length) <= mistakes && distance(word, other) <= mistakes ? 0.5 : 0;
    }

    const nameOf = card => card.file ? card.file.split('.')[0] : card.title;

    const index = new Map();

    function fieldsOf(card) {
        if (!index.has(card))
            index.set(card, [[8, `${nameOf(card)} ${card.tag}`], [6, card.class],
                [4, [...card.categories, ...card.categoryTexts].join(' ')], [2, card.description]]
                .map(([weight, text]) => [weight, wordsOf(text)]));
        return index.get(card);
    }

    const sameMeaning = 0.5;

    function scoreOf(word, fields, isUnfinished) {
        let best = 0;
        const meanings = (Gallery.data.synonyms || []).filter(row => row.includes(word)).flat();
        for (const [weight, words] of fields) {
            // Sentences have many short words that are like others.
            const isText = weight === 2;
            for (const other of words)
                best = Math.max(best, weight * (isText ? Number(word === other) : likeness(word, other, isUnfinished)));
            if (meanings.some(meaning => words.includes(meaning)))
                best = Math.max(best, weight * sameMeaning);
        }
        return best;
    }

    // How well a card fits; 0 when it lacks a word. Any card fits an empty query.
    function score(card, query) {
        const words = wordsOf(query);
        let sum = 0;
        for (const [at, word] of words.entries()) {
            const found = scoreOf(word, fieldsOf(card), at === words.length - 1 && !/\s$/.test(query));
            if (!found)
                return 0;
            sum += found;
        }
        return words.length ? sum / words.length : 1;
    }

    return {distance, score};
})();
