// Converts every example and every real model both ways and looks at each GLB with other eyes: the Khronos validator
// finds neither an error nor a warning, assimp the same triangles, lines, materials and box, and what the stream or
// skp-dump says of triangles, box and area is what the file holds.
//
//     node check_all.mjs PROGRAMS OUTPUT_FOLDER EXAMPLES_FOLDER [SAMPLES_FOLDER]
//
// PROGRAMS: the folder of the built programs. To be run where the packages of package.json are installed. Status 0 if
// all agree, 1 otherwise.

import { execFileSync, spawnSync } from 'node:child_process';
import fs from 'node:fs';
import { createRequire } from 'node:module';
import path from 'node:path';

const validator = createRequire(path.join(process.cwd(), 'package.json'))('gltf-validator');

const [programs, output, examples, samples] = process.argv.slice(2);
const faults = [];
const fault = (name, text) => faults.push(`${name}: ${text}`);
const run = (program, args) =>
    spawnSync(path.join(programs, program), args, {
        encoding: 'utf8', maxBuffer: 1 << 28,
        env: { ...process.env, XDG_CONFIG_HOME: path.join(output, 'settings') },
    });

// ---- a GLB read back

function readGlb(file) {
    const bytes = fs.readFileSync(file);
    const jsonSize = bytes.readUInt32LE(12);
    return {
        json: JSON.parse(bytes.toString('utf8', 20, 20 + jsonSize)),
        bin: bytes.subarray(28 + jsonSize),
    };
}

function numbersOf(glb, number) {
    const accessor = glb.json.accessors[number];
    const view = glb.json.bufferViews[accessor.bufferView];
    const count = accessor.count * { SCALAR: 1, VEC2: 2, VEC3: 3 }[accessor.type];
    const kind = { 5126: Float32Array, 5123: Uint16Array, 5125: Uint32Array }[accessor.componentType];
    const bytes = glb.bin.subarray(view.byteOffset, view.byteOffset + count * kind.BYTES_PER_ELEMENT);
    return new kind(bytes.buffer.slice(bytes.byteOffset, bytes.byteOffset + bytes.length));
}

const product = (a, b) => {
    const result = new Array(16).fill(0);
    for (let c = 0; c < 4; ++c)
        for (let r = 0; r < 4; ++r)
            for (let k = 0; k < 4; ++k) result[4 * c + r] += a[4 * k + r] * b[4 * c + k];
    return result;
};

function matrixOf(node) {
    const [x, y, z, w] = node.rotation ?? [0, 0, 0, 1];
    const s = node.scale ?? [1, 1, 1];
    const t = node.translation ?? [0, 0, 0];
    return [
        (1 - 2 * (y * y + z * z)) * s[0], 2 * (x * y + z * w) * s[0], 2 * (x * z - y * w) * s[0], 0,
        2 * (x * y - z * w) * s[1], (1 - 2 * (x * x + z * z)) * s[1], 2 * (y * z + x * w) * s[1], 0,
        2 * (x * z + y * w) * s[2], 2 * (y * z - x * w) * s[2], (1 - 2 * (x * x + y * y)) * s[2], 0,
        t[0], t[1], t[2], 1,
    ];
}

const emptyBox = () => ({ low: [Infinity, Infinity, Infinity], high: [-Infinity, -Infinity, -Infinity] });
function include(box, p) {
    for (let i = 0; i < 3; ++i) {
        box.low[i] = Math.min(box.low[i], p[i]);
        box.high[i] = Math.max(box.high[i], p[i]);
    }
}

// What the file shows in world space, y up: boxes of triangles and of all, the area of the triangles.
function flattened(glb) {
    const found = { triangles: emptyBox(), all: emptyBox(), area: 0 };
    const meshes = (glb.json.meshes ?? []).map((mesh) => mesh.primitives.map((primitive) => ({
        lines: primitive.mode === 1,
        positions: numbersOf(glb, primitive.attributes.POSITION),
        indices: numbersOf(glb, primitive.indices),
    })));
    const placed = (m, p, i) => [0, 1, 2].map((r) => m[r] * p[3 * i] + m[4 + r] * p[3 * i + 1] + m[8 + r] * p[3 * i + 2] + m[12 + r]);
    const walk = (number, parent) => {
        const node = glb.json.nodes[number];
        const m = product(parent, matrixOf(node));
        for (const part of node.mesh === undefined ? [] : meshes[node.mesh]) {
            const corners = Array.from(part.indices, (i) => placed(m, part.positions, i));
            for (const p of corners) {
                include(found.all, p);
                if (!part.lines) include(found.triangles, p);
            }
            for (let i = 0; !part.lines && i < corners.length; i += 3) {
                const [a, b, c] = corners.slice(i, i + 3);
                const u = [0, 1, 2].map((k) => b[k] - a[k]);
                const v = [0, 1, 2].map((k) => c[k] - a[k]);
                found.area += Math.hypot(u[1] * v[2] - u[2] * v[1], u[2] * v[0] - u[0] * v[2], u[0] * v[1] - u[1] * v[0]) / 2;
            }
        }
        for (const child of node.children ?? []) walk(child, m);
    };
    walk(glb.json.scenes[0].nodes[0], [1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1]);
    return found;
}

