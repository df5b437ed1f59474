// Bundles the page into one file, and that file into C++:
//     node viewer/build.mjs PAGE.html PAGE.cpp
// from the folder in which npm has put what package.json asks for.
// The page lacks only what the programs put in place of <!--DATA-->. Its policy lets the one script and the one style
// run that stand in it, pictures and bytes that it holds itself, and nothing from elsewhere.

import { createHash } from 'node:crypto';
import { readFileSync, writeFileSync } from 'node:fs';
import { createRequire } from 'node:module';
import { dirname, join, resolve } from 'node:path';
import { fileURLToPath } from 'node:url';

const root = dirname(fileURLToPath(import.meta.url));
const packages = resolve('node_modules');
const { build } = createRequire(join(packages, 'here.js'))('esbuild');
const [, , pageFile, codeFile] = process.argv;

const fingerprint = (text) => `'sha256-${createHash('sha256').update(text, 'utf8').digest('base64')}'`;
const read = (name) => readFileSync(join(root, name), 'utf8');

const { outputFiles: [bundle] } = await build({
  entryPoints: [join(root, 'src/main.js')],
  nodePaths: [packages],
  bundle: true,
  minify: true,
  write: false,
  format: 'iife',
  target: 'es2021',
  legalComments: 'none',
  define: { LICENCE: JSON.stringify(readFileSync(join(packages, 'three/LICENSE'), 'utf8')) },
});
// A bundle must not end its own element.
const script = bundle.text.replaceAll('</script', '<\\/script');
const style = read('src/style.css');
const policy = `default-src 'none'; script-src ${fingerprint(script)}; style-src ${fingerprint(style)}; img-src blob: data:; connect-src blob:; base-uri 'none'; form-action 'none'`;
const page = ['POLICY', 'STYLE', 'SCRIPT'].reduce(
  (text, mark, at) => text.replace(`@${mark}@`, () => [policy, style, script][at]), read('src/page.html'));

const bytes = Buffer.from(page, 'utf8');
const numbers = [];
for (let at = 0; at < bytes.length; at += 32)
  numbers.push(`${[...bytes.subarray(at, at + 32)].join(',')},`);
const code = `// Made by viewer/build.mjs.
#include "tools/page/page_text.h"

static const unsigned char bytes[] = {
${numbers.join('\n')}
};

std::string_view page_text() {
    return {reinterpret_cast<const char*>(bytes), sizeof bytes};
}
`;
writeFileSync(pageFile, page);
writeFileSync(codeFile, code);
