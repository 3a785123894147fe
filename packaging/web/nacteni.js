// Fetches program and data, unpacks them and puts the files where the program reads them.

const HRA = "/hra";

// Bytes of a packed file; podil is told how much of it has come, 0 to 1.
async function stahni(soubor, podil) {
  const odpoved = await fetch(soubor);
  if (!odpoved.ok) throw new Error(`${soubor}: ${odpoved.status}`);
  const celkem = Number(odpoved.headers.get("Content-Length")) || 0;
  let mame = 0;
  const pocitej = new TransformStream({
    transform(kus, dal) {
      mame += kus.length;
      if (celkem > 0) podil(Math.min(mame / celkem, 1));
      dal.enqueue(kus);
    },
  });
  return odpoved.body.pipeThrough(pocitej).pipeThrough(new DecompressionStream("gzip"));
}

// The module of the program, its files in place, not started; stranka gets its calls (most.js).
// prubeh is told how much of it all has come, 0 to 1.
export async function nactiHru(stranka, prubeh) {
  const podily = { "hra.bin": 0, "data.bin": 0 };
  const podil = (soubor) => (kolik) => {
    podily[soubor] = kolik;
    prubeh(Object.values(podily).reduce((a, b) => a + b) / 2);
  };
  const [{ default: Rysovna }, program, data] = await Promise.all([
    import("./rysovna.js"),
    stahni("hra.bin", podil("hra.bin")).then((proud) =>
      WebAssembly.compileStreaming(
        new Response(proud, { headers: { "Content-Type": "application/wasm" } }))),
    stahni("data.bin", podil("data.bin")).then((proud) => new Response(proud).arrayBuffer()),
  ]);
  const modul = await Rysovna({
    stranka,
    instantiateWasm(dovozy, hotovo) {
      WebAssembly.instantiate(program, dovozy).then((instance) => hotovo(instance, program));
      return {};
    },
    printErr: (text) => console.warn(text),
  });
  rozbalData(modul.FS, new Uint8Array(data));
  await nactiNastaveni(modul.FS);
  return modul;
}

// The configuration as it stands beside the page; where the server keeps it back, as it was built.
async function nactiNastaveni(FS) {
  try {
    const odpoved = await fetch("Rysovna.ini");
    const text = odpoved.ok ? await odpoved.text() : "";
    if (text.includes("[RYSOVNA1]")) FS.writeFile(`${HRA}/Rysovna.ini`, text);
  } catch {
    // Without a connection, and not kept.
  }
}

// The data file: length of the list (32 bits, little-endian), the list as JSON, the files.
function rozbalData(FS, data) {
  const delka = new DataView(data.buffer).getUint32(0, true);
  const seznam = JSON.parse(new TextDecoder().decode(data.subarray(4, 4 + delka)));
  let misto = 4 + delka;
  for (const [jmeno, bajtu] of seznam) {
    const cesta = `${HRA}/${jmeno}`;
    FS.mkdirTree(cesta.slice(0, cesta.lastIndexOf("/")));
    FS.writeFile(cesta, data.subarray(misto, misto + bajtu));
    misto += bajtu;
  }
}
