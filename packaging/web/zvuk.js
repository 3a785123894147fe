// Sounds: files of PCM samples played by WebAudio. A browser lets a page be heard only after the
// person has pressed something; what comes sooner is not heard.

let kontext = null;
let hraje = null;
const nactene = new Map();

export const neniZvuk = () => typeof AudioContext !== "function";

// The samples of a .wav file of 8 or 16 bits.
function rozbal(data) {
  const pohled = new DataView(data.buffer, data.byteOffset, data.byteLength);
  const kanalu = pohled.getUint16(22, true);
  const vzorku = pohled.getUint32(24, true);
  const bitu = pohled.getUint16(34, true);
  let misto = 12;
  while (misto + 8 < data.length && pohled.getUint32(misto, false) !== 0x64617461)
    misto += 8 + pohled.getUint32(misto + 4, true);
  const bajtu = Math.min(pohled.getUint32(misto + 4, true), data.length - misto - 8);
  const delka = Math.floor(bajtu / (kanalu * bitu / 8));
  const zvuk = kontext.createBuffer(kanalu, delka, vzorku);
  for (let k = 0; k < kanalu; ++k) {
    const kam = zvuk.getChannelData(k);
    for (let i = 0; i < delka; ++i) {
      const kde = misto + 8 + (i * kanalu + k) * bitu / 8;
      kam[i] = bitu === 16 ? pohled.getInt16(kde, true) / 32768 : (data[kde] - 128) / 128;
    }
  }
  return zvuk;
}

export function zahraj(jmeno, data) {
  if (neniZvuk()) return;
  try {
    if (!kontext) {
      if (navigator.userActivation && !navigator.userActivation.hasBeenActive) return;
      kontext = new AudioContext();
    }
    if (kontext.state === "suspended") kontext.resume();
    if (!nactene.has(jmeno)) nactene.set(jmeno, rozbal(data));
    if (hraje) hraje.stop();
    hraje = kontext.createBufferSource();
    hraje.buffer = nactene.get(jmeno);
    hraje.connect(kontext.destination);
    hraje.start();
  } catch {
    // The game goes on without it.
  }
}
