// The page in a real browser. Needs the programs of a build (TESSALINE_PROGRAMS), Chromium, and for some the folder of
// the real models (TESSALINE_SAMPLES).

import assert from 'node:assert/strict';
import { appendFileSync, readFileSync, statSync, writeFileSync } from 'node:fs';
import { join } from 'node:path';
import { after, before, test as nodeTest } from 'node:test';
import { exampleBatch, folder, sampleBatch, samples, size, viewBatch, viewModel } from './made_pages.mjs';
import {
  colours, covered, difference, openPage, overlap, pictureOf, pictureOfFile, startBrowser, stopBrowser,
} from './opened_page.mjs';
import { facesOf, seenIn } from './stream_faces.mjs';

const [width, height] = size;

// A page that waits for ever fails its test and does not hold up the others.
function test(name, options, body) {
  if (typeof options === 'function')
    return nodeTest(name, { timeout: 60000 }, options);
  return nodeTest(name, { timeout: 60000, ...options }, body);
}

const made = {};

// Made once, by the first test that asks for it.
function example(name) {
  made[name] ??= (() => {
    const batch = exampleBatch(name);
    return { batch, ...viewBatch(batch, name) };
  })();
  return made[name];
}

// Till the browser has drawn what changed, and told the page what it tells with a picture.
const drawnAnew = (page) => page.evaluate(() => new Promise((resume) => requestAnimationFrame(() => requestAnimationFrame(resume))));

// Opened with the panel away, so that the canvas is as large as the picture of the program.
async function bare(file) {
  const opened = await openPage(file, width, height);
  await opened.page.evaluate(() => { document.getElementById('panel').hidden = true; });
  await drawnAnew(opened.page);
  return opened;
}

async function unfold(page, id) {
  await page.evaluate((section) => document.getElementById(section).setAttribute('open', ''), id);
}

before(startBrowser);
after(stopBrowser);

async function agrees({ page: file, picture }) {
  const { page, errors, requests } = await bare(file);
  const shown = await pictureOf(page);
  const drawn = await pictureOfFile(page, picture);
  assert.deepEqual([shown.width, shown.height], [width, height]);
  const share = overlap(shown, drawn);
  assert.ok(covered(shown) > 0.01, `only ${covered(shown)} of the picture is covered`);
  assert.ok(colours(shown) > 3, `there are only ${colours(shown)} colours`);
  assert.ok(share > 0.97, `the outlines agree in ${share} only`);
  assert.deepEqual(errors, []);
  // What the page unpacks itself has an address within it.
  assert.deepEqual(requests.filter((address) => !address.startsWith('blob:') && !address.startsWith('data:')), []);
  await page.close();
}

for (const name of ['room', 'garden', 'stages'])
  test(`the page of the ${name} shows what our own picture shows, without an error or a request`, () => agrees(example(name)));

const someSamples = ['jmsmi-apartment-3150', 'openskp-gondola_v20', 'playdate-cabinet', 'projectm6-bluebridge', 'testup-ui-textured', 'traficulution-car'];
for (const name of someSamples)
  test(`the page of the model ${name} shows what our own picture shows`, { skip: samples === '' }, () =>
    agrees(viewModel(join(samples, `${name}.skp`), name)));

for (const name of ['playdate-cabinet', 'jmsmi-apartment-3150'])
  test(`the page of the batch of ${name} shows what our own picture shows`, { skip: samples === '' }, () =>
    agrees(viewBatch(sampleBatch(`${name}`), `batch-${name}`)));

test('the page of the room has less than 1.2 MB', () => {
  assert.ok(statSync(example('room').page).size < 1200000);
});

test('a layer that is switched off leaves the picture, and comes back', async () => {
  const { page } = await openPage(example('room').page, 900, 600);
  const whole = await pictureOf(page);
  const walls = page.getByRole('checkbox', { name: 'Walls' });
  await walls.uncheck();
  const without = await pictureOf(page);
  assert.ok(difference(whole, without) > 0.1);
  await walls.check();
  assert.ok(difference(whole, await pictureOf(page)) < 0.001);
  await page.close();
});

