// Keeps the files of the game in the browser, so that it starts without a connection. The build puts
// in the list and its print: another print is another game, taken as a whole or not at all.
const OTISK = "@OTISK@";
const SOUBORY = @SOUBORY@;
const SKLAD = `rysovna-${OTISK}`;

self.addEventListener("install", (e) => {
  e.waitUntil((async () => {
    const sklad = await caches.open(SKLAD);
    // Past the browser's own cache: files of two versions must not meet.
    await sklad.addAll(SOUBORY.map((soubor) => new Request(soubor, { cache: "reload" })));
    await self.skipWaiting();
  })());
});

self.addEventListener("activate", (e) => {
  e.waitUntil((async () => {
    for (const jiny of await caches.keys()) {
      if (jiny.startsWith("rysovna-") && jiny !== SKLAD) await caches.delete(jiny);
    }
    await self.clients.claim();
  })());
});

// What the school may change in its place: as the server has it, without a connection as it was.
async function nejnovejsi(zadost) {
  const sklad = await caches.open(SKLAD);
  try {
    const odpoved = await fetch(zadost, { cache: "no-cache" });
    if (odpoved.ok) await sklad.put(zadost, odpoved.clone());
    return odpoved;
  } catch {
    return (await sklad.match(zadost)) ?? Response.error();
  }
}

self.addEventListener("fetch", (e) => {
  const kde = new URL(e.request.url);
  if (e.request.method !== "GET" || kde.origin !== location.origin) return;
  if (kde.pathname.endsWith("/Rysovna.ini")) {
    e.respondWith(nejnovejsi(e.request));
    return;
  }
  e.respondWith((async () => {
    const sklad = await caches.open(SKLAD);
    const nas = await sklad.match(e.request, { ignoreSearch: true });
    return nas ?? fetch(e.request);
  })());
});
