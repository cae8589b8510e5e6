#!/usr/bin/env python3
"""Reads the design reports of projects back, in all three forms.

    leer_memoria.py CALVENTO-LOTE PROJECT…

Every report must open as a page, some in the other forms too. It must hold the chapters in their order, every field that is
typed, the results and the checks of the design, and nothing that is no number: line by line what contenido.txt says.
"""

import json
import math
import re
import shutil
import struct
import subprocess
import sys
import tempfile
import time
import xml.etree.ElementTree as ET
import zipfile
from html.parser import HTMLParser
from pathlib import Path

if shutil.which("pdftotext") is None:
    print("poppler-utils is not installed")
    sys.exit(77)


def exigir(condicion, que):
    if not condicion:
        raise AssertionError(que)


class Pagina(HTMLParser):
    """Text of a page and its lines, each a kind and its cells; tags must close as they were opened."""

    SUELTAS = {"meta", "br", "img"}
    CLASES = {"h1": "1", "h2": "2", "h4": "T", "p": "P", "p nota": "N", "p figura": "G", "tr": "-", "tr formulas": "F"}

    def __init__(self):
        super().__init__()
        self.abiertas, self.lineas, self.svg, self.tabla = [], [], 0, None

    def handle_starttag(self, tag, attrs):
        clase = dict(attrs).get("class")
        if tag not in self.SUELTAS:
            self.abiertas.append(tag)
        if tag == "table":
            self.tabla = clase
        clase = self.CLASES.get(f"{tag} {self.tabla if tag == 'tr' else clase}", self.CLASES.get(tag))
        if clase:
            self.lineas.append([clase, [] if tag == "tr" else [""]])
        elif tag in ("td", "th"):
            self.lineas[-1][0] = "E" if tag == "th" else self.lineas[-1][0]
            self.lineas[-1][1].append("")
        elif tag in ("sub", "sup"):
            self.lineas[-1][1][-1] += "_{" if tag == "sub" else "^{"
        self.svg += tag == "svg"

    def handle_startendtag(self, tag, attrs):
        self.svg += tag == "svg"

    def handle_endtag(self, tag):
        exigir(self.abiertas and self.abiertas.pop() == tag, f"</{tag}> at {self.getpos()}")
        if tag in ("sub", "sup"):
            self.lineas[-1][1][-1] += "}"

    def handle_data(self, datos):
        # blanks between tags are no text
        if datos.strip() and not {"svg", "style", "title"} & {*self.abiertas}:
            self.lineas[-1][1][-1] += datos


def raiz(f, a, b):
    for _ in range(80):
        m = (a + b) / 2
        a, b = (m, b) if (f(m) < 0) == (f(a) < 0) else (a, m)
    return a


def igual(plantilla, hallado, nombres):
    """Whether a text is the one that is told, its figures right to the last digit that is written."""
    patron, cifras, fin = "", [], 0
    for m in re.finditer(r"…|\$([^$]+?)(?::(t|\d)(?:~([\d.]+))?)?\$", plantilla):
        patron, fin = patron + re.escape(plantilla[fin:m.start()]), m.end()
        valor = eval(m[1], nombres) if m[1] else None
        if m[1] and not isinstance(valor, str):
            d = -9 if m[2] == "t" else -int(m[2] or 3)
            patron += r"(-?\d+\.%s)" % r"?\d*(?:E-\d+)?" if d == -9 else r"(-?\d+%s\d{%d})" % (r"\." * (d < 0), -d)
            cifras.append((valor, float(m[3] or 0.5 * 10**d) + 1e-6 * abs(valor)))
        else:
            patron += re.escape(valor) if m[1] else ".+"
    m = re.fullmatch(patron + re.escape(plantilla[fin:]), hallado)
    return m and all(abs(float(g) - valor) <= margen for g, (valor, margen) in zip(m.groups(), cifras))


CONTENIDO = (Path(__file__).parent / "contenido.txt").read_text(encoding="utf-8")


