// A page in a real browser, with what went wrong in it and what it asked for.

import { readFileSync } from 'node:fs';
import { createRequire } from 'node:module';
import { resolve } from 'node:path';
import { pathToFileURL } from 'node:url';

// From the folder in which npm has put what package.json asks for.
const { chromium } = createRequire(resolve('node_modules/here.js'))('playwright-core');

let browser = null;

export async function startBrowser() {
  browser = await chromium.launch({
    executablePath: process.env.TESSALINE_BROWSER ?? '/usr/bin/chromium',
    args: ['--use-gl=angle', '--use-angle=gl-egl', '--ignore-gpu-blocklist', '--no-sandbox', '--disable-quic'],
  });
}

export async function stopBrowser() {
  await browser?.close();
}

// Opens a page and waits for its title to say that it is ready. Gives { page, errors, requests }: console errors and
// uncaught ones, and the addresses that were asked for beside the page itself.
export async function openPage(file, width, height, options = {}) {
  const page = await browser.newPage({ viewport: { width, height }, ...options });
  const errors = [];
  const requests = [];
  const address = pathToFileURL(file).href;
  page.on('console', (message) => message.type() === 'error' && errors.push(message.text()));
  page.on('pageerror', (error) => errors.push(error.message));
  page.on('request', (request) => request.url() !== address && requests.push(request.url()));
  await page.goto(address);
  await page.waitForFunction(() => document.title !== '' && !document.title.startsWith('Loading'), null, { timeout: 60000 });
  return { page, errors, requests };
}

// The picture that stands on the canvas, with alpha: { width, height, pixels }, four bytes a pixel.
export async function pictureOf(page) {
  return decode(page, await page.evaluate(() => window.tessaline.stage.picture()));
}

export async function pictureOfFile(page, file) {
  return decode(page, `data:image/png;base64,${readFileSync(file).toString('base64')}`);
}

async function decode(page, address) {
  const { width, height, text } = await page.evaluate(async (source) => {
    const picture = new Image();
    picture.src = source;
    await picture.decode();
    const canvas = document.createElement('canvas');
    canvas.width = picture.width;
    canvas.height = picture.height;
    const brush = canvas.getContext('2d', { willReadFrequently: true });
    brush.drawImage(picture, 0, 0);
    const bytes = brush.getImageData(0, 0, canvas.width, canvas.height).data;
    let characters = '';
    for (let at = 0; at < bytes.length; at += 8192)
      characters += String.fromCharCode(...bytes.subarray(at, at + 8192));
    return { width: canvas.width, height: canvas.height, text: btoa(characters) };
  }, address);
  return { width, height, pixels: Buffer.from(text, 'base64') };
}

// Which pixels show something, more than a tenth.
export function silhouette({ pixels }) {
  const shown = [];
  for (let at = 3; at < pixels.length; at += 4)
    shown.push(pixels[at] > 25);
  return shown;
}

export const covered = (picture) => silhouette(picture).filter(Boolean).length / (picture.width * picture.height);

// Pixels that both show, of those that either shows.
export function overlap(one, other) {
  const [a, b] = [silhouette(one), silhouette(other)];
  let both = 0;
  let either = 0;
  a.forEach((shown, at) => {
    both += shown && b[at] ? 1 : 0;
    either += shown || b[at] ? 1 : 0;
  });
  return either === 0 ? 0 : both / either;
}

// The share of pixels whose colours differ by more than a shade.
export function difference(one, other) {
  let different = 0;
  for (let at = 0; at < one.pixels.length; at += 4)
    if ([0, 1, 2, 3].some((channel) => Math.abs(one.pixels[at + channel] - other.pixels[at + channel]) > 8))
      different += 1;
  return different / (one.width * one.height);
}

export function colours({ pixels }) {
  const found = new Set();
  for (let at = 0; at < pixels.length; at += 4)
    if (pixels[at + 3] > 127)
      found.add((pixels[at] << 16) | (pixels[at + 1] << 8) | pixels[at + 2]);
  return found.size;
}
