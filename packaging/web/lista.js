// The bar of the page: results and attempts to files and back, the whole screen, a line that says what
// came of it.

import { zabalZip } from "./zip.js";

const $ = (jmeno) => document.getElementById(jmeno);

// A line in the bar, until it is read.
export function oznam(text) {
  $("oznam").textContent = text;
  $("prehraj").hidden = true;
  $("zavri-oznam").hidden = text === "";
}

// Gives the person a file, among the downloaded ones.
export function podej(jmeno, obsah) {
  const odkaz = document.createElement("a");
  odkaz.href = URL.createObjectURL(obsah);
  odkaz.download = jmeno;
  odkaz.click();
  setTimeout(() => URL.revokeObjectURL(odkaz.href), 10_000);
}

export function celaObrazovka() {
  if (document.fullscreenElement) document.exitFullscreen();
  else $("hriste").requestFullscreen?.({ navigationUI: "hide" });
}

export function ozivListu(stranka) {
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
