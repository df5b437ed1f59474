// Elements of the page made with one call.

// element('li', { class: 'row', onclick }, child, 'text'): properties that begin with "on" are listeners, others
// attributes; false and null leave an attribute away.
export function element(name, properties = {}, ...children) {
  const made = document.createElement(name);
  for (const [key, value] of Object.entries(properties)) {
    if (key.startsWith('on'))
      made.addEventListener(key.slice(2), value);
    else if (key === 'checked' || key === 'value')
      made[key] = value;
    else if (value !== false && value !== null && value !== undefined)
      made.setAttribute(key, value === true ? '' : value);
  }
  made.append(...children.filter((child) => child !== null && child !== undefined));
  return made;
}

export function count(number) {
  return number.toLocaleString('en');
}

// A switch with its words.
export function switchRow(words, on, onchange, ...more) {
  const box = element('input', { type: 'checkbox', checked: on, onchange: () => onchange(box.checked) });
  return { row: element('div', { class: 'row' }, element('label', {}, box, element('span', { class: 'name' }, words)), ...more), box };
}

// A part of the panel that folds.
export function section(id, title, number, open, ...children) {
  return element('details', { id, open }, element('summary', {}, title, number === null ? null : element('span', { class: 'count' }, count(number))),
    element('div', { class: 'body' }, ...children));
}

export function button(words, onclick, properties = {}) {
  return element('button', { type: 'button', onclick, ...properties }, words);
}

// A field that hides the rows of a list that do not hold what is typed.
export function filterField(list, words) {
  const field = element('input', {
    type: 'search', placeholder: words, 'aria-label': words,
    oninput: () => {
      const wanted = field.value.toLowerCase();
      for (const row of list.children)
        row.hidden = !row.dataset.name.toLowerCase().includes(wanted);
    },
  });
  return field;
}
