#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""build.py WORK SITE: makes the pages in SITE from the guides, the headers' comments (WORK/xml) and the pictures
of this build (WORK/pictures, WORK/widgets). Says everything that is missing or wrong, and then fails."""
import html
import json
import re
import shutil
import sys
from pathlib import Path

import check
import guides
import reference
import widgets

ROOT = Path(__file__).resolve().parents[2]
HERE = Path(__file__).resolve().parent


class Site:
    def __init__(self, work, folder):
        self.root, self.work, self.folder = ROOT, work, folder
        self.complaints, self.shown, self.used = [], set(), set()
        self.headers, self.names = reference.read(work / "xml")
        self.map = widgets.Map(work / "widgets", folder / "pictures")
        self.template = (HERE / "page.html").read_text()

    def picture(self, name, text):
        source = self.work / "pictures" / f"{name}.png"
        if not source.is_file():
            self.complaints.append(f"no picture {name}")
            return ""
        target = self.folder / "pictures" / source.name
        shutil.copy(source, target)
        width, height = (value // 2 for value in guides.size_of(source))
        return (f'<figure class="picture"><img src="pictures/{source.name}" width="{width}" height="{height}" '
                f'alt="{html.escape(text)}"></figure>')

    def widget_picture(self, selector):
        file = self.map.picture(selector)
        if not file:
            self.complaints.append(f"nothing on the screen has {selector}")
            return ""
        width, height = (value // 2 for value in guides.size_of(self.folder / "pictures" / file))
        return (f'<img class="widget" loading="lazy" src="pictures/{file}" width="{width}" height="{height}" '
                f'alt="What {html.escape(selector)} styles">')

    def link_names(self, body, where, up="reference/", but=()):
        """Names of the interface lead to the reference; one that does not exist is an error."""
        def in_text(match):
            name = match[1].removesuffix("()")
            if name in self.names:
                return f'<a href="{up}{self.names[name]}"><code>{match[1]}</code></a>'
            if re.fullmatch(r"zo_\w+", name) and name not in ("zo_core", "zo_ui"):
                self.complaints.append(f"{where}: {name} is not in the reference")
            return match[0]

        def in_code(match):
            def link(word):
                return f'<a href="{up}{self.names[word[0]]}">{word[0]}</a>' if word[0] in self.names and word[0] not in but \
                    else word[0]
            return match[1] + re.sub(r"\b(?:zo_\w+|(?:get|set)?[a-z]*ActiveWindow\w*|HideWindow)\b", link, match[2]) + match[3]
        body = re.sub(r"(?<!\">)<code>([\w()]+)</code>", in_text, body)
        return re.sub(r'(<pre class="code">)(.*?)(</pre>)', in_code, body, flags=re.S)

    def write(self, address, title, body, sections, summary=""):
        up = "../" * address.count("/")
        pages = [("Guides", [(guide.page, guide.title) for guide in self.guides])]
        pages.append(("Reference", [("reference/index.html", "All names")]))
        for folder in dict.fromkeys(str(Path(header.name).parent) for header in self.headers):
            pages.append((folder, [(f"reference/{header.page}", Path(header.name).name) for header in self.headers
                                   if str(Path(header.name).parent) == folder]))
        side = "".join(
            f"<h2{' class=folder' if '_' in name else ''}>{name}</h2><ul>" + "".join(
                f'<li><a {"aria-current=page " if page == address else ""}href="{up}{page}">{text}</a></li>'
                for page, text in rows) + "</ul>" for name, rows in pages)
        inside = "".join(f'<li><a href="#{place}">{text}</a></li>' for place, text in sections)
        page = self.template
        for key, value in {"title": html.escape(title), "up": up, "side": side, "body": body, "summary": html.escape(
                summary), "inside": f"<nav class='inside'><h2>On this page</h2><ul>{inside}</ul></nav>" if inside else ""}.items():
            page = page.replace("{{" + key + "}}", value)
        target = self.folder / address
        target.parent.mkdir(parents=True, exist_ok=True)
        target.write_text(page)

    def header_page(self, header):
        lead = f'<div class="lead">{header.text.html}</div>{self.facets(header.text.facets)}'
        body = [f"<h1><code>&lt;{header.name}&gt;</code></h1>", self.link_names(lead, header.name, "")]
        named = set()
        for entry in header.entries:
            anchors = "".join(f'<a id="{name}"></a>' for name in dict.fromkeys(entry.names[1:])
                              if name not in named | {entry.names[0]})
            title = " · ".join(dict.fromkeys(entry.names))
            place = f' id="{entry.names[0]}"' if entry.names[0] not in named else ""
            named.update(entry.names)
            code = guides.colour("\n".join(entry.signatures), "cpp").replace("&#10;", "\n")
            facets, _ = reference.facets_of(header, entry)
            text = self.link_names(f"{code}{entry.text.html}{self.facets(facets)}", header.name, "", entry.names)
            body.append(f'<section class="entry"{place}>{anchors}<h2>{broken(title)}</h2>{text}</section>')
        sections = [(entry.names[0], broken(entry.names[0])) for entry in header.entries if entry.kind == "function"]
        self.write(f"reference/{header.page}", header.name, "\n".join(body), list(dict.fromkeys(sections)))

    @staticmethod
    def facets(told):
        rows = "".join(f"<dt>{name}</dt><dd>{text}</dd>" for name, text in told.items() if text)
        return f'<dl class="facets">{rows}</dl>' if rows else ""

    def index_page(self):
        rows = "".join(
            f'<tr><td><a href="{address}"><code>{name}</code></a></td><td><code>&lt;{header.name}&gt;</code></td></tr>'
            for name, address, header in sorted(
                (name, self.names[name], header) for header in self.headers
                for entry in header.entries for name in set(entry.names) if not entry.owner))
        self.write("reference/index.html", "Reference", "<h1>Reference</h1><p>Every name that the libraries offer, and the "
                   f'header that declares it.</p><div class="wide"><table class="names">{rows}</table></div>', [])

    def front_page(self):
        cards = "".join(f'<a class="card" href="{g.page}"><h2>{g.title}</h2><p>{html.escape(g.summary)}</p></a>'
                        for g in self.guides)
        body = (HERE / "front.html").read_text().replace("{{cards}}", cards).replace(
            "{{picture}}", self.picture("task_buttons", "A panel with three task buttons, and three windows"))
        body = re.sub(r"\{\{code (\w+)\n(.*?)\}\}", lambda m: guides.colour(m[2], m[1]).replace("&#10;", "\n"), body, flags=re.S)
        self.write("index.html", "zo: windows for a desktop shell", self.link_names(body, "front.html"), [])

    def search(self):
        rows = [[guide.title, guide.page, "guide"] for guide in self.guides]
        rows += [[name, f"{g.page}#{place}", g.title] for g in self.guides for place, name in g.sections]
        rows += [[name, f"reference/{address}", "reference"] for name, address in sorted(self.names.items())]
        (self.folder / "search.js").write_text(f"const NAMES = {json.dumps(rows)};\n" + (HERE / "search.js").read_text())

    def build(self):
        (self.folder / "pictures").mkdir(parents=True)
        self.guides = [guides.Guide(file, self) for file in sorted((ROOT / "docs/guides").glob("*.md"))]
        for guide in self.guides:
            self.write(guide.page, guide.title, guide.html, guide.sections, guide.summary)
        for header in self.headers:
            self.header_page(header)
        self.index_page()
        self.front_page()
        self.search()
        shutil.copy(HERE / "site.css", self.folder)
        self.complaints += reference.lint(self.headers)
        self.complaints += [f"{file.relative_to(ROOT)} is shown in no guide" for file in sorted(
            (ROOT / "examples").glob("*.cpp")) if file.relative_to(ROOT) not in self.shown]
        self.complaints += [f"{file.relative_to(ROOT)} is longer than 60 lines" for file in sorted(
            (ROOT / "examples").glob("*.cpp")) if file.read_text().count("\n") > 60]
        self.complaints += [f"{name} is in no guide" for name in self.map.unused()]
        self.complaints += check.complaints(self.folder)


def broken(name):
    """A name that may go on in the next line."""
    return name.replace("_", "_<wbr>")


def main(work, folder):
    shutil.rmtree(folder, ignore_errors=True)
    site = Site(Path(work).resolve(), Path(folder).resolve())
    site.build()
    if site.complaints:
        sys.exit("\n".join(["site:"] + site.complaints))
    print(f"site: {len(site.guides)} guides, {len(site.headers)} headers, {len(site.names)} names, "
          f"{len(list(site.folder.rglob('*.png')))} pictures")


if __name__ == "__main__":
    main(*sys.argv[1:])
