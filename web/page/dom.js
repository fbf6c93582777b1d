// Builds elements. Every text goes in as a text node, so nothing the content holds can become
// markup: a text "<img src=x onerror=...>" shows as those characters.

// el("a", {href: "/d/1", class: "x"}, "text", child, [more children]): attributes are set with
// setAttribute, children that are strings or numbers become text nodes, null and false are left
// out, arrays are flattened.
export function el(tag, attributes = {}, ...children) {
  const element = document.createElement(tag);
  for (const [name, value] of Object.entries(attributes ?? {})) {
    if (value === null || value === undefined || value === false) continue;
    if (name.startsWith("on")) element.addEventListener(name.slice(2), value);
    else element.setAttribute(name, value === true ? "" : String(value));
  }
  append(element, children);
  return element;
}

function append(parent, children) {
  for (const child of children) {
    if (child === null || child === undefined || child === false) continue;
    if (Array.isArray(child)) append(parent, child);
    else if (child instanceof Node) parent.append(child);
    else parent.append(document.createTextNode(String(child)));
  }
}

// A link within the page: the router takes its clicks, so it keeps the page loaded.
export function link(href, ...children) {
  return el("a", { href }, ...children);
}

// A short paragraph saying what went wrong, in place of what could not be shown.
export function problem(text) {
  return el("p", { class: "problem", role: "status" }, text);
}

export function hex(id) {
  return "0x" + (id >>> 0).toString(16).padStart(8, "0");
}
