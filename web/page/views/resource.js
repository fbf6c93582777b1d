// One resource as a person reads it: its texts with their translations, its items and parts as
// nested lists, each medium in place, and links to the resources it names.
import { api } from "../api.js";
import { el, hex, link, problem } from "../dom.js";
import { typeName } from "../types.js";
import { mediumView } from "./media.js";

// Fields of the head, shown in the subtitle; `allMedia` repeats every medium shown in place.
const HEAD = new Set(["ok", "type", "resourceId", "course", "number", "records", "allMedia"]);
// The marks of a text, which say nothing to a reader.
const HIDDEN = new Set(["records16", "records24"]);
const ELEMENT_TYPE = 1005;

export async function showResource(view) {
  const [d, type, id] = view.params;
  const crumbs = [["Disciplines", "/"], [`Discipline ${d}`, `/d/${d}`],
    [typeName(type), `/d/${d}/type/${type}`]];
  const title = `Resource ${hex(id)}`;
  const [document, features] = await Promise.all([
    api.resource(d, type, id).catch((error) => ({ ok: false, reason: error.message })),
    api.features(),
  ]);
  if (document.ok === false) {
    view.show(title, crumbs, problem(`This resource cannot be read: ${document.reason}`));
    return;
  }
  const ctx = { d, course: document.course, flash: features.flash };
  view.show(title, crumbs,
    el("p", { class: "muted" },
      `${typeName(type)}, course ${document.course}, number ${document.number}`),
    linkRecords(document.records, ctx),
    fields(document, ctx, HEAD));
}

function fields(object, ctx, leaveOut = new Set()) {
  const rows = [];
  for (const [key, value] of Object.entries(object)) {
    if (leaveOut.has(key) || HIDDEN.has(key)) continue;
    const shown = key === "records" ? linkRecords(value, ctx) : render(value, ctx);
    if (shown !== null) rows.push(el("dt", {}, words(key)), el("dd", {}, shown));
  }
  return rows.length ? el("dl", {}, rows) : null;
}

// A value of the document as a reader sees it; null when it holds nothing worth showing.
function render(value, ctx) {
  if (value === null || value === undefined || value === "") return null;
  if (typeof value === "boolean") return value ? "yes" : "no";
  if (typeof value !== "object") return String(value);
  if (Array.isArray(value)) return list(value, ctx);
  if (isMedium(value)) return value.kind === 0 ? null : mediumView(value, ctx);
  if (isText(value)) return value.text ? el("span", { class: "text" }, value.text) : null;
  if ("isReference" in value) return element(value, ctx);
  return fields(value, ctx);
}

function list(values, ctx) {
  if (values.length === 0) return null;
  if (values.every((v) => typeof v !== "object" || v === null)) return values.join(", ");
  if (values.every(isTranslation)) return translations(values);
  const items = values.map((v) => render(v, ctx)).filter((v) => v !== null);
  return items.length ? el("ol", { class: "parts" }, items.map((i) => el("li", {}, i))) : null;
}

function translations(values) {
  const shown = values.filter((t) => t.text);
  if (shown.length === 0) return null;
  return el("ul", { class: "translations" }, shown.map((t) =>
    el("li", {}, el("span", { class: "language" }, `language ${t.language}`), " ",
      el("span", { class: "text" }, t.text))));
}

// A content element: a stored element it stands for, or its own text, translations and medium.
function element(value, ctx) {
  const named = value.reference
    ? el("p", {}, link(`/d/${ctx.d}/resource/${ELEMENT_TYPE}/${value.reference}`,
      `element ${hex(value.reference)}`))
    : null;
  if (value.isReference) return named;
  const { isReference, reference, ...own } = value;
  return el("div", { class: "element" }, fields(own, ctx), named);
}

// The links a resource holds to others: 16-byte records whose bytes 8..9 give the target's type,
// 10..11 a paragraph in it, and 12..15 its number in the course of this resource.
function linkRecords(records, ctx) {
  const links = (records ?? []).map((hexText) => {
    const bytes = new DataView(Uint8Array.from(hexText.match(/../g) ?? [], (b) => parseInt(b, 16)).buffer);
    if (bytes.byteLength < 16) return null;
    const type = bytes.getUint16(8, true);
    const paragraph = bytes.getUint16(10, true);
    const id = ((ctx.course << 20) | (bytes.getUint32(12, true) & 0xfffff)) >>> 0;
    return el("li", {}, link(`/d/${ctx.d}/resource/${type}/${id}`, `${typeName(type)} ${hex(id)}`),
      paragraph ? `, paragraph ${paragraph}` : "");
  }).filter(Boolean);
  return links.length ? el("section", {}, el("h2", {}, "Links"), el("ul", {}, links)) : null;
}

const isMedium = (v) => "kind" in v && "folder" in v && "resource" in v && "path" in v;
const isText = (v) => typeof v.text === "string" && "codePage" in v && !("language" in v);
const isTranslation = (v) => v && typeof v === "object" && "language" in v && "text" in v;

// "firstParts" → "first parts"
function words(key) {
  return key.replace(/([a-z])([A-Z0-9])/g, "$1 $2").toLowerCase();
}
