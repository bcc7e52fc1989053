/** What a statement may become. */
export type BuilderName = 'postgresql' | 'mysql' | 'tree' | 'type_view';

/**
 * How much a diagnostic matters, in rising order. A note says that the text may give something else
 * than the statement, a warning that it does; refusals and errors are why there is no text.
 */
export type Severity = 'note' | 'warning' | 'refusal' | 'error';

/** What may be asked of a translation. */
export interface Options {
    /** The builder; `mysql` without it. */
    readonly to?: BuilderName | undefined;
    /** What matters less is not looked for, which takes less time; `note` without it. */
    readonly leastSeverity?: Severity | undefined;
    /** The bytes that a text may take; 0, or none: the library's own limit. */
    readonly textLimit?: number | undefined;
    /** The bytes that the tree of the statement may take; likewise. */
    readonly treeLimit?: number | undefined;
}

/** What there is to say about a part of a statement. */
export interface Diagnostic {
    readonly severity: Severity;
    /** Of a refusal: the builder's own; otherwise 0. */
    readonly code: number;
    /** Never changes: `syntax-error`, `refused-initcap`. */
    readonly id: string;
    /** One sentence. */
    readonly message: string;
    /** What to write instead, if that can be said. */
    readonly hint: string | null;
    /** The index in the string where the construct begins. */
    readonly offset: number;
    /** Its length in the string; 0 at the statement's end. */
    readonly length: number;
    /** The line of its first character, from 1. */
    readonly line: number;
    /** The column of its first character, from 1; a character outside of the BMP is one. */
    readonly column: number;
}

/** What became of a statement. */
export interface Translation {
    /**
     * 0: there is a text; -2: it is no statement of the dialect, or a construct lacks a part; -3:
     * the builder has no equal for a construct, or a limit or the memory was too small.
     */
    readonly code: 0 | -2 | -3;
    /** null without a translation. */
    readonly text: string | null;
    /** In the order of their places. */
    readonly diagnostics: readonly Diagnostic[];
}

/** A node of a parse tree. A tree may be deep: walk it with a loop rather than with recursion. */
export interface TreeNode {
    /** `select_item`, `expression`: the kinds of the builder `tree`. */
    readonly kind: string;
    /** What tells it from others of its kind: a name or constant as written, an operator, a type. */
    readonly label: string | null;
    /** The type that has been inferred: `INT8`. */
    readonly type: string | null;
    /** The index in the string where its text begins. */
    readonly start: number;
    /** The index after its text. */
    readonly end: number;
    /** In the order of their places; of a list all its items. */
    readonly children: readonly TreeNode[];
}

/** What the library sees in a statement. */
export interface Inspection {
    /** 0, or why types are missing, or the tree; the same as of a translation to `type_view`. */
    readonly code: 0 | -2 | -3;
    /** null if the statement cannot be parsed. */
    readonly root: TreeNode | null;
    /** What is wrong with the statement. */
    readonly diagnostics: readonly Diagnostic[];
}

/** The library, ready to be called. */
export interface Quillet {
    /**
     * Translates one statement in the PostgreSQL dialect. Throws a TypeError if it is no string or
     * has half of a surrogate pair, and a RangeError for an option that there is not.
     */
    readonly translate: (this: void, sql: string, options?: Options) => Translation;
    /** Parses one statement, for a tool that shows its tree. Throws as a translation does. */
    readonly inspect: (this: void, sql: string) => Inspection;
    /** The names of all builders. */
    readonly builders: readonly BuilderName[];
    /** The version of the library: `1.2.3`. */
    readonly version: string;
    /** Gives back the memory that translations leave for the next one. */
    readonly releaseMemory: (this: void) => void;
}

/** The package's quillet.wasm: where it is, a response with it, its bytes, or what was compiled of it. */
export type Source = string | URL | Request | Response | BufferSource | WebAssembly.Module;

/** Loads the library. Without a source it is the one beside this module, which is loaded once. */
export function load(source?: Source | Promise<Source>): Promise<Quillet>;

/**
 * Loads the library without waiting. Without a source it is the one beside this module, which Node
 * alone can find; browsers may allow it in workers alone.
 */
export function loadSync(source?: BufferSource | WebAssembly.Module): Quillet;