def contenido(nombres):
    """What the report of a design must hold: the kind of each line and its cells."""
    ramas = []  # of the conditions that are open: whether this one holds, whether one has held
    for linea in CONTENIDO.splitlines():
        clave, _, resto = linea.partition(" ")
        fuera = all(vale for vale, _ in ramas)
        if clave == "si":
            vale = fuera and bool(eval(resto, nombres))
            ramas.append([vale, vale or not fuera])
        elif clave in ("o", "no"):
            vale = not ramas[-1][1] and (clave == "no" or bool(eval(resto[3:], nombres)))
            ramas[-1] = [vale, ramas[-1][1] or vale]
        elif clave == "fin":
            ramas.pop()
        elif fuera and clave == "=":
            nombres[resto.split()[0]] = eval(resto.partition(" ")[2], nombres)
        elif fuera and clave == "R":
            filas = [[c if isinstance(c, str) else f"{c:.3f}" for c in f] for f in eval(resto, nombres)]
            yield from (["R", f] for f in filas if any(f))
        elif fuera and clave not in ("", "#", "v"):
            yield clave, [c.strip() for c in (resto + " ").split(" | ")]


def comparar(lineas, diseno):
    estados = [c["estado"] for c in diseno["comprobaciones"]]
    estado = {c: struct.unpack("f", struct.pack("f", v))[0] if isinstance(v, float) else v for c, v in diseno["estado"].items()}
    nombres = {**vars(math), "strftime": time.strftime, "re": re, **diseno, **estado, **diseno["ventana"],
               **diseno["ventana"]["campos"], "raiz": raiz, "cuantas": estados.count, **{e: e in diseno["estructura"] for e in ("rapida", "inclinada", "vertical")}}
    quedan = [["end", [""]]] + [linea for linea in lineas[::-1] if linea != ["P", [""]]]
    for clave, celdas in contenido(nombres):
        while quedan[-1][0] == {"P*": "P", "…": "-"}.get(clave):
            quedan.pop()
        if clave in ("P*", "…") or clave == "-" and len(celdas) == 4 and igual(celdas[2], "", nombres):
            continue
        clase, halladas = quedan[-1]
        if clave == "R":  # what a window's table has not is told so, but for remarks in the last column
            titulo = not any(re.search(r"^-?[\d+]+\.\d|actible$|^(Aviso|Pregunta)$", c) for c in celdas)
            bien = clase == "-E"[titulo] and halladas in (celdas, [c or "–" for c in celdas[:-1]] + celdas[-1:])
        else:
            bien = clase == clave[0] and len(celdas) == len(halladas) and all(
                igual(c, h, nombres) for c, h in zip(celdas, halladas))
        exigir(bien or clave == "-?", f"html: {clave} {celdas} instead of {clase} {halladas}")
        if bien:
            quedan.pop()
    exigir(len(quedan) == 1, f"html: {quedan[-1]} is too much")
    filas = {celdas[0]: celdas for _, celdas in lineas if len(celdas) == 5}
    for c in diseno["comprobaciones"]:
        nombre, valor, limite, estado, detalle = filas[c["nombre"]]
        exigir(estado == c["estado"] and c["detalle"] in detalle, f"JSON: {c}")
        for v, celda in ((c["valor"], valor), (c["limite"], limite)):
            exigir(celda == "–" if v is None else abs(float(celda.split()[0]) - v) < 6e-4, f"JSON: {c}")


def llano(texto):
    """Without blanks: line breaks of a page fall anywhere."""
    return re.sub(r"\s+", "", texto)


def comprobar(forma, texto, lineas):
    """Every cell of the page stands in the text, each after the one before; titles alone where lines of cells are mixed."""
    t, lugar = llano(texto), 0
    exigir(not re.search(r"\bnan\b|\binf\b|sin valor", texto, re.I), f"{forma}: no number")
    for clase, celdas in lineas:
        for celda in celdas:
            que = llano(re.sub(r"[_^]{(.*?)}", r"\1", celda))
            # in narrow cells of pages a text is broken, and its lines stand between those of its neighbours
            if forma == "pdf" and clase != "1":
                exigir(clase == "F" or que[:10] in t, f"{forma}: {que}")
            else:
                lugar = t.find(que, lugar) + len(que)
                exigir(lugar >= len(que), f"{forma}: {que} missing or out of order")


