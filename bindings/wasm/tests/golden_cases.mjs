// Reads tests/golden/*.test; the README there describes the format.

import { readdirSync, readFileSync } from 'node:fs';
import { join } from 'node:path';

const FOLDER = process.env.QUILLET_GOLDEN;
const BUILDERS = ['postgresql', 'type_view', 'tree', 'mysql'];

// Splits a text where lines match; a pattern has one group.
function sectionsOf(text, pattern) {
    const [before, ...parts] = text.split(pattern);
    const sections = [];
    for (let i = 0; i < parts.length; i += 2)
        sections.push({ heading: parts[i], body: parts[i + 1] });
    return { before, sections };
}

const withoutNewline = (text) => text.replace(/\n$/, '');

function* read(file) {
    const { sections } = sectionsOf(readFileSync(join(FOLDER, file), 'utf8'), /^=== (.*)\n/m);
    for (const [number, { heading: title, body }] of sections.entries()) {
        const isLast = number + 1 === sections.length;
        const found = sectionsOf(isLast ? body : withoutNewline(body), /^(---.*)\n/m);
        for (const { heading, body: given } of found.sections) {
            const [, named, outcome = ''] = /^--- ([a-z_ ]+?)(?:: (.+))?$/.exec(heading);
            const names = named.split(' ');
            if (named === 'printed')
                continue;
            for (const builder of named === 'all' ? BUILDERS : names)
                yield {
                    name: `${file.replace('.test', '')}/${title}/${builder}`,
                    statement: withoutNewline(found.before),
                    builder,
                    // The classic call ends the process at some statements that are invalid.
                    code: outcome === '' ? 0 : outcome === 'exit 0' ? -2 : Number.parseInt(outcome, 10),
                    // Only a tree ends with a newline of its own.
                    text: outcome !== '' ? null : builder === 'tree' ? given : withoutNewline(given),
                };
        }
    }
}

const files = readdirSync(FOLDER).filter((file) => file.endsWith('.test'));
export const cases = files.flatMap((file) => [...read(file)]);

/** The titles in all files. */
export const titleCount = files
    .map((file) => readFileSync(join(FOLDER, file), 'utf8').match(/^=== /gm).length)
    .reduce((sum, count) => sum + count);
