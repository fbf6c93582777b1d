// The check of the whole content root: each check with its counts and findings, and a link to
// the resource a finding names.
import { api } from "../api.js";
import { el, hex, link } from "../dom.js";

const RESOURCE_FILE = /^C(\d{4})\/r(\d{7})\/r(\d{7})\.ar[sh]$/;

export async function showCheck(view) {
  view.show("Check", [["Disciplines", "/"]], el("p", { class: "muted" }, "Checking the content…"));
  const [report, open] = await Promise.all([api.check(), api.open()]);
  const resourceOf = resourceFinder(open.disciplines);
  const summary = el("p", { class: report.ok ? "good" : "problem" },
    report.ok ? "No check found an error." : "Some checks found errors.");
  view.show("Check", [["Disciplines", "/"]], summary,
    report.checks.map((check) => el("section", { class: "check" },
      el("h2", {}, check.name),
      el("p", { class: "muted" },
        `${check.checked} checked, ${check.errors} errors, ${check.warnings} warnings`),
      check.findings.length
        ? el("ul", { class: "findings" }, check.findings.map((f) => finding(f, resourceOf)))
        : null)));
}

function finding(f, resourceOf) {
  const target = resourceOf(f.file);
  return el("li", { class: f.severity },
    el("span", { class: "severity" }, f.severity), " ",
    el("code", {}, f.file), " ", f.message,
    target ? [" ", link(target.href, `show resource ${hex(target.id)}`)] : null);
}

// A finding's file is relative to the content root; a resource file lies below a discipline's
// local root as C{course}/r{type}/r{number}.ars. The discipline is the one whose local root ends
// with the folders before that.
function resourceFinder(disciplines) {
  return (file) => {
    const parts = (file ?? "").split("/");
    if (parts.length < 4) return null;
    const match = RESOURCE_FILE.exec(parts.slice(-3).join("/"));
    const folder = "/" + parts.slice(0, -3).join("/") + "/";
    const d = disciplines.find((x) => ("/" + x.localRoot).endsWith(folder));
    if (!match || !d) return null;
    const [, course, type, number] = match.map(Number);
    const id = ((course << 20) | number) >>> 0;
    return { id, href: `/d/${d.id}/resource/${type}/${id}` };
  };
}
