// A map that is moved as a whole, as by a new column at its left: the lines of the source follow,
// so that they keep their order. The player tells how far.
import { objectOf, plainLine } from "./lines.mjs";

// Gives the lines moved along, or as they are if fewer of them would be true then. `counts` tells
// how often each text is wanted.
export function followShift(lines, wanted, counts) {
    const before = placeOfPlayer(lines.map(({ text }) => text));
    const now = placeOfPlayer(wanted);
    if (!before || !now) return lines;
    const down = now.top - before.top;
    const right = now.left - before.left;
    if (down === 0 && right === 0) return lines;
    const moved = lines.map(({ text, end }) => ({ text: shifted(text, down, right), end }));
    const truth = list => list.filter(({ text }) => counts[text] > 0).length;
    return truth(moved) > truth(lines) ? moved : lines;
}

function placeOfPlayer(texts) {
    const text = texts.find(one => one.startsWith("you "));
    return text === undefined ? null : objectOf(text);
}

// Lines that are no plain objects stay as they are.
function shifted(text, down, right) {
    const object = objectOf(text);
    if (!object) return text;
    const { word, top, left, tag } = object;
    if (plainLine(word, top, left, tag) !== text) return text;
    return plainLine(word, top + down, left + right, tag);
}
