// The page: its parts, each shown of the series that are chosen.
const NA_STRANCE = 50; // attempts shown at first, and more at a press
const HODNE_ULOH = 12; // columns; with more of them words are left out
const CHYB_ULOHY = 5; // of a task, unless all are wanted
const id = (jmeno) => document.getElementById(jmeno);

let vyber = vyberZAdresy();
let vybrane = [];
let ukazanychPokusu = NA_STRANCE;
let vsechnyChyby = false;
const otevrene = new Set(); // series that are looked at

function zmenVyber(zmena) {
  history.pushState(null, "", adresaVyberu({ ...vyber, ...zmena }));
  ukazVse();
}

// ---- What there is in short ----
function ukazSouhrn() {
  const zaku = new Set(vybrane.map((s) => s.zak)).size;
  const znamky = vybrane.filter((s) => s.znamka > 0).map((s) => s.znamka);
  const prikladu = vybrane.reduce((n, s) => n + s.priklady.length, 0);
  const chyb = vybrane.reduce((n, s) => n + s.chyby.length, 0);
  const dokoncenych = vybrane.filter((s) => s.dokoncena).length;
  const udaje = [[tvar(zaku, ZACI_SLOVY), zaku], [tvar(vybrane.length, SERIE_SLOVY), vybrane.length],
    [tvar(dokoncenych, ["dokončená", "dokončené", "dokončených"]), dokoncenych],
    ["průměrná známka", znamky.length ? desetinne(prumer(znamky)) : "–"],
    [tvar(prikladu, PRIKLADY_SLOVY), prikladu],
    ["chyb na příklad", prikladu ? desetinne(chyb / prikladu) : "–"]];
  id("souhrn").replaceChildren(prvek("dl", { style: "display:contents" }, ...udaje.map(([co, kolik]) =>
    prvek("div", {}, prvek("dt", {}, co), prvek("dd", {}, String(kolik))))));
  id("vybrano").textContent = vybrane.length === SERIE.length
    ? `Ukazuje se vše: ${pocet(SERIE.length, SERIE_SLOVY)}.`
    : `Vybráno: ${pocet(vybrane.length, SERIE_SLOVY)} z ${SERIE.length}.`;
}

// ---- Pupils by tasks ----
const tabulkaZaku = new Tabulka(id("zaci"), { klic: "zak", smer: 1 }, ukazZaky);

// Of a pupil's series of a task, from the oldest on as all records are: the best mark and the last
// one, and how many.
function souhrnUlohy(serie) {
  const znamky = serie.map((s) => s.znamka).filter((z) => z > 0);
  return { serii: serie.length, nejlepsi: znamky.length ? Math.min(...znamky) : 0,
    posledni: znamky.length ? znamky[znamky.length - 1] : 0 };
}

function bunkaUlohy(radek, uloha) {
  const u = radek.ulohy.get(uloha);
  if (!u) return "";
  const slovy = u.nejlepsi === 0 ? "bez známky"
    : `nejlepší známka ${u.nejlepsi}, poslední ${u.posledni}`;
  return prvek("button", { type: "button", class: `z${u.nejlepsi}`,
    "aria-label": `${radek.zak.jmeno}, ${ULOHY.get(uloha).nazev}: ${slovy}, ${pocet(u.serii, SERIE_SLOVY)}`,
    onclick: () => zmenVyber({ zak: String(radek.zak.cislo), uloha: String(uloha) }) },
  prvek("b", {}, u.nejlepsi === 0 ? "–" : String(u.nejlepsi)),
  prvek("small", {}, ...(u.posledni === 0 ? [] : [prvek("span", { class: "slovo" }, "posl. "),
    `${u.posledni} · `]), `${u.serii}×`));
}

function ukazZaky() {
  const zaci = new Map();
  for (const s of vybrane) {
    if (!zaci.has(s.zak)) zaci.set(s.zak, new Map());
    const ulohy = zaci.get(s.zak);
    if (!ulohy.has(s.uloha)) ulohy.set(s.uloha, []);
    ulohy.get(s.uloha).push(s);
  }
  const radky = [...zaci].map(([zak, ulohy]) => ({ zak,
    ulohy: new Map([...ulohy].map(([uloha, serie]) => [uloha, souhrnUlohy(serie)])),
    serii: [...ulohy.values()].reduce((n, serie) => n + serie.length, 0) }));
  for (const r of radky) {
    const znamky = [...r.ulohy.values()].map((u) => u.nejlepsi).filter((z) => z > 0);
    r.prumer = znamky.length ? prumer(znamky) : null;
  }
  const hrane = [...ULOHY.values()].filter((u) => radky.some((r) => r.ulohy.has(u.cislo)));
  const sloupce = [
    { klic: "zak", nadpis: "Žák", hlavicka: true, hodnota: (r) => r.zak.jmeno,
      bunka: (r) => odkaz(r.zak.jmeno, () => zmenVyber({ zak: String(r.zak.cislo) }),
        { title: r.zak.jmeno }) },
    ...(ZACI.some((z) => z.trida !== "") ? [{ klic: "trida", nadpis: "Třída",
      hodnota: (r) => r.zak.trida, bunka: (r) => r.zak.trida }] : []),
    ...hrane.map((u) => ({ klic: `u${u.cislo}`, nadpis: String(u.cislo), popis: u.nazev,
      skupina: u.rodina, hodnota: (r) => (r.ulohy.get(u.cislo) || {}).nejlepsi || null,
      bunka: (r) => bunkaUlohy(r, u.cislo) })),
    { klic: "serii", nadpis: "Sérií", cislo: true, sestupne: true, hodnota: (r) => r.serii,
      bunka: (r) => String(r.serii) },
    { klic: "prumer", nadpis: "Průměr", popis: "Průměr nejlepších známek", cislo: true,
      hodnota: (r) => r.prumer, bunka: (r) => (r.prumer === null ? "–" : desetinne(r.prumer)) },
  ];
  id("zaci").classList.toggle("husta", hrane.length > HODNE_ULOH);
  tabulkaZaku.ukaz(tabulkaZaku.serad(radky, sloupce), sloupce);
}

