// Makes the map editor Tiled open and save the game's maps. read.mjs and write.mjs do the work;
// here are only the files, and a refusal's way to the author.
import { readBytes, writeBytes } from "./bytes.mjs";
import { mapOf } from "./read.mjs";
import { bytesOf } from "./write.mjs";

// The folder above this one, wherever a link may lead here from.
const folder = FileInfo.path(FileInfo.path(FileInfo.canonicalPath(__filename)));
const mostFaults = 10;

function read(fileName) {
    // By way of a map the tileset stays a file of its own, which all open maps share.
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
    console.error(text); // without a window the editor does not show what is returned
    return text;
}

tiled.registerMapFormat("tumbledeep", { name: "Tumbledeep map", extension: "TBM", read, write });
