// Where an id is explained, in the documentation beside this page.

// The headings of the differences page, put in by the build.
const differences = new Set(DIFFERENCES);

export function explanationOf({ id, severity }, builder) {
    const anchor = builder === 'postgresql' ? `postgresql-${id}` : id;
    if (differences.has(anchor)) return `docs/differences.html#${anchor}`;
    return severity === 'refusal'
        ? 'docs/mysql.html#what-is-refused'
        : 'docs/embedding.html#diagnostics';
}
