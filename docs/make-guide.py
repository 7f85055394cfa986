#!/usr/bin/env python3
"""Turns the user guide (Markdown) into the HTML page the help window and a web browser show.

usage: make-guide.py GUIDE.md OUT.html

Each heading keeps the anchor written after it ({#editor}); the help window's browser finds
anchors by name, so each heading also gets an <a name> of the same anchor. A picture wider than
the help window is shown narrower (the help window's browser knows no max-width).
"""
import os
import re
import struct
import sys

import markdown

STYLE = """
body { font-family: sans-serif; margin: 1em 2em; max-width: 60em; }
h1 { color: #224a82; }
h2 { color: #224a82; border-bottom: 1px solid #c0c8d0; margin-top: 1.6em; }
h3 { color: #34495e; }
code, pre { font-family: monospace; background: #f2f4f6; }
pre { padding: 0.5em; }
table { border-collapse: collapse; }
th, td { border: 1px solid #c0c8d0; padding: 0.2em 0.6em; text-align: left; }
img { margin: 0.5em 0; }
"""


MAX_PICTURE_WIDTH = 660


def png_width(path):
    with open(path, "rb") as f:
        header = f.read(24)
    return struct.unpack(">I", header[16:20])[0] if header[:8] == b"\x89PNG\r\n\x1a\n" else 0


def narrow_pictures(body, directory):
    def narrow(match):
        tag, src = match.group(0), match.group(1)
        path = os.path.join(directory, src)
        if os.path.exists(path) and png_width(path) > MAX_PICTURE_WIDTH:
            return tag.replace("<img ", '<img width="%d" ' % MAX_PICTURE_WIDTH, 1)
        return tag

    return re.sub(r'<img [^>]*src="([^"]+)"[^>]*>', narrow, body)


def main():
    source, target = sys.argv[1], sys.argv[2]
    with open(source, encoding="utf-8") as f:
        text = f.read()
    title = next((line[2:].split("{")[0].strip() for line in text.splitlines()
                  if line.startswith("# ")), "Tarvik")
    body = markdown.markdown(
        text, extensions=["toc", "attr_list", "tables", "fenced_code"], output_format="html")
    body = re.sub(r'<h([1-6]) id="([^"]+)">', r'<h\1 id="\2"><a name="\2"></a>', body)
    body = narrow_pictures(body, os.path.dirname(os.path.abspath(source)))
    page = ("<!DOCTYPE html>\n<html>\n<head>\n<meta charset=\"utf-8\">\n"
            f"<title>{title}</title>\n<style>{STYLE}</style>\n</head>\n<body>\n{body}\n"
            "</body>\n</html>\n")
    with open(target, "w", encoding="utf-8") as f:
        f.write(page)


if __name__ == "__main__":
    main()
