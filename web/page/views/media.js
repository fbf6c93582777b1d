// A medium of a resource in place: Flash movies through the player, sounds and videos the
// browser plays itself, anything else as a download with its size; a medium whose file is not
// there says so.
import { el, hex } from "../dom.js";
import { flashMovie } from "../flash.js";

const KINDS = { 1: "Sound", 2: "Picture", 3: "Video" };
const AUDIO = new Set(["mp3", "wav", "ogg", "oga", "m4a"]);
const VIDEO = new Set(["mp4", "webm", "ogv"]);

// `medium` is a resource document's {kind, folder, resource, path, href}; `flash` whether the
// server has the Flash player.
export function mediumView(medium, { flash }) {
  const name = KINDS[medium.kind] ?? `Medium of kind ${medium.kind}`;
  const figure = el("figure", { class: "medium" },
    el("figcaption", {}, `${name} ${hex(medium.resource)}, folder ${medium.folder}`));
  if (!medium.href) {
    const where = medium.path ? `${medium.path} is not there` : "in no quality folder";
    figure.append(el("p", { class: "problem missing" }, `Missing: ${where}.`));
    return figure;
  }
  const extension = medium.href.split(".").pop().toLowerCase();
  if (extension === "swf" && flash) {
    const sound = medium.kind === 1;
    figure.append(flashMovie(medium.href, { sound, fallback: () => download(medium.href) }));
  } else if (AUDIO.has(extension)) {
    figure.append(el("audio", { controls: true, preload: "metadata", src: medium.href }));
  } else if (VIDEO.has(extension)) {
    figure.append(el("video", { controls: true, preload: "metadata", src: medium.href }));
  } else {
    figure.append(download(medium.href));
  }
  return figure;
}

// A link that saves the file, with its size once the server has told it.
export function download(href) {
  const name = decodeURIComponent(href.split("/").pop());
  const size = el("span", { class: "muted" });
  fetch(href, { method: "HEAD" }).then((response) => {
    const bytes = Number(response.headers.get("Content-Length"));
    if (response.ok && Number.isFinite(bytes)) size.textContent = ` (${formatSize(bytes)})`;
  }, () => {});
  return el("p", {}, el("a", { href, download: name }, `Download ${name}`), size);
}

export function formatSize(bytes) {
  if (bytes < 1024) return `${bytes} bytes`;
  if (bytes < 1024 * 1024) return `${(bytes / 1024).toFixed(1)} KB`;
  return `${(bytes / 1024 / 1024).toFixed(1)} MB`;
}
