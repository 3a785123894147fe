// The page of the game: loads program and data, gives the program what it wants of a machine, and
// does what the page itself offers. ?seminko=7 draws the same examples at each start, ?kontrola is
// the check before a lesson, ?prehraj=NAME shows an attempt that the browser keeps.

import { poprve, Uloziste } from "./uloziste.js";
import { poslouchej } from "./vstup.js";
import { POKUSY, UCET, Vysledky } from "./vysledky.js";
import { zabalZip } from "./zip.js";
import { neniZvuk, zahraj } from "./zvuk.js";

const STAV = "/stav", HRA = "/hra";
const ZAMEK = "rysovna-hraje";
const NEJDELE_ODCHAZI = 1500; // ms: that the page before in the same tab may keep the lock

const $ = (jmeno) => document.getElementById(jmeno);
const volby = new URLSearchParams(location.search);
const kHre = () => location.assign(location.pathname);

/* ---- What the page says */

function zprava(titul, text, tlacitko, pak) {
  $("zprava-titul").textContent = titul;
  $("zprava-text").textContent = text;
  $("prubeh").hidden = true;
  $("zprava-tlacitko").hidden = !tlacitko;
  $("zprava-tlacitko").textContent = tlacitko ?? "";
  $("zprava-tlacitko").onclick = pak ?? null;
  $("zprava").hidden = false;
  if (tlacitko) $("zprava-tlacitko").focus();
}

const bezZpravy = () => {
  $("zprava").hidden = true;
};

// A line in the bar, until it is read.
function oznam(text) {
  $("oznam").textContent = text;
  $("prehraj").hidden = true;
  $("zavri-oznam").hidden = text === "";
}

/* ---- Loading */

// Bytes of a packed file; podil is told how much of it has come, 0 to 1.
async function stahni(soubor, podil) {
  const odpoved = await fetch(soubor);
  if (!odpoved.ok) throw new Error(`${soubor}: ${odpoved.status}`);
  const celkem = Number(odpoved.headers.get("Content-Length")) || 0;
  let mame = 0;
  const pocitej = new TransformStream({
    transform(kus, dal) {
      mame += kus.length;
      if (celkem > 0) podil(Math.min(mame / celkem, 1));
      dal.enqueue(kus);
    },
  });
  return odpoved.body.pipeThrough(pocitej).pipeThrough(new DecompressionStream("gzip"));
}

async function nactiHru(stranka) {
  const podily = { "hra.bin": 0, "data.bin": 0 };
  const podil = (soubor) => (kolik) => {
    podily[soubor] = kolik;
    const vse = Object.values(podily).reduce((a, b) => a + b) / 2;
    $("prubeh").value = vse;
    $("zprava-text").textContent = `${Math.round(vse * 100)} %`;
  };
  const [{ default: Rysovna }, program, data] = await Promise.all([
    import("./rysovna.js"),
    stahni("hra.bin", podil("hra.bin")).then((proud) =>
      WebAssembly.compileStreaming(
        new Response(proud, { headers: { "Content-Type": "application/wasm" } }))),
    stahni("data.bin", podil("data.bin")).then((proud) => new Response(proud).arrayBuffer()),
  ]);
  const modul = await Rysovna({
    stranka,
    instantiateWasm(dovozy, hotovo) {
      WebAssembly.instantiate(program, dovozy).then((instance) => hotovo(instance, program));
      return {};
    },
    printErr: (text) => console.warn(text),
  });
  rozbalData(modul.FS, new Uint8Array(data));
  await nactiNastaveni(modul.FS);
  return modul;
}

// The configuration as it stands beside the page; where the server keeps it back, as it was built.
async function nactiNastaveni(FS) {
  try {
    const odpoved = await fetch("Rysovna.ini");
    const text = odpoved.ok ? await odpoved.text() : "";
    if (text.includes("[RYSOVNA1]")) FS.writeFile(`${HRA}/Rysovna.ini`, text);
  } catch {
    // Without a connection, and not kept.
  }
}

