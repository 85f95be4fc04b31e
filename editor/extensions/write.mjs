// From a map of the editor to the bytes of a map. A line of the source that is still true keeps its
// place, since the order of lines is the order of turns; what is no longer there goes, and what is
// new comes last. What can't be written is refused by name, and then nothing is written.
import { toBytes, toDisplay } from "./bytes.mjs";
import { byteOrderMark, drawnCells, isBlank, isKind, isOpen, objectOf, plainLine, splitLines,
    tagNameOf, twips } from "./lines.mjs";
import { placeOf, tileSize } from "./read.mjs";
import { followShift } from "./shift.mjs";

const samePlace = 0.02; // pixels; a twip is 1/15
const nearCell = 6; // pixels; how far beside its cell an object may lie

// Rocks and T mines fall together only when the lower one of a column comes first.
const lowerFirst = ["roundrock", "movingmineT"];

// {bytes, faults}: the bytes are good only when there are no faults.
export function bytesOf(map) {
    const faults = faultsOf(map);
    const source = toBytes(map.property("source") || "");
    const mark = source.startsWith(byteOrderMark) ? byteOrderMark : "";
    const lines = splitLines(source.substring(mark.length));
    const known = countsOf(lines.map(line => line.text));
    const wanted = [];
    for (const layer of map.layers) {
        if (layer.isTileLayer) wanted.push(...tileLines(layer, faults));
        else if (layer.isObjectLayer) wanted.push(...objectLines(layer, known, faults));
        else faults.push(`The layer "${layer.name}" is of a sort that no map has.`);
    }
    return { bytes: mark + merge(lines, wanted), faults };
}

function faultsOf(map) {
    const faults = [];
    if (map.tileWidth !== tileSize || map.tileHeight !== tileSize)
        faults.push(`The map's tiles have to be ${tileSize} by ${tileSize} pixels.`);
    for (const layer of map.layers) {
        if (layer.offset.x !== 0 || layer.offset.y !== 0)
            faults.push(`The layer "${layer.name}" has an offset; set it to 0.`);
    }
    return faults;
}

// The lines of the source that are wanted, and then those wanted that it does not have. Blank lines
// stay. A quote left open at the source's end stays the end, as it would take in all behind it.
function merge(source, wanted) {
    const left = countsOf(wanted);
    const lines = followShift(source, wanted, left);
    const take = text => left[text] > 0 && left[text]-- > 0;
    const kept = lines.filter(({ text }) => isBlank(text) || take(text));
    const end = lines.length > 0 && lines[0].end !== "" ? lines[0].end : "\n";
    const added = wanted.filter(take).map(text => ({ text, end }));
    const open = kept.length > 0 && isOpen(kept[kept.length - 1].text) ? kept.splice(-1) : [];
    if (added.length > 0 && kept.length > 0 && kept[kept.length - 1].end === "")
        kept[kept.length - 1].end = end;
    return kept.concat(added, open).map(({ text, end }) => text + end).join("");
}

// How often each text is there. An object serves, as a Map here is as slow as a list.
function countsOf(texts) {
    const counts = Object.create(null);
    for (const text of texts) counts[text] = (counts[text] || 0) + 1;
    return counts;
}

// From the top down, those that fall together from the bottom up.
function tileLines(layer, faults) {
    const falling = [];
    const others = [];
    for (const { column, row, tile, turned } of cellsOf(layer)) {
        const word = tile.type;
        const tag = ownOr(tile, tile, word);
        const fault = turned && isKind(word) && tagNameOf(word) === "heading"
            ? `(${word}) is turned; paint the tile of the other heading`
            : faultAt(word, column, row, tag);
        if (fault) faults.push(`The tile at ${column}, ${row} ${fault}.`);
        (lowerFirst.includes(word) ? falling : others)
            .push({ row, column, text: plainLine(word, row * twips, column * twips, tag) });
    }
    falling.sort((one, other) => other.row - one.row || one.column - other.column);
    others.sort((one, other) => one.row - other.row || one.column - other.column);
    return others.concat(falling).map(({ text }) => text);
}

