// An archive of small files with plain names, as every system opens it: the zip format, files stored
// as they are.

const TABULKA = Uint32Array.from({ length: 256 }, (_, n) => {
  for (let i = 0; i < 8; ++i) n = n & 1 ? (n >>> 1) ^ 0xedb88320 : n >>> 1;
  return n;
});

function soucet(bajty) {
  let c = ~0;
  for (const b of bajty) c = TABULKA[(c ^ b) & 255] ^ (c >>> 8);
  return ~c >>> 0;
}

// Numbers one behind the other, little-endian: [value, bytes] each.
function pole(cisla) {
  const bajty = new Uint8Array(cisla.reduce((n, [, delka]) => n + delka, 0));
  let kde = 0;
  for (const [cislo, delka] of cisla)
    for (let i = 0; i < delka; ++i) bajty[kde++] = (cislo >>> (8 * i)) & 255;
  return bajty;
}

// soubory: [name, bytes] each, names of ASCII. kdy: the date of all of them.
export function zabalZip(soubory, kdy) {
  const VERZE = [10, 2];
  const cas = [(kdy.getHours() << 11) | (kdy.getMinutes() << 5) | (kdy.getSeconds() >> 1), 2];
  const den = [((kdy.getFullYear() - 1980) << 9) | ((kdy.getMonth() + 1) << 5) | kdy.getDate(), 2];
  const kusy = [], obsah = [];
  let kde = 0;
  for (const [jmeno, bajty] of soubory) {
    const slovo = new TextEncoder().encode(jmeno);
    const delka = [bajty.length, 4];
    // Of either heading: from the version needed to the length of what else is told.
    const popis = [VERZE, [0, 2], [0, 2], cas, den, [soucet(bajty), 4], delka, delka,
      [slovo.length, 2], [0, 2]];
    kusy.push(pole([[0x04034b50, 4], ...popis]), slovo, bajty);
    obsah.push(pole([[0x02014b50, 4], VERZE, ...popis, [0, 2], [0, 2], [0, 2], [0, 4], [kde, 4]]),
      slovo);
    kde += 30 + slovo.length + bajty.length;
  }
  const delka = obsah.reduce((n, kus) => n + kus.length, 0);
  const pocet = [soubory.length, 2];
  return new Blob([...kusy, ...obsah,
    pole([[0x06054b50, 4], [0, 2], [0, 2], pocet, pocet, [delka, 4], [kde, 4], [0, 2]])],
  { type: "application/zip" });
}
