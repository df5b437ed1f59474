// Views as the program, the model and the box give them, and what a camera of three.js makes of them. A view looks from
// `eye` to `target` with `up` upwards, all in the axes of glTF (y up, metres): { name, eye, target, up, perspective,
// fov (degrees), fovIsVertical, height (metres, of a parallel view) }.

import { Box3, Matrix4, OrthographicCamera, PerspectiveCamera, Sphere, Vector3 } from 'three';

const upwards = new Vector3(0, 1, 0);

// z up becomes y up.
export function turned([x, y, z]) {
  return new Vector3(x, z, -y);
}

// The view of the facts, whose axes are those of the model.
export function viewOfFacts(start) {
  return {
    name: 'Start',
    eye: turned(start.eye),
    target: turned(start.target),
    up: turned(start.up),
    perspective: start.perspective,
    fov: start.field_of_view,
    fovIsVertical: start.fov_is_vertical,
    height: start.height,
  };
}

// The view of a camera of the GLB. A camera says not how far it looks: as far as the middle of the model.
export function viewOfCamera(camera, box) {
  camera.updateWorldMatrix(true, false);
  const eye = new Vector3().setFromMatrixPosition(camera.matrixWorld);
  const forward = new Vector3();
  camera.getWorldDirection(forward);
  const rotation = new Matrix4().extractRotation(camera.matrixWorld);
  const far = Math.max(box.getCenter(new Vector3()).sub(eye).dot(forward), box.getSize(new Vector3()).length() / 100, 0.01);
  const parallel = camera.isOrthographicCamera;
  return {
    name: camera.userData.name ?? camera.parent?.userData.name ?? camera.name,
    eye,
    target: eye.clone().addScaledVector(forward, far),
    up: upwards.clone().applyMatrix4(rotation),
    perspective: !parallel,
    fov: parallel ? 35 : camera.fov,
    fovIsVertical: true,
    height: parallel ? (camera.top - camera.bottom) / camera.zoom : 0,
  };
}

// All of a box, seen along a direction.
export function viewOfBox(box, name, direction, up = upwards) {
  const sphere = box.getBoundingSphere(new Sphere());
  const fov = 35;
  const distance = Math.max(sphere.radius, 1e-3) / Math.sin((fov * Math.PI) / 360);
  return {
    name,
    eye: sphere.center.clone().addScaledVector(direction.clone().normalize(), distance),
    target: sphere.center.clone(),
    up: up.clone(),
    perspective: true,
    fov,
    fovIsVertical: true,
    height: 2 * sphere.radius,
    fit: true,
  };
}

// The usual sides. Front is what the model's own axes call so: seen against the green axis.
export function sides(box) {
  return [
    viewOfBox(box, 'From a corner', new Vector3(-0.6, 0.5, 0.8)),
    viewOfBox(box, 'From above', new Vector3(0, 1, 0), new Vector3(0, 0, -1)),
    viewOfBox(box, 'Front', new Vector3(0, 0, 1)),
    viewOfBox(box, 'Right', new Vector3(1, 0, 0)),
    viewOfBox(box, 'Back', new Vector3(0, 0, -1)),
    viewOfBox(box, 'Left', new Vector3(-1, 0, 0)),
  ];
}

// A camera for a picture of that aspect (width to height).
export function cameraOf(view, aspect) {
  let camera;
  if (view.perspective) {
    const half = Math.tan((view.fov * Math.PI) / 360);
    let vertical = view.fovIsVertical ? half : half / aspect;
    if (view.fit && aspect < 1)
      vertical /= aspect;
    camera = new PerspectiveCamera((Math.atan(vertical) * 360) / Math.PI, aspect);
  } else {
    const half = view.height / 2;
    camera = new OrthographicCamera(-half * aspect, half * aspect, half, -half);
  }
  camera.up.copy(view.up);
  camera.position.copy(view.eye);
  camera.lookAt(view.target);
  return camera;
}

// Near and far for a camera that looks at a ball: as tight as it can be, for the depth buffer tells little apart.
export function setDepths(camera, sphere, target) {
  const away = camera.position.distanceTo(sphere.center);
  const radius = Math.max(sphere.radius, 1e-3);
  if (camera.isOrthographicCamera) {
    camera.near = -(away + radius) * 1.01;
    camera.far = (away + radius) * 1.01;
  } else {
    camera.near = Math.max(away - radius * 1.01, camera.position.distanceTo(target) / 200, radius / 1e5);
    camera.far = Math.max(away + radius * 1.01, camera.near * 10);
  }
  camera.updateProjectionMatrix();
}

export function boxOf(objects) {
  const box = new Box3();
  for (const object of objects)
    box.expandByObject(object);
  if (box.isEmpty())
    box.set(new Vector3(-1, -1, -1), new Vector3(1, 1, 1));
  return box;
}
