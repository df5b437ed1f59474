// What a loaded GLB holds, as the panel and the switches need it: items that can be shown or hidden, and the layers,
// materials, lamps and section planes that they belong to.

import { Plane, Vector3 } from 'three';
import { gatherInstances } from './instancing.js';
import { boxOf, turned, viewOfCamera } from './views.js';

// The name that the model gave; three.js changes names that it would use in paths.
export function nameOf(object) {
  return object.userData.name ?? object.name ?? '';
}

// A table under keys in the order in which they come up.
function entry(map, key, make) {
  if (!map.has(key))
    map.set(key, make());
  return map.get(key);
}

function layersOf(mesh) {
  const names = [];
  const own = mesh.geometry.userData.layer;
  if (own !== undefined)
    names.push(own);
  for (let object = mesh; object; object = object.parent)
    if (object.userData.layer !== undefined && !names.includes(object.userData.layer))
      names.push(object.userData.layer);
  return names.length > 0 ? names : ['without a layer'];
}

function pathOf(mesh) {
  const names = [];
  for (let object = mesh; object.parent; object = object.parent)
    if (object.userData.name !== undefined && object.userData.name !== names[0])
      names.unshift(object.userData.name);
  return names;
}

function inherited(object, key) {
  for (let at = object; at; at = at.parent)
    if (at.userData[key] !== undefined)
      return at.userData[key];
  return undefined;
}

function trianglesOf(mesh) {
  if (!mesh.isMesh)
    return 0;
  const { index, attributes } = mesh.geometry;
  return Math.floor((index ?? attributes.position).count / 3);
}

export function materialKey(material) {
  const number = material.userData.material_number;
  if (number !== undefined)
    return `number ${number}`;
  return material.name ? `name ${material.name}` : `unnamed ${material.uuid}`;
}

function itemOf(mesh) {
  const { geometry } = mesh;
  return {
    object: mesh,
    layers: layersOf(mesh),
    material: materialKey(mesh.material),
    isEdge: !mesh.isMesh || inherited(mesh, 'edges') === true,
    lamp: geometry.userData.lamp_number ?? inherited(mesh, 'lamp_number') ?? null,
    triangles: trianglesOf(mesh),
    lines: geometry.userData.lines ?? null,
    paths: [pathOf(mesh)],
  };
}

// Glass is drawn as something half clear: a second pass for what shines through would cost more than it shows here.
// Edges lie on faces, which therefore stand back a little.
function prepare(material) {
  material.polygonOffset = true;
  material.polygonOffsetFactor = 1;
  material.polygonOffsetUnits = 1;
  if (material.map)
    material.map.anisotropy = 8; // floors are seen at a flat angle
  if (material.transmission > 0) {
    material.opacity = Math.min(material.opacity, 1 - 0.75 * material.transmission);
    material.transparent = true;
    material.depthWrite = false;
    material.transmission = 0;
  }
}

function lampsOf(root, items) {
  const lamps = new Map();
  root.traverse((object) => {
    const number = object.userData.lamp_number;
    if (number !== undefined)
      Object.assign(entry(lamps, number, () => ({ number, light: null, on: true })), {
        name: nameOf(object),
        type: object.userData.lamp_type ?? 'lamp',
        lumens: object.userData.lumens ?? null,
        object,
      });
  });
  root.traverse((object) => {
    if (!object.isLight)
      return;
    const number = inherited(object, 'lamp_number') ?? `sun ${lamps.size}`;
    const lamp = entry(lamps, number, () => ({
      number, name: nameOf(object) || 'Sun', type: object.isDirectionalLight ? 'sun' : object.type, lumens: null, object, on: true,
    }));
    lamp.light = object;
    lamp.color = `#${object.color.getHexString()}`;
    lamp.intensity = object.intensity;
  });
  for (const lamp of lamps.values())
    lamp.items = items.filter((item) => item.lamp === lamp.number);
  return [...lamps.values()];
}

function sectionsOf(root) {
  const listed = root.userData.section_planes ?? [];
  return listed.map(({ name, plane: [a, b, c, d] }, at) => {
    const normal = turned([a, b, c]);
    const length = normal.length() || 1;
    // three.js keeps what lies on the side of the normal; the plane of a model hides that side.
    return { name: name || `Section ${at + 1}`, on: false, plane: new Plane(normal.divideScalar(-length), -d / length) };
  });
}

function tablesOf(items) {
  const layers = new Map();
  const materials = new Map();
  for (const item of items) {
    const times = item.paths.length;
    const material = entry(materials, item.material, () => ({
      key: item.material, name: item.object.material.name || 'without a name', material: item.object.material, triangles: 0, objects: [],
      number: item.object.material.userData.material_number,
    }));
    material.objects.push(item.object);
    material.triangles += item.triangles * times;
    const layer = entry(layers, item.layers[0], () => newLayer(item.layers[0]));
    layer.triangles += item.triangles * times;
    layer.materials.set(item.material, (layer.materials.get(item.material) ?? 0) + item.triangles * times);
    for (const name of item.layers.slice(1))
      entry(layers, name, () => newLayer(name));
  }
  return { layers, materials };
}

function newLayer(name) {
  return { name, on: true, triangles: 0, materials: new Map() };
}

// gltf: what the loader gave. The result: { root, items, layers, materials (by key), lamps, sections, views, box, counts }.
export function readModel(gltf) {
  const root = gltf.scene;
  root.updateMatrixWorld(true);
  const drawn = [];
  root.traverse((object) => {
    if (object.isMesh || object.isLine || object.isLineSegments)
      drawn.push(object);
  });
  const items = gatherInstances(drawn.map(itemOf));
  const tables = tablesOf(items);
  for (const { objects } of tables.materials.values())
    for (const object of objects)
      prepare(object.material);
  root.traverse((object) => {
    if (object.userData.layer !== undefined && object.userData.visible === false)
      entry(tables.layers, object.userData.layer, () => newLayer(object.userData.layer)).on = false;
  });
  const box = boxOf(items.filter((item) => !item.isEdge).map((item) => item.object));
  const lamps = lampsOf(root, items);
  return {
    root, items, ...tables, lamps, box,
    sections: sectionsOf(root),
    views: gltf.cameras.filter((camera) => camera.parent).map((camera) => viewOfCamera(camera, box)),
    counts: countsOf(root, items, tables, lamps, box),
  };
}

function countsOf(root, items, { layers, materials }, lamps, box) {
  const pictures = new Set();
  for (const { material } of materials.values())
    if (material.map)
      pictures.add(material.map.source.uuid);
  const size = box.getSize(new Vector3());
  const metres = (value) => value.toLocaleString('en', { maximumFractionDigits: 3 });
  const counts = {
    Triangles: items.reduce((sum, item) => sum + item.triangles * item.paths.length, 0),
    'Drawn at once': items.length,
    Layers: layers.size,
    Materials: materials.size,
    Pictures: pictures.size,
    Lamps: lamps.length,
    'Size in metres': `${metres(size.x)} × ${metres(size.z)} × ${metres(size.y)}`,
  };
  for (const [key, value] of Object.entries(root.userData.counts ?? {})) {
    const name = key.charAt(0).toUpperCase() + key.slice(1).replaceAll('_', ' ');
    if (typeof value === 'number' && !(name in counts))
      counts[name] = value;
  }
  return counts;
}
