// The page from its first line to the title that says that it is ready.

import { GLTFLoader } from 'three/addons/loaders/GLTFLoader.js';
import { facts, unpackedGlb } from './data.js';
import { count, element } from './elements.js';
import { listenToKeys } from './keys.js';
import { readModel } from './model.js';
import { fillPanel } from './panel.js';
import { Picker } from './picking.js';
import { Stage } from './stage.js';
import { nearestTriangle } from './stream_lines.js';
import { lightScales, Switches } from './switches.js';
import { followTheme, switchTheme } from './theme.js';
import { sides, viewOfFacts } from './views.js';

const byId = (id) => document.getElementById(id);

function tellProgress(words, share) {
  byId('loading-text').textContent = words;
  byId('progress').value = share;
}

function fail(error) {
  byId('loading').classList.add('failed');
  byId('loading').hidden = false;
  byId('loading-text').textContent = `The model cannot be shown: ${error.message ?? error}`;
  document.title = 'Cannot be shown';
}

function showPicked(found) {
  const box = byId('picked');
  box.hidden = found === null;
  if (!found)
    return;
  const rows = [['Layer', found.layer], ['Material', found.material], ['Number', found.materialNumber],
    ['Line', found.line === null ? null : `${count(found.line)} of batch_file.txt`],
    ['Path', found.line === null ? found.path.join(' › ') : null]];
  box.replaceChildren(element('dl', {}, ...rows.filter(([, value]) => value !== null && value !== undefined && value !== '')
    .flatMap(([name, value]) => [element('dt', {}, name), element('dd', {}, String(value))])));
}

class Page {
  constructor(told, model, stage) {
    this.told = told;
    this.stage = stage;
    this.model = Object.assign(model, lightScales(model));
    // Lamps shall be seen at work, so the light of the studio steps back where there are any.
    stage.setStudioLight(model.lamps.length > 0 ? 0.6 : 1);
    stage.show(model);
    this.switches = new Switches(model, stage);
    this.picker = new Picker(model, stage);
    this.listViews();
    this.showView(0);
    this.wire();
  }

  listViews() {
    const first = this.told.start ? viewOfFacts(this.told.start) : { ...sides(this.model.box)[0], name: 'Start' };
    this.views = [first, ...this.model.views, ...sides(this.model.box)];
    byId('views').replaceChildren(...this.views.map((view, at) => element('option', { value: String(at) }, view.name || `View ${at}`)));
  }

  showView(number) {
    if (!this.views[number])
      return;
    byId('views').value = String(number);
    this.stage.setView(this.views[number]);
  }

  pick(x, y) {
    this.picked = this.picker.at(x, y);
    this.picker.show(this.picked);
    showPicked(this.picked);
  }

  clear() {
    this.picked = null;
    this.picker.show(null);
    showPicked(null);
  }

  // To the place of a finding: the triangle whose line is nearest.
  jump(finding) {
    const near = nearestTriangle(this.model.items, finding.line);
    if (!near)
      return;
    this.picked = this.picker.found(near.item, near.triangle, 0, null);
    const corners = this.picker.corners(near.item, near.triangle, 0);
    const middle = corners[0].clone().add(corners[1]).add(corners[2]).divideScalar(3);
    const reach = Math.max(...corners.map((corner) => corner.distanceTo(middle)));
    this.stage.lookAt(middle, Math.max(6 * reach, this.stage.sphere.radius / 50));
    this.picker.show(this.picked);
    showPicked(this.picked);
  }

  toggleEdges() {
    this.switches.setEdges(!this.switches.edges);
    byId('edges').setAttribute('aria-pressed', String(this.switches.edges));
  }

  togglePanel() {
    byId('panel').hidden = !byId('panel').hidden;
    byId('panel-switch').setAttribute('aria-expanded', String(!byId('panel').hidden));
  }

  wire() {
    const { canvas } = this.stage;
    const middle = () => [canvas.clientWidth / 2, canvas.clientHeight / 2];
    const help = () => byId('keys').showModal();
    byId('fit').onclick = () => this.stage.fit();
    byId('edges').onclick = () => this.toggleEdges();
    byId('theme').onclick = switchTheme;
    byId('help').onclick = help;
    byId('panel-switch').onclick = () => this.togglePanel();
    byId('views').onchange = (event) => this.showView(Number(event.target.value));
    let pressed = null;
    canvas.addEventListener('pointerdown', (event) => {
      pressed = event.button === 0 ? [event.offsetX, event.offsetY] : null;
    });
    canvas.addEventListener('pointerup', (event) => {
      if (pressed && Math.hypot(event.offsetX - pressed[0], event.offsetY - pressed[1]) < 4)
        this.pick(event.offsetX, event.offsetY);
      pressed = null;
    });
    listenToKeys(canvas, byId('keys'), {
      fit: () => this.stage.fit(), edges: () => this.toggleEdges(), theme: switchTheme, help, panel: () => this.togglePanel(),
      pick: () => this.pick(...middle()), clear: () => this.clear(), view: (number) => this.showView(number),
      turn: (around, over) => this.stage.turn(around, over), pan: (right, up) => this.stage.pan(right, up), zoom: (by) => this.stage.zoom(by),
    });
  }
}

async function start() {
  const began = performance.now();
  const told = facts();
  if (!told)
    throw new Error('the page holds no model');
  document.title = `Loading ${told.title}`;
  if (window.innerWidth <= 700)
    byId('panel').hidden = true;
  byId('panel-switch').setAttribute('aria-expanded', String(!byId('panel').hidden));
  const stage = new Stage(byId('canvas'));
  const bytes = await unpackedGlb(told.glb_bytes, (share) => tellProgress('Unpacking the model', 0.8 * share));
  tellProgress('Building the model', 0.85);
  const model = readModel(await new GLTFLoader().parseAsync(bytes, ''));
  tellProgress('Drawing', 0.95);
  const page = new Page(told, model, stage);
  stage.draw();
  const seconds = (performance.now() - began) / 1000;
  fillPanel(byId('panel'), {
    facts: told, model, switches: page.switches, stage, jump: (finding) => page.jump(finding),
    counts: { ...model.counts, 'Bytes of the model': told.glb_bytes, 'Seconds to open': seconds.toFixed(2) },
  });
  byId('loading').hidden = true;
  window.tessaline = page;
  document.title = told.title;
}

followTheme();
window.addEventListener('DOMContentLoaded', () => start().catch(fail));