// ---- The most frequent mistakes ----
const tabulkaChyb = new Tabulka(id("chyby"), { klic: "uloha", smer: 1 }, ukazChyby);

// The wrong steps of each task by their numbers; of several wordings the most frequent one.
function souhrnChyb() {
  const chyby = new Map();
  for (const s of vybrane) {
    for (const [veta, bodu] of s.chyby) {
      const klic = s.uloha * 1000 + VETY[veta][0];
      if (!chyby.has(klic))
        chyby.set(klic, { uloha: s.uloha, zaci: new Set(), krat: 0, bodu: 0, vety: new Map() });
      const c = chyby.get(klic);
      c.zaci.add(s.zak);
      ++c.krat;
      c.bodu += bodu;
      c.vety.set(veta, (c.vety.get(veta) || 0) + 1);
    }
  }
  const radky = [...chyby.values()].map((c) => ({ ...c, zaku: c.zaci.size,
    veta: VETY[[...c.vety].sort((a, b) => b[1] - a[1] || a[0] - b[0])[0][0]] }));
  return radky.sort((a, b) => a.uloha - b.uloha || b.zaku - a.zaku || b.krat - a.krat ||
    a.veta[0] - b.veta[0]);
}

function ukazChyby() {
  const vse = souhrnChyb();
  const poradi = new Map(); // in its task
  const prvni = vse.filter((c) => {
    poradi.set(c.uloha, (poradi.get(c.uloha) || 0) + 1);
    return vsechnyChyby || poradi.get(c.uloha) <= CHYB_ULOHY;
  });
  const nejvic = Math.max(1, ...vse.map((c) => c.zaku));
  const sloupce = [
    { klic: "uloha", nadpis: "Úloha", hodnota: (c) => c.uloha,
      bunka: (c) => odkaz(ULOHY.get(c.uloha).nazev, () => zmenVyber({ uloha: String(c.uloha) })) },
    { klic: "veta", nadpis: "Chyba", hlavicka: true, hodnota: (c) => c.veta[1], bunka: (c) => c.veta[1] },
    { klic: "zaku", nadpis: "Žáků", cislo: true, sestupne: true, hodnota: (c) => c.zaku,
      bunka: (c) => prvek("span", {}, prvek("span", { class: "pruh", "aria-hidden": "true",
        style: `width:${(c.zaku / nejvic * 5).toFixed(2)}rem` }), String(c.zaku)) },
    { klic: "krat", nadpis: "Kolikrát", cislo: true, sestupne: true, hodnota: (c) => c.krat,
      bunka: (c) => String(c.krat) },
    { klic: "bodu", nadpis: "Stála bodů", cislo: true, sestupne: true, hodnota: (c) => c.bodu,
      bunka: (c) => String(c.bodu) },
  ];
  tabulkaChyb.ukaz(tabulkaChyb.serad(prvni, sloupce), sloupce);
  id("vsechny_chyby").hidden = !vsechnyChyby && prvni.length === vse.length;
  id("vsechny_chyby").setAttribute("aria-pressed", String(vsechnyChyby));
  id("vsechny_chyby").textContent = vsechnyChyby
    ? `Ukázat jen ${CHYB_ULOHY} nejčastějších v úloze` : `Ukázat všechny chyby (${vse.length})`;
}

// ---- The attempts ----
const tabulkaPokusu = new Tabulka(id("pokusy"), { klic: "kdy", smer: -1 }, ukazPokusy);

function prepniPokus(serie, tr, tlacitko, sloupcu) {
  const otevrit = !otevrene.has(serie);
  tlacitko.setAttribute("aria-expanded", String(otevrit));
  tlacitko.textContent = otevrit ? "Zavřít" : "Otevřít";
  if (otevrit) {
    otevrene.add(serie);
    tr.after(detailPokusu(serie, sloupcu));
  } else {
    otevrene.delete(serie);
    tr.nextElementSibling.remove();
  }
}

