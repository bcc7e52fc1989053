// Whole scripts: files that are dropped or opened become one text and the report about them, as by
// quillet-script.

import { element, find, say } from './dom';

const largestShown = 64 * 1024 * 1024; // bytes of a report

const guides = new URL('docs', location.href.replace(/[?#].*/, '')).href;

// The program is loaded when the first script comes.
let program;
function load() {
    program ??= new Promise((resolve, reject) => {
        const source = element('script', { src: 'script.js' });
        source.onload = () =>
            resolve(
                URL.createObjectURL(
                    new Blob([self.quilletWorkers.script], { type: 'text/javascript' }),
                ),
            );
        source.onerror = () => reject(new Error('script.js is missing'));
        document.head.append(source);
    });
    return program;
}

// The report's links lead to Markdown; here the guides are pages. They stand in its head, which is
// ASCII as all of it is.
function withPages(report) {
    const largestHead = 4 * 1024 * 1024;
    const begin = new TextDecoder().decode(report.subarray(0, largestHead));
    const head = begin.slice(0, begin.indexOf('"statements":['));
    const made = head.replaceAll(/"link":"([^"#]*)\.md/g, '"link":"$1.html');
    return [made, report.subarray(head.length)];
}

export class ScriptRoom {
    #files = [];
    #worker = null;
    #addresses = [];

    constructor() {
        const input = find('files');
        find('open').addEventListener('click', () => input.click());
        input.addEventListener('change', () => {
            this.#take([...input.files]);
            input.value = '';
        });
        for (const id of ['script-to', 'script-placeholders'])
            find(id).addEventListener('change', () => this.#files.length > 0 && this.#run());
        find('script-cancel').addEventListener('click', () => {
            this.#end();
            say(find('script-status'), 'Cancelled.');
            find('open').focus();
        });
        this.#acceptDrops();
    }

    #acceptDrops() {
        const hasFiles = (event) => event.dataTransfer?.types.includes('Files');
        let inside = 0; // elements that the files are over
        const show = (by) => {
            inside = by === 0 ? 0 : inside + by;
            find('drop').hidden = inside <= 0;
        };
        // In the capturing phase, as the editor takes files for text.
        const on = (name, does) =>
            addEventListener(
                name,
                (event) => {
                    if (!hasFiles(event)) return;
                    event.preventDefault();
                    event.stopPropagation();
                    does(event);
                },
                true,
            );
        on('dragenter', () => show(1));
        on('dragleave', () => show(-1));
        on('dragover', (event) => {
            event.dataTransfer.dropEffect = 'copy';
        });
        on('drop', (event) => {
            show(0);
            this.#take([...event.dataTransfer.files]);
        });
    }

    #take(files) {
        if (files.length === 0) return;
        this.#files = files;
        find('script').scrollIntoView({ block: 'start' });
        this.#run();
    }

    #end() {
        this.#worker?.terminate();
        this.#worker = null;
        find('script-running').hidden = true;
        for (const address of this.#addresses.splice(0)) URL.revokeObjectURL(address);
    }

    async #run() {
        this.#end();
        find('script-result').hidden = true;
        find('report').removeAttribute('src');
        find('script-progress').value = 0;
        find('script-running').hidden = false;
        const [first, ...others] = this.#files.map((file) => file.name);
        say(
            find('script-status'),
            `Translating ${first}${others.length > 0 ? ` and ${others.length} more` : ''}…`,
        );
        const files = this.#files;
        try {
            const worker = new Worker(await load());
            if (files !== this.#files || this.#worker) return worker.terminate();
            this.#worker = worker;
            worker.onmessage = ({ data }) => this.#hear(worker, data);
            worker.onerror = (event) => this.#hear(worker, { failure: event.message });
            const [to, placeholders] = ['script-to', 'script-placeholders'].map(
                (id) => find(id).value,
            );
            worker.postMessage({ files, to, placeholders, guides });
        } catch (error) {
            this.#end();
            say(find('script-status'), `This page has failed: ${error.message}`);
        }
        return undefined;
    }

    #hear(worker, { done, failure, made }) {
        if (worker !== this.#worker) return;
        if (done !== undefined) {
            find('script-progress').value = done;
            return;
        }
        this.#end();
        say(find('script-status'), failure ?? made.summary);
        if (!failure) this.#show(made);
    }

    #show({ text, report }) {
        const page = new Blob(withPages(report), { type: 'text/html' });
        const offer = (id, name, blob) => {
            const address = URL.createObjectURL(blob);
            this.#addresses.push(address);
            find(id).href = address;
            find(id).download = name;
            return address;
        };
        const stem =
            this.#files.length === 1 ? this.#files[0].name.replace(/\.[^.]*$/, '') : 'scripts';
        offer(
            'script-text',
            `${stem}.${find('script-to').value}.sql`,
            new Blob([text], { type: 'application/sql' }),
        );
        const address = offer('script-report', `${stem}.html`, page);
        const isShown = page.size <= largestShown;
        find('report').hidden = !isShown;
        find('report-left-out').hidden = isShown;
        if (isShown) find('report').src = address;
        find('script-result').hidden = false;
    }
}
