// Finds names and headings as they are typed; "/" goes to the field, arrows and Enter choose.
const field = document.querySelector(".find input");
const found = document.querySelector(".found");
const up = document.body.dataset.up;

function show() {
  const words = field.value.toLowerCase().split(/\s+/).filter(Boolean);
  const rows = words.length ? NAMES.filter(([name]) => words.every((word) => name.toLowerCase().includes(word))) : [];
  rows.sort((a, b) => a[0].length - b[0].length);
  found.replaceChildren(...rows.slice(0, 12).map(([name, address, kind]) => {
    const link = document.createElement("a");
    link.href = up + address;
    link.append(name, Object.assign(document.createElement("small"), { textContent: kind }));
    return link;
  }));
  found.hidden = !rows.length;
}

function move(step) {
  const links = [field, ...found.children];
  const next = links[links.indexOf(document.activeElement) + step];
  if (next) next.focus();
}

field.addEventListener("input", show);
document.addEventListener("keydown", (event) => {
  if (event.key === "/" && document.activeElement !== field) { event.preventDefault(); field.focus(); }
  if (event.key === "Escape") { found.hidden = true; }
  if (found.hidden || !["ArrowDown", "ArrowUp", "Enter"].includes(event.key)) return;
  if (event.key === "Enter" && document.activeElement === field) { found.firstChild.click(); return; }
  if (event.key === "ArrowDown") { event.preventDefault(); move(1); }
  if (event.key === "ArrowUp") { event.preventDefault(); move(-1); }
});
document.addEventListener("click", (event) => { if (!found.contains(event.target)) found.hidden = true; });
if (matchMedia("(max-width: 900px)").matches) document.querySelector(".side").open = false;