// The data file: length of the list (32 bits, little-endian), the list as JSON, the files.
function rozbalData(FS, data) {
  const delka = new DataView(data.buffer).getUint32(0, true);
  const seznam = JSON.parse(new TextDecoder().decode(data.subarray(4, 4 + delka)));
  let misto = 4 + delka;
  for (const [jmeno, bajtu] of seznam) {
    const cesta = `${HRA}/${jmeno}`;
    FS.mkdirTree(cesta.slice(0, cesta.lastIndexOf("/")));
    FS.writeFile(cesta, data.subarray(misto, misto + bajtu));
    misto += bajtu;
  }
}

/* ---- One tab plays */

// Over plain http there are no locks of the browser: a new tab asks, the playing one answers.
function jedinaBezZamku() {
  let kanal;
  try {
    kanal = new BroadcastChannel(ZAMEK);
  } catch {
    return Promise.resolve(true); // none, or forbidden with all else that pages keep
  }
  return new Promise((hotovo) => {
    const cekani = setTimeout(() => {
      kanal.onmessage = (e) => {
        if (e.data === "hraje nekdo?") kanal.postMessage("hraju");
      };
      hotovo(true);
    }, 400);
    kanal.onmessage = (e) => {
      if (e.data !== "hraju") return;
      clearTimeout(cekani);
      kanal.close();
      hotovo(false);
    };
    kanal.postMessage("hraje nekdo?");
  });
}

// Resolves to true when this tab has the game, false when another one has it.
function jedina() {
  if (!navigator.locks) return jedinaBezZamku();
  return new Promise((hotovo) => {
    navigator.locks.request(ZAMEK, { signal: AbortSignal.timeout(NEJDELE_ODCHAZI) }, () => {
      hotovo(true);
      return new Promise(() => {});
    }).catch((chyba) => hotovo(chyba.name === "TimeoutError" ? false : jedinaBezZamku()));
  });
}

/* ---- The game */

class Stranka {
  modul = null;
  platno = $("platno");
  kresba = $("platno").getContext("2d", { alpha: false });
  uloziste = new Uloziste();
  vysledky = new Vysledky(this);
  obraz = null;
  casovac = 0;
  snimek = 0;
  bezi = false;

  // What the program calls (most.js).
  ukaz(pamet, body, sirka, vyska, x, y, w, h) {
    if (!this.obraz || this.obraz.data.buffer !== pamet || this.obraz.data.byteOffset !== body ||
        this.obraz.width !== sirka || this.obraz.height !== vyska) {
      this.obraz = new ImageData(
        new Uint8ClampedArray(pamet, body, sirka * vyska * 4), sirka, vyska);
    }
    this.kresba.putImageData(this.obraz, 0, 0, x, y, w, h);
  }
  kurzor(ktery) {
    this.platno.style.cursor = ["default", "pointer", "crosshair", "text"][ktery];
  }
  psani(ano, x, y, vyska) {
    this.vstup?.psani(ano, x, y, vyska);
  }
  zvuk(jmeno, data) {
    zahraj(jmeno, data);
  }
  neniZvuk() {
    return neniZvuk();
  }
  rekni(text) {
    $("hlas").textContent = text;
  }
  zprava(titul, text) {
    zprava(titul, text);
  }
  stahni(jmeno, data) {
    podej(jmeno, new Blob([data], { type: "application/pdf" }));
  }

  // A text of the program, and one for it.
  text(ukazatel) {
    return this.modul.UTF8ToString(ukazatel);
  }
  sTextem(text, co) {
    const delka = this.modul.lengthBytesUTF8(text) + 1;
    const kde = this.modul._malloc(delka);
    this.modul.stringToUTF8(text, kde, delka);
    const vysledek = co(kde);
    this.modul._free(kde);
    return vysledek;
  }

  rozmer() {
    const r = $("hriste").getBoundingClientRect();
    const s = window.devicePixelRatio || 1;
    return [Math.max(Math.round(r.width * s), 1), Math.max(Math.round(r.height * s), 1)];
  }
  prizpusob() {
    const [sirka, vyska] = this.rozmer();
    if (this.platno.width === sirka && this.platno.height === vyska) return;
    this.platno.width = sirka;
    this.platno.height = vyska;
    this.modul._rys_rozmer(sirka, vyska);
    this.tah();
  }

