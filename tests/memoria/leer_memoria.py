#!/usr/bin/env python3
"""Reads the design reports of projects back, in all three forms.

    leer_memoria.py CALVENTO-LOTE PROJECT…

Each form must open, hold the chapters in their order, every field that is typed, the results and the checks of the
design, and nothing that is no number.
"""

import json
import re
import shutil
import subprocess
import sys
import tempfile
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
    """Text of a page and its cells; tags must close as they were opened."""

    SUELTAS = {"meta", "br", "img"}

    def __init__(self):
        super().__init__()
        self.abiertas, self.texto, self.celdas, self.svg = [], [], [], 0

    def handle_starttag(self, tag, attrs):
        if tag not in self.SUELTAS:
            self.abiertas.append(tag)
        if tag == "td":
            self.celdas.append("")
        self.svg += tag == "svg"

    def handle_startendtag(self, tag, attrs):
        self.svg += tag == "svg"

    def handle_endtag(self, tag):
        exigir(self.abiertas and self.abiertas.pop() == tag, f"</{tag}> at {self.getpos()}")

    def handle_data(self, datos):
        if "svg" in self.abiertas or "style" in self.abiertas:
            return
        self.texto.append(datos)
        if "td" in self.abiertas:
            self.celdas[-1] += datos


def llano(texto):
    """Without blanks: line breaks of a page fall anywhere."""
    return re.sub(r"\s+", "", texto)


def comprobar(forma, texto, diseno, lineas_de_campos):
    t = llano(texto)
    exigir(not re.search(r"\bnan\b|\binf\b|sin valor", texto, re.I), f"{forma}: no number")
    lugar = -1
    for titulo in TITULOS[diseno["estructura"]]:
        lugar = t.find(llano(titulo), lugar + 1)
        exigir(lugar >= 0, f"{forma}: chapter {titulo} missing or out of order")
    for nombre, valor in lineas_de_campos.items():
        exigir(not valor or llano(valor) in t, f"{forma}: field {nombre} = {valor}")
    for campo in ("ynArriba", "ynAbajo", "y1", "y2", "cotaPoza", "ycControl"):
        exigir(f"{diseno['estado'][campo]:.3f}" in t, f"{forma}: {campo}")
    for c in diseno["comprobaciones"]:
        # in narrow cells of pages a text is broken, and its lines stand between those of its neighbours
        largo = 10 if forma == "pdf" else None
        exigir(llano(c["nombre"])[:largo] in t and llano(c["detalle"])[:largo] in t, f"{forma}: check {c['nombre']}")


COMUNES = ["1. Datos", "2. Canales de llegada y de salida", "3. Sección de control", "4. Perfil hidráulico"]
FINALES = ["8. Revestimientos y transiciones", "9. Verificación de la poza", "10. Comprobaciones", "11. Planos",
           "12. Mensajes del cálculo", "Referencias"]
TITULOS = {
    "rapida": COMUNES + ["5. Trayectoria", "6. Resalto y poza", "7. Bloques"] + FINALES,
    "caida_inclinada": COMUNES + ["5. Curva de la cresta", "6. Resalto y poza", "7. Bloques"] + FINALES,
    "caida_vertical": COMUNES + ["5. Caída del chorro", "6. Resalto y poza", "7. Aireación"] + FINALES,
}


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


def de_html(archivo):
    pagina = Pagina()
    pagina.feed(archivo.read_text(encoding="utf-8"))
    exigir(not pagina.abiertas, f"open tags {pagina.abiertas}")
    exigir(pagina.svg >= 6, f"{pagina.svg} pictures")
    return "".join(pagina.texto)


def de_odt(archivo):
    with zipfile.ZipFile(archivo) as z:
        exigir(z.testzip() is None, "broken archive")
        exigir(sum(n.startswith("Pictures/") for n in z.namelist()) >= 6, "pictures")
        return " ".join(ET.fromstring(z.read("content.xml")).itertext())


def probar(programa, proyecto, carpeta):
    patron = str(carpeta / "{}")
    for n, forma in enumerate(("pdf", "html", "odt")):
        r = subprocess.run([programa, "--json", "--memoria", f"{patron}.{forma}", proyecto], capture_output=True, text=True)
        exigir(r.returncode == 0, r.stderr)
        diseno = json.loads(r.stdout)
        archivo = carpeta / f"{Path(proyecto).stem}.{forma}"
        texto = (de_pdf, de_html, de_odt)[n](archivo)
        # the fields of reaches that a chute does not have are not told of
        comprobar(forma, texto, diseno, diseno["ventana"]["campos"])


def main():
    mal = 0
    with tempfile.TemporaryDirectory() as carpeta:
        for proyecto in sys.argv[2:]:
            try:
                probar(sys.argv[1], proyecto, Path(carpeta))
            except (AssertionError, subprocess.CalledProcessError, ET.ParseError, zipfile.BadZipFile) as fallo:
                print(f"{proyecto}: {fallo}")
                mal += 1
    print(f"{len(sys.argv) - 2} projects, {mal} wrong")
    return 1 if mal or len(sys.argv) < 3 else 0


sys.exit(main())
