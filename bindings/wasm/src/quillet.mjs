// The library in WebAssembly as functions of JavaScript.

// Where the fields of the records stand, in bytes; quillet_module.cpp checks them.
const TRANSLATION = { code: 0, text: 4, textLength: 8, diagnosticCount: 12, diagnostics: 16 };
const DIAGNOSTIC = { severity: 0, code: 4, id: 8, message: 12, hint: 16, offset: 20, length: 24, line: 28, column: 32 };
const DIAGNOSTIC_SIZE = 36;
const NODE = { kind: 0, label: 4, type: 8, begin: 12, end: 16, parent: 20 };
const NODE_SIZE = 24;

const SEVERITIES = ['note', 'warning', 'refusal', 'error'];

// The statements, in UTF-16, whose room is taken for the worst case, and kept.
const USUAL_LENGTH = 16 * 1024;

// WebAssembly's memory never shrinks: an instance that has grown beyond this gives way to a new one.
const KEPT_MEMORY = 16 * 1024 * 1024;

const encoder = new TextEncoder();
const decoder = new TextDecoder('utf-8', { ignoreBOM: true });

const severityOf = (name) => {
    const severity = SEVERITIES.indexOf(name);
    if (severity < 0)
        throw new RangeError(`leastSeverity is ${String(name)}, and not one of ${SEVERITIES.join(', ')}`);
    return severity;
};

// A limit of the library's own is never above 32 bits.
const limitOf = (name, value) => {
    if (!Number.isInteger(value) || value < 0)
        throw new RangeError(`${name} is ${String(value)}, and not a number of bytes`);
    return Math.min(value, 0xffffffff);
};

const isStackOverflow = (error) => error instanceof RangeError || error?.name === 'InternalError';

// Compiles what a host gives: a module, its bytes, a response with them, or where to get them.
export async function compile(source) {
    source = await source;
    if (source instanceof WebAssembly.Module)
        return source;
    if (source instanceof ArrayBuffer || ArrayBuffer.isView(source))
        return WebAssembly.compile(source);
    const response = source instanceof Response ? source : await fetch(source);
    if (!response.ok)
        throw new Error(`${response.url} is not there: ${response.status} ${response.statusText}`);
    return WebAssembly.compile(await response.arrayBuffer());
}

// The library neither reads nor writes files, and ends no process.
const unexpected = () => {
    throw new Error('quillet asks for what it must not need');
};

