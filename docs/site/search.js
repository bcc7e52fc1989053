// The search: looks for names, headings and titles, which search-data.js has.
const form = document.querySelector(".search");
const input = form.querySelector("input");
const list = form.querySelector("ul");
const mostShown = 30;

// A page that is a file may load a script, but not fetch one.
function load() {
    if (document.querySelector("script[data-search]"))
        return;
    const script = document.createElement("script");
    script.src = "search-data.js";
    script.dataset.search = "";
    script.onload = show;
    document.head.append(script);
}

// How well a text fits: 0 not at all, more if it begins with what is looked for, or is that.
function fit(text, words) {
    const lower = text.toLowerCase();
    if (!words.every(word => lower.includes(word)))
        return 0;
    return lower === words.join(" ") ? 3 : lower.startsWith(words[0]) ? 2 : 1;
}

function item([text, place, about]) {
    const link = document.createElement("a");
    link.href = place;
    link.textContent = text;
    const small = document.createElement("small");
    small.textContent = about;
    const shown = document.createElement("li");
    link.append(small);
    shown.append(link);
    return shown;
}

function show() {
    if (typeof searchEntries === "undefined")
        return;
    const words = input.value.toLowerCase().split(/\s+/).filter(word => word);
    const found = words.length === 0 ? [] :
        searchEntries.map(entry => [fit(entry[0], words), entry]).filter(([how]) => how > 0)
            .sort(([a, x], [b, y]) => b - a || x[0].length - y[0].length).slice(0, mostShown);
    list.replaceChildren(...found.map(([, entry]) => item(entry)));
    if (words.length > 0 && found.length === 0)
        list.append(Object.assign(document.createElement("li"), {textContent: "Nothing found."}));
    list.hidden = words.length === 0;
}

input.addEventListener("focus", load);
input.addEventListener("input", show);
form.addEventListener("submit", event => {
    event.preventDefault();
    list.querySelector("a")?.click();
});
form.addEventListener("keydown", event => {
    const links = [...list.querySelectorAll("a")];
    const step = {ArrowDown: 1, ArrowUp: -1}[event.key];
    if (event.key === "Escape") {
        input.value = "";
        show();
    } else if (step && links.length > 0) {
        event.preventDefault();
        const at = links.indexOf(document.activeElement) + step;
        (at < 0 ? input : links[Math.min(at, links.length - 1)]).focus();
    }
});
document.addEventListener("click", event => {
    if (!form.contains(event.target) || event.target.closest("li a"))
        list.hidden = true;
});
