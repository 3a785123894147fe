// What the browser keeps for the game: results in IndexedDB, the queue in localStorage. Whatever it
// refuses is told to the program by a number, as src/platform/web/Stranka.h names them.

const DB = "rysovna";
const SOUBORY = "soubory";
const PREDPONA = "rysovna:"; // of keys in localStorage
const CEKA = 0, UCHOVANO = 1, PLNO = 2, NEPOVOLENO = 3, JINAK = 4;

function stavChyby(chyba) {
  const jmeno = chyba && chyba.name;
  if (jmeno === "QuotaExceededError") return PLNO;
  if (jmeno === "SecurityError" || jmeno === "InvalidStateError" || jmeno === "NotAllowedError")
    return NEPOVOLENO;
  return JINAK;
}

function slib(zadost) {
  return new Promise((hotovo, chyba) => {
    zadost.onsuccess = () => hotovo(zadost.result);
    zadost.onerror = () => chyba(zadost.error);
    zadost.onblocked = () => chyba(new DOMException("blocked", "InvalidStateError"));
  });
}

// Bytes as a string of characters 0 to 255 and back: localStorage keeps strings alone.
const naRetezec = (bajty) => Array.from(bajty, (b) => String.fromCharCode(b)).join("");
const naBajty = (text) => Uint8Array.from(text, (z) => z.charCodeAt(0));

export class Uloziste {
  stav = UCHOVANO; // of the last transaction
  volno = 0; // bytes
  zmeny = []; // of the next transaction
  db = null;
  proc = NEPOVOLENO; // why there is no database

  // Opens what there is. False if results cannot be kept.
  async otevri() {
    try {
      const zadost = indexedDB.open(DB, 1);
      zadost.onupgradeneeded = () => zadost.result.createObjectStore(SOUBORY);
      this.db = await slib(zadost);
    } catch (chyba) {
      this.proc = stavChyby(chyba);
    }
    await this.zmerVolno();
    return this.db !== null;
  }

  async zmerVolno() {
    try {
      const { quota, usage } = await navigator.storage.estimate();
      this.volno = Math.max(quota - usage, 0);
    } catch {
      // Not over plain http: what an old browser gives at least.
      this.volno = this.db ? 50 * 1024 * 1024 : 0;
    }
  }

  // All files that were kept, as [path, bytes].
  async vse() {
    const soubory = [];
    if (this.db) {
      const sklad = this.db.transaction(SOUBORY).objectStore(SOUBORY);
      const [klice, hodnoty] = await Promise.all([slib(sklad.getAllKeys()), slib(sklad.getAll())]);
      klice.forEach((klic, i) => soubory.push([klic, hodnoty[i]]));
    }
    try {
      for (let i = 0; i < localStorage.length; ++i) {
        const klic = localStorage.key(i);
        if (!klic.startsWith(PREDPONA + "/")) continue;
        soubory.push([klic.slice(PREDPONA.length), naBajty(localStorage.getItem(klic))]);
      }
    } catch {
      // Forbidden: there is no queue.
    }
    return soubory;
  }

  pridej(cesta, bajty) {
    this.zmeny.push([cesta, bajty]);
  }

  // Begins a transaction of all that was added; stav tells what becomes of it.
  zacni() {
    const zmeny = this.zmeny;
    this.zmeny = [];
    if (!this.db) {
      this.stav = this.proc;
      return;
    }
    this.stav = CEKA;
    try {
      const transakce = this.db.transaction(SOUBORY, "readwrite", { durability: "strict" });
      const sklad = transakce.objectStore(SOUBORY);
      for (const [cesta, bajty] of zmeny) {
        if (bajty === null) sklad.delete(cesta);
        else sklad.put(bajty, cesta);
      }
      transakce.oncomplete = () => {
        this.stav = UCHOVANO;
        this.zmerVolno();
      };
      transakce.onabort = () => {
        this.stav = stavChyby(transakce.error);
      };
    } catch (chyba) {
      this.stav = stavChyby(chyba);
    }
  }

  hned(cesta, bajty) {
    try {
      if (bajty === null) localStorage.removeItem(PREDPONA + cesta);
      else localStorage.setItem(PREDPONA + cesta, naRetezec(bajty));
      return UCHOVANO;
    } catch (chyba) {
      return stavChyby(chyba);
    }
  }
}

// A note of the page's own, that something was told once.
export function poprve(co) {
  try {
    if (localStorage.getItem(PREDPONA + co)) return false;
    localStorage.setItem(PREDPONA + co, "1");
  } catch {
    // Then it is told each time.
  }
  return true;
}
