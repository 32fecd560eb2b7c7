#!/usr/bin/python3
"""help_messages_test.py SOURCES: the messages that the help pages quote are those of the program.

A page marks a message with <cite>. Names in it are written as an ellipsis, numbers are examples.
"""
import html
import pathlib
import re
import sys

sources = pathlib.Path(sys.argv[1])
code = "\n".join(path.read_text() for path in sources.rglob("*.[ch]*"))
literals = " ".join(re.findall(r'"((?:[^"\\\n]|\\.)*)"', re.sub(r'"\s*\n\s*"', "", code)))
quotes = [(page.name, " ".join(html.unescape(quote).split()))
          for page in (sources / "res/help").glob("*.html")
          for quote in re.findall("<cite>(.*?)</cite>", page.read_text(), re.DOTALL)]
unknown = [quote for quote in quotes for part in re.split('["…]|[0-9]+', quote[1]) if part.strip() not in literals]
assert len(quotes) > 20 and not unknown, unknown
