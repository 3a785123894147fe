// Puts the page together: program and data packed, licences, a list of all files for the start
// without a connection.
//   node zabal.mjs STAGED PROGRAM_FOLDER LIBRARIES PAGE_SOURCES OUT
import { createHash } from "node:crypto";
import fs from "node:fs";
import path from "node:path";
import { gzipSync } from "node:zlib";

const [staging, program, knihovny, zdroje, kam] = process.argv.slice(2);
const sbal = (data) => gzipSync(data, { level: 9 });

// What the program reads, from the list against which a build is checked: pictures by their shapes, no
// bitmaps; results are the browser's.
const assety = fs.readFileSync(path.join(zdroje, "../../assets/soubory.txt"), "utf8")
  .split("\n").map((radek) => radek.split(" ")[0]).filter((jmeno) => /^\w+\//.test(jmeno))
  .map((jmeno) => `assets/${jmeno.replace(/\.bmp$/, ".tvary")}`);
const data = fs.readdirSync(path.join(staging, "data")).sort()
  .filter((jmeno) => jmeno.endsWith(".dat") && jmeno !== "Vysledky.dat")
  .map((jmeno) => `data/${jmeno}`);

const obsah = [["Rysovna.ini", fs.readFileSync(path.join(zdroje, "Rysovna.ini"))],
  ...[...assety, ...data].map((jmeno) => [jmeno, fs.readFileSync(path.join(staging, jmeno))])];
const seznam = Buffer.from(JSON.stringify(obsah.map(([jmeno, bajty]) => [jmeno, bajty.length])));
const delka = Buffer.alloc(4);
delka.writeUInt32LE(seznam.length);

fs.rmSync(kam, { recursive: true, force: true });
fs.mkdirSync(kam, { recursive: true });
const pis = (jmeno, data) => fs.writeFileSync(path.join(kam, jmeno), data);
pis("data.bin", sbal(Buffer.concat([delka, seznam, ...obsah.map(([, bajty]) => bajty)])));
pis("hra.bin", sbal(fs.readFileSync(path.join(program, "rysovna.wasm"))));
pis("rysovna.js", fs.readFileSync(path.join(program, "rysovna.js")));
const stranka = ["index.html", "styl.css", "zacatek.js", "stranka.js", "lista.js", "nacteni.js",
  "uloziste.js", "vstup.js", "vysledky.js", "zamek.js", "zip.js", "zvuk.js", "Rysovna.ini",
  "manifest.webmanifest"];
pis("ikona.svg", fs.readFileSync(path.join(program, "ikona.svg")));
for (const jmeno of stranka) pis(jmeno, fs.readFileSync(path.join(zdroje, jmeno)));

// Licences of the libraries and of the fonts, each under its name.
const licence = [path.join(knihovny, "share/licence"), path.join(staging, "assets/Licence")]
  .flatMap((slozka) => fs.readdirSync(slozka).sort().map((jmeno) => path.join(slozka, jmeno)));
pis("licence.txt", Buffer.concat(licence.flatMap((soubor) =>
  [Buffer.from(`=== ${path.basename(soubor, ".txt")} ===\n\n`), fs.readFileSync(soubor),
    Buffer.from("\n\n")])));

const vse = fs.readdirSync(kam).sort();
const otisk = createHash("sha256");
for (const jmeno of vse) otisk.update(jmeno).update(fs.readFileSync(path.join(kam, jmeno)));
pis("sw.js", fs.readFileSync(path.join(zdroje, "sw.js"), "utf8")
  .replace("@OTISK@", otisk.digest("hex").slice(0, 16))
  .replace("@SOUBORY@", JSON.stringify(["./", ...vse])));

const bajtu = fs.readdirSync(kam).reduce((n, jmeno) =>
  n + fs.statSync(path.join(kam, jmeno)).size, 0);
console.log(`Stránka: ${kam}, ${(bajtu / 1e6).toFixed(2)} MB`);
