// The sample's Flash media in a browser through Ruffle: pictures draw, sounds reach the audio
// output once the person has clicked, and neither leaves an error behind.
import { after, before, describe, test } from "node:test";
import assert from "node:assert/strict";
import { mkdirSync } from "node:fs";
import { join } from "node:path";
import { fileURLToPath } from "node:url";
import { audioHeard, audioProbe } from "./audio_probe.mjs";
import {
  RUFFLE_DIR,
  colourShares,
  eventually,
  launchBrowser,
  skipUnlessReady,
} from "./browser.mjs";
import { writeSample } from "./sample_media.mjs";
import { serveFiles } from "./static_server.mjs";

const PLAYER_PAGE = fileURLToPath(new URL("fixtures/player.html", import.meta.url));
// The element media of the first unit: a picture in Q1, a sound in Q2.
const PICTURE = "/media/C0001/r0001005/Q1/p0000001.swf";
const SOUND = "/media/C0001/r0001005/Q2/s0000002.swf";
const TIMEOUT = { timeout: 60000 };

describe("Flash media of the sample", { skip: skipUnlessReady() }, () => {
  let sample;
  let server;
  let browser;

  before(async () => {
    sample = await writeSample();
    server = await serveFiles({
      files: { "/": PLAYER_PAGE },
      folders: { "/ruffle/": RUFFLE_DIR, "/media/": sample.root },
    });
    browser = await launchBrowser();
  }, TIMEOUT);

  after(async () => {
    await browser?.close();
    await server?.close();
    await sample?.close();
  });

  test("a picture is drawn: a card and a disc, two colours on white", TIMEOUT, async () => {
    const { page, errors } = await browser.open(server.baseUrl);
    const movie = await page.evaluate((url) => window.playMovie(url), PICTURE);
    assert.deepEqual([movie.width, movie.height, movie.numFrames], [160, 120, 1]);

    const stage = page.locator("#stage");
    const drawn = await eventually(async () => {
      const colours = await colourShares(page, await stage.screenshot());
      return colours.filter((c) => c.rgb !== "ffffff" && c.share > 0.1).length >= 2 && colours;
    });
    assert.ok(drawn, "the player's canvas stayed blank");
    if (process.env.LUMORA_BROWSER_SHOTS) {
      mkdirSync(process.env.LUMORA_BROWSER_SHOTS, { recursive: true });
      await stage.screenshot({ path: join(process.env.LUMORA_BROWSER_SHOTS, "picture.png") });
    }
    assert.deepEqual(errors, []);
  });

  test("a sound plays once the page has been clicked", TIMEOUT, async () => {
    const { page, errors } = await browser.open(server.baseUrl, "/", { initScripts: [audioProbe] });
    // Chromium starts audio only after a gesture of the person on the page.
    await page.mouse.click(5, 5);
    await page.evaluate((url) => window.playMovie(url), SOUND);

    const heard = await eventually(async () => {
      const audio = await audioHeard(page);
      return audio.peak > 0.3 && audio;
    });
    assert.ok(heard, "no sound reached the audio output");
    assert.deepEqual(heard.states, ["running"]);
    assert.deepEqual(errors, []);
  });
});