function cellsOf(layer) {
    const cells = [];
    for (const area of layer.region().rects) {
        for (let row = area.y; row < area.y + area.height; ++row) {
            for (let column = area.x; column < area.x + area.width; ++column) {
                const tile = layer.tileAt(column, row);
                const turned = layer.flagsAt(column, row) !== 0;
                if (tile) cells.push({ column, row, tile, turned });
            }
        }
    }
    return cells;
}

// A text of several lines is as many lines of the map; blank ones do not count.
function objectLines(layer, known, faults) {
    const texts = [];
    for (const object of layer.objects) {
        const name = `The object ${object.id}`;
        let said = "";
        if (object.tile) {
            said = tileObjectLine(object, known, fault => faults.push(`${name} ${fault}.`));
        } else if (object.shape === MapObject.Text) {
            said = toBytes(object.text);
        } else {
            faults.push(`${name} is neither a tile nor a text.`);
        }
        for (const { text } of splitLines(said)) {
            if (!isBlank(text)) texts.push(text);
            if (isOpen(text) && !known[text])
                faults.push(`${name} opens a quote that it does not close: ${toDisplay(text)}.`);
        }
    }
    return texts;
}

// An object may carry its line. That stands for as long as it fits the object, and when the author
// has written another one; else the object tells. One between cells may move by whole cells.
function tileObjectLine(object, known, refuse) {
    const word = object.tile.type;
    const tag = ownOr(object, object.tile, word);
    const line = object.property("line");
    const text = line === undefined ? "" : toBytes(line);
    if (line !== undefined && (!known[text] || fits(text, object, word, tag))) return text;
    const stood = objectOf(text) || { top: 0, left: 0 };
    const place = nearestPlace(object, { top: 0, left: 0 }, nearCell)
        || nearestPlace(object, stood, samePlace);
    if (!place) {
        refuse(`(${word}) lies between cells, at ${object.x / tileSize}, ${object.y / tileSize}`);
        return "";
    }
    const { top, left } = place;
    const fault = faultAt(word, Math.floor(left / twips), Math.floor(top / twips), tag);
    if (fault) refuse(fault);
    return plainLine(word, top, left, tag);
}

// The place in twips that is whole cells away from another one, if the object is so many pixels
// near to one.
function nearestPlace(object, from, near) {
    const { x, y } = placeOf(from);
    const columns = Math.round((object.x - x) / tileSize);
    const rows = Math.round((object.y - y) / tileSize);
    const beside = Math.max(Math.abs(object.x - x - columns * tileSize),
        Math.abs(object.y - y - rows * tileSize));
    if (beside > near) return null;
    return { top: from.top + rows * twips, left: from.left + columns * twips };
}

function fits(text, object, word, tag) {
    const said = objectOf(text);
    if (!said || said.word !== word || said.tag !== tag) return false;
    const { x, y } = placeOf(said);
    return Math.abs(object.x - x) < samePlace && Math.abs(object.y - y) < samePlace;
}

// The heading or recipe, of the object if it has one of its own, else as its tile has it.
function ownOr(object, tile, word) {
    const name = isKind(word) ? tagNameOf(word) : "";
    if (name === "") return "";
    const own = object.property(name);
    return toBytes(String(own !== undefined ? own : tile.property(name)));
}

// What is wrong with an object, to follow its name; "" if nothing is.
function faultAt(word, column, row, tag) {
    if (!isKind(word)) return "is none of the game's; take one from the tileset tumbledeep";
    if (column < 0 || row < 0 || column >= drawnCells || row >= drawnCells)
        return `(${word}) lies outside the grid, at ${column}, ${row}`;
    if (tagNameOf(word) !== "" && !/^[^ ,\r\n]+$/.test(tag))
        return `(${word}) needs a ${tagNameOf(word)} of one word without a comma`;
    return "";
}
