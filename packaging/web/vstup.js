// What the person does on the page, handed to the game. Keys go by their names, typed text through
// a hidden field, so that dead keys and screen keyboards work as everywhere.

const SHIFT = 1, CTRL = 2;
const DOLU = 0, POHYB = 1, NAHORU = 2;
// The hidden field never is empty: a screen keyboard that deletes must have something to delete.
const ZARAZKA = "\u200b";

const KLAVESY = {
  ArrowLeft: "Left", ArrowRight: "Right", ArrowUp: "Up", ArrowDown: "Down", Home: "Home",
  End: "End", Tab: "Tab", Backspace: "BackSpace", Delete: "Delete", Enter: "Return",
  Escape: "Escape", " ": "Space", F1: "F1",
};
// Letters of copying, cutting and pasting, which come as events of their own.
const SCHRANKA = ["c", "v", "x"];
const TLACITKA = [1, 4, 2]; // by the page's number: left, middle, right

// hra: the calls of the program; ted(): a turn now; vSnimku(): one with the next frame.
export function poslouchej(platno, pole, lista, hra, ted, vSnimku, celaObrazovka) {
  let pise = false;
  let melZamereni = true;
  let prst = null;

  const modifikatory = (e) => (e.shiftKey ? SHIFT : 0) | (e.ctrlKey || e.metaKey ? CTRL : 0);
  const misto = (e) => {
    const r = platno.getBoundingClientRect();
    return [(e.clientX - r.left) * platno.width / r.width,
      (e.clientY - r.top) * platno.height / r.height];
  };
  const naHre = () => document.activeElement === null || document.activeElement === document.body ||
    document.activeElement === platno || document.activeElement === pole;
  const zamer = () => (pise ? pole : platno).focus({ preventScroll: true });

  platno.addEventListener("contextmenu", (e) => e.preventDefault());

  const ukazatel = (druh) => (e) => {
    const [x, y] = misto(e);
    if (e.pointerType === "touch") {
      if (druh === DOLU && (prst === null || e.isPrimary)) prst = e.pointerId;
      if (e.pointerId !== prst) return;
      if (druh === NAHORU) prst = null;
      hra.rys_prst(druh, x, y, e.timeStamp);
    } else if (druh === POHYB) {
      // A button pressed or released while another one is held comes as a move.
      if (e.button >= 0)
        hra.rys_mys(e.buttons & (1 << [0, 2, 1][e.button]) ? DOLU : NAHORU, x, y,
          TLACITKA[e.button] ?? 0, modifikatory(e), e.timeStamp);
      hra.rys_mys(POHYB, x, y, e.buttons & 7, modifikatory(e), e.timeStamp);
    } else if (TLACITKA[e.button] !== undefined) {
      hra.rys_mys(druh, x, y, TLACITKA[e.button], modifikatory(e), e.timeStamp);
    }
    if (druh === DOLU) {
      e.preventDefault();
      platno.setPointerCapture(e.pointerId);
    }
    if (druh === POHYB) vSnimku();
    else ted();
    // After the turn: it says whether text is wanted, and the keyboard may come up only now.
    if (druh !== POHYB) zamer();
  };
  platno.addEventListener("pointerdown", ukazatel(DOLU));
  platno.addEventListener("pointermove", ukazatel(POHYB));
  platno.addEventListener("pointerup", ukazatel(NAHORU));
  platno.addEventListener("pointercancel", ukazatel(NAHORU));
  platno.addEventListener("mousedown", (e) => e.preventDefault());

  // Name of a key; none of one that the game does not know.
  const jmenoKlavesy = (e) => {
    const cislice = /^(?:Digit|Numpad)([1-9])$/.exec(e.code);
    if (KLAVESY[e.key]) return KLAVESY[e.key];
    if (cislice) return cislice[1];
    const znak = e.key.toLowerCase();
    return /^[a-z]$/.test(znak) ? znak : undefined;
  };

  document.addEventListener("keydown", (e) => {
    if (e.key === "F6") {
      e.preventDefault();
      if (naHre()) lista.querySelector("button").focus();
      else zamer();
      return;
    }
    if (!naHre()) return;
    if (e.isComposing || e.key === "Dead" || e.key === "Process" || e.keyCode === 229) return;
    if (e.altKey) {
      if (e.key === "Enter" && !e.repeat) celaObrazovka();
      return;
    }
    const drzeno = modifikatory(e);
    const ctrl = (drzeno & CTRL) !== 0;
    const jmeno = jmenoKlavesy(e);
    if (!jmeno || (jmeno === "Delete" && drzeno === SHIFT)) return;
    if (ctrl && (SCHRANKA.includes(jmeno) || !hra.rys_plati_s_ctrl(jmeno))) return;
    if (ctrl || (KLAVESY[e.key] && !(pise && jmeno === "Space"))) e.preventDefault();
    hra.rys_klavesa(jmeno, drzeno, e.repeat);
    ted();
  });
  document.addEventListener("keyup", (e) => {
    const jmeno = KLAVESY[e.key];
    if (jmeno !== "Return" && jmeno !== "Space") return;
    hra.rys_klavesa_nahoru(jmeno);
    ted();
  });

  const vyprazdni = () => {
    pole.value = ZARAZKA;
    pole.setSelectionRange(1, 1);
  };
  const napis = () => {
    const text = pole.value.replaceAll(ZARAZKA, "");
    const smazano = !pole.value.includes(ZARAZKA);
    vyprazdni();
    if (smazano && text === "") {
      hra.rys_klavesa("BackSpace", 0, false);
    } else if (text !== "") {
      hra.rys_pis(text);
    }
    ted();
  };
  pole.addEventListener("input", (e) => {
    if (!e.isComposing) napis();
  });
  pole.addEventListener("compositionend", () => setTimeout(napis));
  pole.addEventListener("beforeinput", (e) => {
    if (e.inputType === "insertLineBreak") e.preventDefault();
  });
  document.addEventListener("paste", (e) => {
    if (!naHre()) return;
    e.preventDefault();
    hra.rys_vloz(e.clipboardData.getData("text/plain"));
    ted();
  });
  for (const [udalost, klavesa] of [["copy", "c"], ["cut", "x"]]) {
    document.addEventListener(udalost, (e) => {
      if (!naHre()) return;
      hra.rys_klavesa(klavesa, CTRL, false);
      ted();
      e.clipboardData.setData("text/plain", hra.schranka());
      e.preventDefault();
    });
  }

  window.addEventListener("focus", () => {
    if (!melZamereni) {
      hra.rys_navrat();
      ted();
      zamer();
    }
    melZamereni = true;
  });
  window.addEventListener("blur", () => {
    melZamereni = false;
  });
  vyprazdni();
  platno.focus({ preventScroll: true });

  return {
    // The program wants text, or no longer; the field lies where it is typed, so that a screen
    // keyboard leaves that place free.
    psani(ano, x, y, vyska) {
      pise = ano;
      const r = platno.getBoundingClientRect();
      pole.style.left = `${x * r.width / platno.width}px`;
      pole.style.top = `${y * r.height / platno.height}px`;
      pole.style.height = `${vyska * r.height / platno.height}px`;
      if (naHre()) zamer();
    },
  };
}
