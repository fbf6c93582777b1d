// The disciplines of the content root.
import { api } from "../api.js";
import { el, link } from "../dom.js";

export async function showHome(view) {
  const open = await api.open();
  const items = open.disciplines.map((d) =>
    el("li", {}, link(`/d/${d.id}`, `Discipline ${d.id}`), " ",
      el("span", { class: "muted" }, `${d.types.length} exercise types · ${d.urlRoot}`)));
  view.show("Disciplines", [], el("ul", { class: "cards" }, items));
}
