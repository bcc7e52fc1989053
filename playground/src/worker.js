// Translates in a thread of its own, one request after the other.

import { quillet } from './library';

const most = 1000; // diagnostics that are shown

function withFewer({ diagnostics, ...made }) {
    return { ...made, diagnostics: diagnostics.slice(0, most), found: diagnostics.length };
}

const answers = {
    translate: ({ statement, to }) => withFewer(quillet.translate(statement, { to })),
};

onmessage = ({ data }) => {
    try {
        postMessage({ answer: answers[data.kind](data) });
    } catch (error) {
        postMessage({ error: String(error) });
    }
};
