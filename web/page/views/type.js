// The resources of one type, a page at a time: the ids come from the type's index, and only the
// resources of the page shown are asked for.
import { api } from "../api.js";
import { el, hex, link, problem } from "../dom.js";
import { typeName } from "../types.js";
import { summary } from "./summary.js";

export const PAGE_SIZE = 25;

export async function showType(view) {
  const [d, type] = view.params;
  const { ids } = await api.ids(d, type);
  const pages = Math.max(1, Math.ceil(ids.length / PAGE_SIZE));
  const page = Math.min(Math.max(1, Number(view.query.get("page")) || 1), pages);
  const shown = ids.slice((page - 1) * PAGE_SIZE, page * PAGE_SIZE);
  const rows = shown.map((id) => el("li", {}, link(`/d/${d}/resource/${type}/${id}`, hex(id))));
  const list = el("ol", { class: "resources", start: (page - 1) * PAGE_SIZE + 1 }, rows);
  const crumbs = [["Disciplines", "/"], [`Discipline ${d}`, `/d/${d}`]];
  view.show(typeName(type), crumbs,
    el("p", { class: "muted" }, `${ids.length} resources`),
    ids.length === 0 ? problem("Its index lists no resources.") : list,
    pager(`/d/${d}/type/${type}`, page, pages));

  // Each row then gains what its resource says, as the answers come.
  await Promise.all(shown.map(async (id, i) => {
    const row = rows[i];
    try {
      const document = await api.resource(d, type, id);
      if (view.current()) row.append(" ", summary(document));
    } catch (error) {
      if (view.current()) row.append(" ", el("span", { class: "problem" }, error.message));
    }
  }));
  if (view.current()) performance.mark("lumora:summaries-shown");
}

function pager(base, page, pages) {
  if (pages === 1) return null;
  const to = (p, text) => link(`${base}?page=${p}`, text);
  return el("nav", { class: "pager", "aria-label": "Pages" },
    page > 1 ? to(page - 1, "← Previous") : null,
    el("span", {}, `Page ${page} of ${pages}`),
    page < pages ? to(page + 1, "Next →") : null);
}
