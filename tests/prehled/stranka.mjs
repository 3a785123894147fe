// The overview's page in a browser, played from outside: what stands there is compared with the two
// tables that are written beside it.
//   node stranka.mjs BUILD_FOLDER [PICTURE.png]
// BUILD_FOLDER holds prehled and the maker of a class. PICTURE: the page is left there as a picture.
import { execFileSync } from "node:child_process";
import fs from "node:fs";
import os from "node:os";
import path from "node:path";
import { pauza, Prohlizec } from "../web/prohlizec.mjs";

const [sestaveni, obrazek] = process.argv.slice(2);
const prace = fs.mkdtempSync(path.join(os.tmpdir(), "rysovna_prehled_"));
const SERII = 240;

function stejne(mame, mame_byt, co) {
  const [a, b] = [JSON.stringify(mame), JSON.stringify(mame_byt)];
  if (a !== b) throw new Error(`${co}:\n  je       ${a}\n  má být   ${b}`);
}
const podle = (radky, klic) => radky.reduce(
  (mapa, r) => mapa.set(klic(r), [...(mapa.get(klic(r)) ?? []), r]), new Map());

// Rows of a table as records by its heading. No field of this class holds a semicolon.
function tabulka(soubor) {
  const [hlava, ...radky] = fs.readFileSync(soubor, "utf8").replace(/^\uFEFF/, "").trim()
    .split(/\r?\n/).map((r) => r.split(";").map((p) => p.replace(/^"(.*)"$/, "$1")));
  return radky.map((r) => Object.fromEntries(hlava.map((jmeno, i) => [jmeno, r[i]])));
}

function vyrob(jmeno, ...volby) {
  const soubor = path.join(prace, `${jmeno}.html`);
  execFileSync(path.join(sestaveni, "staging", "prehled"), [...volby, "-o", soubor, "--rejstrik",
    path.join(prace, `${jmeno}.rejstrik`)], { stdio: ["ignore", "ignore", "inherit"] });
  return { adresa: `file://${soubor}`, serie: tabulka(path.join(prace, `${jmeno}-serie.csv`)),
    chyby: tabulka(path.join(prace, `${jmeno}-chyby.csv`)) };
}

// Presses with the mouse what the expression finds.
async function stiskni(k, vyraz) {
  const kde = await k.hodnota(`(() => { const p = ${vyraz}; p.scrollIntoView({ block: "center" });
    const r = p.getBoundingClientRect(); return { x: r.left + r.width / 2, y: r.top + r.height / 2 }; })()`);
  await k.mys("mouseMoved", kde, false);
  await k.mys("mousePressed", kde, true);
  await k.mys("mouseReleased", kde, false);
}
const vyber = (k, prvek, hodnota) => k.hodnota(`(() => { const p = document.getElementById("${prvek}");
  p.value = ${JSON.stringify(hodnota)}; p.dispatchEvent(new Event("change")); return p.value; })()`);
// Texts of a table's cells, row by row.
const bunky = (k, id) => k.hodnota(`[...document.querySelectorAll("#${id} tbody tr:not(.detail)")]
  .map((r) => [...r.children].map((b) => b.innerText.trim().replace(/\\s+/g, " ")))`);
const sloupec = async (k, id, i) => (await bunky(k, id)).map((r) => r[i]);

const ULOHA = /^(\d+)\./;
const datum = (s) => s.Datum.split("-").map(Number).reverse().join(". ");

// Pupils by tasks as the table of series says: best mark, last one, how many.
function ocekavaniZaci(serie) {
  const znamky = (radky) => radky.filter((s) => s["Známka"]).map((s) => Number(s["Známka"]));
  return new Map([...podle(serie, (s) => s["Žák"])].map(([zak, jeho]) => {
    const ulohy = podle([...jeho].sort((a, b) =>
      (a.Datum + a["Čas"] < b.Datum + b["Čas"] ? -1 : 1)), (s) => s["Úloha"]);
    return [zak, Object.fromEntries([...ulohy].map(([uloha, radky]) => {
      const z = znamky(radky);
      return [uloha, z.length ? `${Math.min(...z)} posl. ${z.at(-1)} · ${radky.length}×`
        : `– ${radky.length}×`];
    }))];
  }));
}

async function overZaky(k, serie) {
  const hlava = await k.hodnota(
    "[...document.querySelectorAll('#zaci thead tr:last-child th')].map((h) => h.innerText.trim())");
  const cekame = ocekavaniZaci(serie);
  const radky = await bunky(k, "zaci");
  stejne(radky.map((r) => r[0]).sort(), [...cekame.keys()].sort(), "žáci");
  for (const r of radky) {
    const ulohy = Object.fromEntries(hlava.map((h, i) => [h.split(" ")[0], r[i]])
      .filter(([h, co]) => /^\d+$/.test(h) && co !== ""));
    stejne(ulohy, cekame.get(r[0]), r[0]);
    stejne(r.at(-2), String(serie.filter((s) => s["Žák"] === r[0]).length), `sérií: ${r[0]}`);
  }
}

