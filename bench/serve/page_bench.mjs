#!/usr/bin/env node
// The speed a person feels on the page of `lumora serve`, measured in Debian's Chromium over
// loopback with the performance marks the page sets:
//
// - cold loads (a fresh browser profile each) of the first page and of a discipline: navigation
//   start to `lumora:view-shown` (goal: under 300 ms);
// - glossary queries typed at a person's pace: last key to the `lumora:glossary-results` mark of
//   that query (goal: under 50 ms);
// - the type with the most resources, opened cold: the ids and resource documents the page
//   fetched to show its first page of resources and the next, and the median time to show each
//   (goal: one page of documents per page).
//
// It writes the sample at --scale (default 600) into a temporary folder; when no type of it
// reaches 15,000 resources, the paging is measured on a second sample scaled to reach them.
// Bounded: a fixed number of loads and queries, every wait with a time limit.
//
//     LUMORA_CLI=build/lumora node bench/serve/page_bench.mjs [--scale 600] [--loads 5]
import { parseArgs } from "node:util";
import { launchBrowser, missingPrerequisites } from "../../tests/browser/browser.mjs";
import { startServer, writeContent } from "../../tests/browser/lumora_server.mjs";

const GOAL_SHOWN_MS = 300;
const GOAL_RESULTS_MS = 50;
const PAGING_RESOURCES = 15000;
const WAIT = { timeout: 30000 };
// Queries typed into the glossary, one key every KEY_DELAY_MS: a word found whole, one that
// narrows letter by letter, and one that fills the result list (60 words).
const QUERIES = ["cafe", "chanter", "la"];
const KEY_DELAY_MS = 120;

const { values: options } = parseArgs({
  options: {
    scale: { type: "string", default: "600" },
    loads: { type: "string", default: "5" },
  },
});
const SCALE = Number(options.scale);
const LOADS = Number(options.loads);

const median = (values) => {
  const sorted = [...values].sort((a, b) => a - b);
  const middle = sorted.length >> 1;
  return sorted.length % 2 ? sorted[middle] : (sorted[middle - 1] + sorted[middle]) / 2;
};
const ms = (value) => `${value.toFixed(1)} ms`;
const verdict = (ok) => (ok ? "met" : "MISSED");

// The first mark named `name` set after page time `since`, waited for.
async function markAfter(page, name, since, query) {
  const handle = await page.waitForFunction(([n, t, q]) => {
    const mark = performance.getEntriesByName(n)
      .find((m) => m.startTime > t && (q === null || m.detail?.query === q));
    return mark ? mark.startTime : false;
  }, [name, since, query ?? null], WAIT);
  return handle.jsonValue();
}

// Navigation start to the view shown, for `path` opened in a browser that has seen nothing.
async function coldLoad(baseUrl, path) {
  const browser = await launchBrowser();
  try {
    const { page, errors } = await browser.open(baseUrl, path);
    const shown = await markAfter(page, "lumora:view-shown", 0);
    if (errors.length) throw new Error(`${path}: ${errors.join("; ")}`);
    return shown;
  } finally {
    await browser.close();
  }
}

// Last key to results, for each query typed into a fresh glossary view, `tries` times each.
async function glossaryTimes(browser, baseUrl, tries) {
  const times = new Map(QUERIES.map((q) => [q, []]));
  const lastKey = () => {
    addEventListener("keydown", () => (window.lumoraLastKey = performance.now()), true);
  };
  const { page, errors } = await browser.open(baseUrl, "/", { initScripts: [lastKey] });
  for (let i = 0; i < tries; ++i) {
    for (const query of QUERIES) {
      await page.goto(new URL("/d/1/glossary", baseUrl).href);
      await markAfter(page, "lumora:view-shown", 0);
      await page.getByLabel("Search the glossary").pressSequentially(query,
        { delay: KEY_DELAY_MS });
      const key = await page.evaluate(() => window.lumoraLastKey);
      const results = await markAfter(page, "lumora:glossary-results", key, query);
      times.get(query).push(results - key);
    }
  }
  if (errors.length) throw new Error(`glossary: ${errors.join("; ")}`);
  return times;
}

// The type of discipline 1 with the most resources, as { type, count }.
async function largestType(baseUrl) {
  const get = async (path) => (await fetch(new URL(path, baseUrl))).json();
  const open = await get("/api/open");
  let largest = { type: 0, count: -1 };
  for (const type of open.disciplines[0].types) {
    const { ids = [] } = await get(`/page/ids/1/${type}`);
    if (ids.length > largest.count) largest = { type, count: ids.length };
  }
  return largest;
}

