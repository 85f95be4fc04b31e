// Makes the map editor Tiled open and save the game's maps. read.mjs and write.mjs do the work; here
// are only the files and how a refusal reaches the author.
import { readBytes, writeBytes } from "./bytes.mjs";
import { mapOf } from "./read.mjs";
import { bytesOf } from "./write.mjs";

// The folder above this one, wherever a link may lead here from.
const folder = FileInfo.path(FileInfo.path(FileInfo.canonicalPath(__filename)));
const mostFaults = 10;

function read(fileName) {
    const tileset = tiled.mapFormat("tmx").read(folder + "/base.tmx").tilesets[0];
    return mapOf(readBytes(fileName), tileset);
}

function write(map, fileName) {
    const { bytes, faults } = bytesOf(map);
    if (faults.length === 0) {
        writeBytes(fileName, bytes);
        return;
    }
    const more = faults.length - mostFaults;
    const text = faults.slice(0, mostFaults).concat(more > 0 ? `And ${more} more.` : []).join("\n");
    tell(text);
    return text;
}

// The editor's own message leaves the text out. Without a window there is no asset, and a box would
// wait for ever.
function tell(text) {
    console.error(text);
    tiled.error(text);
    if (tiled.activeAsset) tiled.alert(text, "The map is not saved");
}

tiled.registerMapFormat("tumbledeep", { name: "Tumbledeep map", extension: "TBM", read, write });