const isEmpty = (box) => box.low[0] > box.high[0];
const near = (a, b, size) => Math.abs(a - b) <= 2e-6 * size + 2e-6;
function sameBox(a, b) {
    if (isEmpty(a) || isEmpty(b)) return isEmpty(a) === isEmpty(b);
    const size = Math.max(...a.low.map(Math.abs), ...a.high.map(Math.abs));
    return [0, 1, 2].every((i) => near(a.low[i], b.low[i], size) && near(a.high[i], b.high[i], size));
}
// From z up to y up.
const turned = ([low, high]) => ({ low: [low[0], low[2], -high[1]], high: [high[0], high[2], -low[1]] });
const metresInAnInch = 0.0254;
const inMetres = (box) => box.map((corner) => corner.map((part) => part * metresInAnInch));

// ---- other eyes

async function validate(name, file) {
    const report = await validator.validateBytes(new Uint8Array(fs.readFileSync(file)), { maxIssues: 0 });
    if (report.issues.numErrors + report.issues.numWarnings > 0)
        for (const issue of report.issues.messages.filter((m) => m.severity < 2).slice(0, 5))
            fault(name, `${issue.code} ${issue.message} ${issue.pointer ?? ''}`);
}

function lookWithAssimp(name, file, glb, shown) {
    if (!glb.json.meshes) return; // assimp takes a scene without meshes for incomplete
    const ask = (...options) => execFileSync('assimp', ['info', file, ...options], { encoding: 'utf8' });
    const asStored = ask('--raw');
    const number = (label) => Number(new RegExp(`^${label}:\\s+(\\d+)`, 'm').exec(asStored)[1]);
    // Its box of what is nested has the transforms in the wrong order, so all is brought into world space first.
    const inWorld = ask('-ptv');
    const corner = (label) => new RegExp(`^${label} point\\s+\\((.*)\\)`, 'm').exec(inWorld)[1].trim().split(/\s+/).map(Number);
    let faces = 0;
    for (const mesh of glb.json.meshes)
        for (const primitive of mesh.primitives)
            faces += glb.json.accessors[primitive.indices].count / (primitive.mode === 1 ? 2 : 3);
    if (number('Faces') !== faces) fault(name, `assimp finds ${number('Faces')} faces, not ${faces}`);
    const materials = glb.json.materials.length + 1; // it adds one of its own
    if (number('Materials') !== materials) fault(name, `assimp finds ${number('Materials')} materials, not ${materials}`);
    const box = { low: corner('Minimum'), high: corner('Maximum') };
    if (!sameBox(shown.all, box)) fault(name, `assimp finds the box ${JSON.stringify(box)}, not ${JSON.stringify(shown.all)}`);
}

// ---- what the sources say

// Triangles and box of a stream: those that the camera sees, without the beams of edges.
function streamFigures(file) {
    const found = { triangles: 0, box: emptyBox() };
    let vertices = new Map();
    let position = null, unseen = false, edges = false;
    const reset = () => { vertices = new Map(); unseen = false; edges = false; };
    for (const line of fs.readFileSync(file, 'latin1').split(/\r?\n/)) {
        if (line.startsWith('MESH') || line.startsWith('EMSH;')) reset();
        else if (line === 'INVS;1') unseen = true;
        else if (line.startsWith('MATL;')) edges = line === 'MATL;1';
        else if (line.startsWith('VERT;')) position = line.slice(6, -1).split(',').map(Number);
        else if (line.startsWith('ADDV;')) vertices.set(Number(line.slice(5)), position);
        else if (line.startsWith('FACE;') && !unseen && !edges) {
            ++found.triangles;
            for (const corner of line.slice(5).split(',')) include(found.box, vertices.get(Number(corner)));
        }
    }
    return found;
}

const trianglesIn = (glb) => (glb.json.meshes ?? []).flatMap((mesh) => mesh.primitives)
    .filter((primitive) => primitive.mode !== 1)
    .reduce((sum, primitive) => sum + glb.json.accessors[primitive.indices].count / 3, 0);

