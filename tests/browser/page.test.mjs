// The page of `lumora serve` in a browser, over the sample: every view at its own address, the
// media in place, the glossary searched while typing, a type paged without asking for all its
// resources, the check, the keyboard, and content that looks like markup shown as text.
import { after, before, describe, test } from "node:test";
import assert from "node:assert/strict";
import { readdir, readFile, writeFile } from "node:fs/promises";
import { join } from "node:path";
import { audioHeard, audioProbe } from "./audio_probe.mjs";
import {
  SOURCE_DIR,
  colourShares,
  eventually,
  launchBrowser,
  skipUnlessReady,
} from "./browser.mjs";
import { startServer, writeContent } from "./lumora_server.mjs";

const TIMEOUT = { timeout: 60000 };
const MARKUP = "<img src=x onerror=alert(1)>";
// Large enough that the sample's pictures (type 1005, 8 per unit of scale) fill two pages.
const SCALE = 4;
// The title of the sample's first dictation, which the tests replace by MARKUP.
const TITLE = { file: "D001/C0001/r0000005/r0000001.ars", text: "Dictado" };

// Replaces a text of a resource file by another of any length: a text is stored as its length
// in UTF-16 units (4 bytes) followed by the units, so the file reads on after it unchanged.
async function replaceText(file, before, after) {
  const stored = (text) => {
    const units = Buffer.from(text, "utf16le");
    const length = Buffer.alloc(4);
    length.writeUInt32LE(text.length);
    return Buffer.concat([length, units]);
  };
  const bytes = await readFile(file);
  const at = bytes.indexOf(stored(before));
  assert.ok(at >= 0, `${before} is not in ${file}`);
  const old = stored(before);
  await writeFile(file, Buffer.concat([bytes.subarray(0, at), stored(after),
    bytes.subarray(at + old.length)]));
}

// The first resource of the sample that has a medium for which `wanted` is true, as
// { path, medium } with path the page's address of the resource.
async function findResource(baseUrl, wanted) {
  const get = async (path) => (await fetch(new URL(path, baseUrl))).json();
  for (const type of (await get("/api/open")).disciplines[0].types) {
    for (const id of (await get(`/page/ids/1/${type}`)).ids ?? []) {
      const resource = await get(`/api/d/1/resource/${type}/${id}`);
      const medium = (resource.allMedia ?? []).find(wanted);
      if (medium) return { path: `/d/1/resource/${type}/${id}`, medium };
    }
  }
  throw new Error("the sample has no such medium");
}

// Each level of imports would otherwise wait for the one above it: a module missing from the
// list still works, only slower, so nothing else would notice.
test("the page asks for all its modules at once", async () => {
  const folder = join(SOURCE_DIR, "web", "page");
  const modules = (await readdir(folder, { recursive: true }))
    .filter((file) => file.endsWith(".js") && file !== "app.js");
  const html = await readFile(join(folder, "index.html"), "utf8");
  const preloaded = [...html.matchAll(/<link rel="modulepreload" href="\/page\/([^"]+)">/g)]
    .map((match) => match[1]);
  assert.deepEqual(preloaded.sort(), modules.sort());
});