// Makes the package's object of a compiled module.
export function createQuillet(module) {
    let wasm = null; // the exports of an instance; null until one is needed
    let bytes = null; // its memory, which moves when it grows
    let words = null;
    let room = 0; // where a usual statement goes
    let roomBytes = null;
    const staticTexts = new Map();

    const look = () => {
        bytes = new Uint8Array(wasm.memory.buffer);
        words = new Int32Array(wasm.memory.buffer);
        roomBytes = null;
    };

    const imports = {
        env: { emscripten_notify_memory_growth: look },
        wasi_snapshot_preview1: {
            proc_exit: unexpected,
            fd_close: unexpected,
            fd_read: unexpected,
            fd_seek: unexpected,
            fd_write: unexpected,
        },
    };

    const start = () => {
        wasm = new WebAssembly.Instance(module, imports).exports;
        look();
        wasm._initialize();
    };

    // An instance whose calls have not come to their end cannot go on.
    const release = () => {
        wasm = bytes = words = roomBytes = null;
    };

    const textAt = (begin) => decoder.decode(bytes.subarray(begin, bytes.indexOf(0, begin)));

    // Most texts of diagnostics are constants, and decoded once.
    const knownTextAt = (address) => {
        if (address === 0)
            return null;
        if (address >= staticEnd)
            return textAt(address);
        let text = staticTexts.get(address);
        if (text === undefined) {
            text = textAt(address);
            staticTexts.set(address, text);
        }
        return text;
    };

    start();
    const staticEnd = wasm.static_end();
    const version = textAt(wasm.version());
    const builders = [];
    for (let address; (address = wasm.builder_name(builders.length)) !== 0; )
        builders.push(textAt(address));
    Object.freeze(builders);

    const builderOf = (name) => {
        const id = builders.indexOf(name);
        if (id < 0)
            throw new RangeError(`to is ${String(name)}, and not one of ${builders.join(', ')}`);
        return id;
    };
    const mysql = builderOf('mysql');
    const typeView = builderOf('type_view');

    // Writes a statement into the memory: the number of its bytes, -1 without memory.
    const write = (sql) => {
        if (sql.length <= USUAL_LENGTH) {
            if (roomBytes === null) {
                room = wasm.room_for(3 * USUAL_LENGTH);
                if (room === 0)
                    return -1;
                roomBytes = bytes.subarray(room, room + 3 * USUAL_LENGTH);
            }
            return encoder.encodeInto(sql, roomBytes).written;
        }
        const encoded = encoder.encode(sql);
        room = wasm.room_for(encoded.length);
        if (room === 0)
            return -1;
        bytes.set(encoded, room);
        roomBytes = null;
        return encoded.length;
    };

    const checkForSurrogates = (sql) => {
        const index = sql.search(/\p{Surrogate}/u);
        if (index >= 0)
            throw new TypeError(`sql has half of a character at ${index}`);
    };

    // The indices in the string of some places in its UTF-8 that stand at room.
    const indicesOf = (places) => {
        const indices = new Map();
        let place = 0;
        let index = 0;
        for (const next of Uint32Array.from(places).sort()) {
            for (; place < next; ++place) {
                const byte = bytes[room + place];
                index += (byte & 0xc0) === 0x80 ? 0 : byte < 0xf0 ? 1 : 2;
            }
            indices.set(next, index);
        }
        return indices;
    };

    const diagnosticsOf = (record, isAscii) => {
        const count = words[(record + TRANSLATION.diagnosticCount) >> 2];
        const diagnostics = new Array(count);
        let word = words[(record + TRANSLATION.diagnostics) >> 2] >> 2;
        for (let i = 0; i < count; ++i, word += DIAGNOSTIC_SIZE >> 2)
            diagnostics[i] = {
                severity: SEVERITIES[words[word]],
                code: words[word + (DIAGNOSTIC.code >> 2)],
                id: knownTextAt(words[word + (DIAGNOSTIC.id >> 2)]),
                message: knownTextAt(words[word + (DIAGNOSTIC.message >> 2)]),
                hint: knownTextAt(words[word + (DIAGNOSTIC.hint >> 2)]),
                offset: words[word + (DIAGNOSTIC.offset >> 2)],
                length: words[word + (DIAGNOSTIC.length >> 2)],
                line: words[word + (DIAGNOSTIC.line >> 2)],
                column: words[word + (DIAGNOSTIC.column >> 2)],
            };
        if (count > 0 && !isAscii) {
            const indices = indicesOf(diagnostics.flatMap((each) => [each.offset, each.offset + each.length]));
            for (const each of diagnostics) {
                const end = indices.get(each.offset + each.length);
                each.offset = indices.get(each.offset);
                each.length = end - each.offset;
            }
        }
        return diagnostics;
    };

    const translationOf = (record, isAscii) => {
        const text = words[(record + TRANSLATION.text) >> 2];
        const length = words[(record + TRANSLATION.textLength) >> 2];
        return {
            code: words[(record + TRANSLATION.code) >> 2],
            text: text === 0 ? null : decoder.decode(bytes.subarray(text, text + length)),
            diagnostics: diagnosticsOf(record, isAscii),
        };
    };

    // The tree of an inspection, whose nodes stand before those below them.
    const treeOf = (made, isAscii) => {
        const nodes = new Array(wasm.inspection_count(made));
        const parents = new Array(nodes.length);
        let word = wasm.inspection_nodes(made) >> 2;
        for (let i = 0; i < nodes.length; ++i, word += NODE_SIZE >> 2) {
            parents[i] = words[word + (NODE.parent >> 2)];
            nodes[i] = {
                kind: knownTextAt(words[word + (NODE.kind >> 2)]),
                label: knownTextAt(words[word + (NODE.label >> 2)]),
                type: knownTextAt(words[word + (NODE.type >> 2)]),
                start: words[word + (NODE.begin >> 2)],
                end: words[word + (NODE.end >> 2)],
                children: [],
            };
        }
        for (let i = 1; i < nodes.length; ++i)
            nodes[parents[i]].children.push(nodes[i]);
        if (!isAscii) {
            const indices = indicesOf(nodes.flatMap(({ start, end }) => [start, end]));
            for (const node of nodes) {
                node.start = indices.get(node.start);
                node.end = indices.get(node.end);
            }
        }
        return nodes.length === 0 ? null : nodes[0];
    };

    // A translation that has failed for a reason that the library could not see.
    const failed = (reason, sql) => {
        release();
        start();
        const translation = translationOf(wasm[reason](), true);
        translation.diagnostics[0].length = sql.length;
        return translation;
    };

    // Writes a statement into the memory and lets work be done there on its bytes. The result is
    // what the work returns, a failed translation instead of null.
    const run = (sql, work) => {
        if (typeof sql !== 'string')
            throw new TypeError(`sql is no string: ${typeof sql}`);
        if (wasm === null)
            start();
        let result;
        try {
            const length = write(sql);
            const isAscii = length === sql.length;
            if (!isAscii && length >= 0)
                checkForSurrogates(sql);
            result = length < 0 ? null : work(length, isAscii);
        } catch (error) {
            if (error instanceof TypeError)
                throw error;
            release(); // as its calls have not come to their end
            if (!isStackOverflow(error))
                throw error;
            return failed('too_deep', sql);
        }
        if (result === null)
            return failed('out_of_memory', sql);
        if (bytes.length > KEPT_MEMORY)
            release();
        return result;
    };

    const translate = (sql, options) => {
        let builder = mysql;
        let least = 0;
        let textLimit = 0;
        let treeLimit = 0;
        if (options !== undefined) {
            if (options.to !== undefined)
                builder = builderOf(options.to);
            if (options.leastSeverity !== undefined)
                least = severityOf(options.leastSeverity);
            if (options.textLimit !== undefined)
                textLimit = limitOf('textLimit', options.textLimit);
            if (options.treeLimit !== undefined)
                treeLimit = limitOf('treeLimit', options.treeLimit);
        }
        return run(sql, (length, isAscii) => {
            const record = wasm.translate(room, length, builder, least, textLimit, treeLimit);
            const translation = translationOf(record, isAscii);
            wasm.translation_free(record);
            return translation;
        });
    };

    const inspect = (sql) => {
        const { code, root = null, diagnostics } = run(sql, (length, isAscii) => {
            const made = wasm.inspect(room, length, typeView);
            if (made === 0)
                return null;
            const { code, diagnostics } = translationOf(wasm.inspection_translation(made), isAscii);
            const root = treeOf(made, isAscii);
            wasm.inspection_free(made);
            return { code, root, diagnostics };
        });
        return { code, root, diagnostics };
    };

    return Object.freeze({ translate, inspect, builders, version, releaseMemory: release });
}