test('a material shown alone is all that is shown', async () => {
  const { page } = await openPage(example('room').page, 900, 600);
  const whole = await pictureOf(page);
  await unfold(page, 'materials');
  await page.getByRole('button', { name: 'Show only Rug' }).click();
  const rug = await pictureOf(page);
  assert.ok(covered(rug) > 0.005 && covered(rug) < covered(whole) / 2, `${covered(rug)} of ${covered(whole)}`);
  for (let at = 0; at < rug.pixels.length; at += 4)
    assert.ok(rug.pixels[at + 3] < 200 || rug.pixels[at] > 1.5 * rug.pixels[at + 1], 'the rug is red');
  await page.getByRole('button', { name: 'Show all materials' }).click();
  assert.ok(difference(whole, await pictureOf(page)) < 0.001);
  await page.close();
});

test('a lamp that is switched off leaves the room darker and its outlines as they are', async () => {
  const { page } = await openPage(example('room').page, 900, 600);
  const light = await pictureOf(page);
  await unfold(page, 'lamps');
  await page.getByRole('checkbox', { name: /^lamp 0: bulb, 1,275 lm/ }).uncheck();
  const dark = await pictureOf(page);
  const sum = ({ pixels }) => pixels.reduce((total, value, at) => total + (at % 4 < 3 ? value : 0), 0);
  assert.ok(difference(light, dark) > 0.01);
  assert.ok(sum(dark) < sum(light));
  assert.equal(overlap(light, dark), 1);
  await page.close();
});

// Lamp 5 and the cushions have one material; here it glows.
test('the shape of a glowing lamp goes dark with it, and nothing else of its material does', async () => {
  const { batch } = example('room');
  const material = join(batch, 'ZynBatch_Materials', 'COL%3a0010_Cushion.qlobj');
  const plain = readFileSync(material, 'latin1');
  writeFileSync(material, `${plain}Glow: 1\r\n`, 'latin1');
  const file = viewBatch(batch, 'glowing').page;
  writeFileSync(material, plain, 'latin1');
  const { page } = await openPage(file, 900, 600);
  const glowing = () => page.evaluate(() => window.tessaline.model.items
    .filter((item) => item.material === 'number 15' && item.object.material.emissive.getHex() > 0).map((item) => item.lamp));
  const before = await glowing();
  assert.ok(before.includes(5) && before.includes(null), `what glows belongs to the lamps ${before}`);
  await unfold(page, 'lamps');
  const lamp = page.getByRole('checkbox', { name: /^lamp 5: round_glow, 425 lm/ });
  await lamp.uncheck();
  assert.deepEqual(await glowing(), before.filter((number) => number !== 5));
  await lamp.check();
  assert.deepEqual(await glowing(), before);
  await page.close();
});

test('a view of the list changes the picture, and the first one brings it back', async () => {
  const { page } = await openPage(example('room').page, 900, 600);
  const start = await pictureOf(page);
  const views = page.getByRole('combobox', { name: 'Views of the model' });
  assert.ok((await views.locator('option').allTextContents()).includes('view'));
  await views.selectOption({ label: 'From above' });
  assert.ok(difference(start, await pictureOf(page)) > 0.2);
  await views.selectOption({ label: 'Start' });
  assert.ok(difference(start, await pictureOf(page)) < 0.001);
  await page.close();
});

test('edges can be switched off', { skip: samples === '' }, async () => {
  const { page } = await openPage(viewModel(join(samples, 'jmsmi-apartment-3150.skp'), 'edges').page, 900, 600);
  const whole = await pictureOf(page);
  const edges = page.getByRole('button', { name: 'Edges' });
  await edges.click();
  assert.ok(difference(whole, await pictureOf(page)) > 0.005);
  assert.equal(await edges.getAttribute('aria-pressed'), 'false');
  await page.close();
});

