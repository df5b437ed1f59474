// What the page carries: facts about the model, and the GLB as gzip in base64, in pieces.

// The facts that the program wrote beside the model: title, kind ("batch" or "model"), program, start (a view), glb_bytes,
// findings, skipped_findings. Null in a page that holds no model.
export function facts() {
  const element = document.getElementById('facts');
  return element && JSON.parse(element.textContent);
}

function bytesOf(base64) {
  if (Uint8Array.fromBase64)
    return Uint8Array.fromBase64(base64);
  const text = atob(base64);
  const bytes = new Uint8Array(text.length);
  for (let i = 0; i < text.length; ++i)
    bytes[i] = text.charCodeAt(i);
  return bytes;
}

// The GLB as an ArrayBuffer of `size` bytes. Each piece is taken out of the page when it is unpacked, so that the text
// does not stay in memory beside the bytes. onShare: is told how much is done, 0 to 1.
export async function unpackedGlb(size, onShare) {
  const pieces = [...document.querySelectorAll('script.piece')];
  const unpacker = new DecompressionStream('gzip');
  const bytes = new Uint8Array(size);
  const gathered = (async () => {
    const reader = unpacker.readable.getReader();
    let filled = 0;
    for (let part = await reader.read(); !part.done; part = await reader.read()) {
      bytes.set(part.value, filled);
      filled += part.value.length;
    }
    if (filled !== size)
      throw new Error(`the model has ${filled} bytes instead of ${size}`);
  })();
  const fed = (async () => {
    const writer = unpacker.writable.getWriter();
    for (const [number, piece] of pieces.entries()) {
      await writer.write(bytesOf(piece.textContent.trim()));
      piece.remove();
      onShare((number + 1) / pieces.length);
      await new Promise((resume) => setTimeout(resume));
    }
    await writer.close();
  })();
  await Promise.all([gathered, fed]);
  return bytes.buffer;
}
