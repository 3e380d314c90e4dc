# SPDX-License-Identifier: MIT
"""The reference: Doxygen's XML of the public headers as one page for each header.

Of every exported function four things must be told, by itself or by its header as a whole: its thread, what an empty
handle gives, what it does in the wrong state, and who owns the widgets passed in or out. What is missing is an error.
"""
import html
import re
from xml.etree import ElementTree

FACETS = ["Thread", "Empty handle", "Wrong state", "Ownership"]
INLINE = {"computeroutput": "code", "emphasis": "em", "bold": "strong"}
BLOCK = {"itemizedlist": "ul", "orderedlist": "ol"}


def place_of(node):
    """The header that a thing stands in, as programs include it."""
    return re.sub(r".*\bsrc/", "", node.find("location").get("file"))


def page_of(header):
    return header.replace("/", "-").replace(".hpp", ".html")


class Text:
    """The paragraphs and the named facets of one description."""

    def __init__(self, parent, resolve, one_paragraph=True):
        self.resolve, self.facets = resolve, {}
        brief, more = ([part for part in map(self.block, parent.find(kind)) if part]
                       for kind in ("briefdescription", "detaileddescription"))
        if brief and more and one_paragraph and more[0].startswith("<p>"):
            more[0] = brief.pop().removesuffix("</p>") + " " + more[0].removeprefix("<p>")
        self.html = "\n".join(brief + more)

    def block(self, para):
        """One paragraph; what stands in blocks inside of it follows it."""
        pieces, blocks = [para.text or ""], []
        pieces[0] = html.escape(pieces[0])
        for child in para:
            if child.tag == "simplesect":
                name = "".join(child.find("title").itertext())
                self.facets[name] = self.inline(child.find("para")).strip()
            elif child.tag in ("verbatim", "preformatted"):
                blocks.append("<p>" + "".join(pieces).strip() + "</p>")
                blocks.append(f'<pre class="drawing">{html.escape(child.text or "")}</pre>')
                pieces = []
            elif child.tag in BLOCK:
                items = "".join(f"<li>{self.block_items(item)}</li>" for item in child)
                blocks.append("<p>" + "".join(pieces).strip() + "</p>")
                blocks.append(f"<{BLOCK[child.tag]}>{items}</{BLOCK[child.tag]}>")
                pieces = []
            else:
                pieces.append(self.element(child))
            pieces.append(html.escape(child.tail or ""))
        blocks.append("<p>" + "".join(pieces).strip() + "</p>")
        return "\n".join(block for block in blocks if block != "<p></p>")

    def block_items(self, item):
        return " ".join(self.inline(para) for para in item)

    def inline(self, node):
        return html.escape(node.text or "") + "".join(
            self.element(child) + html.escape(child.tail or "") for child in node)

    def element(self, node):
        inner = self.inline(node)
        if node.tag == "ref":
            return f'<a href="{self.resolve(node.get("refid"))}">{inner}</a>'
        if node.tag in INLINE:
            return f"<{INLINE[node.tag]}>{inner}</{INLINE[node.tag]}>"
        if node.tag in ("nonbreakablespace", "sp"):
            return " "
        if node.tag == "ulink":
            return f'<a href="{html.escape(node.get("url"))}">{inner}</a>'
        if node.tag in ("ndash", "mdash", "lsquo", "rsquo", "ldquo", "rdquo"):
            return f"&{node.tag};"
        raise ValueError(f"an element that the reference does not know: {node.tag}")


class Entry:
    """Members of one header that share one description: overloads, or a getter and its setter."""

    def __init__(self, member, owner, text):
        self.names, self.signatures, self.parameters = [], [], []
        self.kind, self.owner, self.text = member.get("kind"), owner, text
        self.line = int(member.find("location").get("line"))
        self.add(member)

    def add(self, member):
        self.names.append(member.find("name").text)
        self.signatures.append(signature(member, self.owner))
        self.last_line = int(member.find("location").get("line"))
        self.parameters += [(plain(p.find("type")), p.findtext("declname") or "") for p in member.findall("param")]
        self.result = plain(member.find("type"))


def plain(node):
    return re.sub(r"\s*([*&]+)", r"\1", re.sub(r"\s+", " ", "".join(node.itertext()))).strip() if node is not None else ""


def signature(member, owner):
    name = member.findtext("name")
    if member.get("kind") == "typedef":
        return f"{member.findtext('definition').replace('=  ', '= ')};"
    if member.get("kind") == "define":
        return f"#define {name}"
    if member.get("kind") == "variable":
        return f"{plain(member.find('type'))} {owner}::{name};"
    template = "".join(f"template &lt;{', '.join(plain(p.find('type')) for p in t)}&gt;\n".replace("&lt;", "<").replace(
        "&gt;", ">") for t in member.findall("templateparamlist"))
    parameters = []
    for parameter in member.findall("param"):
        kind, given = plain(parameter.find("type")), parameter.findtext("declname") or ""
        parameters.append(f"{kind} {given}".strip())
    prefix = "virtual " if member.get("virt") == "virtual" else ""
    scope = f"{owner}::" if owner else ""
    start = f"{prefix}{plain(member.find('type'))} {scope}{name}(".lstrip()
    line = start + ", ".join(parameters) + ")"
    if len(line) > 92 and len(parameters) > 1:
        line = start + ("\n" + " " * 4).join([""] + [p + "," for p in parameters[:-1]] + [parameters[-1]]) + ")"
    return template + line + (" const" if member.get("const") == "yes" else "") + ";"


