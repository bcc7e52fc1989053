// The package where there are URLs instead of files.
import { compile, createQuillet } from './quillet.mjs';

let shared;

export function load(source) {
    if (source !== undefined)
        return compile(source).then(createQuillet);
    shared ??= compile(new URL('./quillet.wasm', import.meta.url)).then(createQuillet);
    // What could not be fetched may be there the next time.
    shared.catch(() => (shared = undefined));
    return shared;
}

// Browsers may allow this in workers alone.
export function loadSync(source) {
    return createQuillet(source instanceof WebAssembly.Module ? source : new WebAssembly.Module(source));
}
