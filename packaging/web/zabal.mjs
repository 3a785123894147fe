// Puts the page together: program and data packed, a list of all files for the start without a
// connection.
//   node zabal.mjs STAGED PROGRAM_FOLDER PAGE_SOURCES OUT
import { createHash } from "node:crypto";
import fs from "node:fs";
import path from "node:path";
import { gzipSync } from "node:zlib";

const [staging, program, zdroje, kam] = process.argv.slice(2);
const sbal = (data) => gzipSync(data, { level: 9 });

// What the program reads: pictures by their shapes, no bitmaps; results are the browser's.
function soubory(slozka) {
  return fs.readdirSync(path.join(staging, slozka), { withFileTypes: true }).flatMap((polozka) => {
    const jmeno = `${slozka}/${polozka.name}`;
    if (polozka.isDirectory()) return soubory(jmeno);
    return /\.res$|\.bmp$|\/Vysledky\.dat$/.test(jmeno) ? [] : [jmeno];
  }).sort();
}

const obsah = [["Rysovna.ini", fs.readFileSync(path.join(zdroje, "Rysovna.ini"))],
  ...["assets", "data"].flatMap(soubory).map((jmeno) =>
    [jmeno, fs.readFileSync(path.join(staging, jmeno))])];
const seznam = Buffer.from(JSON.stringify(obsah.map(([jmeno, data]) => [jmeno, data.length])));
const delka = Buffer.alloc(4);
delka.writeUInt32LE(seznam.length);

fs.rmSync(kam, { recursive: true, force: true });
fs.mkdirSync(kam, { recursive: true });
const pis = (jmeno, data) => fs.writeFileSync(path.join(kam, jmeno), data);
pis("data.bin", sbal(Buffer.concat([delka, seznam, ...obsah.map(([, data]) => data)])));
pis("hra.bin", sbal(fs.readFileSync(path.join(program, "rysovna.wasm"))));
pis("rysovna.js", fs.readFileSync(path.join(program, "rysovna.js")));
const stranka = ["index.html", "styl.css", "zacatek.js", "stranka.js", "uloziste.js", "vstup.js",
  "zvuk.js", "manifest.webmanifest", "ikona.svg"];
for (const jmeno of stranka) pis(jmeno, fs.readFileSync(path.join(zdroje, jmeno)));

const vse = fs.readdirSync(kam).sort();
const otisk = createHash("sha256");
for (const jmeno of vse) otisk.update(jmeno).update(fs.readFileSync(path.join(kam, jmeno)));
pis("sw.js", fs.readFileSync(path.join(zdroje, "sw.js"), "utf8")
  .replace("@OTISK@", otisk.digest("hex").slice(0, 16))
  .replace("@SOUBORY@", JSON.stringify(["./", ...vse])));

const bajtu = fs.readdirSync(kam).reduce((n, jmeno) =>
  n + fs.statSync(path.join(kam, jmeno)).size, 0);
console.log(`Stránka: ${kam}, ${(bajtu / 1e6).toFixed(2)} MB`);
