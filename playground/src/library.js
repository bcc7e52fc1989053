import { loadSync } from 'quillet';
import binary from 'quillet/quillet.wasm';

export const quillet = loadSync(binary);
