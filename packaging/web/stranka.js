// The page of the game: starts the program and gives it what it wants of a machine. ?seminko=7 draws
// the same examples at each start, ?kontrola is the check before a lesson, ?prehraj=NAME shows an
// attempt that the browser keeps.

import { celaObrazovka, ozivListu, oznam, podej } from "./lista.js";
import { nactiHru } from "./nacteni.js";
import { poprve, Uloziste } from "./uloziste.js";
import { poslouchej } from "./vstup.js";
import { POKUSY, UCET, Vysledky } from "./vysledky.js";
import { jedina } from "./zamek.js";
import { neniZvuk, zahraj } from "./zvuk.js";

const STAV = "/stav";

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

// How much has been loaded, 0 to 1.
function prubeh(podil) {
  $("prubeh").value = podil;
  $("zprava-text").textContent = `${Math.round(podil * 100)} %`;
}

const bezZpravy = () => {
  $("zprava").hidden = true;
};

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
    const [ukladame, modul] = await Promise.all([this.uloziste.otevri(), nactiHru(this, prubeh)]);
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
      rys_klavesa: (jmeno, shift, opakovana) =>
        this.sTextem(jmeno, (t) => m._rys_klavesa(t, shift, opakovana)),
      rys_klavesa_nahoru: (jmeno) => this.sTextem(jmeno, m._rys_klavesa_nahoru),
      rys_plati_s_ctrl: (jmeno) => this.sTextem(jmeno, m._rys_plati_s_ctrl),
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
