// Media of the sample content, written once per test file by the lumora tool into a temporary
// folder: the tool CTest built (LUMORA_CLI), or the one of build/.
import { execFileSync } from "node:child_process";
import { existsSync } from "node:fs";
import { mkdtemp, rm } from "node:fs/promises";
import { tmpdir } from "node:os";
import { join } from "node:path";
import { SOURCE_DIR } from "./browser.mjs";

const CLI = process.env.LUMORA_CLI ?? join(SOURCE_DIR, "build", "lumora");

// Writes a small sample; resolves to { root, close() }, root being the first discipline's folder.
export async function writeSample() {
  if (!existsSync(CLI)) throw new Error(`no lumora tool at ${CLI}: build it first (make build)`);
  const folder = await mkdtemp(join(tmpdir(), "lumora-sample-"));
  execFileSync(CLI, ["sample", folder, "--scale", "1"], { stdio: "ignore" });
  return { root: join(folder, "D001"), close: () => rm(folder, { recursive: true, force: true }) };
}