test('a section plane takes away what lies on one side of it', { skip: samples === '' }, async () => {
  const { page } = await openPage(viewModel(join(samples, 'devtools-sectionPlane.skp'), 'sections').page, 900, 600);
  const whole = await pictureOf(page);
  await unfold(page, 'sections');
  await page.getByRole('checkbox', { name: 'section plane 1' }).check();
  const cut = await pictureOf(page);
  assert.ok(difference(whole, cut) > 0.05);
  assert.ok(covered(cut) > 0.01);
  await page.close();
});

test('a click tells layer, material and line of the face that is there', async () => {
  const { batch, page: file } = example('room');
  const { page } = await bare(file);
  const faces = facesOf(join(batch, 'batch_file.txt'));
  const start = JSON.parse(await page.locator('#facts').textContent()).start;
  let asked = 0;
  for (let x = 50.5; x < width; x += 60)
    for (let y = 70.5; y < height; y += 60) {
      const seen = seenIn(faces, start, width, height, x, y);
      if (seen.length === 0)
        continue;
      await page.keyboard.press('Escape'); // what was told of the last one may lie there
      await page.mouse.click(x, y);
      const told = await page.locator('#picked').innerText();
      const fits = seen.some((face) => told.includes(`${face.line.toLocaleString('en')} of batch_file.txt`) && told.includes(face.layer) &&
        told.includes(String(face.number)));
      assert.ok(fits, `at ${x}, ${y} there are lines ${seen.map((face) => face.line)}, and the page tells ${told}`);
      asked += 1;
    }
  assert.ok(asked > 15, `only ${asked} faces were met`);
  await page.close();
});

test('a click on nothing tells nothing', async () => {
  const { page } = await openPage(example('room').page, 900, 600);
  await unfold(page, 'materials');
  await page.getByRole('button', { name: 'Show only Rug' }).click();
  await page.mouse.click(20, 580);
  assert.equal(await page.locator('#picked').isVisible(), false);
  await page.close();
});

test('a click in a model tells the path of components', { skip: samples === '' }, async () => {
  const { page } = await bare(viewModel(join(samples, 'traficulution-car.skp'), 'path').page);
  await page.getByRole('button', { name: 'Fit' }).click();
  await page.mouse.click(width / 2, height / 2);
  assert.match(await page.locator('#picked').innerText(), /traficulution-car\.skp › Car/);
  await page.close();
});

test('a finding of the checker leads to its place', async () => {
  const { batch } = example('garden');
  const stream = join(batch, 'batch_file.txt');
  const whole = readFileSync(stream, 'latin1');
  const lines = whole.split('\r\n');
  const line = lines.findIndex((text) => text.startsWith('FACE;')); // counted from 0, so it is the line ahead
  lines.splice(line + 1, 0, 'FACE;0,1,99999');
  writeFileSync(stream, lines.join('\r\n'), 'latin1');
  const file = viewBatch(batch, 'damaged').page;
  writeFileSync(stream, whole, 'latin1');
  const { page } = await openPage(file, 900, 600);
  const finding = page.locator('.finding', { hasText: `line ${(line + 2).toLocaleString('en')}` }).first();
  await finding.click();
  assert.match(await page.locator('#picked').innerText(), new RegExp(`${(line + 1).toLocaleString('en')} of batch_file.txt`));
  await page.close();
});

