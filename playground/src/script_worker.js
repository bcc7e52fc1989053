// Runs quillet-script over files, once.

import createProgram from 'quillet-script.js';
import binary from 'quillet-script.wasm';

const often = 100; // milliseconds between two messages of how far it is

// Files of the same name, or of one that is an option, get another one.
function named(files) {
    const names = new Set();
    return files.map((file) => {
        let name = file.name.replace(/^-/, '_');
        for (let number = 2; names.has(name); ++number) name = `${number}-${file.name}`;
        names.add(name);
        return { name, data: file };
    });
}

// Says how much of the files has been read.
function tellProgress(system, size) {
    const { stream_ops: operations } = system;
    const { read } = operations;
    let last = performance.now();
    let bytes = 0;
    operations.read = (...asked) => {
        const count = read(...asked);
        bytes += count;
        if (performance.now() - last > often) {
            last = performance.now();
            postMessage({ done: size > 0 ? bytes / size : 1 });
        }
        return count;
    };
}

onmessage = async ({ data: { files, to, placeholders, guides } }) => {
    let last = '';
    const program = await createProgram({
        wasmBinary: binary,
        print: () => {},
        printErr: (line) => {
            last = line || last;
        },
    });
    const { FS } = program;
    const blobs = named(files);
    FS.ignorePermissions = true; // what is written has none at first
    FS.mkdir('/in');
    FS.mkdir('/out');
    FS.mount(FS.filesystems.WORKERFS, { blobs }, '/in');
    FS.chdir('/in');
    tellProgress(
        FS.filesystems.WORKERFS,
        files.reduce((sum, file) => sum + file.size, 0),
    );
    const status = program.callMain([
        '--to',
        to,
        ...(placeholders ? ['--placeholders', placeholders] : []),
        '--color',
        'never',
        '--notes',
        '-o',
        '/out/text',
        '--report',
        '/out/report',
        '--docs',
        guides,
        '--',
        ...blobs.map(({ name }) => name),
    ]);
    if (status !== 0 && status !== 1) {
        postMessage({ failure: last });
        return;
    }
    const [text, report] = ['/out/text', '/out/report'].map((name) => FS.readFile(name));
    postMessage({ made: { summary: last, text, report } }, [text.buffer, report.buffer]);
};
