// How long a batch of a million triangles takes: to become a page, and in a real browser to open, to draw a frame and to
// tell what a click meets. Prints the figures; docs/viewer.md holds them. Run by hand: ./dev page-bench

import assert from 'node:assert/strict';
import { mkdirSync, statSync, writeFileSync } from 'node:fs';
import { join } from 'node:path';
import { folder, viewBatch } from './made_pages.mjs';
import { covered, openPage, pictureOf, startBrowser, stopBrowser } from './opened_page.mjs';

const layers = 8;
const squaresOfLayer = 62500; // of two triangles
const side = 250; // squares in a row

// Each layer is a level surface, a metre above the one before.
function layerText(layer) {
  const lines = [];
  for (let square = 0; square < squaresOfLayer; square += 1) {
    const [x, y] = [square % side, Math.floor(square / side)];
    lines.push('MESH;', `TLAY;Layer${layer}`, 'CULL;0', 'MATL;0', 'MAT2;0');
    for (const [number, [u, v]] of [[0, 0], [0.9, 0], [0.9, 0.9], [0, 0.9]].entries())
      lines.push('NORM;(0,0,1)', `VERT;(${x + u},${y + v},${layer + ((x + y) % 7) / 10})`, `ADDV;${number}`);
    lines.push('FACE;0,1,2', 'FACE;0,2,3', 'EMSH;');
  }
  return `${lines.join('\r\n')}\r\n`;
}

const seconds = (milliseconds) => `${(milliseconds / 1000).toFixed(2)} s`;

const batch = join(folder, 'million');
mkdirSync(batch);
writeFileSync(join(batch, 'batch_file.txt'), `#;\r\n${Array.from({ length: layers }, (_, at) => layerText(at)).join('')}END;\r\n`);
let began = performance.now();
const { page: file } = viewBatch(batch, 'million');
console.log(`stream: ${statSync(join(batch, 'batch_file.txt')).size} bytes; page: ${statSync(file).size} bytes`);
console.log(`page and picture made in ${seconds(performance.now() - began)}`);
await startBrowser();
began = performance.now();
const { page, errors, requests } = await openPage(file, 900, 600);
console.log(`opened in ${seconds(performance.now() - began)}`);
const triangles = await page.evaluate(() => window.tessaline.model.items.reduce((sum, item) => sum + item.triangles, 0));
assert.equal(triangles, 2 * layers * squaresOfLayer);
assert.deepEqual(errors, []);
assert.deepEqual(requests.filter((address) => !address.startsWith('blob:') && !address.startsWith('data:')), []);
assert.ok(covered(await pictureOf(page)) > 0.01);
for (const [what, work] of [['a frame', 'draw'], ['a click', 'pick']]) {
  const took = await page.evaluate((name) => {
    const { stage } = window.tessaline;
    const start = performance.now();
    if (name === 'draw') {
      stage.draw();
      const drawing = stage.renderer.getContext(); // it has drawn when a pixel can be read, and not before
      drawing.readPixels(0, 0, 1, 1, drawing.RGBA, drawing.UNSIGNED_BYTE, new Uint8Array(4));
    } else {
      window.tessaline.pick(450, 300);
    }
    return performance.now() - start;
  }, work);
  console.log(`${what}: ${seconds(took)}`);
}
await stopBrowser();
