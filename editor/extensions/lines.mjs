// The lines of a map as the game reads them: where a line ends, and what object it puts where. The
// strings hold bytes; see bytes.mjs.

export const twips = 360; // a cell's width and height
export const drawnCells = 300; // a map draws rows and columns 0 to 299
export const byteOrderMark = "\xef\xbb\xbf";

// Every first word that puts an object on the board, and what its last word is called if it has
// a meaning of its own.
const tagNames = {
    you: "",
    harddirt: "",
    dirt: "",
    gem1type: "",
    roundrock: "",
    movingmineT: "",
    movingmineL: "heading",
    movingmineR: "heading",
    movingmineFL: "heading",
    movingmineP: "heading",
    movingminePP: "heading",
    factory: "recipe",
};

export function isKind(word) {
    return tagNames.hasOwnProperty(word);
}

// "heading", "recipe" or "".
export function tagNameOf(word) {
    return tagNames[word];
}

// A record ends at a comma or a line end. One that opens with a quote runs over both to the next
// quote; never closed, it runs to the end of the file.
const closed = ' *(?:"[^"]*"[^,\\r\\n]*|[^",\\r\\n][^,\\r\\n]*)?';
const record = ' *(?:"[^"]*(?:"[^,\\r\\n]*)?|[^",\\r\\n][^,\\r\\n]*)?';
const line = new RegExp(`(${record}(?:,${record})*)(\\r\\n|\\r|\\n|$)`, "g");
const openAtEnd = new RegExp(`^(?:${closed},)* *"[^"]*$`);

// Cuts a text behind each record that ends at a line end: a list of {text, end}.
export function splitLines(text) {
    const lines = [];
    line.lastIndex = 0;
    while (line.lastIndex < text.length) {
        const found = line.exec(text);
        lines.push({ text: found[1], end: found[2] });
    }
    return lines;
}

// Whether a line would take all that follows it into its last quote.
export function isOpen(text) {
    return text.includes('"') && openAtEnd.test(text);
}

// Blanks alone: a line that says nothing and is shown by nothing.
export function isBlank(text) {
    return /^ *$/.test(text);
}

function numberOf(word) {
    if (!/^[+-]?(\d+\.?\d*|\.\d+)([eE][+-]?\d+)?$/.test(word)) return NaN;
    return Math.fround(Number(word));
}

// The one object that a line puts on the board: {word, top, left, tag}, in twips; null for a line
// with none, with several records or with a fault.
export function objectOf(text) {
    if (/,|^ *"/.test(text)) return null;
    const words = text.replace(/^ +/, "").split(" ");
    const word = words[0];
    if (!isKind(word) || words.length < 2) return null;
    const last = words[words.length - 1];
    const tagged = tagNameOf(word) !== "";
    const top = numberOf(words[1]);
    const left = numberOf(tagged ? words[2] : last);
    return isFinite(top) && isFinite(left) ? { word, top, left, tag: tagged ? last : "" } : null;
}

// The line of an object as a map usually has it; the place is in twips.
export function plainLine(word, top, left, tag) {
    const text = `${word} ${top} ${left}`;
    return tag === "" ? text : `${text} ${tag}`;
}
