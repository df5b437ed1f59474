// The panel: layers, materials, lamps, sections, findings, statistics.

import { button, count, element, filterField, section, switchRow } from './elements.js';

const rowsBeforeFilter = 12; // a shorter list needs no field to search it

function layerRow(layer, model, switches) {
  const materials = [...layer.materials].sort((a, b) => b[1] - a[1]);
  const branch = element('ul', { class: 'branch', 'aria-label': `Materials of ${layer.name}`, hidden: true }, ...materials.map(([key, triangles]) =>
    element('li', {}, `${model.materials.get(key).name} `, element('span', { class: 'count' }, count(triangles)))));
  const opener = button('▸', () => {
    branch.hidden = !branch.hidden;
    opener.textContent = branch.hidden ? '▸' : '▾';
    opener.setAttribute('aria-expanded', String(!branch.hidden));
  }, { class: 'opener', 'aria-expanded': 'false', 'aria-label': `Materials of ${layer.name}`, disabled: materials.length === 0 });
  const { row, box } = switchRow(layer.name, layer.on, (on) => switches.setLayer(layer.name, on), element('span', { class: 'count' }, count(layer.triangles)));
  row.prepend(opener);
  layer.box = box;
  return element('li', { 'data-name': layer.name }, row, branch);
}

function layersSection(model, switches) {
  const layers = [...model.layers.values()];
  const list = element('ul', { 'aria-label': 'Layers' }, ...layers.map((layer) => layerRow(layer, model, switches)));
  const all = (on) => {
    switches.setAllLayers(on);
    for (const layer of layers)
      layer.box.checked = on;
  };
  return section('layers', 'Layers', layers.length, true,
    layers.length > rowsBeforeFilter ? filterField(list, 'Search layers') : null,
    element('p', {}, button('All on', () => all(true), { class: 'small' }), ' ', button('All off', () => all(false), { class: 'small' })), list);
}

function swatchOf(material) {
  const swatch = element('canvas', { class: 'swatch', width: 52, height: 52, 'aria-hidden': 'true' });
  const brush = swatch.getContext('2d');
  brush.fillStyle = material.color ? `#${material.color.getHexString()}` : '#888888';
  brush.fillRect(0, 0, 52, 52);
  const picture = material.map?.image;
  if (picture)
    brush.drawImage(picture, 0, 0, 52, 52);
  return swatch;
}

function materialFacts({ material, number }) {
  const facts = [];
  if (number !== undefined)
    facts.push(`number ${number}`);
  if (material.map?.image)
    facts.push(`picture ${material.map.image.width} × ${material.map.image.height}`);
  if (material.opacity < 1)
    facts.push(`${Math.round(100 * material.opacity)} % opaque`);
  if (material.emissive && material.emissive.getHex() !== 0)
    facts.push('glows');
  return facts.join(', ');
}

function materialsSection(model, switches) {
  const buttons = new Map();
  const only = (key) => {
    const chosen = switches.onlyMaterial === key ? null : key;
    switches.setOnlyMaterial(chosen);
    for (const [each, its] of buttons)
      its.setAttribute('aria-pressed', String(each === chosen));
    whole.disabled = chosen === null;
  };
  const whole = button('Show all materials', () => only(switches.onlyMaterial), { class: 'small', disabled: true });
  const materials = [...model.materials.values()].sort((a, b) => b.triangles - a.triangles);
  const list = element('ul', { 'aria-label': 'Materials' }, ...materials.map((each) => {
    const its = button('Only', () => only(each.key), { class: 'small', 'aria-pressed': 'false', 'aria-label': `Show only ${each.name}` });
    buttons.set(each.key, its);
    return element('li', { class: 'row', 'data-name': each.name }, swatchOf(each.material),
      element('span', { class: 'name' }, each.name, element('br'), element('small', { class: 'note' }, materialFacts(each))),
      element('span', { class: 'count', title: 'triangles' }, count(each.triangles)), its);
  }));
  return section('materials', 'Materials', materials.length, false, materials.length > rowsBeforeFilter ? filterField(list, 'Search materials') : null,
    element('p', {}, whole), list);
}

