// Which line of the geometry stream a triangle came from, and the other way round. A table is a list of
// [first triangle, line]: the triangles of a run stand on consecutive lines.

// The line of a triangle; null without a table or ahead of its first run.
export function lineOf(table, triangle) {
  const run = runAt(table, triangle, 0);
  return run < 0 ? null : table[run][1] + (triangle - table[run][0]);
}

// The last run whose entry `column` is not above the value; -1 if there is none.
function runAt(table, value, column) {
  if (!table)
    return -1;
  let low = 0;
  let high = table.length;
  while (low < high) {
    const middle = (low + high) >> 1;
    if (table[middle][column] <= value)
      low = middle + 1;
    else
      high = middle;
  }
  return low - 1;
}

// The triangle among all tables whose line is nearest to the line given: { item, triangle, distance }; null if no table
// has a run. items: objects with `lines` (a table or nothing) and `triangles` (how many).
export function nearestTriangle(items, line) {
  let best = null;
  for (const item of items) {
    if (!item.lines?.length)
      continue;
    const run = Math.max(0, runAt(item.lines, line, 1));
    for (const at of [run, run + 1]) {
      if (at >= item.lines.length)
        continue;
      const [first, start] = item.lines[at];
      const end = at + 1 < item.lines.length ? item.lines[at + 1][0] : item.triangles;
      const triangle = Math.min(Math.max(first, first + line - start), Math.max(first, end - 1));
      const distance = Math.abs(start + triangle - first - line);
      if (!best || distance < best.distance)
        best = { item, triangle, distance };
    }
  }
  return best;
}
