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

self.addEventListener("fetch", (e) => {
  if (e.request.method !== "GET" || new URL(e.request.url).origin !== location.origin) return;
  e.respondWith((async () => {
    const sklad = await caches.open(SKLAD);
    const nas = await sklad.match(e.request, { ignoreSearch: true });
    return nas ?? fetch(e.request);
  })());
});
