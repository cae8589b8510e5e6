#!/usr/bin/env python3
"""Reads the DXF exports of projects back with an independent reader.

    leer_dxf.py CALVENTO-LOTE PROJECT…

Each project is exported by the batch program; the file must be sound and its dimensions, grid and extents must agree
with what is drawn. What the drawing shows is held against the worked designs by pruebas_lote.
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

CAPAS = [("0", 7), ("RAS", 1), ("CANAL", 7), ("GRID", 8), ("TEXT", 1), ("TIRANTE", 4), ("LGRADIENTE", 3)]


# how dimensions look, in the header and in the style: some viewers read only one of them
COTAS = {"$DIMTXT": 0.075, "$DIMASZ": 0.075, "$DIMEXO": 0.1, "$DIMEXE": 0.075, "$DIMGAP": 0.0375, "$DIMSCALE": 1,
         "$DIMLFAC": 1, "$DIMDEC": 3, "$DIMZIN": 8, "$DIMTAD": 0, "$DIMLUNIT": 2, "$DIMDSEP": 46}


def exigir(condicion, que):
    if not condicion:
        raise AssertionError(que)


def cabecera(dibujo):
    revision = dibujo.audit()
    exigir(not revision.errors, f"audit: {[e.message for e in revision.errors]}")
    exigir(dibujo.dxfversion >= "AC1015", dibujo.dxfversion)
    exigir(dibujo.encoding == "cp1252", dibujo.encoding)
    exigir((dibujo.header["$INSUNITS"], dibujo.header["$MEASUREMENT"]) == (6, 1), "units")
    capas = [(c.dxf.name, c.dxf.color) for c in dibujo.layers if c.dxf.name != "Defpoints"]  # the reader's own
    exigir(capas == CAPAS, f"layers: {capas}")
    estilo = dibujo.dimstyles.get("Standard")
    for nombre, valor in COTAS.items():
        leidos = (dibujo.header.get(nombre), estilo.dxf.get(nombre[1:].lower()))
        exigir(leidos == (valor, valor), f"{nombre}: {leidos}")
    hoja = [tuple(dibujo.header.get(v, ()))[:2] for v in ("$PLIMMIN", "$PLIMMAX")]
    exigir(hoja == [(0, 0), (0.42, 0.297)], f"sheet: {hoja}, not A3 lying, in metres")


def extension(dibujo):
    """Everything lies within the extents that the header tells."""
    (x1, y1, _), (x2, y2, _) = dibujo.header["$EXTMIN"], dibujo.header["$EXTMAX"]
    for e in dibujo.modelspace().query("LINE LWPOLYLINE"):
        puntos = [e.dxf.start, e.dxf.end] if e.dxftype() == "LINE" else e.get_points()
        exigir(len(puntos) >= 2, "too few points")
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
        estilo = c.override()
        valores = [estilo.get(v) for v in ("dimasz", "dimexe", "dimtxt", "dimtad")]
        exigir(valores == [0.075, 0.075, 0.075, 0] and estilo.get("dimexo") in (0.1, 0.2), f"dimension: {valores}")


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
                extension(dibujo)
                cuadricula(dibujo)
                cotas(dibujo)
                print(f"{Path(proyecto).name}: {len(dibujo.modelspace())} entities")
            except (AssertionError, KeyError, OSError, ValueError, ezdxf.DXFError) as fallo:
                mal += 1
                print(f"{proyecto}: {type(fallo).__name__}: {fallo}")
    return 1 if mal or not proyectos else 0


sys.exit(main())