async function checkBatch(name, folder) {
    const file = path.join(output, `batch_${name}.glb`);
    const result = run('batch-to-glb', [folder, file]);
    if (result.status !== 0) return fault(name, `batch-to-glb ended with ${result.status}: ${result.stderr}`);
    await validate(`batch ${name}`, file);
    const glb = readGlb(file);
    const shown = flattened(glb);
    lookWithAssimp(`batch ${name}`, file, glb, shown);
    const stream = streamFigures(path.join(folder, 'batch_file.txt'));
    if (trianglesIn(glb) !== stream.triangles)
        fault(name, `the stream has ${stream.triangles} triangles, the file ${trianglesIn(glb)}`);
    const box = isEmpty(stream.box) ? emptyBox() : turned([stream.box.low, stream.box.high]);
    if (!sameBox(box, shown.triangles)) fault(name, `the stream's box is ${JSON.stringify(box)}, not ${JSON.stringify(shown.triangles)}`);
}

async function checkModel(name, model, options, figures) {
    const file = path.join(output, `model_${name}${options.join('')}.glb`);
    const result = run('skp-to-glb', [...options, model, file]);
    if (result.status !== 0) return fault(name, `skp-to-glb ended with ${result.status}: ${result.stderr}`);
    await validate(`model ${name}`, file);
    const glb = readGlb(file);
    const shown = flattened(glb);
    lookWithAssimp(`model ${name}`, file, glb, shown);
    const { counts } = glb.json.scenes[0].extras;
    if (counts.images !== figures.images) fault(name, `${options} skp-dump finds ${figures.images} images, the file has ${counts.images}`);
    if (figures.placements) {
        const placements = (figures.placements.group ?? 0) + (figures.placements.instance ?? 0);
        if (counts.placements !== placements) fault(name, `${options} skp-dump finds ${placements} placements, the file has ${counts.placements}`);
        const named = (glb.json.nodes ?? []).filter((node) => node.extras?.layer !== undefined).length;
        if (named !== placements + figures.images) fault(name, `${options} there are ${named} nodes for ${placements} placements and ${figures.images} images`);
    }
    if (figures.faces + figures.images === 0) return;
    if (!sameBox(turned(inMetres(figures.box)), shown.triangles))
        fault(name, `${options} skp-dump's box is ${JSON.stringify(turned(inMetres(figures.box)))}, not ${JSON.stringify(shown.triangles)}`);
    // Faces that are painted differently on their two sides stand there twice.
    const area = (figures.area + figures.image_area) * metresInAnInch ** 2;
    if (shown.area < area * 0.9999 || shown.area > area * 2.0001) fault(name, `${options} the area is ${shown.area}, not ${area}`);
}

async function checkSample(file) {
    const name = path.basename(file, '.skp');
    const said = JSON.parse(run('skp-dump', ['--json', file]).stdout);
    if (!said.opens) {
        if (run('skp-to-glb', [file, path.join(output, 'none.glb')]).status !== 1) fault(name, 'does not open, and no status says so');
        if (fs.existsSync(path.join(output, 'none.glb'))) fault(name, 'left a file');
        return false;
    }
    await checkModel(name, file, [], said.written);
    await checkModel(name, file, ['--hidden', '--attributes'], said.placed);
    const folder = path.join(output, name);
    fs.mkdirSync(folder);
    fs.copyFileSync(file, path.join(folder, 'geometry.qlm'));
    run('tessaline', [path.join(folder, 'geometry.qlm')]);
    await checkBatch(name, folder);
    return true;
}

// What must be there: a folder that is empty or half read would else pass.
const expected = { examples: 3, models: 139, open: 134 };

fs.mkdirSync(output, { recursive: true });
let models = 0;
let open = 0;
let exampleCount = 0;
for (const example of fs.readdirSync(examples).filter((name) => fs.existsSync(path.join(examples, name, 'expected')))) {
    await checkBatch(example, path.join(examples, example, 'expected'));
    const model = path.join(output, `${example}.skp`);
    run(`example_${example}`, [model]);
    await checkModel(example, model, [], JSON.parse(run('skp-dump', ['--json', model]).stdout).written);
    ++exampleCount;
}
for (const file of samples ? fs.readdirSync(samples).filter((name) => name.endsWith('.skp')).sort() : []) {
    ++models;
    if (await checkSample(path.join(samples, file))) ++open;
}
if (exampleCount !== expected.examples) fault('examples', `there are ${exampleCount}, not ${expected.examples}`);
if (samples && (models !== expected.models || open !== expected.open))
    fault('models', `of ${models} models ${open} open, not ${expected.open} of ${expected.models}`);
for (const text of faults) console.log(text);
console.log(`${open} models and ${exampleCount} examples, both ways: ${faults.length} faults`);
process.exitCode = faults.length > 0 ? 1 : 0;
