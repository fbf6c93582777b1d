// A static file server on 127.0.0.1 for the browser tests: serves the files of a route table
// with their content types, so that a test page can load Ruffle and media without the internet.
import { createServer } from "node:http";
import { readFile } from "node:fs/promises";
import { extname } from "node:path";

const TYPES = {
  ".html": "text/html; charset=utf-8",
  ".js": "text/javascript; charset=utf-8",
  ".mjs": "text/javascript; charset=utf-8",
  ".wasm": "application/wasm",
  ".swf": "application/x-shockwave-flash",
  ".map": "application/json",
};

// `files` maps a URL path ("/") to a file; `folders` maps a URL prefix ending in "/" ("/ruffle/")
// to a folder whose files it serves. Resolves to { baseUrl, close() } once listening on a free
// port.
export async function serveFiles({ files = {}, folders = {} }) {
  const server = createServer(async (request, response) => {
    const file = fileFor(files, folders, request.url);
    if (!file) return answer(response, 404, "text/plain", "not found");
    try {
      const type = TYPES[extname(file)] ?? "application/octet-stream";
      answer(response, 200, type, await readFile(file));
    } catch {
      answer(response, 404, "text/plain", "not found");
    }
  });
  await new Promise((resolve) => server.listen(0, "127.0.0.1", resolve));
  const { port } = server.address();
  return {
    baseUrl: `http://127.0.0.1:${port}`,
    close: () => {
      server.closeAllConnections();
      return new Promise((resolve) => server.close(resolve));
    },
  };
}

// The file a request asks for, or null when no route names it or the path leaves its folder.
function fileFor(files, folders, url) {
  let path;
  try {
    path = decodeURIComponent(new URL(url, "http://localhost").pathname);
  } catch {
    return null;
  }
  if (files[path]) return files[path];
  for (const [prefix, folder] of Object.entries(folders)) {
    if (!path.startsWith(prefix)) continue;
    const rest = path.slice(prefix.length);
    if (rest.split("/").some((part) => part === ".." || part === "")) return null;
    return `${folder}/${rest}`;
  }
  return null;
}

function answer(response, status, type, body) {
  response.writeHead(status, { "Content-Type": type, "Cache-Control": "no-store" });
  response.end(body);
}
