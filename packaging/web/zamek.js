// One tab of the browser plays: who has the lock has the game.

const ZAMEK = "rysovna-hraje";
const NEJDELE_ODCHAZI = 1500; // ms: that the page before in the same tab may keep the lock

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
export function jedina() {
  if (!navigator.locks) return jedinaBezZamku();
  return new Promise((hotovo) => {
    navigator.locks.request(ZAMEK, { signal: AbortSignal.timeout(NEJDELE_ODCHAZI) }, () => {
      hotovo(true);
      return new Promise(() => {});
    }).catch((chyba) => hotovo(chyba.name === "TimeoutError" ? false : jedinaBezZamku()));
  });
}
