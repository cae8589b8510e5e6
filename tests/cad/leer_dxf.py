#!/usr/bin/env python3
"""Reads the DXF exports of projects back with an independent reader.

    leer_dxf.py CALVENTO-LOTE PROJECT…

Each project is exported by the batch program; the file must be sound and its dimensions, grid and extents must agree
with what is drawn; its records must have the groups of grupos.txt. What the drawing shows is held against the worked designs by pruebas_lote.
"""

import subprocess
import sys
import tempfile
from pathlib import Path

try:
    import ezdxf
except ImportError:
    print("python3-ezdxf is not installed")
    sys.exit(77)

GRUPOS = [linea for linea in (Path(__file__).parent / "grupos.txt").read_text().splitlines() if linea and linea[0] != "#"]


def exigir(condicion, que):
    if not condicion:
        raise AssertionError(que)


def cabecera(dibujo):
    revision = dibujo.audit()
    exigir(not revision.errors, f"audit: {[e.message for e in revision.errors]}")
    exigir(dibujo.dxfversion >= "AC1015", dibujo.dxfversion)
    exigir(dibujo.encoding == "cp1252", dibujo.encoding)


def registros(archivo):
    """The groups of each record, by the record's kind; of the header by its variables."""
    todos, ultimo = {}, []
    lineas = [linea.strip() for linea in Path(archivo).read_text(encoding="cp1252").split("\n")]
    for codigo, valor in zip(lineas[::2], lineas[1::2]):
        if codigo in ("0", "9"):
            ultimo = []
            todos.setdefault(valor, []).append(ultimo)
        else:
            ultimo.append((codigo, valor))
    return todos


def cabe(grupos, hallados, nombres):
    def igual(esperado, hallado):
        (codigo, _, debe), (c, valor) = esperado, hallado
        if codigo != c or debe == "*" or debe == valor:
            return codigo == c
        return debe[:1] == "=" and abs(float(valor) - eval(debe[1:], nombres)) < 1e-6

    return len(grupos) == len(hallados) and all(map(igual, [g.partition(" ") for g in grupos], hallados))


def formato(dibujo, archivo):
    """Each record has the groups of one of its lines in grupos.txt, and each line has a record."""
    (x1, y1, _), (x2, y2, _) = dibujo.header["$EXTMIN"], dibujo.header["$EXTMAX"]
    formas, hechos = {}, registros(archivo)
    for nombre, *grupos in ([c.strip() for c in linea.split("|")] for linea in GRUPOS):
        formas.setdefault(nombre, []).append(grupos)
    exigir(len(hechos["BLOCK"]) == len(hechos["ENDBLK"]), "a block without end")
    nombres = {"x1": x1, "y1": y1, "x2": x2, "y2": y2}
    for nombre, lineas in formas.items():
        hallados = hechos.get(nombre, [])
        for h in hallados:
            exigir(any(cabe(g, h, nombres) for g in lineas), f"{nombre} {h}")
        for g in lineas:
            exigir(any(cabe(g, h, nombres) for h in hallados), f"no {nombre} {g}")


def extension(dibujo):
    """Everything lies within the extents that the header tells."""
    (x1, y1, _), (x2, y2, _) = dibujo.header["$EXTMIN"], dibujo.header["$EXTMAX"]
    for e in dibujo.modelspace().query("LINE LWPOLYLINE"):
        puntos = [e.dxf.start, e.dxf.end] if e.dxftype() == "LINE" else e.get_points()
        exigir(all(x1 <= p[0] <= x2 and y1 <= p[1] <= y2 for p in puntos), f"{e} outside the extents")


def cuadricula(dibujo):
    """The grid ends where the drawn canals end, in whole metres."""
    xs = [p.x for e in dibujo.modelspace().query('LINE[layer=="GRID"]') for p in (e.dxf.start, e.dxf.end)]
    figura = [p[0] for contorno in puntos_de(dibujo, "RAS") for p in contorno]
    for extremo in (min, max):
        exigir(extremo(xs) == round(extremo(xs)) and abs(extremo(xs) - extremo(figura)) <= 0.5 + 1e-6,
               f"grid {extremo(xs)}, figure {extremo(figura)}")


def cotas(dibujo):
    """Texts of the dimensions as their own blocks show them."""
    for c in dibujo.modelspace().query("DIMENSION"):
        textos = [e.dxf.text for e in dibujo.blocks.get(c.dxf.geometry) if e.dxftype() == "TEXT"]
        exigir(textos == [f"{round(c.get_measurement(), 3):g}"], f"dimension {c.get_measurement()}: {textos}")


def puntos_de(dibujo, capa):
    return [[p[:2] for p in e.get_points()] for e in dibujo.modelspace().query(f'LWPOLYLINE[layer=="{capa}"]')]


def main():
    programa, *proyectos = sys.argv[1:]
    mal = 0
    with tempfile.TemporaryDirectory() as carpeta:
        for proyecto in proyectos:
            dxf = str(Path(carpeta, "dibujo.dxf"))
            corrida = subprocess.run([programa, "--dxf", dxf, proyecto], capture_output=True, text=True)
            try:
                exigir(corrida.returncode == 0, corrida.stderr)
                dibujo = ezdxf.readfile(dxf)
                cabecera(dibujo)
                formato(dibujo, dxf)
                extension(dibujo)
                cuadricula(dibujo)
                cotas(dibujo)
                print(f"{Path(proyecto).name}: {len(dibujo.modelspace())} entities")
            except (AssertionError, KeyError, OSError, ValueError, ezdxf.DXFError) as fallo:
                mal += 1
                print(f"{proyecto}: {type(fallo).__name__}: {fallo}")
    return 1 if mal or not proyectos else 0


sys.exit(main())