// What the page fetched to show one page of a type's resources, and how long it took: from
// navigation start (first page) or the click on "Next" (next page) to the list shown, and to
// every row filled with what its resource says.
async function pagingOf(browser, baseUrl, type) {
  let fetched = { ids: 0, resources: 0 };
  const pending = [];
  const { page, errors } = await browser.open(baseUrl, "/");
  page.on("request", (request) => {
    if (/^\/api\/d\/\d+\/resource\//.test(new URL(request.url()).pathname)) ++fetched.resources;
  });
  page.on("response", (response) => {
    if (!new URL(response.url()).pathname.startsWith("/page/ids/")) return;
    pending.push(response.json().then((body) => (fetched.ids += body.ids?.length ?? 0), () => {}));
  });
  const pages = [];
  // `go` moves to the page and answers the page time it started at.
  const measure = async (go) => {
    fetched = { ids: 0, resources: 0 };
    const since = await go();
    const shown = await markAfter(page, "lumora:view-shown", since);
    const filled = await markAfter(page, "lumora:summaries-shown", since);
    await page.waitForLoadState("networkidle");
    await Promise.all(pending);
    const rows = await page.locator("ol.resources > li").count();
    pages.push({ ...fetched, rows, shown: shown - since, filled: filled - since });
  };
  await measure(async () => {
    await page.goto(new URL(`/d/1/type/${type}`, baseUrl).href);
    return 0;
  });
  // Clicked from within the page, so that the time starts with the click itself.
  await measure(() => page.evaluate(() => {
    const next = [...document.querySelectorAll("nav.pager a")].find((a) => /Next/.test(a.text));
    const since = performance.now();
    next.click();
    return since;
  }));
  if (errors.length) throw new Error(`paging: ${errors.join("; ")}`);
  return pages;
}

async function withServer(scale, work) {
  const content = await writeContent(scale);
  try {
    const server = await startServer(content.root);
    try {
      return await work(server.baseUrl);
    } finally {
      await server.close();
    }
  } finally {
    await content.close();
  }
}

// The paging of the largest type, LOADS times in a fresh browser: per page, the most that was
// fetched in any run and the median times.
async function paging(baseUrl, scale) {
  const largest = await largestType(baseUrl);
  const runs = [];
  for (let i = 0; i < LOADS; ++i) {
    const browser = await launchBrowser();
    try {
      runs.push(await pagingOf(browser, baseUrl, largest.type));
    } finally {
      await browser.close();
    }
  }
  const pages = runs[0].map((_, p) => {
    const of = (key) => runs.map((run) => run[p][key]);
    return {
      ids: Math.max(...of("ids")),
      resources: Math.max(...of("resources")),
      rows: Math.min(...of("rows")),
      shown: median(of("shown")),
      filled: median(of("filled")),
    };
  });
  return { scale, ...largest, pages };
}

async function main() {
  const missing = missingPrerequisites();
  if (missing.length) throw new Error(missing.join("; "));
  const report = { loads: {}, glossary: null, paging: [] };
  let largest = null;
  await withServer(SCALE, async (baseUrl) => {
    for (const path of ["/", "/d/1"]) {
      const times = [];
      for (let i = 0; i < LOADS; ++i) times.push(await coldLoad(baseUrl, path));
      report.loads[path] = times;
    }
    const browser = await launchBrowser();
    try {
      report.glossary = await glossaryTimes(browser, baseUrl, LOADS);
    } finally {
      await browser.close();
    }
    const measured = await paging(baseUrl, SCALE);
    report.paging.push(measured);
    largest = measured.count;
  });
  if (largest < PAGING_RESOURCES) {
    const scale = Math.ceil((SCALE * PAGING_RESOURCES) / Math.max(largest, 1));
    await withServer(scale, async (baseUrl) => report.paging.push(await paging(baseUrl, scale)));
  }
  return print(report);
}

function print({ loads, glossary, paging: types }) {
  let ok = true;
  console.log(`Page of lumora serve, sample --scale ${SCALE}, loopback, headless Chromium`);
  console.log(`\ncold load to lumora:view-shown (${LOADS} loads, fresh profile each)`);
  console.log("  path          median      max   goal");
  for (const [path, times] of Object.entries(loads)) {
    const met = median(times) < GOAL_SHOWN_MS;
    ok &&= met;
    console.log(`  ${path.padEnd(10)} ${ms(median(times)).padStart(9)} ${ms(Math.max(...times))
      .padStart(9)}   < ${GOAL_SHOWN_MS} ms ${verdict(met)}`);
  }
  console.log(`\nlast key to lumora:glossary-results (a key every ${KEY_DELAY_MS} ms, ${LOADS} ` +
    "tries each)");
  console.log("  query         median      max   goal");
  for (const [query, times] of glossary) {
    const met = median(times) < GOAL_RESULTS_MS;
    ok &&= met;
    console.log(`  ${query.padEnd(10)} ${ms(median(times)).padStart(9)} ${ms(Math.max(...times))
      .padStart(9)}   < ${GOAL_RESULTS_MS} ms ${verdict(met)}`);
  }
  for (const { scale, type, count, pages } of types) {
    console.log(`\npaging type ${type} (${count} resources, --scale ${scale}); ` +
      `median times of ${LOADS} from navigation start or the click on Next`);
    console.log("  page   ids fetched  documents  rows    shown   filled   goal");
    pages.forEach((p, i) => {
      const met = p.resources === p.rows && p.rows > 0;
      ok &&= met;
      console.log(`  ${i === 0 ? "first" : "next "}  ${String(p.ids).padStart(11)} ` +
        `${String(p.resources).padStart(10)} ${String(p.rows).padStart(5)} ${ms(p.shown)
          .padStart(8)} ${ms(p.filled).padStart(8)}   one page of documents ${verdict(met)}`);
    });
  }
  console.log(ok ? "\nall goals met" : "\nsome goals missed");
  return ok;
}

main().then((ok) => (process.exitCode = ok ? 0 : 1), (error) => {
  console.error(`page_bench: ${error.message}`);
  process.exitCode = 2;
});
