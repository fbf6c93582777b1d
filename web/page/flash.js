// Flash movies through Ruffle, served by this server at /ruffle/. The player is loaded once, the
// first time a movie is shown, with settings that keep everything on this origin.
import { el } from "./dom.js";

const CONFIG = {
  publicPath: "/ruffle/",
  polyfills: false,
  autoplay: "on",
  unmuteOverlay: "hidden",
  splashScreen: false,
  contextMenu: "off",
  letterbox: "off",
  logLevel: "warn",
};

let loading = null;

function loadRuffle() {
  loading ??= new Promise((resolve, reject) => {
    window.RufflePlayer = { config: CONFIG };
    const script = document.createElement("script");
    script.src = "/ruffle/ruffle.js";
    script.addEventListener("load", () => resolve(window.RufflePlayer.newest()));
    script.addEventListener("error", () => reject(new Error("the Flash player did not load")));
    document.head.append(script);
  });
  return loading;
}

// A box that plays the movie at `href`. A sound starts by itself only once the person has used
// the page (the browser's rule for audio); until then the player shows its play button.
// `fallback` is shown instead when the player cannot load or play the movie.
export function flashMovie(href, { sound = false, fallback }) {
  const box = el("div", { class: sound ? "flash sound" : "flash picture" });
  const fail = (error) =>
    box.replaceChildren(el("p", { class: "problem" }, error.message), fallback());
  loadRuffle()
    .then((ruffle) => {
      const player = ruffle.createPlayer();
      box.replaceChildren(player);
      return player.ruffle().load({ url: href, autoplay: sound ? "auto" : "on" });
    })
    .catch(fail);
  return box;
}
