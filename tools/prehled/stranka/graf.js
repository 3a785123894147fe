// A pupil's course in time; without a pupil that of all that is chosen, a mean of each day.
const barvaStylu = (jmeno) =>
  getComputedStyle(document.documentElement).getPropertyValue(`--${jmeno}`).trim();
const barvaZnamky = (znamka) => barvaStylu(znamka === 0 ? "linka" : `z${znamka}`);
const uspesnost = (s) => s.bodu / s.nejvic * 100;
let graf = null;

// One value a day: day, mean, how many series.
function podleDnu(serie) {
  const dny = new Map();
  for (const s of serie) {
    const den = s.kdy.slice(0, 10);
    if (!dny.has(den)) dny.set(den, []);
    dny.get(den).push(uspesnost(s));
  }
  return [...dny].sort(([a], [b]) => (a < b ? -1 : 1)).map(([den, procenta]) => ({
    kdy: `${den}T12:00`, y: prumer(procenta), co: pocet(procenta.length, SERIE_SLOVY),
    barva: barvaStylu("accent"),
  }));
}

function bodyGrafu(serie, zak) {
  const hodnocene = serie.filter((s) => s.nejvic > 0);
  if (zak === null) return podleDnu(hodnocene);
  return [...hodnocene].sort((a, b) => (a.kdy < b.kdy ? -1 : a.kdy > b.kdy ? 1 : 0)).map((s) => ({
    kdy: s.kdy, y: uspesnost(s), barva: barvaZnamky(s.znamka),
    co: `${ULOHY.get(s.uloha).nazev}, známka ${s.znamka === 0 ? "žádná" : s.znamka}`,
  }));
}

function ukazGraf(serie, zak) {
  const body = bodyGrafu(serie, zak);
  const platno = document.getElementById("graf");
  document.getElementById("vyvoj").hidden = body.length === 0;
  if (graf !== null) graf.destroy();
  graf = null;
  if (body.length === 0) return;
  document.getElementById("graf_popis").textContent = zak === null
    ? "Získané body v procentech, průměr všech vybraných sérií každého dne. Vývoj jednoho žáka se ukáže po jeho vybrání."
    : `${zak.jmeno}: získané body v procentech, bod za každou sérii, barva podle známky.`;
  platno.setAttribute("aria-label", `Od ${datum(body[0].kdy)} (${Math.round(body[0].y)} %) ` +
    `do ${datum(body[body.length - 1].kdy)} (${Math.round(body[body.length - 1].y)} %), ` +
    `průměr ${Math.round(prumer(body.map((b) => b.y)))} %.`);
  const inkoust = barvaStylu("inkoust");
  // In order and not by the clock: lessons lie weeks apart.
  graf = new Chart(platno, {
    type: "line",
    data: {
      labels: body.map((b) => datum(b.kdy)),
      datasets: [{
        data: body.map((b) => b.y), borderColor: barvaStylu("cara"), borderWidth: 1.5,
        tension: 0, clip: false,
        pointRadius: body.length > 60 ? 3 : 6, pointHoverRadius: 8,
        pointBackgroundColor: body.map((b) => b.barva), pointBorderColor: inkoust,
      }],
    },
    options: {
      animation: false, maintainAspectRatio: false, layout: { padding: { top: 10, right: 10 } },
      devicePixelRatio: Math.max(2, window.devicePixelRatio),
      font: { family: "Liberation Sans, Arial, sans-serif" },
      scales: {
        x: { ticks: { color: inkoust, maxRotation: 0, autoSkipPadding: 16 }, grid: { display: false } },
        y: { min: 0, max: 100, grid: { color: barvaStylu("stin") },
          ticks: { color: inkoust, stepSize: 25, callback: (v) => `${v} %` } },
      },
      plugins: {
        legend: { display: false },
        tooltip: { displayColors: false, callbacks: {
          label: (b) => [`${Math.round(b.parsed.y)} %`, body[b.dataIndex].co],
        } },
      },
    },
  });
}