// Each wrong step of each task: pupils, how many times, points.
async function overChyby(k, chyby) {
  await stiskni(k, "document.getElementById('vsechny_chyby')");
  const cekame = [...podle(chyby, (c) => `${c["Úloha"]}/${c["Číslo chyby"]}`).values()].map((c) => [
    c[0]["Úloha"], c[0]["Chybný krok"], String(new Set(c.map((r) => r["Žák"])).size),
    String(c.length), String(c.reduce((n, r) => n + Number(r["Ztracených bodů"]), 0))]);
  const je = (await bunky(k, "chyby")).map((r) => [ULOHA.exec(r[0])[1], ...r.slice(1)]);
  stejne(je.map(String).sort(), cekame.map(String).sort(), "chyby");
}

async function trida(p) {
  const slozka = path.join(prace, "Pokusy");
  execFileSync(path.join(sestaveni, "tests", "prehled", "vzorek"), [slozka, String(SERII)]);
  const { adresa, serie, chyby } = vyrob("trida", slozka, "--zaci", path.join(slozka, "zaci.csv"));
  stejne(serie.length, SERII, "sérií v tabulce");
  const volane = [];
  p.posluchaci.push((z) => {
    if (z.method === "Network.requestWillBeSent") volane.push(z.params.request.url);
  });
  const k = await p.karta(adresa, (x) => x.velikost(1366, 768));
  await k.dokud("document.querySelector('#pokusy tbody tr')", "stránka je hotová");
  if (obrazek) await k.snimek(obrazek);
  await overZaky(k, serie);

  // Sorted by a column, up and down; the column says so.
  const razeni = (klic) => k.hodnota(
    `document.querySelector("#zaci [data-klic=${klic}]").getAttribute("aria-sort")`);
  for (const [smer, znamenko] of [["descending", -1], ["ascending", 1]]) {
    await stiskni(k, "document.querySelector('#zaci [data-klic=serii] button')");
    stejne(await razeni("serii"), smer, "aria-sort");
    stejne(await razeni("zak"), null, "aria-sort jiného sloupce");
    const pocty = (await bunky(k, "zaci")).map((r) => Number(r.at(-2)));
    stejne(pocty, [...pocty].sort((a, b) => znamenko * (a - b)), `seřazeno ${smer}`);
  }
  await stiskni(k, "document.querySelector('#zaci [data-klic=zak] button')");
  const jmena = await sloupec(k, "zaci", 0);
  stejne(jmena, [...jmena].sort(new Intl.Collator("cs").compare), "jména podle abecedy");
  await overChyby(k, chyby);

  // Each filter leaves its own; one that is chosen by a press on a name as well.
  const zbylo = async (plati, co) => {
    const zbyle = serie.filter(plati);
    await overZaky(k, zbyle);
    for (const dalsi = "document.getElementById('dalsi_pokusy')"; await k.hodnota(`!${dalsi}.hidden`);)
      await stiskni(k, dalsi);
    stejne((await sloupec(k, "pokusy", 0)).sort(), zbyle.map((s) =>
      `${datum(s)} ${s["Čas"].replace(/^0/, "")}`).sort(), co);
    return zbyle;
  };
  await vyber(k, "trida", "7.B");
  await zbylo((s) => s["Třída"] === "7.B", "třída");
  await vyber(k, "od", "2026-10-01");
  await vyber(k, "do", "2026-10-15");
  await zbylo((s) => s["Třída"] === "7.B" && s.Datum >= "2026-10-01" && s.Datum <= "2026-10-15",
    "třída a dny");
  await stiskni(k, "document.getElementById('zrus')");
  await vyber(k, "uloha", "9");
  await zbylo((s) => s["Úloha"] === "9", "úloha");
  await stiskni(k, "document.getElementById('zrus')");
  await stiskni(k, "document.querySelector('#zaci tbody tr:nth-child(5) th button')");
  const zaka = await zbylo((s) => s["Žák"] === jmena[4], "žák");
  stejne((await k.hodnota("document.getElementById('graf_popis').textContent")).includes(jmena[4]), true,
    "graf je žákův");
  stejne(await k.hodnota("Chart.getChart('graf').data.datasets[0].data"),
    [...zaka].sort((a, b) => (a.Datum + a["Čas"] < b.Datum + b["Čas"] ? -1 : 1))
      .filter((s) => s["Nejvíc bodů"] !== "0")
      .map((s) => Number(s["Bodů"]) / Number(s["Nejvíc bodů"]) * 100), "body grafu");
  const zalozka = await k.hodnota("location.hash");
  await k.hodnota("history.back()");
  await k.dokud("document.querySelectorAll('#zaci tbody tr').length === 30", "zpět na všechny");

  // An attempt: its mistakes with sentence, points and figure, and the finished figures.
  for (const i of [0, 3, 6]) {
    await vyber(k, "uloha", String([1, 10, 18][i / 3]));
    await k.hodnota("document.querySelector('#pokusy [data-klic=chyb] button').click()");
    await k.hodnota("if (document.querySelector('#pokusy [data-klic=chyb]').ariaSort !== 'descending')" +
      " document.querySelector('#pokusy [data-klic=chyb] button').click()");
    await stiskni(k, "document.querySelector('#pokusy tbody tr [data-serie]')");
    const detail = await k.hodnota(`(() => { const d = document.querySelector(".detail");
      return { soubor: /Soubor: (.*)$/.exec(d.innerText.trim())[1],
        chyby: [...d.querySelectorAll(".chyby li")].map((li) => [li.dataset.cislo, li.innerText]),
        obrazce: [...d.querySelectorAll(".priklad > .obrazec, .chyby .obrazec")].map((o) => o.children.length) };
    })()`);
    const jeho = chyby.filter((c) => c.Soubor === detail.soubor);
    stejne(detail.chyby.map(([cislo]) => cislo), jeho.map((c) => c["Číslo chyby"]), "chyby pokusu");
    detail.chyby.forEach(([, text], n) => {
      if (!text.includes(jeho[n]["Chybný krok"]) || !text.includes(`−${jeho[n]["Ztracených bodů"]} bod`))
        throw new Error(`${text} místo ${jeho[n]["Chybný krok"]}`);
    });
    if (detail.obrazce.length < 3 || detail.obrazce.includes(0))
      throw new Error(`obrazce: ${JSON.stringify(detail)}`);
    await stiskni(k, "document.querySelector('#pokusy tbody tr [data-serie]')");
    stejne(await k.hodnota("document.querySelectorAll('.detail').length"), 0, "zavřeno");
  }

  // Figures of all attempts come whole out of what the page keeps of them.
  stejne(await k.hodnota(`SERIE.filter((s) => { const o = obrazceSerie(s);
    return o.konce.length !== s.priklady.length || o.chyby.length !== s.chyby.length ||
      [...o.konce, ...o.chyby].some((zdroj) => !/^(<(path|circle) [^<>]*\\/>|<text [^<>]*>[^<>]*<\\/text>)*$/.test(zdroj));
    }).map((s) => s.soubor)`), [], "obrazce, které nejsou celé");

  // A narrow screen, a printed one; and nothing from elsewhere.
  for (const sirka of [390, 320]) {
    await k.velikost(sirka, 844);
    await pauza(100);
    stejne(await k.hodnota("document.documentElement.scrollWidth <= innerWidth"), true, `šířka ${sirka}`);
  }
  await k.velikost(703, 1000); // A4 without its margins
  await k.povel("Emulation.setEmulatedMedia", { media: "print" });
  stejne(await k.hodnota("getComputedStyle(document.querySelector('#pokusy tbody tr')).display"),
    "table-row", "série na papíře je řádek");
  await k.povel("Emulation.setEmulatedMedia", { media: "" });
  const { data } = await k.povel("Page.printToPDF", { preferCSSPageSize: true });
  stejne(Buffer.from(data, "base64").subarray(0, 5).toString(), "%PDF-", "tisk");
  stejne(volane.filter((u) => u !== adresa && !/^(about|data):/.test(u)), [], "voláno jinam");
  stejne(k.chyby, [], "chyby stránky");

  // A bookmark means the same pupil in a page of fewer ones.
  const mensi = await p.karta(vyrob("mensi", slozka, "--zaci", path.join(slozka, "zaci.csv"),
    "--trida", zaka[0]["Třída"]).adresa + zalozka);
  await mensi.dokud("document.querySelectorAll('#zaci tbody tr').length === 1", "jeden žák");
  stejne(await mensi.hodnota("document.querySelector('#zaci tbody th').innerText"), jmena[4], "záložka");
  await mensi.zavri();
}

async function prazdno(p) {
  fs.mkdirSync(path.join(prace, "prazdno"));
  const k = await p.karta(vyrob("nic", path.join(prace, "prazdno")).adresa);
  await k.dokud("document.body?.innerText.includes('není žádný pokus')", "prázdná stránka");
  stejne(k.chyby, [], "chyby prázdné stránky");
}

const p = await Prohlizec.spust();
try {
  for (const [jmeno, test] of Object.entries({ trida, prazdno })) {
    await test(p);
    console.log(`V pořádku: ${jmeno}`);
  }
} catch (chyba) {
  console.error(`SELHALO: ${chyba.stack}`);
  process.exitCode = 1;
} finally {
  await p.skonci();
  fs.rmSync(prace, { recursive: true, force: true });
}
