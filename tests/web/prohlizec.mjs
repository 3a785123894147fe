// A browser driven from outside, over the pipe of its own tools: pages, input as a person's, files,
// what a page holds. No more than the tests want.
import { spawn } from "node:child_process";
import fs from "node:fs";
import os from "node:os";
import path from "node:path";

export const pauza = (ms) => new Promise((pak) => setTimeout(pak, ms));

export class Prohlizec {
  cekajici = new Map();
  posluchaci = [];
  cislo = 0;

  // volby: further arguments; obrazovka: with a window on this display, else without one.
  static async spust({ volby = [], obrazovka = null, profil = null } = {}) {
    const p = new Prohlizec();
    p.profil = profil ?? fs.mkdtempSync(path.join(os.tmpdir(), "rysovna_prohlizec_"));
    p.smazat = profil === null;
    const program = ["chromium", "chromium-browser"].map((j) => `/usr/bin/${j}`).find(fs.existsSync);
    p.proces = spawn(program, [
      ...(obrazovka ? ["--window-size=1280,1000", "--window-position=0,0"] : ["--headless=new"]),
      "--remote-debugging-pipe", `--user-data-dir=${p.profil}`, "--no-first-run", "--no-sandbox",
      "--disable-gpu", "--disable-dev-shm-usage", "--mute-audio", "--force-device-scale-factor=1",
      "--autoplay-policy=user-gesture-required", "--disable-background-timer-throttling",
      "--disable-renderer-backgrounding", "--disable-features=Translate", ...volby, "about:blank",
    ], {
      stdio: ["ignore", "ignore", "ignore", "pipe", "pipe"],
      env: { ...process.env, ...(obrazovka ? { DISPLAY: obrazovka } : {}) },
    });
    let zbytek = "";
    p.proces.stdio[4].setEncoding("utf8").on("data", (kus) => {
      const zpravy = (zbytek + kus).split("\0");
      zbytek = zpravy.pop();
      zpravy.forEach((z) => p.prijmi(JSON.parse(z)));
    });
    p.proces.on("exit", () => {
      for (const { chyba } of p.cekajici.values()) chyba(new Error("prohlížeč skončil"));
      p.cekajici.clear();
    });
    return p;
  }

  prijmi(zprava) {
    if (zprava.id === undefined) {
      this.posluchaci.forEach((co) => co(zprava));
      return;
    }
    const { hotovo, chyba } = this.cekajici.get(zprava.id);
    this.cekajici.delete(zprava.id);
    if (zprava.error) chyba(new Error(zprava.error.message));
    else hotovo(zprava.result);
  }

  povel(method, params = {}, sessionId = undefined) {
    const id = ++this.cislo;
    this.proces.stdio[3].write(`${JSON.stringify({ id, method, params, sessionId })}\0`);
    return new Promise((hotovo, chyba) => this.cekajici.set(id, { hotovo, chyba }));
  }

  async karta(url, pred = async () => {}) {
    const { targetId } = await this.povel("Target.createTarget", { url: "about:blank" });
    const { sessionId } = await this.povel("Target.attachToTarget", { targetId, flatten: true });
    const k = new Karta(this, targetId, sessionId);
    for (const oblast of ["Page", "Runtime", "Log", "Network"]) await k.povel(`${oblast}.enable`);
    await pred(k);
    await k.otevri(url);
    return k;
  }

  async skonci() {
    const konec = new Promise((pak) => this.proces.once("exit", pak));
    this.povel("Browser.close").catch(() => {});
    await Promise.race([konec, pauza(5000)]);
    this.proces.kill("SIGKILL");
    if (this.smazat) fs.rmSync(this.profil, { recursive: true, force: true, maxRetries: 5 });
  }
}

export class Karta {
  chyby = [];

  constructor(prohlizec, cil, relace) {
    Object.assign(this, { prohlizec, cil, relace });
    prohlizec.posluchaci.push((z) => {
      if (z.sessionId !== relace) return;
      if (z.method === "Runtime.exceptionThrown")
        this.chyby.push(z.params.exceptionDetails.exception?.description ?? "chyba stránky");
      if (z.method === "Runtime.consoleAPICalled" && z.params.type === "error")
        this.chyby.push(z.params.args.map((a) => a.description ?? a.value).join(" "));
    });
  }

  povel(method, params = {}) {
    return this.prohlizec.povel(method, params, this.relace);
  }

  otevri(url) {
    return this.povel("Page.navigate", { url });
  }

  zavri() {
    return this.prohlizec.povel("Target.closeTarget", { targetId: this.cil });
  }

  // Value of an expression in the page, awaited.
  async hodnota(vyraz) {
    const { result, exceptionDetails } = await this.povel("Runtime.evaluate",
      { expression: vyraz, awaitPromise: true, returnByValue: true, userGesture: false });
    if (exceptionDetails)
      throw new Error(exceptionDetails.exception?.description ?? exceptionDetails.text);
    return result.value;
  }

  async dokud(vyraz, co, ms = 20000) {
    for (const od = Date.now(); Date.now() - od < ms; await pauza(30)) {
      // A page that is just being opened has nothing yet.
      if (await this.hodnota(vyraz).catch(() => false)) return;
    }
    throw new Error(`nedočkali jsme se: ${co}; na stránce: ` +
      await this.hodnota("document.body.innerText").catch(() => "nic"));
  }

  velikost(width, height) {
    return this.povel("Emulation.setDeviceMetricsOverride",
      { width, height, deviceScaleFactor: 1, mobile: false });
  }

  async snimek(soubor) {
    const { data } = await this.povel("Page.captureScreenshot", { format: "png" });
    fs.writeFileSync(soubor, Buffer.from(data, "base64"));
  }

  mys(type, kde, drzi) {
    return this.povel("Input.dispatchMouseEvent", {
      type, ...kde, button: type === "mouseMoved" ? "none" : "left", buttons: drzi ? 1 : 0,
      clickCount: type === "mouseMoved" ? 0 : 1,
    });
  }

  prst(type, kde) {
    return this.povel("Input.dispatchTouchEvent", { type, touchPoints: kde ? [kde] : [] });
  }

  pis(text) {
    return this.povel("Input.insertText", { text });
  }
}
