// The package in Node, for both kinds of modules.
'use strict';

const { readFileSync } = require('node:fs');
const { join } = require('node:path');
const { compile, createQuillet } = require('./quillet.cjs');

let shared;

const loadSync = (source) => {
    if (source !== undefined)
        return createQuillet(source instanceof WebAssembly.Module ? source : new WebAssembly.Module(source));
    shared ??= createQuillet(new WebAssembly.Module(readFileSync(join(__dirname, 'quillet.wasm'))));
    return shared;
};

const load = async (source) => (source === undefined ? loadSync() : createQuillet(await compile(source)));

module.exports = { load, loadSync };
