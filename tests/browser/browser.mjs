// Drives Debian's Chromium, headless, through playwright-core from web/node_modules: a test
// gives a base URL and gets a page, with the console errors and failed requests the page met.
// Nothing here knows what the page is, so the same helper serves any server under test.
import { createRequire } from "node:module";
import { existsSync } from "node:fs";
import { mkdtemp, rm } from "node:fs/promises";
import { tmpdir } from "node:os";
import { join } from "node:path";
import { fileURLToPath } from "node:url";

export const SOURCE_DIR = fileURLToPath(new URL("../..", import.meta.url));
export const WEB_MODULES = join(SOURCE_DIR, "web", "node_modules");
export const CHROMIUM = process.env.LUMORA_CHROMIUM ?? "/usr/bin/chromium";
export const RUFFLE_DIR = join(WEB_MODULES, "@ruffle-rs", "ruffle");

// Chromium as a test browser: no sandbox (containers), no GPU, and nothing that talks to the
// network on its own.
const CHROMIUM_ARGS = [
  "--headless",
  "--no-sandbox",
  "--disable-gpu",
  "--disable-background-networking",
  "--disable-component-update",
  "--disable-sync",
  "--no-first-run",
  "--disable-quic",
];

// What is missing to run the browser tests, as one line each; empty when they can run.
export function missingPrerequisites() {
  const missing = [];
  if (!existsSync(CHROMIUM)) missing.push(`no browser at ${CHROMIUM} (apt-get install chromium)`);
  for (const name of ["playwright-core", "@ruffle-rs/ruffle"]) {
    if (!existsSync(join(WEB_MODULES, name, "package.json"))) {
      missing.push(`no ${name} in ${WEB_MODULES} (run tools/install-deps)`);
    }
  }
  return missing;
}

// The `skip` option of a browser test: false when it can run. When something is missing the
// test is skipped with the reason, except under CI, where it fails with it instead.
export function skipUnlessReady() {
  const missing = missingPrerequisites();
  if (missing.length === 0) return false;
  const reason = `browser tests skipped: ${missing.join("; ")}`;
  if (process.env.CI === "true") throw new Error(reason.replace("skipped", "cannot run"));
  console.log(reason);
  return reason;
}

// Starts Chromium with a fresh profile; close() ends it and removes the profile.
export async function launchBrowser() {
  const require = createRequire(join(WEB_MODULES, "index.js"));
  const { chromium } = require("playwright-core");
  const profile = await mkdtemp(join(tmpdir(), "lumora-chromium-"));
  const context = await chromium.launchPersistentContext(profile, {
    executablePath: CHROMIUM,
    headless: true,
    args: CHROMIUM_ARGS,
  });
  return {
    context,
    // Opens `path` below `baseUrl` in a new page, after adding `initScripts` (functions run in
    // the page before its own scripts). `errors` collects console errors, uncaught exceptions,
    // error answers and failed requests, each as one line; requests the page itself abandons
    // (a player replaced while loading) are not failures.
    async open(baseUrl, path = "/", { initScripts = [] } = {}) {
      const page = await context.newPage();
      for (const script of initScripts) await page.addInitScript(script);
      const errors = [];
      page.on("console", (m) => {
        if (m.type() === "error") errors.push(`console: ${m.text()} (${m.location().url})`);
      });
      page.on("pageerror", (e) => errors.push(`exception: ${e.message}`));
      page.on("requestfailed", (r) => {
        const reason = r.failure()?.errorText ?? "";
        if (reason !== "net::ERR_ABORTED") errors.push(`request failed: ${r.url()} ${reason}`);
      });
      page.on("response", (r) => r.status() >= 400 && errors.push(`${r.status()}: ${r.url()}`));
      await page.goto(new URL(path, baseUrl).href);
      return { page, errors };
    },
    async close() {
      await context.close();
      await rm(profile, { recursive: true, force: true });
    },
  };
}

// The colours of a PNG image (a screenshot) with the share of the pixels each covers, the
// largest first. The page decodes the image, so no decoder is needed here.
export async function colourShares(page, png) {
  return page.evaluate(async (base64) => {
    const bytes = Uint8Array.from(atob(base64), (c) => c.charCodeAt(0));
    const image = await createImageBitmap(new Blob([bytes], { type: "image/png" }));
    const canvas = new OffscreenCanvas(image.width, image.height);
    const context = canvas.getContext("2d");
    context.drawImage(image, 0, 0);
    const { data } = context.getImageData(0, 0, image.width, image.height);
    const counts = new Map();
    for (let i = 0; i < data.length; i += 4) {
      const rgb = (data[i] << 16) | (data[i + 1] << 8) | data[i + 2];
      counts.set(rgb, (counts.get(rgb) ?? 0) + 1);
    }
    const pixels = data.length / 4;
    return [...counts]
      .map(([rgb, count]) => ({ rgb: rgb.toString(16).padStart(6, "0"), share: count / pixels }))
      .sort((a, b) => b.share - a.share);
  }, png.toString("base64"));
}

// Waits until `check` (an async function) answers something truthy, trying every 100 ms for at
// most `ms` milliseconds; answers the last result.
export async function eventually(check, ms = 10000) {
  const end = Date.now() + ms;
  for (;;) {
    const result = await check();
    if (result || Date.now() > end) return result;
    await new Promise((resolve) => setTimeout(resolve, 100));
  }
}
