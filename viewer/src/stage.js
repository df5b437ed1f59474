// The picture: renderer, cameras, light, and when a frame is drawn.

import {
  AmbientLight, DirectionalLight, NeutralToneMapping, PMREMGenerator, Scene, Sphere, Vector3, WebGLRenderer,
} from 'three';
import { OrbitControls } from 'three/addons/controls/OrbitControls.js';
import { RoomEnvironment } from 'three/addons/environments/RoomEnvironment.js';
import { cameraOf, setDepths, viewOfBox } from './views.js';

const upwards = new Vector3(0, 1, 0);

export class Stage {
  // canvas: fills its parent. Throws if the browser cannot draw.
  constructor(canvas) {
    this.canvas = canvas;
    this.renderer = new WebGLRenderer({ canvas, alpha: true, antialias: true, preserveDrawingBuffer: false });
    this.renderer.setPixelRatio(Math.min(window.devicePixelRatio, 2));
    this.renderer.setClearColor(0, 0);
    this.renderer.toneMapping = NeutralToneMapping;
    this.scene = new Scene();
    const maker = new PMREMGenerator(this.renderer);
    this.scene.environment = maker.fromScene(new RoomEnvironment(), 0.04).texture;
    maker.dispose();
    this.scene.environmentIntensity = 0.55;
    this.headlight = new DirectionalLight(0xffffff, 1.1);
    this.ambient = new AmbientLight(0xffffff, 0.35);
    this.scene.add(this.headlight, this.headlight.target, this.ambient);
    this.sphere = new Sphere(new Vector3(), 1);
    this.camera = null;
    this.controls = null;
    this.pending = false;
    this.frames = 0;
    new ResizeObserver(() => this.resized()).observe(canvas.parentElement);
  }

  show(model) {
    this.model = model;
    this.scene.add(model.root);
    model.box.getBoundingSphere(this.sphere);
    this.resized();
  }

  // Studio light against the lamps of the model: 1 is studio light as it is, 0 leaves the lamps alone.
  setStudioLight(share) {
    this.studio = share;
    this.scene.environmentIntensity = 0.55 * share;
    this.headlight.intensity = 1.1 * share;
    this.ambient.intensity = 0.35 * share;
    this.redraw();
  }

  setClipping(planes) {
    this.renderer.clippingPlanes = planes;
    this.redraw();
  }

  setView(view) {
    this.view = view;
    this.useCamera(cameraOf(view, this.aspect()), view.target);
  }

  useCamera(camera, target) {
    this.controls?.dispose();
    this.camera = camera;
    const controls = new OrbitControls(camera, this.canvas);
    controls.target.copy(target);
    controls.update(); // its constructor has turned the camera to the origin
    controls.zoomToCursor = true;
    controls.enableDamping = false;
    controls.addEventListener('change', () => this.redraw());
    // A view may stand askew; whoever turns it wants the ground level again.
    controls.addEventListener('start', () => this.level());
    this.controls = controls;
    this.redraw();
  }

  level() {
    this.view = null;
    this.camera.up.copy(upwards);
  }

  fit() {
    const direction = this.camera.position.clone().sub(this.controls.target);
    this.setView(viewOfBox(this.model.box, 'Fit', direction.lengthSq() > 0 ? direction : new Vector3(0, 0.5, 1), this.camera.up));
  }

  // Looks at a point from where the camera stands, from no farther than `distance`.
  lookAt(point, distance) {
    const direction = this.camera.position.clone().sub(point);
    const length = Math.min(Math.max(direction.length(), 1e-6), distance);
    const view = {
      ...viewOfBox(this.model.box, '', direction), fit: false, up: upwards.clone(),
      eye: point.clone().addScaledVector(direction.normalize(), length), target: point.clone(),
    };
    this.setView(view);
  }

  // Turns about the target by angles in radians.
  turn(around, over) {
    this.level();
    const offset = this.camera.position.clone().sub(this.controls.target);
    const flat = Math.hypot(offset.x, offset.z);
    const angle = Math.atan2(offset.x, offset.z) + around;
    const height = Math.min(Math.max(Math.atan2(offset.y, flat) + over, -1.55), 1.55);
    const length = offset.length();
    offset.set(Math.cos(height) * Math.sin(angle), Math.sin(height), Math.cos(height) * Math.cos(angle));
    this.camera.position.copy(this.controls.target).addScaledVector(offset, length);
    this.controls.update();
    this.redraw();
  }

  // Moves sideways and upwards by shares of the distance to the target.
  pan(right, up) {
    this.view = null;
    const length = this.camera.position.distanceTo(this.controls.target);
    const step = new Vector3(right, up, 0).multiplyScalar(length).applyQuaternion(this.camera.quaternion);
    this.camera.position.add(step);
    this.controls.target.add(step);
    this.controls.update();
    this.redraw();
  }

  zoom(factor) {
    this.view = null;
    const offset = this.camera.position.clone().sub(this.controls.target);
    this.camera.position.copy(this.controls.target).addScaledVector(offset, factor);
    if (this.camera.isOrthographicCamera)
      this.camera.zoom /= factor;
    this.controls.update();
    this.redraw();
  }

  aspect() {
    const { clientWidth, clientHeight } = this.canvas.parentElement;
    return Math.max(clientWidth, 1) / Math.max(clientHeight, 1);
  }

  resized() {
    const { clientWidth, clientHeight } = this.canvas.parentElement;
    this.renderer.setSize(clientWidth, clientHeight, false);
    if (!this.camera)
      return;
    const target = this.controls.target.clone();
    if (this.view)
      this.setView(this.view);
    else if (this.camera.isPerspectiveCamera)
      this.camera.aspect = this.aspect();
    else
      this.camera.left = this.camera.bottom * this.aspect(), this.camera.right = this.camera.top * this.aspect();
    this.controls.target.copy(target);
    this.draw();
  }

  redraw() {
    if (this.pending)
      return;
    this.pending = true;
    requestAnimationFrame(() => this.draw());
  }

  draw() {
    this.pending = false;
    if (!this.camera)
      return;
    setDepths(this.camera, this.sphere, this.controls.target);
    this.headlight.position.copy(this.camera.position);
    this.headlight.target.position.copy(this.controls.target);
    this.headlight.target.updateMatrixWorld();
    this.renderer.render(this.scene, this.camera);
    this.frames += 1;
  }

  // The picture as a PNG in a data URL; what shows nothing is transparent.
  picture() {
    this.draw();
    return this.canvas.toDataURL('image/png');
  }
}
