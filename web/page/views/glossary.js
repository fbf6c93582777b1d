// The glossary searched as one types: accents and case are ignored by the server, results show
// while typing, and the address follows the search so that it can be linked to.
import { api } from "../api.js";
import { el, problem } from "../dom.js";
import { mediumView } from "./media.js";

// The words whose translations are asked for at once; the others on demand.
const DETAILED = 12;

export async function showGlossary(view) {
  const [d] = view.params;
  const input = el("input", {
    type: "search", id: "glossary-search", autocomplete: "off", spellcheck: "false",
    placeholder: "a word, accents not needed",
  });
  input.value = view.query.get("q") ?? "";
  const results = el("div", { id: "glossary-results", "aria-live": "polite" });
  view.show("Glossary", [["Disciplines", "/"], [`Discipline ${d}`, `/d/${d}`]],
    el("label", { for: "glossary-search" }, "Search the glossary"), input, results);

  // Asked for alongside the first search rather than before it, so that the box listens from
  // the moment it shows: keys typed at once are not lost.
  const features = api.features().catch(() => ({ flash: false }));
  let pending = null;
  const search = async () => {
    pending?.abort();
    const text = input.value.trim();
    const address = text ? `/d/${d}/glossary?q=${encodeURIComponent(text)}` : `/d/${d}/glossary`;
    history.replaceState(null, "", address);
    if (!text) return results.replaceChildren();
    const controller = (pending = new AbortController());
    try {
      const [letters, flash] = await Promise.all([api.find(d, text, controller.signal), features]);
      if (!view.current() || controller.signal.aborted) return;
      results.replaceChildren(...found(d, letters, controller.signal, flash));
      // Names the query whose results are now shown, so that a measurement can tell them from
      // the answer to an earlier one.
      performance.mark("lumora:glossary-results", { detail: { query: text } });
    } catch (error) {
      if (error.name !== "AbortError" && view.current()) {
        results.replaceChildren(problem(error.message));
      }
    }
  };
  // Each key asks at once: the search answers in well under a millisecond, and a key typed
  // before the answer came cancels the request, so waiting for a pause would only add delay.
  input.addEventListener("input", search);
  input.focus();
  if (input.value) await search();
}

function found(d, letters, signal, features) {
  const count = letters.reduce((n, l) => n + l.words.length, 0);
  if (count === 0) return [el("p", { class: "muted" }, "No word found.")];
  let detailed = 0;
  return [
    el("p", { class: "muted" }, count === 1 ? "1 word" : `${count} words`),
    ...letters.map((letter) => el("section", {},
      el("h2", {}, letter.letter || `letter ${letter.letterId}`),
      el("ul", { class: "words" }, letter.words.map((w) =>
        wordItem(d, w, detailed++ < DETAILED, signal, features))))),
  ];
}

// One word: its written form, and its translations and sound, at once or when opened.
function wordItem(d, word, now, signal, features) {
  const more = el("div", { class: "word-details" });
  const button = el("button", { type: "button", class: "word", "aria-expanded": "false" },
    word.writing || `word ${word.fnId}`);
  let asked = false;
  const open = () => {
    button.setAttribute("aria-expanded", "true");
    if (asked) return;
    asked = true;
    api.word(d, word.fnId, signal).then(
      // A search typed further cancels the request: it answers nothing then.
      (w) => w && more.replaceChildren(...details(w, features)),
      (error) => error.name !== "AbortError" && more.replaceChildren(problem(error.message)));
  };
  button.addEventListener("click", () => {
    if (button.getAttribute("aria-expanded") === "true" && asked) {
      button.setAttribute("aria-expanded", "false");
      more.hidden = true;
    } else {
      more.hidden = false;
      open();
    }
  });
  if (now) open();
  return el("li", {}, button, more);
}

function details(word, features) {
  const translations = (word.translations ?? []).filter((t) => t.translation);
  const parts = [
    translations.length
      ? el("ul", { class: "translations" }, translations.map((t) => el("li", {},
        el("span", { class: "language" }, `language ${t.language}`), " ", t.translation)))
      : el("p", { class: "muted" }, "No translation."),
  ];
  if (word.comments) parts.push(el("p", { class: "comment" }, word.comments));
  const href = word.soundHref ?? word.sound?.href;
  if (href) parts.push(mediumView({ kind: 1, folder: 1001, resource: word.fnId, href }, features));
  return parts;
}
