// The package in Node, as an ES module; the code is that of the other kind, so that a program that
// uses both has it once.
import node from './node.cjs';

export const { load, loadSync } = node;
