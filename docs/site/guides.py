# SPDX-License-Identifier: MIT
"""The guides: Markdown with a few marks of its own, each on a line by itself or in a table's cell.

  {{example NAME}}            the whole program examples/NAME.cpp, as it stands there
  {{example NAME FUNCTION}}   one function of it
  {{file PATH}}               any other file of the tree
  {{picture NAME: TEXT}}      the screenshot NAME.png of this build, with its alternative text
  {{widget SELECTOR}}         a picture of what the selector styles
"""
import html
import re
import subprocess
from pathlib import Path

import markdown
from pygments import highlight
from pygments.formatters import HtmlFormatter
from pygments.lexers import get_lexer_by_name

LANGUAGES = {".cpp": "cpp", ".hpp": "cpp", ".css": "css", ".sh": "bash"}


class Guide:
    def __init__(self, file, site):
        self.file, self.site = file, site
        self.page = file.stem.split("-", 1)[1] + ".html"
        text = file.read_text()
        self.title = re.match(r"# (.+)\n", text)[1]
        self.summary = re.sub(r"[`*]", "", text.split("\n\n")[1].replace("\n", " "))
        converter = markdown.Markdown(extensions=["tables", "toc", "md_in_html", "fenced_code"],
                                      extension_configs={"toc": {"toc_depth": "2-3"}})
        body = converter.convert(re.sub(r"\{\{(\w+) ([^}]+)\}\}", self.mark, text))
        self.sections = [(token["id"], token["name"]) for top in converter.toc_tokens for token in top["children"]] \
            if converter.toc_tokens and converter.toc_tokens[0]["level"] == 1 else \
            [(token["id"], token["name"]) for token in converter.toc_tokens]
        body = re.sub(r'<pre><code class="language-(\w+)">(.*?)</code></pre>', self.fence, body, flags=re.S)
        body = body.replace("<table>", '<div class="wide"><table>').replace("</table>", "</table></div>")
        self.html = self.site.link_names(body, self.file.name)

    def mark(self, match):
        return getattr(self, "mark_" + match[1])(match[2].strip())

    def mark_example(self, what):
        name, _, function = what.partition(" ")
        path = Path("examples") / f"{name}.cpp"
        text = (self.site.root / path).read_text()
        if function:
            found = re.search(rf"^(?://[^\n]*\n)*[^\n/#]*\b{function}\([^\n]*(?:\n[^\n]+)*? \{{\n.*?^\}}\n", text, re.M | re.S)
            text = found[0]
        return self.listing(text, path)

    def mark_file(self, what):
        return self.listing((self.site.root / what).read_text(), Path(what))

    def listing(self, text, path):
        self.site.shown.add(path)
        text = text.removeprefix("// SPDX-License-Identifier: MIT\n")
        return f'<figure class="listing"><figcaption>{path}</figcaption>{colour(text, LANGUAGES[path.suffix])}</figure>'

    def mark_picture(self, what):
        name, text = what.split(": ", 1)
        return self.site.picture(name, text)

    def mark_widget(self, selector):
        return self.site.widget_picture(selector)

    def fence(self, match):
        return colour(html.unescape(match[2]), match[1])


def colour(text, language):
    """Coloured code in one line of HTML, so that Markdown lets it through."""
    code = highlight(text, get_lexer_by_name(language), HtmlFormatter(nowrap=True)).rstrip("\n")
    return '<pre class="code">' + code.replace("\n", "&#10;") + "</pre>"


def size_of(file):
    out = subprocess.run(["identify", "-format", "%w %h", file], check=True, capture_output=True, text=True).stdout
    return [int(value) for value in out.split()]
