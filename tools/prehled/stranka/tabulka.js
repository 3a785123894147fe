// Elements, and tables that are sorted by their columns.
function prvek(jmeno, vlastnosti = {}, ...deti) {
  const p = document.createElement(jmeno);
  for (const [klic, co] of Object.entries(vlastnosti)) {
    if (klic.startsWith("on")) p.addEventListener(klic.slice(2), co);
    else if (co !== null && co !== undefined) p.setAttribute(klic, co);
  }
  p.append(...deti);
  return p;
}
const odkaz = (text, co, vlastnosti = {}) =>
  prvek("button", { type: "button", class: "odkaz", onclick: co, ...vlastnosti }, text);

// A mark by colour and by text.
const znamka = (z) => prvek("span", { class: `znamka z${z}` }, z === 0 ? "–" : String(z));

// sloupce: { klic, nadpis, popis, hodnota(row): what is sorted by, bunka(row): what is shown,
// cislo: a number, hlavicka: names the row, skupina: heading above, sestupne: at the first press }.
// Numbers come before texts; what has no value stays last in either direction.
class Tabulka {
  constructor(tabulka, razeni, poRazeni) {
    Object.assign(this, { tabulka, razeni, poRazeni });
  }

  serad(radky, sloupce) {
    const sloupec = sloupce.find((s) => s.klic === this.razeni.klic) || sloupce[0];
    this.razeni = { klic: sloupec.klic, smer: this.razeni.smer };
    const smer = this.razeni.smer;
    const hodnoty = new Map(radky.map((r) => [r, sloupec.hodnota(r)]));
    return [...radky].sort((x, y) => {
      const [a, b] = [hodnoty.get(x), hodnoty.get(y)];
      if (a === null || b === null) return (a === null ? 1 : 0) - (b === null ? 1 : 0);
      return smer * (typeof a === "number" ? a - b : podleAbecedy(a, b));
    });
  }

  zmenRazeni(sloupec) {
    const znovu = this.razeni.klic === sloupec.klic;
    this.razeni = { klic: sloupec.klic, smer: znovu ? -this.razeni.smer : sloupec.sestupne ? -1 : 1 };
    this.poRazeni();
    this.tabulka.querySelector(`[data-klic="${sloupec.klic}"] button`).focus();
  }

  // radky: sorted already. radek(row, tr): what else a row wants.
  ukaz(radky, sloupce, radek = () => {}) {
    const hlava = prvek("thead");
    if (sloupce.some((s) => s.skupina)) {
      const skupiny = prvek("tr");
      for (let i = 0; i < sloupce.length;) {
        const { skupina } = sloupce[i];
        let n = 1;
        while (i + n < sloupce.length && sloupce[i + n].skupina === skupina) ++n;
        skupiny.append(skupina
          ? prvek("th", { scope: "colgroup", colspan: n, class: "rodina" }, skupina)
          : prvek("td", { colspan: n }));
        i += n;
      }
      hlava.append(skupiny);
    }
    hlava.append(prvek("tr", {}, ...sloupce.map((s) => {
      const serazeno = this.razeni.klic !== s.klic ? null
        : this.razeni.smer > 0 ? "ascending" : "descending";
      return prvek("th", { scope: "col", "data-klic": s.klic, "aria-sort": serazeno, title: s.popis,
        class: s.cislo ? "cislo" : null },
      prvek("button", { type: "button", "aria-label": s.popis, onclick: () => this.zmenRazeni(s) },
        s.nadpis));
    })));
    const telo = prvek("tbody");
    for (const r of radky) {
      const tr = prvek("tr", {}, ...sloupce.map((s) => prvek(s.hlavicka ? "th" : "td", {
        scope: s.hlavicka ? "row" : null, class: s.cislo ? "cislo" : null,
        "data-co": s.hlavicka ? null : s.nadpis,
      }, s.bunka(r))));
      telo.append(tr);
      radek(r, tr);
    }
    this.tabulka.replaceChildren(hlava, telo);
  }
}
