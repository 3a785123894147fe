// Hands out a folder to browsers of this machine and prints the address: what ./run web and the tests
// use, and no server for a school.
//   node server.mjs FOLDER [PORT]
import fs from "node:fs";
import http from "node:http";
import path from "node:path";
import { fileURLToPath } from "node:url";

const DRUHY = {
  ".html": "text/html; charset=utf-8", ".js": "text/javascript", ".css": "text/css",
  ".svg": "image/svg+xml", ".webmanifest": "application/manifest+json",
  ".txt": "text/plain; charset=utf-8",
};

// pred: may answer itself, true if it did.
export function spustServer(slozka, port, pred = () => false) {
  const koren = path.resolve(slozka);
  const server = http.createServer((dotaz, odpoved) => {
    const jmeno = decodeURIComponent(new URL(dotaz.url, "http://x").pathname);
    if (pred(jmeno, odpoved)) return;
    const soubor = path.join(koren, jmeno.endsWith("/") ? `${jmeno}index.html` : jmeno);
    if (!soubor.startsWith(koren + path.sep) || !fs.existsSync(soubor)) {
      odpoved.writeHead(404).end();
      return;
    }
    const data = fs.readFileSync(soubor);
    odpoved.writeHead(200, {
      "Content-Type": DRUHY[path.extname(soubor)] ?? "application/octet-stream",
      "Content-Length": data.length,
      "Cache-Control": "no-cache",
    }).end(data);
  });
  return new Promise((hotovo) => server.listen(port, "127.0.0.1", () => hotovo(server)));
}

if (process.argv[1] && path.resolve(process.argv[1]) === fileURLToPath(import.meta.url)) {
  const server = await spustServer(process.argv[2], Number(process.argv[3] ?? 8010));
  console.log(`Hra v prohlížeči: http://localhost:${server.address().port}/  (konec: Ctrl+C)`);
}
