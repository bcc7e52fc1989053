// Tabs as WAI-ARIA describes them: the arrow keys, Home and End choose, Tab goes on to the panel.

export class Tabs {
    constructor(list, chosen) {
        this.tabs = [...list.querySelectorAll('[role=tab]')];
        this.names = this.tabs.map((tab) => tab.id.replace('tab-', ''));
        this.told = chosen;
        list.addEventListener('click', (event) => {
            const tab = event.target.closest('[role=tab]');
            if (tab) this.#take(this.tabs.indexOf(tab));
        });
        list.addEventListener('keydown', (event) => {
            const at = this.names.indexOf(this.name);
            const last = this.tabs.length - 1;
            const next = {
                ArrowRight: at === last ? 0 : at + 1,
                ArrowLeft: at === 0 ? last : at - 1,
                Home: 0,
                End: last,
            }[event.key];
            if (next === undefined) return;
            event.preventDefault();
            this.#take(next);
            this.tabs[next].focus();
        });
    }

    #take(index) {
        if (this.names[index] === this.name) return;
        this.choose(this.names[index]);
        this.told(this.name);
    }

    choose(name) {
        this.name = this.names.includes(name) ? name : this.names[0];
        for (const [index, tab] of this.tabs.entries()) {
            const isChosen = this.names[index] === this.name;
            tab.setAttribute('aria-selected', isChosen);
            tab.tabIndex = isChosen ? 0 : -1;
            document.getElementById(tab.getAttribute('aria-controls')).hidden = !isChosen;
        }
    }
}
