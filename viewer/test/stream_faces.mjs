// The triangles of a geometry stream, and which of them is seen in a pixel: read and reckoned apart from the page and
// from the programs, to hold both to it.

import { readFileSync } from 'node:fs';

const triple = (text) => text.replace(/[()]/g, '').split(',').map(Number);

// { corners, layer, material (its name), number, line, oneSided } of each triangle that a camera may see.
export function facesOf(file) {
  const faces = [];
  const names = new Map();
  let name = '';
  let block = {};
  readFileSync(file, 'latin1').split('\r\n').forEach((text, at) => {
    const [tag, payload] = [text.slice(0, 4), text.slice(5)];
    if (tag === 'MATF')
      name = payload;
    else if (tag === 'MATI')
      names.set(Number(payload), name);
    else if (tag === 'MESH')
      block = { vertices: [], layer: '', number: 0, back: 0, oneSided: false, unseen: false };
    else if (tag === 'TLAY')
      block.layer = payload;
    else if (tag === 'CULL')
      block.oneSided = payload === '1';
    else if (tag === 'INVS')
      block.unseen = payload === '1';
    else if (tag === 'MATL')
      block.number = Number(payload);
    else if (tag === 'VERT')
      block.vertices.push(triple(payload));
    else if (tag === 'FACE' && !block.unseen && block.number !== 1)
      faces.push({ corners: triple(payload).map((corner) => block.vertices[corner]), layer: block.layer, number: block.number,
        material: names.get(block.number), line: at + 1, oneSided: block.oneSided });
  });
  return faces;
}

const minus = (a, b) => [a[0] - b[0], a[1] - b[1], a[2] - b[2]];
const dot = (a, b) => a[0] * b[0] + a[1] * b[1] + a[2] * b[2];
const cross = (a, b) => [a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]];
const unit = (a) => a.map((value) => value / Math.sqrt(dot(a, a)));

// How far along a ray a triangle is met; infinity if it is not.
function metAt(eye, ray, { corners: [a, b, c], oneSided }) {
  const [one, other] = [minus(b, a), minus(c, a)];
  const p = cross(ray, other);
  const determinant = dot(one, p);
  if (Math.abs(determinant) < 1e-14 || (oneSided && determinant < 0))
    return Infinity;
  const from = minus(eye, a);
  const u = dot(from, p) / determinant;
  const q = cross(from, one);
  const v = dot(ray, q) / determinant;
  const far = dot(other, q) / determinant;
  return u < 0 || v < 0 || u + v > 1 || far <= 0 ? Infinity : far;
}

// The faces that are met first in the middle of a pixel, nearest and all that lie within a tenth of a millimetre of it.
// start: the view that the page was given; perspective.
export function seenIn(faces, start, width, height, x, y) {
  const forward = unit(minus(start.target, start.eye));
  const right = unit(cross(forward, start.up));
  const up = cross(right, forward);
  const half = Math.tan((start.field_of_view * Math.PI) / 360) / ((start.fov_is_vertical ? height : width) / 2);
  const ray = unit([0, 1, 2].map((i) => forward[i] + right[i] * (x - width / 2) * half + up[i] * (height / 2 - y) * half));
  const met = faces.map((face) => ({ face, far: metAt(start.eye, ray, face) })).filter(({ far }) => far < Infinity);
  const nearest = Math.min(...met.map(({ far }) => far));
  return met.filter(({ far }) => far - nearest < 1e-4).map(({ face }) => face);
}