describe("the page of lumora serve", { skip: skipUnlessReady() }, () => {
  let content;
  let server;
  let browser;

  before(async () => {
    content = await writeContent(SCALE);
    await replaceText(join(content.root, TITLE.file), TITLE.text, MARKUP);
    server = await startServer(content.root);
    browser = await launchBrowser();
  }, TIMEOUT);

  after(async () => {
    await browser?.close();
    await server?.close();
    await content?.close();
  });

  test("links, addresses and the back button lead through the course", TIMEOUT, async () => {
    const { page, errors } = await browser.open(server.baseUrl);
    await page.getByRole("link", { name: "Discipline 1" }).click();
    await page.getByRole("link", { name: "Dictation (type 5)" }).click();
    await page.waitForURL(/\/d\/1\/type\/5$/);
    await page.getByRole("link", { name: "0x00100002" }).click();
    await page.waitForURL(/\/d\/1\/resource\/5\/1048578$/);
    await page.locator("h1", { hasText: "Resource 0x00100002" }).waitFor();

    await page.goBack();
    await page.waitForURL(/\/d\/1\/type\/5$/);
    await page.locator("h1", { hasText: "Dictation" }).waitFor();
    // An address typed or linked to directly is the same view.
    await page.goto(new URL("/d/1/grammar/2", server.baseUrl).href);
    await page.locator("h1", { hasText: "Present tense" }).waitFor();
    assert.deepEqual(errors, []);
  });

  test("the keyboard reaches every link, and focus shows", TIMEOUT, async () => {
    const { page, errors } = await browser.open(server.baseUrl);
    await page.locator("main a").first().waitFor();
    let focused = null;
    for (let i = 0; i < 10 && focused !== "Discipline 1"; ++i) {
      await page.keyboard.press("Tab");
      focused = await page.evaluate(() => document.activeElement.textContent);
    }
    assert.equal(focused, "Discipline 1");
    const outline = await page.evaluate(() => getComputedStyle(document.activeElement).outlineStyle);
    assert.notEqual(outline, "none");
    await page.keyboard.press("Enter");
    await page.waitForURL(/\/d\/1$/);
    await page.locator("h1", { hasText: "Discipline 1" }).waitFor();
    assert.deepEqual(errors, []);
  });

  test("a Flash picture is drawn in place", TIMEOUT, async () => {
    const { path } = await findResource(server.baseUrl, (m) => m.kind === 2 && m.href);
    const { page, errors } = await browser.open(server.baseUrl, path);
    const player = page.locator("figure.medium ruffle-player").first();
    await player.waitFor();
    const drawn = await eventually(async () => {
      const colours = await colourShares(page, await player.screenshot());
      return colours.filter((c) => c.rgb !== "ffffff" && c.share > 0.1).length >= 2;
    });
    assert.ok(drawn, "the player's canvas stayed blank");
    assert.deepEqual(errors, []);
  });

  test("a Flash sound is heard once the page has been used", TIMEOUT, async () => {
    const { path } = await findResource(server.baseUrl, (m) => m.kind === 1 && m.href);
    const { page, errors } = await browser.open(server.baseUrl, "/", { initScripts: [audioProbe] });
    await page.mouse.click(5, 5);
    await page.evaluate((p) => {
      const a = Object.assign(document.createElement("a"), { href: p });
      document.body.append(a);
      a.click();
    }, path);
    const heard = await eventually(async () => (await audioHeard(page)).peak > 0.3);
    assert.ok(heard, "no sound reached the audio output");
    assert.deepEqual(errors, []);
  });

  test("a video is offered as a download with its size, a missing medium says so", TIMEOUT,
    async () => {
      const video = await findResource(server.baseUrl,
        (m) => m.kind === 3 && /\.(avi|mpg)$/.test(m.href ?? ""));
      const { page, errors } = await browser.open(server.baseUrl, video.path);
      const download = page.locator("figure.medium a[download]").first();
      assert.match(await download.getAttribute("href"), /\.(avi|mpg)$/);
      await eventually(async () => /\(\d/.test(await download.locator("..").textContent()));
      assert.match(await download.locator("..").textContent(), /\(\d+(\.\d)? (bytes|KB|MB)\)/);

      const missing = await findResource(server.baseUrl, (m) => m.kind !== 0 && !m.href);
      await page.goto(new URL(missing.path, server.baseUrl).href);
      await page.locator(".missing").first().waitFor();
      assert.deepEqual(errors, []);
    });

  test("the glossary finds café while cafe is typed", TIMEOUT, async () => {
    const { page, errors } = await browser.open(server.baseUrl, "/");
    // Keys typed as soon as the box shows count, even while the page still waits to learn
    // whether it can play Flash.
    await page.route("**/page/features.json", async (route) => {
      await new Promise((resolve) => setTimeout(resolve, 300));
      await route.continue();
    });
    await page.goto(new URL("/d/1/glossary", server.baseUrl).href);
    const input = page.getByLabel("Search the glossary");
    await input.pressSequentially("cafe", { delay: 40 });
    await page.getByRole("button", { name: /café/ }).first().waitFor();
    assert.match(page.url(), /\/d\/1\/glossary\?q=cafe$/);
    // The mark a measurement waits for names the query whose results are shown.
    const marked = await page.evaluate(() => performance.getEntriesByName("lumora:glossary-results")
      .map((m) => m.detail?.query));
    assert.equal(marked.at(-1), "cafe");
    // Its translations come with it.
    await page.locator(".word-details li").first().waitFor();
    assert.deepEqual(errors, []);
  });

  test("a type is paged: each page asks only for its own resources", TIMEOUT, async () => {
    const { page, errors } = await browser.open(server.baseUrl, "/");
    await page.locator("main a").first().waitFor();
    const asked = { ids: 0, indexes: 0, resources: [] };
    page.on("request", (r) => {
      const path = new URL(r.url()).pathname;
      if (path.startsWith("/page/ids/")) ++asked.ids;
      if (path.startsWith("/api/d/1/index")) ++asked.indexes;
      if (path.startsWith("/api/d/1/resource/")) asked.resources.push(path);
    });
    // Marks the page sets once a view shows and once its rows are filled.
    const marked = (name) => page.evaluate((n) => performance.getEntriesByName(n).length, name);
    await page.evaluate(() => performance.clearMarks());
    await page.getByRole("link", { name: "Discipline 1" }).click();
    await page.getByRole("link", { name: "Elements (type 1005)" }).click();
    await page.waitForURL(/\/d\/1\/type\/1005$/);
    assert.ok(await eventually(async () => (await marked("lumora:summaries-shown")) === 1));
    assert.equal(await marked("lumora:view-shown"), 2);
    const firstPage = await page.locator("ol.resources > li a").allTextContents();
    assert.equal(firstPage.length, 25);
    assert.deepEqual(asked.resources.map((p) => Number(p.split("/").at(-1))).sort(),
      firstPage.map(Number).sort());

    asked.resources = [];
    await page.getByRole("link", { name: "Next →" }).click();
    await page.waitForURL(/\/d\/1\/type\/1005\?page=2$/);
    assert.ok(await eventually(async () => (await marked("lumora:summaries-shown")) === 2));
    const secondPage = await page.locator("ol.resources > li a").allTextContents();
    assert.ok(secondPage.length > 0 && secondPage[0] !== firstPage[0]);
    assert.equal(asked.resources.length, secondPage.length);
    assert.equal(asked.ids, 1, "the ids of a type are asked for once");
    assert.equal(asked.indexes, 0, "the counts of the types come without the index documents");
    assert.deepEqual(errors, []);
  });

  test("the check groups findings by check and links to the resources", TIMEOUT, async () => {
    const { page, errors } = await browser.open(server.baseUrl, "/check");
    const media = page.locator("section.check", { has: page.locator("h2", { hasText: "media" }) });
    await media.waitFor({ timeout: 30000 });
    assert.equal(await page.locator("section.check h2").count(), 10);
    const show = media.getByRole("link", { name: /^show resource/ }).first();
    await show.click();
    await page.waitForURL(/\/d\/1\/resource\/\d+\/\d+$/);
    // The address changes before the resource has been fetched and drawn.
    await page.locator("h1", { hasText: /^Resource 0x/ }).waitFor({ timeout: 30000 });
    assert.deepEqual(errors, []);
  });

  test("a text that looks like markup is shown as text", TIMEOUT, async () => {
    const { page, errors } = await browser.open(server.baseUrl, "/d/1/resource/5/0x100001");
    let dialogs = 0;
    page.on("dialog", (dialog) => {
      ++dialogs;
      dialog.dismiss();
    });
    await page.getByText(MARKUP, { exact: true }).waitFor();
    assert.equal(await page.locator("main img").count(), 0);
    assert.equal(dialogs, 0);
    assert.deepEqual(errors, []);
  });
});