TITULO = re.compile(r"\d+\. [A-ZÁÉÍÓÚ][^.]*$|Sección transversal: |Secciones transversales$|Canal aguas (arriba|abajo)$|"
                    r"Dimensiones|Resultados$|Resumen de resultados$|Datos del diseño$|Perfil hidráulico|Tipos de tanque")


def de_pdf(archivo):
    tendido = subprocess.run(["pdftotext", "-layout", archivo, "-"], capture_output=True, text=True, check=True).stdout
    for i, pagina in enumerate(tendido.split("\f")[1:-1], 2):
        lineas = [linea.strip() for linea in pagina.splitlines() if linea.strip()]
        # header, text, foot; on the sheet of a drawing the title is all the text that must be
        if not lineas[1].startswith("11. "):
            exigir(not TITULO.match(lineas[-2]), f"page {i} ends in the heading {lineas[-2]}")
    texto = subprocess.run(["pdftotext", archivo, "-"], capture_output=True, text=True, check=True).stdout
    exigir(len(texto.split("\f")) - 1 >= 10, "pages")
    paginas = texto.split("\f")[:-1]
    for i, pagina in enumerate(paginas[1:], 2):
        exigir(f"Página {i} de {len(paginas)}" in pagina, f"page number {i}")
    return texto


def de_html(archivo, diseno):
    pagina = Pagina()
    pagina.feed(archivo.read_text(encoding="utf-8"))
    exigir(not pagina.abiertas, f"open tags {pagina.abiertas}")
    exigir(pagina.svg >= 6, f"{pagina.svg} pictures")
    comparar(pagina.lineas, diseno)
    return pagina.lineas


def de_odt(archivo):
    with zipfile.ZipFile(archivo) as z:
        exigir(z.testzip() is None, "broken archive")
        exigir(sum(n.startswith("Pictures/") for n in z.namelist()) >= 6, "pictures")
        return " ".join(ET.fromstring(z.read("content.xml")).itertext())


def probar(programa, proyecto, carpeta, *campos):
    # a line of the file itself: opening it writes over what an option puts into the parameters
    caso = next(Path(__file__).parents[1].glob(f"casos/*{proyecto.suffix}.json"))
    renglones = dict(zip(json.loads(caso.read_text())["proyecto"], proyecto.read_text("latin-1").splitlines()))
    renglones.update(c.split("=") for c in campos if c.split("=")[0] in renglones)
    (proyecto := carpeta / proyecto.name).write_text("\n".join(renglones.values()) + "\n", "latin-1", newline="\r\n")
    # laying out pages takes most of the time: of each structure some
    for forma, leer in (("html", de_html), ("pdf", de_pdf), ("odt", de_odt))[:1 if campos or int(proyecto.name[:2]) % 3 else 3]:
        archivo = carpeta / f"m.{forma}"
        puestos = [x for campo in campos for x in ("--campo", campo)]
        r = subprocess.run([programa, "--json", "--memoria", archivo, *puestos, proyecto], capture_output=True, text=True)
        exigir(r.returncode == 0, r.stderr)
        if forma == "html":
            lineas = leer(archivo, {**json.loads(r.stdout), "puestos": campos})
        else:
            comprobar(forma, leer(archivo), lineas)


def main():
    mal = 0
    with tempfile.TemporaryDirectory() as carpeta:
        variantes = [v.split() for v in re.findall("^v (.*)", CONTENIDO, re.M)]
        casos = [[p, *v] for p in sys.argv[2:] for v in [[], *(v[1:] for v in variantes if v[0] == Path(p).name[:2])]]
        for proyecto, *campos in casos:
            try:
                probar(sys.argv[1], Path(proyecto), Path(carpeta), *campos)
            except (AssertionError, subprocess.CalledProcessError, ET.ParseError, zipfile.BadZipFile) as fallo:
                print(f"{proyecto} {campos}: {fallo}")
                mal += 1
    print(f"{len(casos)} designs, {mal} wrong")
    return 1 if mal or len(sys.argv) < 3 else 0


sys.exit(main())