  // A turn of the program now; it says when it wants the next one.
  tah = () => {
    if (!this.bezi) return;
    clearTimeout(this.casovac);
    cancelAnimationFrame(this.snimek);
    this.snimek = 0;
    let za;
    try {
      za = this.modul._rys_tah();
    } catch (chyba) {
      // Nothing that the program could tell itself.
      this.bezi = false;
      console.error(chyba);
      zprava("Hra skončila chybou", `${chyba}\nCo bylo uloženo, zůstává. Načtěte stránku znovu.`,
        "Načíst znovu", () => location.reload());
      return;
    }
    if (za < 0) {
      this.bezi = false;
      if (!$("zprava").hidden) return;
      if (volby.has("prehraj"))
        zprava("Přehrávání skončilo", "", "Ke hře", kHre);
      else
        zprava("Hra skončila", "Výsledky zůstávají v tomto prohlížeči.", "Hrát znovu",
          () => location.reload());
      return;
    }
    if (za < 0x7fffffff) this.casovac = setTimeout(this.tah, za);
  };
  tahSeSnimkem = () => {
    if (this.snimek === 0) this.snimek = requestAnimationFrame(this.tah);
  };

  async nacti() {
    const [ukladame, modul] = await Promise.all([this.uloziste.otevri(), nactiHru(this)]);
    this.modul = modul;
    const { FS } = this.modul;
    for (const slozka of [UCET, POKUSY, `${STAV}/fronta`]) FS.mkdirTree(slozka);
    for (const [cesta, bajty] of await this.uloziste.vse()) FS.writeFile(cesta, bajty);
    return ukladame;
  }

  zacni() {
    const [sirka, vyska] = this.rozmer();
    this.platno.width = sirka;
    this.platno.height = vyska;
    const m = this.modul;
    const hra = {
      rys_mys: m._rys_mys, rys_prst: m._rys_prst, rys_navrat: m._rys_navrat,
      rys_klavesa: (jmeno, shift, dolu) => this.sTextem(jmeno, (t) => m._rys_klavesa(t, shift, dolu)),
      rys_pis: (text) => this.sTextem(text, m._rys_pis),
      rys_vloz: (text) => this.sTextem(text, m._rys_vloz),
      schranka: () => this.text(m._rys_schranka()),
    };
    this.vstup = poslouchej(this.platno, $("pole"), $("lista"), hra, this.tah, this.tahSeSnimkem,
      celaObrazovka);
    if (volby.has("prehraj")) {
      const proc = this.text(
        this.sTextem(volby.get("prehraj"), (t) => m._rys_prehraj(t, sirka, vyska)));
      if (proc) {
        zprava("Záznam pokusu nelze přehrát", proc, "Ke hře", kHre);
        return;
      }
    } else {
      m._rys_zacni(volby.has("seminko") ? Number(volby.get("seminko")) : -1, sirka, vyska);
    }
    this.bezi = true;
    new ResizeObserver(() => this.prizpusob()).observe($("hriste"));
    this.tah();
  }
}

// Gives the person a file, among the downloaded ones.
function podej(jmeno, obsah) {
  const odkaz = document.createElement("a");
  odkaz.href = URL.createObjectURL(obsah);
  odkaz.download = jmeno;
  odkaz.click();
  setTimeout(() => URL.revokeObjectURL(odkaz.href), 10_000);
}

function celaObrazovka() {
  if (document.fullscreenElement) document.exitFullscreen();
  else $("hriste").requestFullscreen?.({ navigationUI: "hide" });
}

