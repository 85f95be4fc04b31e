// Bytes of files as text: in the scripts a map is a string with one character to a byte, so that
// nothing is lost. What the editor shows and keeps in its own files is another string, in which
// UTF-8 reads as such and every byte that XML can't hold is written \xNN.

const chunk = 8192;
const odd = /[^\x20-\x5b\x5d-\x7e\n]/;
const hidden = /\\(?=x[0-9A-F]{2})|[\x00-\x09\x0b-\x1f\x7f-\x9f\ufffe\uffff]/g;

// All bytes of a file. Throws when it can't be read.
export function readBytes(fileName) {
    const file = new BinaryFile(fileName, BinaryFile.ReadOnly);
    const bytes = new Uint8Array(file.readAll());
    file.close();
    const parts = [];
    for (let start = 0; start < bytes.length; start += chunk) {
        const some = Array.from(bytes.subarray(start, start + chunk));
        parts.push(String.fromCharCode.apply(null, some));
    }
    return parts.join("");
}

// Replaces a file as a whole. Throws when it can't be written.
export function writeBytes(fileName, text) {
    const bytes = new Uint8Array(text.length);
    for (let i = 0; i < text.length; ++i) bytes[i] = text.charCodeAt(i);
    const file = new BinaryFile(fileName, BinaryFile.WriteOnly);
    file.write(bytes.buffer);
    file.commit();
}

// Plain ASCII is its own display.
export function toDisplay(bytes) {
    if (!odd.test(bytes)) return bytes;
    let text;
    try {
        text = decodeURIComponent(escape(bytes));
    } catch (notUtf8) {
        return bytes.replace(hidden, inHex).replace(/[\xa0-\xff]/g, inHex);
    }
    return text.replace(hidden, character => inHex(toUtf8(character)));
}

// What toDisplay was given. A character that the author typed becomes its UTF-8.
export function toBytes(display) {
    if (!odd.test(display)) return display;
    const byteOf = (all, digits) => String.fromCharCode(parseInt(digits, 16));
    return toUtf8(display).replace(/\\x([0-9A-F]{2})/g, byteOf);
}

function toUtf8(text) {
    return unescape(encodeURIComponent(text));
}

function inHex(bytes) {
    const hex = byte => "\\x" + byte.charCodeAt(0).toString(16).toUpperCase().padStart(2, "0");
    return bytes.split("").map(hex).join("");
}
