// Asks the worker one thing after the other. When the statement changes, what is under way for the
// old one is given up: a worker that takes long over it is ended, and another one begins.

const patience = 200; // milliseconds

export class Engine {
    #worker = null;
    #waiting = [];
    #current = null;
    #impatience = null;
    #statement = '';

    constructor(source) {
        this.address = URL.createObjectURL(new Blob([source], { type: 'text/javascript' }));
    }

    // From now on everything is about this statement.
    begin(statement) {
        this.#statement = statement;
        for (const each of this.#waiting.splice(0)) each.resolve(null);
        if (this.#current && !this.#current.isOld) {
            this.#current.isOld = true;
            const left = patience - (performance.now() - this.#current.began);
            this.#impatience = setTimeout(() => this.#end(), Math.max(0, left));
        }
    }

    // Promises the answer, or null if the statement has changed meanwhile.
    ask(kind, wanted = {}) {
        return new Promise((resolve, reject) => {
            this.#waiting.push({
                resolve,
                reject,
                message: { kind, ...wanted, statement: this.#statement },
            });
            this.#next();
        });
    }

    #next() {
        if (this.#current || this.#waiting.length === 0) return;
        this.#current = this.#waiting.shift();
        this.#current.began = performance.now();
        this.#start();
        this.#worker.postMessage(this.#current.message);
    }

    #start() {
        if (this.#worker) return;
        this.#worker = new Worker(this.address);
        this.#worker.onmessage = ({ data }) =>
            this.#settle((current) =>
                data.error
                    ? current.reject(new Error(data.error))
                    : current.resolve(current.isOld ? null : data.answer),
            );
        this.#worker.onerror = (event) => {
            event.preventDefault();
            this.#worker.terminate();
            this.#worker = null;
            this.#settle((current) =>
                current.isOld ? current.resolve(null) : current.reject(new Error(event.message)),
            );
        };
    }

    #settle(how) {
        clearTimeout(this.#impatience);
        const current = this.#current;
        this.#current = null;
        how(current);
        this.#next();
    }

    #end() {
        this.#worker.terminate();
        this.#worker = null;
        this.#settle((current) => current.resolve(null));
    }
}
