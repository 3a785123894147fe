// One attempt: its examples with the finished figure, and the figure at each mistake.
const SVG = "http://www.w3.org/2000/svg";
// Of a figure's source only this becomes something, whoever wrote it.
const KRESBY = {
  path: ["d", "stroke", "stroke-width"],
  circle: ["cx", "cy", "r", "stroke", "stroke-width", "class"],
  text: ["x", "y", "font-size", "font-style", "font-weight", "fill"],
};

function obrazec(zdroj, popis) {
  const svg = document.createElementNS(SVG, "svg");
  for (const [klic, co] of Object.entries({ class: "obrazec", viewBox: "-.5 -.5 384 335", role: "img",
    "aria-label": popis })) svg.setAttribute(klic, co);
  const cteny = new DOMParser().parseFromString(`<svg xmlns="${SVG}">${zdroj}</svg>`, "image/svg+xml");
  for (const co of cteny.documentElement.children) {
    if (!KRESBY[co.localName]) continue;
    const kresba = document.createElementNS(SVG, co.localName);
    for (const klic of KRESBY[co.localName]) {
      if (co.hasAttribute(klic)) kresba.setAttribute(klic, co.getAttribute(klic));
    }
    kresba.textContent = co.textContent;
    svg.append(kresba);
  }
  return svg;
}

function chybaPokusu([veta, bodu, , kdy], zdroj) {
  const [cislo, text] = VETY[veta];
  const popis = prvek("span", {}, `${doba(kdy)} · `, prvek("b", {}, `−${pocet(bodu, BODY_SLOVY)}`),
    ` · ${text}`);
  const li = prvek("li", { "data-cislo": cislo });
  if (zdroj !== "") {
    const tlacitko = prvek("button", { type: "button", "aria-pressed": "false",
      "aria-label": `Zvětšit obrazec při chybě: ${text}` }, obrazec(zdroj, `Obrazec při chybě: ${text}`));
    tlacitko.addEventListener("click", () =>
      tlacitko.setAttribute("aria-pressed", String(li.classList.toggle("velka"))));
    li.append(tlacitko);
  }
  li.append(popis);
  return li;
}

function prikladPokusu(serie, obrazce, i) {
  const [zadani, bodu, nejvic, stav, trvani] = serie.priklady[i];
  const chyby = serie.chyby.map((c, k) => [c, obrazce.chyby[k]]).filter(([c]) => c[2] === i + 1);
  const jak = !(stav & STAV_ZKONTROLOVAN) ? "bez kontroly"
    : `${bodu} z ${pocet(nejvic, ["bodu", "bodů", "bodů"])}` +
      (stav & STAV_HOTOVA ? "" : ", konstrukce nedokončená");
  const nadpis = `Příklad ${i + 1}`;
  return prvek("div", { class: "priklad" },
    obrazce.konce[i] ? obrazec(obrazce.konce[i], `${nadpis}: hotový obrazec`)
      : prvek("p", {}, "Bez obrazce: nic nebylo nakresleno, nebo se pokus nepodařilo přehrát."),
    prvek("div", {}, prvek("h3", {}, nadpis), prvek("p", {}, zadani),
      prvek("p", {}, `${jak} · ${doba(trvani)}`),
      chyby.length === 0 ? prvek("p", {}, "Bez chyby.")
        : prvek("ul", { class: "chyby" }, ...chyby.map(([c, zdroj]) => chybaPokusu(c, zdroj)))));
}

function detailPokusu(serie, sloupcu) {
  const obrazce = obrazceSerie(serie);
  const napsane = serie.napsane === serie.zak.jmeno ? "" : `Napsané jméno: ${serie.napsane} · `;
  return prvek("tr", { class: "detail" }, prvek("td", { colspan: sloupcu },
    ...serie.priklady.map((_, i) => prikladPokusu(serie, obrazce, i)),
    prvek("p", { class: "soubor" }, `${napsane}Soubor: ${serie.soubor}`)));
}
