// `lumora serve` for the browser tests: a sample content root written by the built tool into a
// temporary folder, and the server over it on a free loopback port.
import { execFileSync, spawn } from "node:child_process";
import { existsSync } from "node:fs";
import { mkdtemp, rm } from "node:fs/promises";
import { tmpdir } from "node:os";
import { join } from "node:path";
import { createInterface } from "node:readline";
import { SOURCE_DIR } from "./browser.mjs";

export const CLI = process.env.LUMORA_CLI ?? join(SOURCE_DIR, "build", "lumora");

// Writes the sample at `scale`; resolves to { root, close() }, root being the content root.
export async function writeContent(scale = 1) {
  if (!existsSync(CLI)) throw new Error(`no lumora tool at ${CLI}: build it first (make build)`);
  const root = await mkdtemp(join(tmpdir(), "lumora-content-"));
  execFileSync(CLI, ["sample", root, "--scale", String(scale)], { stdio: "ignore" });
  return { root, close: () => rm(root, { recursive: true, force: true }) };
}

// Starts `lumora serve root --port 0`; resolves to { baseUrl, stderr(), close() } once it says
// where it serves. `stderr()` is what it wrote there so far.
export async function startServer(root, env = {}) {
  const child = spawn(CLI, ["serve", root, "--port", "0", "--quiet"], {
    env: { ...process.env, ...env },
    stdio: ["ignore", "pipe", "pipe"],
  });
  let stderr = "";
  child.stderr.on("data", (chunk) => (stderr += chunk));
  const exited = new Promise((resolve) => child.once("exit", resolve));
  const lines = createInterface({ input: child.stdout });
  const baseUrl = await new Promise((resolve, reject) => {
    lines.once("line", (line) => {
      const url = /at (http:\/\/\S+)$/.exec(line)?.[1];
      if (url) resolve(url);
      else reject(new Error(`lumora serve said: ${line}`));
    });
    exited.then((code) => reject(new Error(`lumora serve exited (${code}): ${stderr}`)));
  });
  return {
    baseUrl,
    stderr: () => stderr,
    close: async () => {
      child.kill("SIGTERM");
      await exited;
    },
  };
}
