// From the bytes of a map to a map of the editor: plain lines become the tiles of the layer
// "board", all others objects of the layer "extra". The bytes ride along as the property "source".
import { toDisplay } from "./bytes.mjs";
import { byteOrderMark, drawnCells, isBlank, objectOf, plainLine, splitLines, tagNameOf, twips }
    from "./lines.mjs";

export const tileSize = 24;
const leastWidth = 20;
const leastHeight = 14;
const farthest = 9000; // pixels; the editor's files keep six digits of a place

// Where an object stands in the editor, in pixels.
export function placeOf(object) {
    const pixels = value => Math.max(-farthest, Math.min(farthest, value * tileSize / twips));
    return { x: pixels(object.left), y: pixels(object.top) };
}

export function mapOf(bytes, tileset) {
    const found = sortOut(bytes, tilesByName(tileset));
    const map = new TileMap();
    map.setSize(Math.max(leastWidth, found.width), Math.max(leastHeight, found.height));
    map.setTileSize(tileSize, tileSize);
    map.layerDataFormat = TileMap.CSV;
    map.backgroundColor = "#ffffff";
    map.addTileset(tileset);
    map.setProperty("source", found.source.join(""));
    map.addLayer(boardOf(found.tiles, map));
    map.addLayer(extraOf(found, map));
    return map;
}

// The tiles by first word and heading; by the first word alone the first of its kind.
function tilesByName(tileset) {
    const tiles = {};
    for (const tile of tileset.tiles) {
        if (tile.type === "") continue;
        if (!tiles[tile.type]) tiles[tile.type] = tile;
        tiles[`${tile.type} ${tile.property("heading") || ""}`] = tile;
    }
    return tiles;
}

// Goes through all lines once: the first plain object on a cell is its tile.
function sortOut(bytes, tileOf) {
    const found = { source: [], tiles: [], objects: [], texts: [], width: 0, height: 0 };
    const taken = {};
    const start = bytes.startsWith(byteOrderMark) ? byteOrderMark.length : 0;
    if (start > 0) found.source.push(toDisplay(byteOrderMark));
    for (const line of splitLines(bytes.substring(start))) {
        const shown = toDisplay(line.text);
        found.source.push(shown, toDisplay(line.end));
        if (isBlank(line.text)) continue;
        const object = objectOf(line.text);
        if (!object) {
            found.texts.push(shown);
            continue;
        }
        const column = object.left / twips;
        const row = object.top / twips;
        const tile = tileOf[`${object.word} ${object.tag}`];
        const drawn = isDrawn(column) && isDrawn(row);
        const plain = drawn && isPlain(object, line.text);
        if (drawn) {
            found.width = Math.max(found.width, column + 1);
            found.height = Math.max(found.height, row + 1);
        }
        const cell = row * drawnCells + column;
        if (plain && tile && !taken[cell]) {
            taken[cell] = true;
            found.tiles.push({ column, row, tile });
        } else {
            found.objects.push({ object, tile: tile || tileOf[object.word], plain, shown });
        }
    }
    return found;
}

function isPlain({ word, top, left, tag }, text) {
    return plainLine(word, top, left, tag) === text;
}

function isDrawn(place) {
    return place >= 0 && place < drawnCells && place === Math.floor(place);
}

function boardOf(tiles, map) {
    const board = new TileLayer("board");
    board.resize(map.size, Qt.point(0, 0));
    const edit = board.edit();
    for (const { column, row, tile } of tiles) edit.setTile(column, row, tile);
    edit.apply();
    return board;
}

// Texts stand above the map, the last one nearest.
function extraOf(found, map) {
    const extra = new ObjectGroup("extra");
    found.texts.forEach((text, i) => {
        extra.addObject(textObject(text, (i - found.texts.length) * tileSize));
    });
    for (const one of found.objects) extra.addObject(tileObject(one));
    return extra;
}

function textObject(text, y) {
    const made = new MapObject();
    made.shape = MapObject.Text;
    made.text = text;
    const font = made.font;
    font.family = "monospace";
    made.font = font;
    made.wordWrap = false;
    made.pos = Qt.point(0, y);
    made.size = Qt.size(Math.max(1, text.length) * 10, tileSize);
    return made;
}

// Only what the tile and the place do not tell by themselves is kept in properties.
function tileObject({ object, tile, plain, shown }) {
    const made = new MapObject();
    made.tile = tile;
    made.size = Qt.size(tileSize, tileSize);
    const { x, y } = placeOf(object);
    made.pos = Qt.point(x, y);
    const tagName = tagNameOf(object.word);
    const tag = toDisplay(object.tag);
    if (tagName === "recipe" || (tagName !== "" && tile.property(tagName) !== tag))
        made.setProperty(tagName, tag);
    if (!plain) made.setProperty("line", shown);
    return made;
}