test('all can be done with the keys', async () => {
  const { page } = await openPage(example('room').page, 900, 600);
  const camera = () => page.evaluate(() => window.tessaline.stage.camera.position.toArray());
  await page.locator('#canvas').focus();
  const places = [await camera()];
  for (const key of ['ArrowLeft', 'ArrowUp', 'Shift+ArrowRight', '+', '2', 'f']) {
    await page.keyboard.press(key);
    places.push(await camera());
  }
  for (let at = 1; at < places.length; at += 1)
    assert.notDeepEqual(places[at], places[at - 1]);
  await page.keyboard.press('Enter');
  assert.ok(await page.locator('#picked').isVisible());
  await page.keyboard.press('Escape');
  assert.equal(await page.locator('#picked').isVisible(), false);
  await page.keyboard.press('h');
  assert.ok(await page.getByRole('dialog').isVisible());
  await page.keyboard.press('Escape');
  assert.equal(await page.getByRole('dialog').isVisible(), false);
  await page.keyboard.press('p');
  assert.equal(await page.locator('#panel').isVisible(), false);
  await page.keyboard.press('p');
  await page.locator('#panel-switch').focus();
  const reached = [];
  for (let at = 0; at < 12; at += 1) {
    await page.keyboard.press('Tab');
    reached.push(await page.evaluate(() => document.activeElement.textContent || document.activeElement.type));
  }
  assert.ok(reached.includes('checkbox') && reached.some((text) => text.startsWith('Materials')), reached.join(', '));
  await page.close();
});

test('the materials of a layer are a list that a key opens', async () => {
  const { page } = await openPage(example('room').page, 900, 600);
  assert.equal(await page.locator('[role=tree], [role=treeitem]').count(), 0); // those would have to heed the arrows
  const materials = page.getByRole('list', { name: 'Materials of Walls' });
  assert.equal(await materials.isVisible(), false);
  await page.getByRole('button', { name: 'Materials of Walls' }).focus();
  await page.keyboard.press('Enter');
  assert.ok(await materials.isVisible());
  assert.ok(await materials.getByRole('listitem').count() > 0);
  await page.close();
});

test('light and dark follow the system until somebody chooses', async () => {
  const { page } = await openPage(example('room').page, 900, 600, { colorScheme: 'dark' });
  const theme = () => page.evaluate(() => document.documentElement.dataset.theme);
  const systemBecomes = async (colorScheme) => {
    await page.emulateMedia({ colorScheme });
    await drawnAnew(page);
  };
  assert.equal(await theme(), 'dark');
  await systemBecomes('light');
  assert.equal(await theme(), 'light');
  await page.getByRole('button', { name: 'Theme' }).click();
  assert.equal(await theme(), 'dark');
  await systemBecomes('dark');
  await systemBecomes('light');
  assert.equal(await theme(), 'dark');
  await page.close();
});

test('360 pixels are wide enough', async () => {
  const { page } = await openPage(example('room').page, 360, 640);
  const over = () => page.evaluate(() => document.documentElement.scrollWidth - window.innerWidth);
  assert.ok(await over() <= 0);
  await page.getByRole('button', { name: 'Panel' }).click();
  assert.ok(await page.locator('#panel').isVisible());
  assert.ok(await over() <= 0);
  for (const id of ['layers', 'materials', 'lamps', 'statistics'])
    await unfold(page, id);
  const panel = await page.locator('#panel').evaluate((element) => element.scrollWidth - element.clientWidth);
  assert.ok(panel <= 0, `the panel is ${panel} pixels too wide`);
  assert.ok(covered(await pictureOf(page)) > 0.01);
  await page.close();
});

test('the policy of the page forbids what is not in it', async () => {
  const { page, errors } = await openPage(example('room').page, 900, 600);
  const refused = await page.evaluate(() => new Promise((resume) => {
    document.addEventListener('securitypolicyviolation', (event) => resume(event.effectiveDirective));
    fetch('http://127.0.0.1:9/').catch(() => setTimeout(() => resume('nothing refused it'), 1000));
  }));
  assert.equal(refused, 'connect-src');
  assert.equal(errors.length > 0, true);
  await page.close();
});

test('a page whose model is cut off says so', async () => {
  const text = readFileSync(example('room').page, 'utf8');
  const file = join(folder, 'cut.html');
  const piece = text.indexOf('class="piece">') + 'class="piece">'.length;
  writeFileSync(file, `${text.slice(0, piece + 4000)}</script>`);
  appendFileSync(file, '</body></html>');
  const { page } = await openPage(file, 900, 600);
  assert.equal(await page.title(), 'Cannot be shown');
  assert.match(await page.locator('#loading').innerText(), /cannot be shown/);
  await page.close();
});
