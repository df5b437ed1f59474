// One drawing call for many placements of one thing: a model of a hundred thousand screws would else draw each alone.

import { InstancedMesh, Matrix4 } from 'three';

const fewest = 8; // placements from which it is worth while

const mirror = new Matrix4().makeScale(-1, 1, 1);

function kindOf(item) {
  const { geometry, material, matrixWorld } = item.object;
  return [geometry.uuid, material.uuid, item.lamp, matrixWorld.determinant() < 0, ...item.layers].join('\n');
}

// The side that a triangle shows is told by the object as a whole, so mirrored placements hang in a mirrored object.
function instanced(items) {
  const first = items[0].object;
  const together = new InstancedMesh(first.geometry, first.material, items.length);
  const mirrored = first.matrixWorld.determinant() < 0;
  const placed = new Matrix4();
  items.forEach((item, at) => {
    placed.copy(item.object.matrixWorld);
    together.setMatrixAt(at, mirrored ? placed.premultiply(mirror) : placed);
  });
  if (mirrored)
    together.applyMatrix4(mirror);
  together.userData = { ...first.userData };
  return { ...items[0], object: together, paths: items.map((item) => item.paths[0]) };
}

// items: as model.js makes them, each with one path. Those of one geometry, material and layers become one item with
// a path for each placement; its object hangs at the root, for matrices are those of the world. Lines stay as they are.
export function gatherInstances(items) {
  const kinds = new Map();
  for (const item of items) {
    const kind = item.object.isMesh ? kindOf(item) : item.object.uuid;
    if (!kinds.has(kind))
      kinds.set(kind, []);
    kinds.get(kind).push(item);
  }
  const result = [];
  for (const alike of kinds.values()) {
    if (alike.length < fewest) {
      result.push(...alike);
      continue;
    }
    let root = alike[0].object;
    while (root.parent)
      root = root.parent;
    const item = instanced(alike);
    for (const { object } of alike)
      replaceByNothing(object);
    root.add(item.object);
    item.object.updateMatrixWorld(true);
    result.push(item);
  }
  return result;
}

// A mesh may have children of its own, which stay.
function replaceByNothing(mesh) {
  mesh.layers.disableAll();
  mesh.userData.gathered = true;
}
