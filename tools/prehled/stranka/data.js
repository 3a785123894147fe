// What the page is about: records out of the page's own source, the chosen ones among them, words.
const DATA = JSON.parse(document.getElementById("data").textContent);
const ZACI = DATA.zaci.map(([jmeno, trida], cislo) => ({ cislo, jmeno, trida }));
// How an address names a pupil: a number would be another pupil's in a page made later.
const PODLE_ADRESY = new Map();
for (const z of ZACI) {
  z.adresa = [z.jmeno, `${z.jmeno} (${z.trida})`, `${z.jmeno} (${z.trida}) ${z.cislo}`]
    .find((a) => !PODLE_ADRESY.has(a));
  PODLE_ADRESY.set(z.adresa, z);
}
const ULOHY = new Map(DATA.ulohy.map(([cislo, rodina, typ]) =>
  [cislo, { cislo, rodina, typ, nazev: `${cislo}. ${rodina}: ${typ}` }]));
const VETY = DATA.vety; // number, sentence
const SERIE = DATA.serie.map(([zak, uloha, kdy, dokoncena, bodu, nejvic, znamka, trvani, napsane,
  priklady, chyby, soubor], cislo) => ({
  cislo, zak: ZACI[zak], uloha, kdy, dokoncena: dokoncena === 1, bodu, nejvic, znamka, trvani,
  napsane, priklady, chyby, soubor,
}));
// Bits of an example's state.
const STAV_ZKONTROLOVAN = DATA.stavZkontrolovan, STAV_HOTOVA = DATA.stavHotova;
const SERII_V_KUSU = DATA.vKusu;

// Figures of a series: of each example at its end, of each charge. They lie in the source as text,
// so many series together, and become something only when they are looked at.
let drzenyKus = { cislo: -1, radky: [] };
function obrazceSerie(serie) {
  const cislo = Math.floor(serie.cislo / SERII_V_KUSU);
  if (drzenyKus.cislo !== cislo) {
    drzenyKus = { cislo, radky: document.getElementById(`o${cislo}`).textContent.split("\n") };
  }
  const [konce, pri] = JSON.parse(drzenyKus.radky[serie.cislo % SERII_V_KUSU]);
  // A figure of a charge says how much of the example's last one it begins with, and what follows.
  let predchozi = "";
  const chyby = pri.map((zapis, i) => {
    if (zapis !== 0) {
      const [delka, zbytek] = zapis;
      predchozi = (konce[serie.chyby[i][2] - 1] || "").slice(0, delka) + zbytek;
    }
    return predchozi;
  });
  return { konce, chyby };
}

// ---- The choice, which the address holds ----
const PRAZDNY_VYBER = { zak: "", trida: "", uloha: "", od: "", do: "" };
function vyberZAdresy() {
  const adresa = new URLSearchParams(location.hash.slice(1));
  const vyber = { ...PRAZDNY_VYBER };
  for (const klic of Object.keys(vyber)) vyber[klic] = adresa.get(klic) || "";
  vyber.zak = String(PODLE_ADRESY.get(vyber.zak)?.cislo ?? "");
  return vyber;
}
function adresaVyberu(vyber) {
  const adresa = new URLSearchParams();
  for (const [klic, co] of Object.entries(vyber))
    if (co !== "") adresa.set(klic, klic === "zak" ? ZACI[Number(co)].adresa : co);
  return `#${adresa}`;
}
function vybraneSerie(vyber) {
  const zak = vyber.zak === "" ? null : ZACI[Number(vyber.zak)];
  const uloha = Number(vyber.uloha);
  return SERIE.filter((s) => (zak === null || s.zak === zak) &&
    (vyber.trida === "" || s.zak.trida === vyber.trida) &&
    (vyber.uloha === "" || s.uloha === uloha) &&
    (vyber.od === "" || s.kdy.slice(0, 10) >= vyber.od) &&
    (vyber.do === "" || s.kdy.slice(0, 10) <= vyber.do));
}

// ---- Words ----
const SERIE_SLOVY = ["série", "série", "sérií"], ZACI_SLOVY = ["žák", "žáci", "žáků"];
const BODY_SLOVY = ["bod", "body", "bodů"], PRIKLADY_SLOVY = ["příklad", "příklady", "příkladů"];
const tvar = (n, [jeden, dva, pet]) => (n === 1 ? jeden : n >= 2 && n <= 4 ? dva : pet);
const pocet = (n, tvary) => `${n} ${tvar(n, tvary)}`;
function datum(kdy) { // 2026-09-01T07:55
  return `${Number(kdy.slice(8, 10))}. ${Number(kdy.slice(5, 7))}. ${kdy.slice(0, 4)}`;
}
const datumACas = (kdy) => `${datum(kdy)} ${Number(kdy.slice(11, 13))}:${kdy.slice(14, 16)}`;
function doba(ms) {
  const s = Math.round(ms / 1000);
  const sekundy = String(s % 60).padStart(2, "0");
  return s < 3600 ? `${Math.floor(s / 60)}:${sekundy}`
    : `${Math.floor(s / 3600)}:${String(Math.floor(s / 60) % 60).padStart(2, "0")}:${sekundy}`;
}
const desetinne = (x) => x.toFixed(1).replace(".", ",");
const podleAbecedy = new Intl.Collator("cs", { numeric: true }).compare;
const prumer = (cisla) => cisla.reduce((a, b) => a + b, 0) / cisla.length;
