// What is in the address after its "#": the tab and the statement, a long one compressed.

const longest = 1000; // characters that stand there as they are
const most = 100000; // that the address may have: of a statement that needs more, it has none

async function through(bytes, stream) {
    return new Uint8Array(
        await new Response(new Blob([bytes]).stream().pipeThrough(stream)).arrayBuffer(),
    );
}

function toText(bytes) {
    let text = '';
    for (let from = 0; from < bytes.length; from += 0x8000)
        text += String.fromCharCode(...bytes.subarray(from, from + 0x8000));
    return btoa(text).replaceAll('+', '-').replaceAll('/', '_').replaceAll('=', '');
}

function toBytes(text) {
    return Uint8Array.from(atob(text.replaceAll('-', '+').replaceAll('_', '/')), (each) =>
        each.charCodeAt(0),
    );
}

export async function fragmentOf({ tab, statement }) {
    if (statement.length <= longest)
        return { fragment: `#${new URLSearchParams({ tab, sql: statement })}`, isWhole: true };
    const packed = toText(
        await through(new TextEncoder().encode(statement), new CompressionStream('deflate-raw')),
    );
    const isWhole = packed.length <= most;
    return { fragment: `#${new URLSearchParams({ tab, ...(isWhole && { packed }) })}`, isWhole };
}

// Nothing where the address has no statement, or none that can be read.
export async function readFragment(fragment) {
    const wanted = new URLSearchParams(fragment.slice(1));
    const tab = wanted.get('tab');
    if (wanted.has('sql')) return { tab, statement: wanted.get('sql') };
    if (!wanted.has('packed')) return null;
    try {
        const bytes = await through(
            toBytes(wanted.get('packed')),
            new DecompressionStream('deflate-raw'),
        );
        return { tab, statement: new TextDecoder('utf-8', { fatal: true }).decode(bytes) };
    } catch {
        return null;
    }
}
