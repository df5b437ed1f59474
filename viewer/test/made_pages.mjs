// Pages, pictures and batches made by the programs of a build, in a folder that goes with the tests.

import { execFileSync } from 'node:child_process';
import { cpSync, existsSync, mkdirSync, mkdtempSync, rmSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { dirname, join, resolve } from 'node:path';
import { fileURLToPath } from 'node:url';

const project = resolve(dirname(fileURLToPath(import.meta.url)), '../..');
const programs = process.env.TESSALINE_PROGRAMS ?? join(project, 'build/release/bin');
export const samples = process.env.TESSALINE_SAMPLES ?? '';
export const folder = mkdtempSync(join(tmpdir(), 'tessaline_page_'));
export const size = [480, 320];

process.on('exit', () => rmSync(folder, { recursive: true, force: true }));

const run = (program, ...words) => execFileSync(join(programs, program), words, {
  stdio: ['ignore', 'ignore', 'pipe'], env: { ...process.env, XDG_CONFIG_HOME: join(folder, '.config') },
});

// Converts a model into a batch folder of that name, with what lies in `parent` beside it.
function convert(name, writeModel, parent) {
  const batch = join(folder, name);
  mkdirSync(batch);
  if (parent)
    cpSync(parent, batch, { recursive: true });
  writeModel(join(batch, 'geometry.qlm'));
  run('tessaline', join(batch, 'geometry.qlm'), join(batch, 'batch_file.txt'));
  if (!existsSync(join(batch, 'batch_file.txt')))
    throw new Error(`${name} was not converted`);
  return batch;
}

export function exampleBatch(name) {
  return convert(name, (file) => run(`example_${name}`, file), join(project, 'examples', name, 'parent'));
}

export function sampleBatch(name) {
  return convert(name, (file) => cpSync(join(samples, `${name}.skp`), file));
}

const picture = (name) => ['--png', join(folder, `${name}.png`), '--size', size.join('x'), '--clear'];

// The page and the picture: { page, picture }.
export function viewBatch(batch, name) {
  const page = join(folder, `${name}.html`);
  run('batch-view', batch, '-o', page, ...picture(name));
  return { page, picture: join(folder, `${name}.png`) };
}

export function viewModel(model, name) {
  const page = join(folder, `${name}.html`);
  run('skp-view', model, '-o', page, ...picture(name));
  return { page, picture: join(folder, `${name}.png`) };
}
