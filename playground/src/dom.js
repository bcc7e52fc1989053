// Makes an element. Text never becomes markup: children are nodes or strings.
export function element(name, attributes = {}, ...children) {
    const made = document.createElement(name);
    for (const [key, value] of Object.entries(attributes))
        if (value !== undefined && value !== null && value !== false)
            made.setAttribute(key, value === true ? '' : value);
    made.append(...children.flat().filter((child) => child !== undefined && child !== null));
    return made;
}

export const find = (id) => document.getElementById(id);

export const count = (number) => number.toLocaleString('en');
export const counted = (number, one, many = `${one}s`) =>
    `${count(number)} ${number === 1 ? one : many}`;

// What is read out as soon as it changes is changed only if it is something else.
export function say(place, text) {
    if (place.textContent !== text) place.textContent = text;
}

// A piece of a statement on one line, not longer than so many characters.
export function shortened(text, most = 60) {
    const line = text
        .slice(0, 4 * most)
        .replace(/\s+/g, ' ')
        .trim();
    return line.length > most || text.length > 4 * most ? `${line.slice(0, most - 1)}…` : line;
}
