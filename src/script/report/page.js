'use strict';
{
  const data = JSON.parse(document.getElementById('data').textContent);
  const { files, ids, outcomes, statements } = data;
  const severities = ['error', 'refusal', 'warning', 'note']; // the gravest first
  const find = (id) => document.getElementById(id);

  const count = (number) => number.toLocaleString('en');
  const counted = (number, one, many = `${one}s`) => `${count(number)} ${number === 1 ? one : many}`;

  // Text never becomes markup: children are nodes or strings.
  function element(name, attributes = {}, ...children) {
    const made = document.createElement(name);
    for (const [key, value] of Object.entries(attributes))
      if (value !== undefined && value !== null)
        made.setAttribute(key, value);
    for (const child of children.flat())
      if (child !== undefined && child !== null)
        made.append(child);
    return made;
  }

  // What is chosen, which the address has after its "#".

  const filters = {
    outcome: {
      all: 'All outcomes',
      choices: outcomes.map((each) => ({ value: each.key, name: each.name, count: each.count })),
      holds: (statement, chosen) => outcomes[statement.outcome].key === chosen,
    },
    file: {
      all: 'All files',
      choices: files.map((each) => ({ value: each.name, name: each.name, count: each.count })),
      holds: (statement, chosen) => files[statement.file].name === chosen,
    },
    id: {
      all: 'All ids',
      choices: ids.map((each) => ({ value: each.id, name: each.id, count: each.statements }))
        .sort((a, b) => (a.name < b.name ? -1 : 1)),
      holds: (statement, chosen) => statement.findings.some((each) => ids[each.id].id === chosen),
    },
  };
  const names = Object.keys(filters);

  function chosen() {
    const wanted = new URLSearchParams(location.hash.slice(1));
    const has = (name) => filters[name].choices.some(({ value }) => value === wanted.get(name));
    return Object.fromEntries(names.map((name) => [name, has(name) ? wanted.get(name) : '']));
  }

  function choose(changes) {
    const wanted = Object.entries({ ...chosen(), ...changes }).filter(([, value]) => value !== '');
    history.pushState(null, '', `#${new URLSearchParams(wanted)}`);
    show();
  }

  // The head and the chart.

  function showRun() {
    const all = outcomes.reduce((sum, each) => sum + (each.key === 'between' ? 0 : each.count), 0);
    const title = `${counted(all, 'statement')} for ${data.builder}`;
    find('title').textContent = document.title = title;
    const list = element('ul', {}, files.map((each) => element('li', {}, each.name)));
    const rows = [
      ['Files', files.length <= 3 ? files.map((each) => each.name).join(', ')
        : element('details', {}, element('summary', {}, counted(files.length, 'file')), list)],
      ['Builder', data.builder],
      ['Settings', data.settings.join(' ') || 'default'],
      ['Written by', `quillet-script ${data.version}`],
    ];
    for (const [name, value] of rows)
      find('run').append(element('dt', {}, name), element('dd', {}, value));

    for (const { key, name, count: number } of outcomes) {
      if (key === 'between')
        continue;
      const share = all === 0 ? 0 : (100 * number) / all;
      const filled = element('span');
      filled.style.width = `${share}%`;
      const button = element('button', { 'data-outcome': key, 'aria-pressed': 'false' },
        element('span', { class: 'outcome' }, name),
        element('span', { class: 'bar', 'aria-hidden': 'true' }, filled),
        element('span', { class: 'number count' }, count(number)),
        element('span', { class: 'number share' }, `${share.toFixed(1)} %`));
      button.addEventListener('click', () => choose({ outcome: chosen().outcome === key ? '' : key }));
      find('outcomes').append(element('li', {}, button));
    }
  }

  // The table.

  const severity = (name) => element('span', { class: 'severity', 'data-severity': name }, name);
  const hint = (text) => (text ? element('p', { class: 'hint' }, `Instead: ${text}`) : null);

  function rowOf(each) {
    const button = element('button', { class: 'id', 'aria-pressed': 'false', 'data-id': each.id }, each.id);
    button.addEventListener('click', () => choose({ id: chosen().id === each.id ? '' : each.id }));
    const sentence = each.varies ? `such as: ${each.message}` : each.message;
    return element('tr', {},
      element('td', {}, button),
      element('td', {}, severity(each.severity)),
      element('td', { class: 'number', 'data-unit': each.places === 1 ? 'place' : 'places' },
        count(each.places)),
      element('td', { class: 'number', 'data-unit': each.statements === 1 ? 'statement' : 'statements' },
        count(each.statements)),
      element('td', { class: 'says' }, element('p', {}, sentence), hint(each.hint)),
      element('td', { class: 'explained' }, element('a', { href: each.link }, each.page)));
  }

  function showIds() {
    const rank = (each) => severities.indexOf(each.severity);
    const sorted = [...ids].sort((a, b) => rank(a) - rank(b) || b.places - a.places);
    find('ids').hidden = ids.length === 0;
    find('no-ids').hidden = ids.length > 0;
    find('ids').tBodies[0].append(...sorted.map(rowOf));
  }

  // A statement. Its source comes in parts, so that each finding is about whole parts.

  const textOf = (finding) => finding.message ?? ids[finding.id].message;
  const hintOf = (finding) => (finding.hint === undefined ? ids[finding.id].hint : finding.hint);

  // Which findings begin or end at each part.
  function numbersAt(findings, side) {
    const made = new Map();
    findings.forEach((each, number) => {
      if (!made.has(each[side]))
        made.set(each[side], []);
      made.get(each[side]).push(number);
    });
    return (part) => made.get(part) ?? [];
  }

  // A mark for each part that findings are about, with the numbers of those that begin there.
  function markedSource({ source, findings }) {
    const begin = numbersAt(findings, 'from');
    const end = numbersAt(findings, 'to');
    const made = element('code');
    const marks = [];
    const open = new Set();
    const add = (part, text, begun) => {
      marks[part] = mark(findings, open, text, begun);
      made.append(marks[part]);
    };
    for (let part = 0; part <= source.length; ++part) {
      end(part).forEach((number) => open.delete(number));
      begin(part).forEach((number) => open.add(number));
      const empty = begin(part).filter((number) => findings[number].to === part);
      if (empty.length > 0) // a place between two characters
        add(part, '', empty);
      empty.forEach((number) => open.delete(number));
      if (part < source.length && open.size === 0)
        made.append(source[part]);
      else if (part < source.length)
        add(part, source[part], begin(part).filter((number) => open.has(number)));
    }
    return [made, marks];
  }

  function mark(findings, open, text, begun) {
    const most = 10;
    const about = [];
    for (const number of open)
      if (about.push(number) === most)
        break;
    const severityOf = (number) => ids[findings[number].id].severity;
    const gravest = severities.find((name) => about.some((number) => severityOf(number) === name));
    const sentences = about.map((number) => `${number + 1}: ${severityOf(number)}: ${textOf(findings[number])}`);
    return element('mark', {
      'data-severity': gravest,
      'data-numbers': begun.length > 0 ? begun.slice(0, most).map((number) => number + 1).join(',') : undefined,
      title: sentences.join('\n'),
    }, text);
  }

  function findingItem(each, number, marks) {
    const row = ids[each.id];
    const item = element('li', {},
      element('span', { class: 'index' }, `${number + 1}`),
      severity(row.severity),
      element('span', { class: 'place' }, `${each.line}:${each.column}`),
      element('span', { class: 'message' }, textOf(each)),
      element('a', { href: row.link }, `[${row.id}]`),
      hint(hintOf(each)));
    const about = marks.slice(each.from, Math.max(each.to, each.from + 1));
    for (const [event, isShown] of [['pointerenter', true], ['pointerleave', false]])
      item.addEventListener(event, () => about.forEach((mark) => mark.classList.toggle('shown', isShown)));
    return item;
  }

  function side(name, shown) {
    return element('div', { role: 'group', 'aria-label': name }, element('p', { class: 'side' }, name), shown);
  }

  function textSide(statement) {
    const { key } = outcomes[statement.outcome];
    if (key === 'copied')
      return element('pre', {}, element('code', {}, statement.source.join('')));
    if (statement.text !== null)
      return element('pre', {}, element('code', {}, statement.text));
    const isWithheld = data.is_strict && key === 'refused' &&
      statement.findings.every((each) => ['warning', 'note'].includes(ids[each.id].severity));
    const why = isWithheld ? 'No text: a warning counts as a refusal (--strict).' : 'No text.';
    return element('p', { class: 'none' }, why);
  }

  const isLong = (text) => text.length > 1500 || text.split('\n', 17).length > 16;

  function statementItem(statement) {
    const { key, name } = outcomes[statement.outcome];
    const place = `${files[statement.file].name}:${statement.line}:${statement.column}`;
    const [source, marks] = markedSource(statement);
    const item = element('li', { class: 'statement', 'data-outcome': key },
      element('h3', {},
        element('span', { class: 'outcome' }, name),
        element('span', { class: 'place' }, statement.name ? `${place}, id ${statement.name}` : place)),
      element('div', { class: 'sides' },
        side('Source', element('pre', {}, source)),
        key === 'between' ? null : side(data.builder, textSide(statement))));
    if (statement.findings.length > 0)
      item.append(element('ol', { class: 'findings', 'aria-label': 'What there is to say' },
        statement.findings.map((each, number) => findingItem(each, number, marks))));
    if (isLong(statement.source.join('')) || isLong(statement.text ?? '') || statement.findings.length > 10)
      shorten(item);
    return item;
  }

  function shorten(item) {
    const button = element('button', { type: 'button' });
    const set = (isShort) => {
      item.classList.toggle('is-short', isShort);
      button.setAttribute('aria-expanded', String(!isShort));
      button.textContent = isShort ? 'Show the whole statement' : 'Show less';
    };
    button.addEventListener('click', () => set(!item.classList.contains('is-short')));
    set(true);
    item.append(button);
  }

  // The list: so many statements at a time, as one comes to its end.

  const batch = 50;
  let waiting = [];

  function showMore(most = batch) {
    for (const each of waiting.splice(0, most))
      find('statements').append(statementItem(each));
    find('more').hidden = waiting.length === 0;
  }

  // Again and again, as the end may still be near after a batch.
  const end = new IntersectionObserver((entries) => {
    if (entries.every((each) => !each.isIntersecting) || waiting.length === 0)
      return;
    showMore();
    end.unobserve(find('more'));
    end.observe(find('more'));
  }, { rootMargin: '1000px' });

  function show() {
    const now = chosen();
    const wanted = names.filter((name) => now[name] !== '');
    waiting = statements.filter((each) => wanted.every((name) => filters[name].holds(each, now[name])));
    for (const name of names)
      find(name).value = now[name];
    for (const button of document.querySelectorAll('#outcomes button'))
      button.setAttribute('aria-pressed', String(button.dataset.outcome === now.outcome));
    for (const button of document.querySelectorAll('#ids button'))
      button.setAttribute('aria-pressed', String(button.dataset.id === now.id));
    find('count').textContent = `${count(waiting.length)} of ${count(statements.length)} shown`;
    find('statements').replaceChildren();
    showMore();
  }

  for (const name of names) {
    const { all, choices } = filters[name];
    find(name).append(element('option', { value: '' }, all), ...choices.map((each) =>
      element('option', { value: each.value }, `${each.name} (${count(each.count)})`)));
    find(name).addEventListener('change', () => choose({ [name]: find(name).value }));
  }
  find('filters').addEventListener('submit', (event) => event.preventDefault());
  find('filters').addEventListener('reset', (event) => {
    event.preventDefault();
    choose(Object.fromEntries(names.map((name) => [name, ''])));
  });
  document.querySelector('.skip').addEventListener('click', (event) => {
    event.preventDefault(); // the address keeps what is chosen
    find('statements').focus();
  });
  find('more').firstElementChild.addEventListener('click', () => showMore());
  addEventListener('popstate', show);
  addEventListener('beforeprint', () => showMore(Infinity));

  showRun();
  showIds();
  show();
  end.observe(find('more'));
}
