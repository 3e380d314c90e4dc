# SPDX-License-Identifier: MIT
"""Follows every link and picture of the finished site that leads inside of it."""
from html.parser import HTMLParser
from urllib.parse import unquote, urlsplit


class Page(HTMLParser):
    def __init__(self, text):
        super().__init__()
        self.names, self.targets, self.twice, self.bare = set(), [], set(), []
        self.feed(text)

    def handle_starttag(self, tag, attributes):
        given = dict(attributes)
        if "id" in given:
            (self.twice if given["id"] in self.names else self.names).add(given["id"])
        self.targets += [given[key] for key in ("href", "src") if given.get(key)]
        if tag == "img" and not given.get("alt"):
            self.bare.append(given.get("src"))


def complaints(folder):
    pages = {file: Page(file.read_text()) for file in sorted(folder.rglob("*.html"))}
    pointed = set()
    for file, page in pages.items():
        here = file.relative_to(folder)
        yield from (f"{here}: two things are called #{name}" for name in sorted(page.twice))
        yield from (f"{here}: a picture without a text: {name}" for name in page.bare)
        for target in page.targets:
            address = urlsplit(target)
            if address.scheme or address.netloc:
                continue
            wanted = (file.parent / unquote(address.path)).resolve() if address.path else file
            pointed.add(wanted)
            if not wanted.is_file():
                yield f"{here}: leads nowhere: {target}"
            elif address.fragment and address.fragment not in pages[wanted].names:
                yield f"{here}: no such place: {target}"
    for file in pages:
        if file not in pointed:
            yield f"{file.relative_to(folder)}: no page leads here"
