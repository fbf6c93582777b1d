// The page's router: each view has its own address, links move between them with the History
// API (so the back button and bookmarks work), and the server answers this page for all of them.
import { el, link, problem } from "./dom.js";
import { showHome } from "./views/home.js";
import { showDiscipline } from "./views/discipline.js";
import { showType } from "./views/type.js";
import { showResource } from "./views/resource.js";
import { showGlossary } from "./views/glossary.js";
import { showGrammar } from "./views/grammar.js";
import { showCheck } from "./views/check.js";

const NUMBER = "(\\d+|0x[0-9a-fA-F]+)";
const ROUTES = [
  [/^\/$/, showHome],
  [new RegExp(`^/d/${NUMBER}$`), showDiscipline],
  [new RegExp(`^/d/${NUMBER}/type/${NUMBER}$`), showType],
  [new RegExp(`^/d/${NUMBER}/resource/${NUMBER}/${NUMBER}$`), showResource],
  [new RegExp(`^/d/${NUMBER}/glossary$`), showGlossary],
  [new RegExp(`^/d/${NUMBER}/grammar/${NUMBER}$`), showGrammar],
  [/^\/check$/, showCheck],
];

const main = document.getElementById("main");
const trail = document.getElementById("trail");
let shown = 0;

// What a view gets: the numbers of its address, its query, and where to draw. `current()` turns
// false once another view replaced it, so late answers are dropped.
function context(params, query) {
  const turn = ++shown;
  return {
    params,
    query,
    current: () => turn === shown,
    // Draws the view's title, where it sits (a trail of links) and its content.
    show(title, crumbs, ...content) {
      if (turn !== shown) return;
      document.title = title ? `${title} · Lumora` : "Lumora";
      trail.replaceChildren(...crumbs.flatMap(([text, href]) => [link(href, text), " › "]));
      trail.lastChild?.remove();
      main.replaceChildren(el("h1", {}, title), ...content.flat().filter(Boolean));
      performance.mark("lumora:view-shown");
    },
  };
}

async function route() {
  const { pathname, searchParams } = new URL(location.href);
  for (const [pattern, view] of ROUTES) {
    const match = pattern.exec(pathname);
    if (!match) continue;
    const ctx = context(match.slice(1).map(Number), searchParams);
    try {
      await view(ctx);
    } catch (error) {
      ctx.show("Not shown", [["Disciplines", "/"]], problem(error.message));
    }
    return;
  }
  context([], searchParams).show("No such page", [["Disciplines", "/"]],
    problem(`Nothing is shown at ${pathname}.`));
}

// Moves to `href` within the page. Focus goes to the new content unless the view put it
// somewhere itself (the glossary's search box).
function navigate(href) {
  history.pushState(null, "", href);
  route().then(() => main.contains(document.activeElement) || main.focus({ preventScroll: true }));
}

document.addEventListener("click", (event) => {
  const anchor = event.target.closest("a[href]");
  if (!anchor || event.defaultPrevented || event.button !== 0) return;
  if (event.metaKey || event.ctrlKey || event.shiftKey || event.altKey) return;
  if (anchor.hasAttribute("download") || anchor.origin !== location.origin) return;
  if (/^\/(api|media|ruffle|page)\//.test(anchor.pathname)) return;
  event.preventDefault();
  navigate(anchor.pathname + anchor.search);
  scrollTo(0, 0);
});
addEventListener("popstate", route);
route();
