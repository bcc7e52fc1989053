// Makes the page of its sources: one folder of files that refer to each other alone, to be put
// anywhere or opened as it is. What the workers run is text in a script: a page that is a file may
// load it so alone.
//
//   bundle.js FOLDER     that has npm, package, script and site/docs in it; the page becomes site

'use strict';

const { createHash } = require('node:crypto');
const fs = require('node:fs');
const path = require('node:path');
const esbuild = require('esbuild');

const work = path.resolve(process.argv[2]);
const site = path.join(work, 'site');
const program = path.join(work, 'script/quillet-script');

const found = (name, pattern) =>
    [...fs.readFileSync(name, 'utf8').matchAll(pattern)].map(([, each]) => each);

const differences = found(path.join(site, 'docs/differences.html'), /<h3 id="([^"]*)"/g);

// The words that the statement's colours tell apart are those of the scanner.
const root = path.join(__dirname, '..');
const keywords = found(
    path.join(root, 'lib/parser/quillet_keywords.def'),
    /^(?:KEYWORD|DATETIME)\((\w+)\)/gm,
);
const types = found(path.join(root, 'include/quillet/quillet_types.def'), /"([a-z][\w ]*)"/g);

const packages = new Set(); // folders of what is in the page from npm

async function bundled(entry) {
    const {
        outputFiles: [{ text }],
        metafile,
    } = await esbuild.build({
        entryPoints: [path.join(__dirname, 'src', entry)],
        bundle: true,
        minify: true,
        write: false,
        metafile: true,
        charset: 'utf8',
        format: 'iife',
        target: ['chrome103', 'firefox113', 'safari16.4'],
        loader: { '.wasm': 'binary' },
        external: ['fs', 'path'], // which emscripten asks for in Node alone
        nodePaths: [path.join(work, 'npm/node_modules')],
        alias: {
            quillet: path.join(work, 'package'),
            'quillet-script.js': `${program}.js`,
            'quillet-script.wasm': `${program}.wasm`,
        },
        define: {
            DIFFERENCES: JSON.stringify(differences),
            KEYWORDS: JSON.stringify(keywords.join(' ').toLowerCase()),
            TYPES: JSON.stringify(types.join(' ')),
            'import.meta.url': '""', // of what is not used here
        },
        logLevel: 'warning',
    });
    for (const input of Object.keys(metafile.inputs)) {
        const [folder] = input.match(/.*node_modules\/(@[^/]+\/)?[^/]+/) ?? [];
        if (folder) packages.add(path.resolve(folder));
    }
    return text;
}

const write = (name, text) => fs.writeFileSync(path.join(site, name), text);
const worker = async (name, entry) =>
    `(self.quilletWorkers ??= {}).${name} = ${JSON.stringify(await bundled(entry))};\n`;

// The scripts of a report, which the page's policy lets run.
async function hashesOfReport() {
    const run = await require(`${program}.js`)({
        wasmBinary: fs.readFileSync(`${program}.wasm`),
        printErr() {},
    });
    run.FS.ignorePermissions = true;
    run.FS.mkdir('/out');
    run.FS.writeFile('/out/empty.sql', '');
    run.callMain([
        '/out/empty.sql',
        '-o',
        '/out/text',
        '--report',
        '/out/report',
        '--color',
        'never',
    ]);
    const report = run.FS.readFile('/out/report', { encoding: 'utf8' });
    const scripts = [...report.matchAll(/<script>(.*?)<\/script>/gs)];
    if (scripts.length === 0) throw new Error('the report has no script');
    return scripts.map(
        ([, text]) => `'sha256-${createHash('sha256').update(text).digest('base64')}'`,
    );
}

// The licences of what is in the page besides Quillet.
function licences() {
    const npm = [...packages].sort().map((folder) => {
        const { name, version } = JSON.parse(fs.readFileSync(path.join(folder, 'package.json')));
        return [`${name} ${version}`, path.join(folder, 'LICENSE')];
    });
    const debian = ['libcli11-dev', 'nlohmann-json3-dev', 'emscripten'].map((name) => [
        name,
        `/usr/share/doc/${name}/copyright`,
    ]);
    return [...npm, ...debian]
        .map(([name, file]) => `${name}\n\n${fs.readFileSync(file, 'utf8').trim()}\n`)
        .join(`\n${'-'.repeat(80)}\n\n`);
}

async function main() {
    const policy = [
        "default-src 'none'",
        `script-src 'self' 'wasm-unsafe-eval' ${(await hashesOfReport()).join(' ')}`,
        "style-src 'self' 'unsafe-inline'",
        'img-src data:',
        'worker-src blob:',
        'frame-src blob:',
        "base-uri 'none'",
        "form-action 'none'",
    ].join('; ');
    write(
        'index.html',
        fs.readFileSync(path.join(__dirname, 'index.html'), 'utf8').replace('{{policy}}', policy),
    );
    write('style.css', fs.readFileSync(path.join(__dirname, 'style.css')));
    write('page.js', await bundled('page.js'));
    write('engine.js', await worker('statement', 'worker.js'));
    write('script.js', await worker('script', 'script_worker.js'));
    write('licences.txt', licences());
}

main();
