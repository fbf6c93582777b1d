// The server's documents. A failed request rejects with an Error whose message is the server's
// reason ({"error": ...}) or the HTTP status.

export async function getJson(path, { signal } = {}) {
  const response = await fetch(path, { signal, headers: { Accept: "application/json" } });
  let body = null;
  try {
    body = await response.json();
  } catch {
    body = null;
  }
  if (!response.ok) {
    const error = new Error(body?.error ?? `${response.status} ${response.statusText}`);
    error.status = response.status;
    error.document = body;
    throw error;
  }
  return body;
}

// Documents that do not change while the server runs, asked for once per page load.
const cache = new Map();
export function getCached(path) {
  if (!cache.has(path)) {
    const pending = getJson(path);
    pending.catch(() => cache.delete(path));
    cache.set(path, pending);
  }
  return cache.get(path);
}

export const api = {
  open: () => getCached("/api/open"),
  types: (d) => getCached(`/page/types/${d}`),
  ids: (d, type) => getCached(`/page/ids/${d}/${type}`),
  // A resource that cannot be read still answers a document (ok false, its reason).
  resource: (d, type, id) =>
    getJson(`/api/d/${d}/resource/${type}/${id}`).catch((e) => {
      if (e.document?.ok === false) return e.document;
      throw e;
    }),
  find: (d, text, signal) =>
    getJson(`/api/d/${d}/glossary/find?q=${encodeURIComponent(text)}&limit=60`, { signal }),
  word: (d, fnId, signal) => getJson(`/api/d/${d}/glossary/word/${fnId}`, { signal }),
  point: (d, p) => getJson(`/api/d/${d}/grammar/point/${p}`),
  levels: (d) => getCached(`/api/d/${d}/grammar/levels`),
  check: () => getCached("/api/check"),
  features: () => getCached("/page/features.json"),
};
