import assert from 'node:assert/strict';
import { test } from 'node:test';
import { lineOf, nearestTriangle } from '../src/stream_lines.js';

// Triangles 0 to 2 on lines 100 to 102, triangles 3 and 4 on lines 200 and 201.
const table = [[0, 100], [3, 200]];

test('the triangles of a run stand on consecutive lines', () => {
  assert.equal(lineOf(table, 0), 100);
  assert.equal(lineOf(table, 2), 102);
  assert.equal(lineOf(table, 3), 200);
  assert.equal(lineOf(table, 4), 201);
});

test('without a table no triangle has a line', () => {
  assert.equal(lineOf(null, 0), null);
  assert.equal(lineOf([[2, 7]], 1), null);
});

test('a line leads to the triangle that it made', () => {
  const items = [{ lines: [[0, 10]], triangles: 4 }, { lines: table, triangles: 5 }, { lines: null, triangles: 9 }];
  assert.deepEqual(nearestTriangle(items, 201), { item: items[1], triangle: 4, distance: 0 });
  assert.deepEqual(nearestTriangle(items, 12), { item: items[0], triangle: 2, distance: 0 });
});

test('a line between two runs leads to the nearer one', () => {
  const items = [{ lines: table, triangles: 5 }];
  assert.deepEqual(nearestTriangle(items, 105), { item: items[0], triangle: 2, distance: 3 });
  assert.deepEqual(nearestTriangle(items, 196), { item: items[0], triangle: 3, distance: 4 });
  assert.deepEqual(nearestTriangle(items, 900), { item: items[0], triangle: 4, distance: 699 });
});

test('no line leads anywhere where nothing has lines', () => {
  assert.equal(nearestTriangle([{ lines: null, triangles: 1 }, { lines: [], triangles: 1 }], 5), null);
});
