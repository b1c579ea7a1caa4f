"""manuel.py DOCS OUT: the pages that a player reads, from Markdown to HTML, with their pictures."""

import pathlib
import re
import shutil
import sys

import markdown
from markdown.extensions.toc import slugify_unicode

PAGES = ("manuel", "listes", "formats")
STYLE = """body { font: 16px/1.5 "Segoe UI", sans-serif; max-width: 50em; margin: 2em auto; padding: 0 1em;
  color: #222; background: #fff }
img { max-width: 100%; height: auto } table { border-collapse: collapse }
th, td { border: 1px solid #bbb; padding: .3em .6em; text-align: left; vertical-align: top }
pre, code { font-family: Consolas, monospace; background: #f2f2f2 } pre { padding: .6em; overflow-x: auto }
"""
PAGE = """<!DOCTYPE html>
<html lang="{langue}"><head><meta charset="utf-8"><title>{titre}</title><style>{style}</style></head>
<body>
{corps}
</body></html>
"""


def page(texte):
    corps = markdown.markdown(texte, output_format="html", extensions=["tables", "sane_lists", "toc"],
                              extension_configs={"toc": {"slugify": slugify_unicode}})
    corps = re.sub(r'href="(\w+)\.md(#[^"]*)?"',
                   lambda lien: f'href="{lien[1]}.html{lien[2] or ""}"', corps)
    titre = re.match(r"# (.*)", texte)[1]
    langue = "fr" if re.search("[éèà]", titre + texte[:2000]) else "en"
    return PAGE.format(langue=langue, titre=titre, style=STYLE, corps=corps)


def verifier(sortie):
    """Every link within the pages leads somewhere."""
    textes = {c.name: c.read_text("utf-8") for c in sortie.glob("*.html")}
    for nom, texte in textes.items():
        for cible in re.findall(r'(?:href|src)="([^":]*)"', texte):
            fichier, _, ancre = cible.partition("#")
            fichier = fichier or nom
            if not (sortie / fichier).is_file():
                sys.exit(f"{nom}: no {fichier}")
            if ancre and f'id="{ancre}"' not in textes[fichier]:
                sys.exit(f"{nom}: no #{ancre} in {fichier}")


def main(docs, sortie):
    docs, sortie = pathlib.Path(docs), pathlib.Path(sortie)
    sortie.mkdir(parents=True)
    for nom in PAGES:
        texte = (docs / f"{nom}.md").read_text("utf-8")
        (sortie / f"{nom}.html").write_text(page(texte), "utf-8", newline="\n")
    utiles = set(re.findall(r'src="images/([^"]*)"', (sortie / "manuel.html").read_text("utf-8")))
    (sortie / "images").mkdir()
    for image in utiles:
        shutil.copy(docs / "images" / image, sortie / "images")
    verifier(sortie)


if __name__ == "__main__":
    main(*sys.argv[1:])
