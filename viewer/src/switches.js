// What is switched on: layers, one material alone, edges, lamps, section planes. Nothing here knows the panel.

const shown = 0; // the layer of three.js that the camera sees, and the ray of a click
const hidden = 1;

export class Switches {
  constructor(model, stage) {
    this.model = model;
    this.stage = stage;
    this.onlyMaterial = null;
    this.edges = true;
    this.lampPower = 1;
    this.applyItems();
    this.applyLamps();
  }

  setLayer(name, on) {
    this.model.layers.get(name).on = on;
    this.applyItems();
  }

  setAllLayers(on) {
    for (const layer of this.model.layers.values())
      layer.on = on;
    this.applyItems();
  }

  // key: of a material; null for all.
  setOnlyMaterial(key) {
    this.onlyMaterial = key;
    this.applyItems();
  }

  setEdges(on) {
    this.edges = on;
    this.applyItems();
  }

  setLamp(lamp, on) {
    lamp.on = on;
    this.applyLamps();
  }

  setLampPower(power) {
    this.lampPower = power;
    this.applyLamps();
  }

  setSection(section, on) {
    section.on = on;
    this.stage.setClipping(this.model.sections.filter((each) => each.on).map((each) => each.plane));
  }

  isShown(item) {
    if (item.isEdge && !this.edges)
      return false;
    if (this.onlyMaterial !== null && item.material !== this.onlyMaterial)
      return false;
    return item.layers.every((name) => this.model.layers.get(name)?.on !== false);
  }

  applyItems() {
    for (const item of this.model.items)
      item.object.layers.set(this.isShown(item) ? shown : hidden);
    this.stage.redraw();
  }

  applyLamps() {
    const most = 16; // each lamp that shines is a piece of every material's program
    let shining = 0;
    const byPower = [...this.model.lamps].sort((a, b) => (b.lumens ?? Infinity) - (a.lumens ?? Infinity));
    for (const lamp of byPower) {
      if (lamp.light) {
        const shines = lamp.on && shining < most && this.lampPower > 0;
        shining += shines ? 1 : 0;
        lamp.light.visible = shines;
        lamp.light.intensity = lamp.intensity * this.lampPower * (lamp.type === 'sun' ? this.model.sunScale : this.model.lampScale);
      }
      for (const item of lamp.items)
        this.setGlow(item, lamp.on);
    }
    this.stage.redraw();
  }

  // The shape of a lamp that is off does not glow; its material may belong to others, so it gets one of its own.
  setGlow(item, on) {
    item.lit ??= item.object.material;
    if (on) {
      item.object.material = item.lit;
      return;
    }
    if (!item.lit.emissive)
      return;
    if (!item.dark) {
      item.dark = item.lit.clone();
      item.dark.emissive.set(0);
      item.dark.emissiveMap = null;
    }
    item.object.material = item.dark;
  }
}

// Factors that bring lamps to the brightness of a screen: as if all light of the lamps fell evenly on the walls of the
// box, whose walls then send back about half of what white would on the screen.
export function lightScales(model) {
  const size = model.box.getSize(model.box.min.clone());
  const walls = 2 * (size.x * size.y + size.y * size.z + size.z * size.x);
  const lumens = model.lamps.reduce((sum, lamp) => sum + (lamp.light && lamp.type !== 'sun' ? lamp.lumens ?? 4 * Math.PI * lamp.intensity : 0), 0);
  const brightest = Math.max(0, ...model.lamps.filter((lamp) => lamp.type === 'sun').map((lamp) => lamp.intensity));
  return {
    lampScale: lumens > 0 ? (0.5 * Math.PI * walls) / lumens : 1,
    sunScale: brightest > 0 ? 1 / brightest : 1,
  };
}
