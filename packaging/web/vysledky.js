// Results and attempts that this browser keeps, to a file and back.

export const UCET = "/ucet", POKUSY = `${UCET}/Pokusy`;
const FORMAT = "rysovna-vysledky"; // of a file of results, and its version
const VERZE = 1;
const JMENO_VYSLEDKU = /^(\d\d\.res|Vysledky\.dat)$/;
const JMENO_POKUSU = /^[\w-][\w.-]*\.pokus$/;
const UKLADA_SE = "Hra právě ukládá výsledek. Zkuste to za chvíli.";

export class Vysledky {
  // program: what calls it; its module is there when anything here is called.
  constructor(program) {
    this.program = program;
  }

  // Files of a folder whose names fit, as [name, bytes].
  soubory(slozka, jaka) {
    const { FS } = this.program.modul;
    return FS.readdir(slozka).filter((jmeno) => jaka.test(jmeno))
      .map((jmeno) => [jmeno, FS.readFile(`${slozka}/${jmeno}`)]);
  }
  pokusy() {
    return this.soubory(POKUSY, JMENO_POKUSU);
  }

  // All of them as the text of one file.
  doSouboru() {
    const doTextu = (soubory) => Object.fromEntries(soubory.map(([jmeno, bajty]) =>
      [jmeno, btoa(Array.from(bajty, (b) => String.fromCharCode(b)).join(""))]));
    return JSON.stringify({ format: FORMAT, verze: VERZE,
      soubory: doTextu(this.soubory(UCET, JMENO_VYSLEDKU)), pokusy: doTextu(this.pokusy()) });
  }

  // Hands a file to the program. 0, 1 or 2 as src/main_web.cpp tells.
  predej(volani, jmeno, bajty) {
    const m = this.program.modul;
    const kde = m._malloc(Math.max(bajty.length, 1));
    m.HEAPU8.set(bajty, kde);
    const stav = this.program.sTextem(jmeno, (t) => volani(t, kde, bajty.length));
    m._free(kde);
    return stav;
  }

  // Waits until all is kept; why it is not, or an empty text.
  async uchovano() {
    for (;;) {
      const proc = this.program.text(this.program.modul._rys_uchovano());
      if (proc !== "?") return proc;
      await new Promise((pak) => setTimeout(pak, 20));
    }
  }

  // Adds what such a file holds. What is to be told.
  async pridej(text) {
    let soubory, pokusy;
    try {
      const obsah = JSON.parse(text);
      if (obsah.format !== FORMAT || obsah.verze !== VERZE) throw new Error();
      const zTextu = (co, jaka) => Object.entries(co).map(([jmeno, data]) => {
        if (!jaka.test(jmeno)) throw new Error();
        return [jmeno, Uint8Array.from(atob(data), (z) => z.charCodeAt(0))];
      });
      soubory = zTextu(obsah.soubory, JMENO_VYSLEDKU);
      pokusy = zTextu(obsah.pokusy ?? {}, JMENO_POKUSU);
    } catch {
      return "Toto není soubor s výsledky hry. Nic se nezměnilo.";
    }
    const m = this.program.modul;
    for (const [jmeno, bajty] of soubory) {
      const stav = this.predej(m._rys_pridej_vysledky, jmeno, bajty);
      if (stav === 1) return UKLADA_SE;
      if (stav === 2) return "Toto není soubor s výsledky hry. Výsledky ze souboru se nenačetly.";
    }
    const vadnych = pokusy.filter(([jmeno, bajty]) =>
      this.predej(m._rys_pridej_pokus, jmeno, bajty) !== 0).length;
    const proc = await this.uchovano();
    if (proc) return `Výsledky se nepodařilo uložit: ${proc}. Zůstalo, co tu bylo.`;
    return "Výsledky ze souboru jsou přidány k těm, které tu byly." +
      (vadnych > 0 ? ` Záznamů pokusů, které nejdou přečíst: ${vadnych}.` : "");
  }

  // Adds files of attempts, given as [name, bytes]. What is to be told, and the name of one to be
  // watched.
  async pridejPokusy(soubory) {
    let prvni = "", pridano = 0;
    const vadne = [];
    for (const [jmeno, bajty] of soubory) {
      // What a browser or a person put behind a name that was taken already.
      const nase = jmeno.replace(/ ?\(\d+\)(?=\.pokus$)/, "").replace(/^\.|[^\w.-]/g, "_");
      const stav = this.predej(this.program.modul._rys_pridej_pokus, nase, bajty);
      if (stav === 1) return [UKLADA_SE, ""];
      if (stav === 2) {
        vadne.push(jmeno);
        continue;
      }
      ++pridano;
      prvni = nase;
    }
    const proc = await this.uchovano();
    if (proc) return [`Záznam pokusu se nepodařilo uložit: ${proc}.`, ""];
    const vady = vadne.length === 0 ? "" : vadne.length === 1
      ? `${vadne[0]} není celý záznam pokusu.`
      : `Souborů, které nejsou celé záznamy pokusů: ${vadne.length} (první je ${vadne[0]}).`;
    const pridane = pridano === 0 ? "" : pridano === 1 ? "Záznam pokusu je přidán."
      : `Záznamy pokusů jsou přidány: ${pridano}.`;
    return [[pridane, vady].filter(Boolean).join(" "), pridano === 1 ? prvni : ""];
  }
}
