// A player of the game's page in a browser's tab (prohlizec.mjs): waits for the game and carries out a
// player's events on its canvas.
import { pauza } from "./prohlizec.mjs";

const NAVRH = { sirka: 640, vyska: 480 }; // design px
// Name of a key in a player's events, and what the browser calls it: key, code, number.
const KLAVESY = {
  Left: ["ArrowLeft", 37], Right: ["ArrowRight", 39], Up: ["ArrowUp", 38], Down: ["ArrowDown", 40],
  Home: ["Home", 36], End: ["End", 35], Tab: ["Tab", 9], BackSpace: ["Backspace", 8],
  Delete: ["Delete", 46], Return: ["Enter", 13], Escape: ["Escape", 27], F1: ["F1", 112],
};

// The game is up, its title shown.
export function naHre(k) {
  return k.dokud("window.rysovna?.bezi === true", "hra běží");
}

// Where a place of the design lies on the page: a function of design px to px of the page.
async function zmer(k) {
  const r = await k.hodnota(
    "(() => { const r = document.getElementById('platno').getBoundingClientRect();" +
    " return { x: r.left, y: r.top, w: r.width, h: r.height }; })()");
  const s = Math.min(r.w / NAVRH.sirka, r.h / NAVRH.vyska);
  return (x, y) => ({
    x: Math.floor(r.x + (r.w - NAVRH.sirka * s) / 2 + (x + 0.5) * s),
    y: Math.floor(r.y + (r.h - NAVRH.vyska * s) / 2 + (y + 0.5) * s),
  });
}

// Presses a key by its name in a player's events; shift: 1 Shift, 2 Ctrl, or both.
async function klavesa(k, jmeno, shift) {
  const [key, cislo, text] = jmeno === "Space" ? [" ", 32, " "]
    : /^[0-9]$/.test(jmeno) ? [jmeno, 48 + Number(jmeno), jmeno]
      : /^[a-z]$/.test(jmeno) ? [jmeno, jmeno.toUpperCase().charCodeAt(0), jmeno]
        : KLAVESY[jmeno];
  const code = key === " " ? "Space" : /^[0-9]$/.test(jmeno) ? `Digit${jmeno}`
    : /^[a-z]$/.test(jmeno) ? `Key${jmeno.toUpperCase()}` : key;
  const modifiers = (shift & 1 ? 8 : 0) | (shift & 2 ? 2 : 0);
  const spolecne = { key, code, windowsVirtualKeyCode: cislo, modifiers };
  const psane = text && !modifiers ? { text } : {};
  await k.povel("Input.dispatchKeyEvent", { type: text ? "keyDown" : "rawKeyDown",
    ...spolecne, ...psane, ...(modifiers === 2 && jmeno === "a" ? { commands: ["selectAll"] } : {}) });
  await k.povel("Input.dispatchKeyEvent", { type: "keyUp", ...spolecne });
}

// Carries out a player's events, a line each; the page gets a little more time than the virtual
// clock took. konci: stops before an event for which it is true.
export async function odehraj(k, udalosti, konci = () => false) {
  const naStranku = await zmer(k);
  let kde = { x: 0, y: 0 };
  let drzi = false;
  for (const radek of udalosti) {
    const [co, a, b] = radek.split(" ");
    if (konci(radek)) return;
    if (co === "mys") {
      kde = naStranku(Number(a), Number(b));
      await k.mys("mouseMoved", kde, drzi);
    } else if (co === "dolu" || co === "nahoru") {
      drzi = co === "dolu";
      await k.mys(drzi ? "mousePressed" : "mouseReleased", kde, drzi);
    } else if (co === "prst") {
      const misto = naStranku(...radek.split(" ").slice(2).map(Number));
      await k.prst({ dolu: "touchStart", pohyb: "touchMove", nahoru: "touchEnd" }[a],
        a === "nahoru" ? null : misto);
    } else if (co === "text") {
      await k.pis(radek.slice(5));
    } else if (co === "klavesa") {
      await klavesa(k, a, Number(b));
    } else if (co === "cekej") {
      await pauza(Number(a) + 40);
    }
  }
}