function ukazPokusy() {
  const sloupce = [
    { klic: "kdy", nadpis: "Kdy", sestupne: true, hodnota: (s) => s.kdy, bunka: (s) => datumACas(s.kdy) },
    { klic: "zak", nadpis: "Žák", hlavicka: true, hodnota: (s) => s.zak.jmeno,
      bunka: (s) => odkaz(s.zak.jmeno, () => zmenVyber({ zak: String(s.zak.cislo) })) },
    { klic: "uloha", nadpis: "Úloha", hodnota: (s) => s.uloha, bunka: (s) => ULOHY.get(s.uloha).nazev },
    { klic: "znamka", nadpis: "Známka", hodnota: (s) => (s.znamka === 0 ? null : s.znamka),
      bunka: (s) => prvek("span", {}, znamka(s.znamka), s.dokoncena ? "" : " nedokončeno") },
    { klic: "body", nadpis: "Body", cislo: true, sestupne: true,
      hodnota: (s) => (s.nejvic ? uspesnost(s) : null),
      bunka: (s) => `${s.bodu} z ${s.nejvic}` },
    { klic: "chyb", nadpis: "Chyb", cislo: true, sestupne: true, hodnota: (s) => s.chyby.length,
      bunka: (s) => String(s.chyby.length) },
    { klic: "trvani", nadpis: "Doba", cislo: true, sestupne: true, hodnota: (s) => s.trvani,
      bunka: (s) => doba(s.trvani) },
    { klic: "co", nadpis: "Obrazce", hodnota: (s) => s.soubor, bunka: () => "" },
  ];
  const radky = tabulkaPokusu.serad(vybrane, sloupce);
  tabulkaPokusu.ukaz(radky.slice(0, ukazanychPokusu), sloupce, (serie, tr) => {
    const tlacitko = odkaz("Otevřít", () => prepniPokus(serie, tr, tlacitko, sloupce.length),
      { "aria-expanded": "false", "data-serie": serie.cislo });
    tr.lastElementChild.append(tlacitko);
    if (otevrene.delete(serie)) prepniPokus(serie, tr, tlacitko, sloupce.length);
  });
  const zbyva = Math.max(0, radky.length - ukazanychPokusu);
  id("dalsi_pokusy").hidden = zbyva === 0;
  id("dalsi_pokusy").textContent = `Ukázat další (zbývá ${pocet(zbyva, SERIE_SLOVY)})`;
  // Paper has no button that would say so.
  id("neukazane").textContent = zbyva === 0 ? "" : `Neukázáno: ${pocet(zbyva, SERIE_SLOVY)}.`;
}

// ---- The choice ----
function naplnVybery() {
  const moznost = (hodnota, text) => prvek("option", { value: hodnota }, text);
  id("zak").append(moznost("", "všichni"), ...[...ZACI]
    .sort((a, b) => podleAbecedy(a.jmeno, b.jmeno))
    .map((z) => moznost(z.cislo, z.trida ? `${z.jmeno} (${z.trida})` : z.jmeno)));
  const tridy = [...new Set(ZACI.map((z) => z.trida).filter((t) => t !== ""))].sort(podleAbecedy);
  id("trida").append(moznost("", "všechny"), ...tridy.map((t) => moznost(t, t)));
  id("tridy").hidden = tridy.length === 0;
  const hrane = new Set(SERIE.map((s) => s.uloha));
  const rodiny = new Map();
  for (const u of ULOHY.values()) {
    if (!hrane.has(u.cislo)) continue;
    if (!rodiny.has(u.rodina)) rodiny.set(u.rodina, prvek("optgroup", { label: u.rodina }));
    rodiny.get(u.rodina).append(moznost(u.cislo, `${u.cislo}. ${u.typ}`));
  }
  id("uloha").append(moznost("", "všechny"), ...rodiny.values());
}

function ukazVse() {
  vyber = vyberZAdresy();
  for (const klic of Object.keys(vyber)) id(klic).value = vyber[klic];
  vybrane = vybraneSerie(vyber);
  ukazanychPokusu = NA_STRANCE;
  id("zrus").disabled = Object.values(vyber).every((v) => v === "");
  ukazSouhrn();
  ukazZaky();
  ukazGraf(vybrane, vyber.zak !== "" ? ZACI[Number(vyber.zak)] : ZACI.length === 1 ? ZACI[0] : null);
  ukazChyby();
  ukazPokusy();
}

naplnVybery();
id("legenda").append("Velká číslice je nejlepší známka v úloze, pod ní poslední známka a počet sérií: ",
  ...[1, 2, 3, 4, 5].flatMap((z) => [znamka(z), " "]), znamka(0), " bez známky.");
id("filtry").addEventListener("submit", (e) => e.preventDefault());
for (const klic of Object.keys(PRAZDNY_VYBER))
  id(klic).addEventListener("change", () => zmenVyber({ [klic]: id(klic).value }));
id("zrus").addEventListener("click", () => zmenVyber(PRAZDNY_VYBER));
id("tisk").addEventListener("click", () => window.print());
id("vsechny_chyby").addEventListener("click", () => { vsechnyChyby = !vsechnyChyby; ukazChyby(); });
id("dalsi_pokusy").addEventListener("click", () => { ukazanychPokusu += NA_STRANCE; ukazPokusy(); });
window.addEventListener("popstate", ukazVse);
ukazVse();