function ozivListu(stranka) {
  $("cela").hidden = !document.fullscreenEnabled;
  $("cela").onclick = celaObrazovka;
  const soubor = (co, pripona) => {
    const d = new Date(); // as the clock on the wall says, where an ISO date would be Greenwich's
    const dve = (n) => String(n).padStart(2, "0");
    const den = `${d.getFullYear()}-${dve(d.getMonth() + 1)}-${dve(d.getDate())}`;
    return `rysovna-${co}-${den}.${pripona}`;
  };
  $("uloz").onclick = () => {
    podej(soubor("vysledky", "json"),
      new Blob([stranka.vysledky.doSouboru()], { type: "application/json" }));
    oznam("Výsledky i záznamy pokusů jsou ve stažených souborech.");
  };
  $("uloz-pokusy").onclick = () => {
    const pokusy = stranka.vysledky.pokusy();
    if (pokusy.length > 0) podej(soubor("pokusy", "zip"), zabalZip(pokusy, new Date()));
    oznam(pokusy.length > 0 ? "Záznamy pokusů jsou ve stažených souborech."
      : "Žádné záznamy pokusů tu zatím nejsou.");
  };
  $("nacti").onclick = () => $("soubor").click();
  $("soubor").onchange = async () => {
    const soubory = [...$("soubor").files];
    const pokusy = [], texty = [];
    for (const soubor of soubory) {
      if (soubor.name.endsWith(".pokus"))
        pokusy.push([soubor.name, new Uint8Array(await soubor.arrayBuffer())]);
      else texty.push(await soubor.text());
    }
    $("soubor").value = "";
    const hlaseni = [];
    for (const text of texty) hlaseni.push(await stranka.vysledky.pridej(text));
    let prehrat = "";
    if (pokusy.length > 0) {
      const [text, jmeno] = await stranka.vysledky.pridejPokusy(pokusy);
      hlaseni.push(text);
      prehrat = jmeno;
    }
    oznam(hlaseni.join(" "));
    if (!prehrat) return;
    $("prehraj").hidden = false;
    $("prehraj").onclick = () =>
      location.assign(`${location.pathname}?prehraj=${encodeURIComponent(prehrat)}`);
    $("prehraj").focus();
  };
  $("zavri-oznam").onclick = () => {
    oznam("");
    $("platno").focus();
  };
}

/* ---- Start */

async function pracujBezPripojeni() {
  if (!window.isSecureContext) {
    if (poprve("http"))
      oznam("Stránka je otevřena bez zabezpečení (http). Hrát lze a výsledky se ukládají, " +
        "nepůjde ji však nainstalovat ani hrát bez připojení. Správci poradí README hry.");
    return;
  }
  try {
    await navigator.serviceWorker?.register("sw.js");
  } catch (chyba) {
    console.warn(chyba);
  }
}

async function zacni() {
  zprava("Načítám hru", "");
  $("prubeh").hidden = false;
  if (!(await jedina())) {
    zprava("Hra je už otevřená",
      "Hraje se v jiné kartě nebo v jiném okně tohoto prohlížeče. Pokračujte tam, nebo tamto okno " +
      "zavřete a zkuste to tady znovu.", "Zkusit znovu", () => location.reload());
    return;
  }
  const stranka = new Stranka();
  let ukladame;
  try {
    ukladame = await stranka.nacti();
  } catch (chyba) {
    console.error(chyba);
    zprava("Hru se nepodařilo načíst",
      "Některý soubor hry chybí, je poškozený, nebo vypadlo připojení. Uložené výsledky " +
      `zůstávají.\n(${chyba.message ?? chyba})`, "Načíst znovu", () => location.reload());
    return;
  }
  if (volby.has("kontrola")) {
    const seznam = document.createElement("pre");
    seznam.id = "kontrola";
    seznam.textContent = stranka.text(stranka.modul._rys_kontrola(...stranka.rozmer()));
    zprava("Kontrola před hodinou", "");
    $("zprava-text").replaceWith(seznam);
    return;
  }
  bezZpravy();
  $("lista").hidden = false;
  ozivListu(stranka);
  stranka.zacni();
  window.rysovna = stranka; // for who looks in from outside: tests, a curious teacher
  if (!ukladame)
    oznam("Prohlížeč této stránce nedovoluje ukládat. Hrát lze, ale výsledky se zavřením stránky " +
      "ztratí; předtím je uložte do souboru.");
  navigator.storage?.persist?.();
  await pracujBezPripojeni();
}

zacni();
