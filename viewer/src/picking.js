// What a click meets, and marks on what was met.

import { BufferAttribute, BufferGeometry, DoubleSide, Mesh, MeshBasicMaterial, Matrix4, Raycaster, Vector2, Vector3 } from 'three';
import { lineOf } from './stream_lines.js';

export class Picker {
  constructor(model, stage) {
    this.model = model;
    this.stage = stage;
    this.items = new Map(model.items.map((item) => [item.object, item]));
    this.mark = new Mesh(new BufferGeometry(), new MeshBasicMaterial({
      color: 0xff7a00, transparent: true, opacity: 0.55, side: DoubleSide, depthTest: false, toneMapped: false,
    }));
    this.mark.renderOrder = 1;
    this.mark.visible = false;
    this.mark.frustumCulled = false;
    stage.scene.add(this.mark);
  }

  // x, y: pixels from the left and the top of the canvas. Gives { item, triangle, instance, point, layer, material,
  // materialNumber, path, line } of the face that is seen there, null if there is none.
  at(x, y) {
    const { clientWidth, clientHeight } = this.stage.canvas;
    const ray = new Raycaster();
    this.stage.camera.updateMatrixWorld(); // the frame with its last move may still be due
    ray.setFromCamera(new Vector2((2 * x) / clientWidth - 1, 1 - (2 * y) / clientHeight), this.stage.camera);
    const planes = this.stage.renderer.clippingPlanes;
    const meshes = this.model.items.filter((item) => !item.isEdge).map((item) => item.object);
    const hit = ray.intersectObjects(meshes, false).find((each) => planes.every((plane) => plane.distanceToPoint(each.point) >= 0));
    return hit ? this.found(this.items.get(hit.object), hit.faceIndex, hit.instanceId ?? 0, hit.point) : null;
  }

  // A triangle of an item, as `at` gives it.
  found(item, triangle, instance, point) {
    return {
      item, triangle, instance,
      point: point ?? this.corners(item, triangle, instance)[0],
      layer: item.layers[0],
      material: this.model.materials.get(item.material).name,
      materialNumber: this.model.materials.get(item.material).number,
      path: item.paths[instance],
      line: lineOf(item.lines, triangle),
    };
  }

  // The corners of a triangle in the world.
  corners(item, triangle, instance) {
    const { index, attributes } = item.object.geometry;
    const matrix = item.object.matrixWorld.clone();
    if (item.object.isInstancedMesh) {
      const own = new Matrix4();
      item.object.getMatrixAt(instance, own);
      matrix.multiply(own);
    }
    return [0, 1, 2].map((corner) => {
      const vertex = index ? index.getX(3 * triangle + corner) : 3 * triangle + corner;
      return new Vector3().fromBufferAttribute(attributes.position, vertex).applyMatrix4(matrix);
    });
  }

  // Marks the triangle; null takes the mark away.
  show(found) {
    this.mark.visible = found !== null;
    if (found) {
      const points = this.corners(found.item, found.triangle, found.instance).flatMap((corner) => corner.toArray());
      this.mark.geometry.dispose();
      this.mark.geometry = new BufferGeometry().setAttribute('position', new BufferAttribute(new Float32Array(points), 3));
    }
    this.stage.redraw();
  }
}
