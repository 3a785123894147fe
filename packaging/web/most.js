// What the program calls of the page (src/platform/web/Stranka.h): each call is handed to the object
// that the page gave to the module, with texts as strings and pieces of memory as views of it.
// Whole functions: the link copies their text.
mergeInto(LibraryManager.library, {
  stranka_ukaz: function (body, sirka, vyska, x, y, w, h) {
    return Module.stranka.ukaz(HEAPU8.buffer, body, sirka, vyska, x, y, w, h);
  },
  stranka_kurzor: function (ktery) {
    return Module.stranka.kurzor(ktery);
  },
  stranka_psani: function (ano, x, y, vyska) {
    return Module.stranka.psani(ano !== 0, x, y, vyska);
  },
  stranka_zvuk: function (jmeno, data, delka) {
    return Module.stranka.zvuk(UTF8ToString(jmeno), HEAPU8.subarray(data, data + delka));
  },
  stranka_neni_zvuk: function () {
    return Module.stranka.neniZvuk() ? 1 : 0;
  },
  stranka_sirka_obrazovky: function () {
    return screen.width;
  },
  stranka_vyska_obrazovky: function () {
    return screen.height;
  },
  stranka_rekni: function (text) {
    return Module.stranka.rekni(UTF8ToString(text));
  },
  stranka_stahni: function (jmeno, data, delka) {
    return Module.stranka.stahni(UTF8ToString(jmeno), HEAPU8.slice(data, data + delka));
  },
  stranka_zprava: function (titul, text) {
    return Module.stranka.zprava(UTF8ToString(titul), UTF8ToString(text));
  },
  stranka_volno: function () {
    return Module.stranka.uloziste.volno;
  },
  stranka_transakce_pridej: function (cesta, data, delka) {
    return Module.stranka.uloziste.pridej(
       UTF8ToString(cesta), data === 0 ? null : HEAPU8.slice(data, data + delka));
  },
  stranka_transakce_zacni: function () {
    return Module.stranka.uloziste.zacni();
  },
  stranka_transakce_stav: function () {
    return Module.stranka.uloziste.stav;
  },
  stranka_hned: function (cesta, data, delka) {
    return Module.stranka.uloziste.hned(
       UTF8ToString(cesta), data === 0 ? null : HEAPU8.subarray(data, data + delka));
  },
});
