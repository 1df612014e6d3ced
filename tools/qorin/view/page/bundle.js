// Bundles the page into one script, one style sheet and one document, and writes them as a C++ source:
//
//   node bundle.js NODE_MODULES OUTPUT_DIRECTORY
import { readFileSync, readdirSync, writeFileSync } from 'node:fs';
import { createRequire } from 'node:module';
import { dirname, join, resolve } from 'node:path';
import { fileURLToPath } from 'node:url';
import { gzipSync } from 'node:zlib';

const [modules, output] = process.argv.slice(2).map((path) => resolve(path));
const source = join(dirname(fileURLToPath(import.meta.url)), 'src');
const esbuild = createRequire(join(modules, 'package.json'))('esbuild');

const bundled = await esbuild.build({
  entryPoints: [join(source, 'main.ts')],
  outdir: output,
  bundle: true,
  minify: true,
  write: false,
  metafile: true,
  target: ['chrome100', 'firefox100', 'safari15.4'],
  legalComments: 'none',
  nodePaths: [modules],
});

/// The licences of the packages that parts of are in the bundle.
function licences() {
  const used = new Set();
  for (const input of Object.keys(bundled.metafile.inputs)) {
    const found = input.match(/.*\/node_modules\/((?:@[^/]+\/)?[^/]+)\//);
    if (found) used.add(found[1]);
  }
  return [...used].sort().map((name) => {
    const directory = join(modules, name);
    const { version, license } = JSON.parse(readFileSync(join(directory, 'package.json'), 'utf8'));
    const file = readdirSync(directory).find((entry) => /^licen[cs]e(\.|$)/i.test(entry));
    if (!file) throw new Error(`${name} comes without the text of its licence`);
    const text = readFileSync(join(directory, file), 'utf8').trim();
    return `${name} ${version} (${license})\n\n${text}\n`;
  }).join(`\n${'-'.repeat(80)}\n\n`);
}

function bundle(extension) {
  return bundled.outputFiles.find(({ path }) => path.endsWith(extension)).contents;
}

const files = [
  ['/index.html', 'text/html; charset=utf-8', readFileSync(join(source, 'index.html'))],
  ['/main.js', 'text/javascript; charset=utf-8', bundle('.js')],
  ['/main.css', 'text/css; charset=utf-8', bundle('.css')],
  ['/licences.txt', 'text/plain; charset=utf-8', Buffer.from(licences())],
].map(([path, type, content]) => ({ path, type, content: gzipSync(content, { level: 9 }) }));

/// A literal of C++: three digits each, so that no digit behind one counts as its own.
function literal(bytes) {
  const lines = [];
  for (let at = 0; at < bytes.length; at += 32)
    lines.push(`"${[...bytes.subarray(at, at + 32)].map((byte) => `\\${byte.toString(8).padStart(3, '0')}`).join('')}"`);
  return lines.join('\n');
}

writeFileSync(join(output, 'licences.txt'), licences());
writeFileSync(join(output, 'page_files.cpp'), `// Made when the page was bundled.
#include "tools/qorin/view/page_file.h"

namespace
{
using namespace std::string_view_literals;

constexpr qorin_view::page_file files[] = {
${files.map(({ path, type, content }) => `{"${path}", "${type}", std::string_view(\n${literal(content)}, ${content.length}), true},`).join('\n')}
};
} // namespace

std::span<const qorin_view::page_file> qorin_view::page_files()
{
    return files;
}
`);
const size = files.reduce((sum, { content }) => sum + content.length, 0);
console.log(`page: ${(size / 1024).toFixed(0)} kB compressed`);
