// One grammar point: its titles, subpoints with their keywords, and its bubbles.
import { api } from "../api.js";
import { el, problem } from "../dom.js";

export async function showGrammar(view) {
  const [d, p] = view.params;
  const crumbs = [["Disciplines", "/"], [`Discipline ${d}`, `/d/${d}`]];
  let point;
  try {
    point = await api.point(d, p);
  } catch (error) {
    view.show(`Grammar point ${p}`, crumbs, problem(error.message));
    return;
  }
  view.show(point.name || `Grammar point ${p}`, crumbs,
    languageTexts("Titles", point.titles, "title"),
    subpoints(point.subpoints ?? []),
    languageTexts("Explanations", point.bubbles, "text"));
}

function languageTexts(heading, entries = [], field) {
  const shown = entries.filter((e) => e[field]);
  if (shown.length === 0) return null;
  return el("section", {}, el("h2", {}, heading), el("ul", { class: "translations" },
    shown.map((e) => el("li", {}, el("span", { class: "language" }, `language ${e.language}`),
      " ", e[field]))));
}

function subpoints(list) {
  if (list.length === 0) return null;
  return el("section", {}, el("h2", {}, "Subpoints"), list.map((s) => {
    const title = s.titles?.find((t) => t.title)?.title ?? `Subpoint ${s.id}`;
    const keywords = (s.keywords ?? []).map((k) => k.keyword).filter(Boolean);
    return el("article", { class: "subpoint" },
      el("h3", {}, title),
      el("p", { class: "muted" }, `level ${s.level}, category ${s.category}`),
      languageTexts("Titles", s.titles, "title"),
      keywords.length ? el("p", {}, "Keywords: ", keywords.join(", ")) : null);
  }));
}