function lampWords(lamp) {
  const power = lamp.lumens === null ? '' : `, ${count(Math.round(lamp.lumens))} lm`;
  return `${lamp.name || `Lamp ${lamp.number}`}: ${lamp.type}${power}`;
}

function lampsSection(model, switches, stage) {
  if (model.lamps.length === 0)
    return null;
  const boxes = [];
  const list = element('ul', { 'aria-label': 'Lamps' }, ...model.lamps.map((lamp) => {
    const dot = element('span', { class: 'dot', title: lamp.color ?? 'no colour' });
    dot.style.backgroundColor = lamp.color ?? 'transparent';
    const { row, box } = switchRow(lampWords(lamp), lamp.on, (on) => switches.setLamp(lamp, on), dot,
      button('Go', () => stage.lookAt(lamp.object.getWorldPosition(stage.sphere.center.clone()), stage.sphere.radius / 2),
        { class: 'small', 'aria-label': `Go to ${lampWords(lamp)}` }));
    boxes.push(box);
    return element('li', { 'data-name': lampWords(lamp) }, row);
  }));
  const all = (on) => model.lamps.forEach((lamp, at) => {
    switches.setLamp(lamp, on);
    boxes[at].checked = on;
  });
  const slider = (words, value, most, oninput) =>
    element('label', {}, words, element('input', { type: 'range', min: 0, max: most, step: 0.05, value, oninput: (event) => oninput(Number(event.target.value)) }));
  return section('lamps', 'Lamps', model.lamps.length, false,
    slider('Light of the lamps', 1, 4, (power) => switches.setLampPower(power)),
    slider('Studio light', stage.studio, 2, (share) => stage.setStudioLight(share)),
    element('p', {}, button('All on', () => all(true), { class: 'small' }), ' ', button('All off', () => all(false), { class: 'small' })),
    model.lamps.length > rowsBeforeFilter ? filterField(list, 'Search lamps') : null, list,
    element('p', { class: 'note' }, 'The strongest sixteen that are on shine, without shadows.'));
}

function sectionsSection(model, switches) {
  if (model.sections.length === 0)
    return null;
  return section('sections', 'Section planes', model.sections.length, false, element('ul', { 'aria-label': 'Section planes' },
    ...model.sections.map((each) => element('li', {}, switchRow(each.name, each.on, (on) => switches.setSection(each, on)).row))));
}

// Lines of the stream lead to faces; other files have no place in the picture.
function hasPlace({ file, line }) {
  return file === 'batch_file.txt' && line > 0;
}

function findingsSection(facts, jump) {
  if (!facts.findings)
    return null;
  const { findings, skipped_findings: skipped = 0 } = facts;
  const found = findings.length + skipped;
  if (found === 0)
    return section('findings', 'Findings', 0, false, element('p', { class: 'note' }, 'The checker found nothing.'));
  return section('findings', 'Findings', found, true, ...findings.map((finding) => {
    const place = [finding.file, finding.line ? `line ${count(finding.line)}` : null].filter(Boolean).join(', ');
    return button(element('span', {}, element('span', { class: finding.severity }, `${finding.severity} `), `${finding.code}: ${finding.text}`,
      element('br'), element('small', { class: 'note' }, place)), () => jump(finding), { class: 'finding', disabled: !hasPlace(finding) });
  }), skipped > 0 ? element('p', { class: 'note' }, `and ${count(skipped)} more`) : null);
}

export function statistics(counts) {
  return section('statistics', 'Statistics', null, false, element('dl', {}, ...Object.entries(counts).flatMap(([name, value]) =>
    [element('dt', {}, name), element('dd', {}, typeof value === 'number' ? count(value) : value)])));
}

// Fills the panel. jump: called with a finding whose place is wanted.
export function fillPanel(panel, { facts, model, switches, stage, counts, jump }) {
  panel.replaceChildren(...[
    element('h1', {}, facts.title), findingsSection(facts, jump), layersSection(model, switches), materialsSection(model, switches),
    lampsSection(model, switches, stage), sectionsSection(model, switches), statistics(counts),
    section('about', 'About this page', null, false, element('p', { class: 'note' }, facts.program ?? ''),
      element('p', { class: 'note' }, 'Drawn with three.js. Its licence:'), element('pre', { class: 'note licence' }, LICENCE)),
  ].filter(Boolean));
}