class Header:
    """One public header: its own text, and its entries in the order of the file."""

    def __init__(self, node, classes, resolve):
        self.name = place_of(node)
        self.page = page_of(self.name)
        self.text = Text(node, resolve, one_paragraph=False)
        self.entries, found = [], []
        for member in node.iter("memberdef"):
            found.append((member, ""))
        for owner in classes:
            found.append((owner, None))
            found += [(member, owner.findtext("compoundname")) for member in owner.iter("memberdef")
                      if member.get("prot") == "public" and member.get("kind") != "friend"
                      and not member.findtext("argsstring", "").endswith("=delete")]
        found.sort(key=lambda pair: int(pair[0].find("location").get("line")))
        for member, owner in found:
            self.take(member, owner, resolve)

    def take(self, member, owner, resolve):
        text = Text(member, resolve)
        if owner is None:
            entry = Entry.__new__(Entry)
            entry.names, entry.kind, entry.owner, entry.text = [member.findtext("compoundname")], "class", "", text
            entry.signatures, entry.parameters, entry.result = [f"class {entry.names[0]};"], [], ""
            entry.line = entry.last_line = int(member.find("location").get("line"))
            self.entries.append(entry)
            return
        last = self.entries[-1] if self.entries else None
        line = int(member.find("location").get("line"))
        if last and last.kind == member.get("kind") and last.owner == owner and last.text.html == text.html \
                and last.text.facets == text.facets and line - last.last_line <= 4 and text.html:
            last.add(member)
        else:
            self.entries.append(Entry(member, owner, text))


def takes_handle(entry):
    return any(re.fullmatch(r"zo_\w+_ptr", kind) for kind, _ in entry.parameters)


def facets_of(header, entry):
    """What is told of an entry: by itself, else by its header."""
    told = {name: entry.text.facets.get(name, header.text.facets.get(name)) for name in FACETS}
    handles = takes_handle(entry)
    widgets = any(re.search(r"\bGtk(Widget|Box)\*", kind) for kind, _ in entry.parameters + [(entry.result, "")])
    if not handles:
        told["Empty handle"] = entry.text.facets.get("Empty handle")
    if not handles and (not entry.parameters or any(map(takes_handle, header.entries))):
        told["Wrong state"] = entry.text.facets.get("Wrong state")
    if not widgets:
        told["Ownership"] = entry.text.facets.get("Ownership")
    wanted = ["Thread"] + (["Empty handle", "Wrong state"] if handles else []) + (["Ownership"] if widgets else [])
    return told, [name for name in wanted if not told[name]]


def lint(headers):
    """Each thing that the comments of the headers leave out."""
    for header in headers:
        if not header.text.html:
            yield f"{header.name}: the header says nothing of itself"
        for entry in header.entries:
            where = f"{header.name}:{entry.line}: {entry.names[0]}"
            if not entry.text.html:
                yield f"{where}: says nothing"
            if entry.kind != "function" or entry.owner:
                continue
            for name in facets_of(header, entry)[1]:
                yield f"{where}: does not tell: {name}"
            words = entry.text.html + "".join(entry.text.facets.values())
            for kind, given in entry.parameters:
                if not given or re.fullmatch(r"zo_\w+_ptr", kind) and entry.parameters[0][1] == given:
                    continue
                if f"<code>{given}</code>" not in words and f"<code>*{given}</code>" not in words:
                    yield f"{where}: says nothing of `{given}`"


def read(folder):
    """All headers, by name, and where each named thing stands: name -> address inside of reference/."""
    files, classes = {}, {}
    for compound in ElementTree.parse(folder / "index.xml").getroot():
        if compound.get("kind") in ("file", "class", "struct"):
            node = ElementTree.parse(folder / f"{compound.get('refid')}.xml").getroot().find("compounddef")
            (files if compound.get("kind") == "file" else classes)[compound.get("refid")] = node
    anchors = {}
    for refid, node in files.items():
        page = page_of(place_of(node))
        anchors[refid] = page
        inside = [c for c in classes.values() if place_of(c) == place_of(node)]
        for owner in [node, *inside]:
            anchors[owner.get("id")] = page if owner is node else f"{page}#{owner.findtext('compoundname')}"
            for member in owner.iter("memberdef"):
                anchors[member.get("id")] = f"{page}#{member.findtext('name')}"
    headers = []
    for node in files.values():
        inside = [c for c in classes.values() if place_of(c) == place_of(node)]
        headers.append(Header(node, inside, lambda refid: anchors[refid]))
    headers.sort(key=lambda header: header.name)
    names = {}
    for header in headers:
        for entry in header.entries:
            for name in entry.names:
                names.setdefault(name, f"{header.page}#{name}")
    return headers, names
