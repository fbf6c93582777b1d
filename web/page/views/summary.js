// One line about a resource for a list: its course and number, and its first text.
import { el } from "../dom.js";

export function summary(document) {
  if (document.ok === false) return el("span", { class: "problem" }, document.reason);
  const text = firstText(document);
  return el("span", { class: "muted" }, `course ${document.course}, number ${document.number}`,
    text ? ` — ${text}` : "");
}

// The first non-empty text of a document, depth first.
function firstText(value) {
  if (Array.isArray(value)) {
    for (const v of value) {
      const t = firstText(v);
      if (t) return t;
    }
  } else if (value && typeof value === "object") {
    if (typeof value.text === "string" && value.text) return value.text;
    for (const [key, v] of Object.entries(value)) {
      if (key !== "media") {
        const t = firstText(v);
        if (t) return t;
      }
    }
  }
  return "";
}
