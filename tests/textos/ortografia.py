#!/usr/bin/env python3
"""Spelling of all that the program says and of the manual, by a Spanish dictionary and the field's own words in palabras.txt
beside this file. A word of that list that nobody uses any more has to go."""
import html
import os
import re
import subprocess
import sys
from pathlib import Path

RAIZ, AQUI = Path(__file__).resolve().parents[2], Path(__file__).resolve().parent
PALABRA = re.compile(r"[A-Za-zÁÉÍÓÚÜÑáéíóúüñ]{2,}")
NOMBRE = re.compile(r"\w*[a-z][A-Z]\w*")  # of a control, a field or a class
TEXTO = re.compile(r'"((?:[^"\\\n]|\\.)*)"')


def textos():
    for a in sorted([*RAIZ.glob("src/**/*.cpp"), *RAIZ.glob("src/**/*.h")]):
        for n, linea in enumerate(a.read_text(encoding="utf-8").split("\n"), 1):
            if not re.match(r"\s*(//|#)", linea):
                for t in TEXTO.findall(linea.split(" // ")[0].split(" ///<")[0]):
                    yield f"{a.relative_to(RAIZ)}:{n}", re.sub(r"\\[nt]|<[^<>]*>", " ", t).replace("&", "")
    for a in sorted(RAIZ.glob("src/**/*.ui")):
        for t in re.findall(r"<string[^>]*>([^<]*)", a.read_text(encoding="utf-8")):
            yield a.name, re.sub(r"<[^<>]*>|[^{}]*{.*}", " ", html.unescape(t)).replace("&", "")
    for n, linea in enumerate((RAIZ / "docs/manual.md").read_text(encoding="utf-8").split("\n"), 1):
        yield f"manual.md:{n}", re.sub(r"`[^`]*`|\]\([^)]*\)|<[^<>]*>", " ", linea)


propias = {p for p in (AQUI / "palabras.txt").read_text(encoding="utf-8").split("\n") if p and p[0] != "#"}
donde = {}
for lugar, texto in textos():
    for p in PALABRA.findall(NOMBRE.sub(" ", texto)):
        donde.setdefault(p, lugar)
malas = subprocess.run(["hunspell", "-i", "utf-8", "-d", "es_ES", "-l"], input="\n".join(donde), encoding="utf-8", check=True,
                       env=dict(os.environ, LC_ALL="C.UTF-8"), capture_output=True).stdout.split()
assert len(donde) > 1500 and len(malas) > 100, "there must be texts and a dictionary"
fallos = [f"{donde[m]}: {m}" for m in malas if m not in propias] + [f"palabras.txt: {p} is used nowhere" for p in propias - set(malas)]
print("\n".join(fallos) or f"{len(donde)} words, {len(propias)} of them the field's own or the program's")
sys.exit(bool(fallos))
