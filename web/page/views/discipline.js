// One discipline: its exercise types with how many resources each lists, its glossary and its
// grammar points by level.
import { api } from "../api.js";
import { el, link, problem } from "../dom.js";
import { typeName } from "../types.js";

export async function showDiscipline(view) {
  const [d] = view.params;
  const [{ types: counted }, levels] = await Promise.all([
    api.types(d),
    api.levels(d).catch((error) => error),
  ]);
  const rows = counted.map((t) =>
    el("tr", {},
      el("td", {}, link(`/d/${d}/type/${t.type}`, typeName(t.type))),
      el("td", { class: "number" }, String(t.resources))));
  const types = el("table", {},
    el("thead", {}, el("tr", {}, el("th", {}, "Exercise type"), el("th", {}, "Resources"))),
    el("tbody", {}, rows));
  view.show(`Discipline ${d}`, [["Disciplines", "/"]],
    el("p", {}, link(`/d/${d}/glossary`, "Search the glossary")),
    el("section", {}, el("h2", {}, "Exercise types"), types),
    el("section", {}, el("h2", {}, "Grammar"), grammarLevels(d, levels)));
}

function grammarLevels(d, levels) {
  if (levels instanceof Error) return problem(`No grammar: ${levels.message}`);
  if (levels.length === 0) return el("p", { class: "muted" }, "No grammar points.");
  return el("dl", { class: "levels" }, levels.map((level) => [
    el("dt", {}, `Level ${level.level}`),
    el("dd", {}, level.points.map((p) => [link(`/d/${d}/grammar/${p}`, `Point ${p}`), " "])),
  ]));
}
