// What the keys do, and the list of them.

import { element } from './elements.js';

const step = Math.PI / 36;

// actions: { fit, edges, theme, panel, help, pick, clear, view(number), turn, pan, zoom }.
function table(actions) {
  return [
    ['Arrow keys', 'turn the model', ['ArrowLeft', 'ArrowRight', 'ArrowUp', 'ArrowDown'], (key) => actions.turn(...{
      ArrowLeft: [-step, 0], ArrowRight: [step, 0], ArrowUp: [0, step], ArrowDown: [0, -step] }[key])],
    ['Shift and arrow keys', 'move the picture', [], null],
    ['+ and -', 'nearer and farther', ['+', '=', '-', '_'], (key) => actions.zoom(key === '+' || key === '=' ? 1 / 1.15 : 1.15)],
    ['1 to 9', 'the views of the list', [...'123456789'], (key) => actions.view(Number(key) - 1)],
    ['F', 'show all of it', ['f'], () => actions.fit()],
    ['E', 'edges on and off', ['e'], () => actions.edges()],
    ['Enter', 'ask what is under the cross in the middle', ['Enter', ' '], () => actions.pick()],
    ['Escape', 'forget what was clicked', ['Escape'], () => actions.clear()],
    ['P', 'panel on and off', ['p'], () => actions.panel()],
    ['T', 'light and dark', ['t'], () => actions.theme()],
    ['H or ?', 'this list', ['h', '?'], () => actions.help()],
    ['Tab', 'to the buttons and through the panel', [], null],
  ];
}

function pan(key, actions) {
  const move = { ArrowLeft: [-0.05, 0], ArrowRight: [0.05, 0], ArrowUp: [0, 0.05], ArrowDown: [0, -0.05] }[key];
  if (move)
    actions.pan(...move);
  return Boolean(move);
}

// Keys that turn and pick work while the canvas has the focus, the letters anywhere but in a field.
export function listenToKeys(canvas, dialog, actions) {
  const rows = table(actions);
  dialog.replaceChildren(element('h2', { id: 'keys-title' }, 'Keys and mouse'), element('dl', {}, ...rows.flatMap(([keys, words]) =>
    [element('dt', {}, element('kbd', {}, keys)), element('dd', {}, words)]), element('dt', {}, 'Mouse, fingers'),
  element('dd', {}, 'drag to turn, with the right button or two fingers to move, wheel or pinch to zoom; click a face to ask about it')),
  element('form', { method: 'dialog' }, element('p', {}, element('button', {}, 'Close'))));
  window.addEventListener('keydown', (event) => {
    const typing = ['INPUT', 'SELECT', 'TEXTAREA'].includes(event.target.tagName) && event.target.type !== 'checkbox';
    if (event.ctrlKey || event.metaKey || event.altKey || typing || dialog.open)
      return;
    const onCanvas = event.target === canvas || event.target === document.body;
    if (event.shiftKey && onCanvas && pan(event.key, actions))
      return event.preventDefault();
    const key = event.key.length === 1 ? event.key.toLowerCase() : event.key;
    const row = rows.find(([, , names]) => names.includes(key));
    if (!row || (!onCanvas && (key.length > 1 || key === ' ') && key !== 'Escape'))
      return;
    row[3](key);
    event.preventDefault();
  });
}
