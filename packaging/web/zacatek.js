// Looks whether this browser can run the game and starts it, or says why not. Written in the
// language of old browsers: they are whom it speaks to.
(function () {
  "use strict";

  function zprava(titul, text) {
    document.getElementById("zprava-titul").textContent = titul;
    document.getElementById("zprava-text").textContent = text;
    document.getElementById("prubeh").hidden = true;
    document.getElementById("zprava").hidden = false;
    document.getElementById("lista").hidden = true;
  }

  // A module of one function whose body has a vector of 128 bits.
  var VEKTORY = [0, 97, 115, 109, 1, 0, 0, 0, 1, 5, 1, 96, 0, 1, 123, 3, 2, 1, 0, 10, 10, 1, 8, 0,
    65, 0, 253, 15, 253, 98, 11];

  function umi() {
    return typeof WebAssembly === "object" && WebAssembly.validate(new Uint8Array(VEKTORY)) &&
      typeof DecompressionStream === "function" && typeof PointerEvent === "function" &&
      "noModule" in document.createElement("script");
  }

  if (!umi()) {
    zprava("Tento prohlížeč je pro hru příliš starý",
      "Otevřete stránku v prohlížeči Chrome, Edge nebo Firefox z roku 2023 či novějším, " +
      "na iPadu v Safari 16.4 nebo novějším.");
    return;
  }
  function nenacteno() {
    if (window.rysovna) return;
    zprava("Hru se nepodařilo načíst", "Některý soubor stránky chybí nebo je poškozený. " +
      "Zkontrolujte připojení a načtěte stránku znovu.");
  }
  window.addEventListener("error", nenacteno);
  var skript = document.createElement("script");
  skript.type = "module";
  skript.src = "stranka.js";
  skript.onerror = nenacteno;
  document.body.appendChild(skript);
})();
