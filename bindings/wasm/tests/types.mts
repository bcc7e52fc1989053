// What the declarations allow, and what they do not.

import { load, loadSync } from 'quillet';
import type { BuilderName, Diagnostic, Options, Quillet, Severity, Translation, TreeNode } from 'quillet';

const quillet: Quillet = await load();
const { translate } = quillet; // which needs no object

const made: Translation = translate('select 1', { to: 'mysql', leastSeverity: 'warning', textLimit: 1e6, treeLimit: 1e6 });
const text: string = made.text ?? '';
const texts: string[] = made.diagnostics.map((each: Diagnostic) => each.message + (each.hint ?? ''));
const severities: Severity[] = made.diagnostics.map(({ severity }) => severity);
const builders: readonly BuilderName[] = quillet.builders;
const options: Options = {};
console.log(text, texts, severities, builders, translate('', options), loadSync().version);
quillet.releaseMemory();
await load(new URL('https://example.org/quillet.wasm'));
await load(fetch('https://example.org/quillet.wasm'));
loadSync(new WebAssembly.Module(new Uint8Array(8)));

// @ts-expect-error: a text may be missing
const missing: string = made.text;
// @ts-expect-error: there is no such builder
translate('select 1', { to: 'oracle' });
// @ts-expect-error: it takes a string
translate(1);
// @ts-expect-error: there is no such code
if (made.code === -1) console.log(missing);

const roots: (TreeNode | null)[] = [quillet.inspect('select 1').root];
const kinds: string[] = roots.flatMap((root) => root?.children.map(({ kind, label }) => kind + (label ?? '')) ?? []);
console.log(kinds);
