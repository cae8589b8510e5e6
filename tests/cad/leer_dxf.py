#!/usr/bin/env python3
"""Reads the DXF exports of projects back with an independent reader.

    leer_dxf.py CALVENTO-LOTE PROJECT…

Each project is exported and calculated by the batch program; drawing and design must agree.
"""

import json
import math
import struct
import subprocess
import sys
import tempfile
from collections import Counter
from pathlib import Path

try:
    import ezdxf
except ImportError:
    print("python3-ezdxf is not installed")
    sys.exit(77)

CAPAS = [("0", 7), ("RAS", 1), ("CANAL", 7), ("GRID", 8), ("TEXT", 1), ("TIRANTE", 4), ("LGRADIENTE", 3)]


def exigir(condicion, que):
    if not condicion:
        raise AssertionError(que)


def simple(valor):
    """A value as the four bytes that hold it."""
    return struct.unpack("f", struct.pack("f", valor))[0]


def cerca(a, b):
    return len(a) == len(b) and all(math.dist(p, q) < 1e-6 for p, q in zip(a, b))


def cabecera(dibujo):
    revision = dibujo.audit()
    exigir(not revision.errors, f"audit: {[e.message for e in revision.errors]}")
    exigir(dibujo.dxfversion >= "AC1015", dibujo.dxfversion)
    exigir(dibujo.encoding == "cp1252", dibujo.encoding)
    exigir((dibujo.header["$INSUNITS"], dibujo.header["$MEASUREMENT"]) == (6, 1), "units")
    capas = [(c.dxf.name, c.dxf.color) for c in dibujo.layers if c.dxf.name != "Defpoints"]  # the reader's own
    exigir(capas == CAPAS, f"layers: {capas}")


def extension(dibujo):
    """Everything lies within the extents that the header tells."""
    (x1, y1, _), (x2, y2, _) = dibujo.header["$EXTMIN"], dibujo.header["$EXTMAX"]
    for e in dibujo.modelspace().query("LINE LWPOLYLINE"):
        puntos = [e.dxf.start, e.dxf.end] if e.dxftype() == "LINE" else e.get_points()
        exigir(len(puntos) >= 2, "too few points")
        exigir(all(x1 <= p[0] <= x2 and y1 <= p[1] <= y2 for p in puntos), f"{e} outside the extents")


def cotas(dibujo):
    """Texts of the dimensions as their own blocks show them."""
    medidas = []
    for c in dibujo.modelspace().query("DIMENSION"):
        textos = [e.dxf.text for e in dibujo.blocks.get(c.dxf.geometry) if e.dxftype() == "TEXT"]
        exigir(textos == [f"{round(c.get_measurement(), 3):g}"], f"dimension {c.get_measurement()}: {textos}")
        estilo = c.override()
        valores = [estilo.get(v) for v in ("dimasz", "dimexe", "dimtxt", "dimtad")]
        exigir(valores == [0.075, 0.075, 0.075, 0] and estilo.get("dimexo") in (0.1, 0.2), f"dimension: {valores}")
        medidas.append(c.get_measurement())
    return medidas


def puntos_de(dibujo, capa):
    return [[p[:2] for p in e.get_points()] for e in dibujo.modelspace().query(f'LWPOLYLINE[layer=="{capa}"]')]


def planta(estaciones, medios, eje, lado):
    ida = [(x, eje + lado * m) for x, m in zip(estaciones, medios)]
    vuelta = [(x, eje + lado * (m + 0.15)) for x, m in zip(estaciones, medios)][::-1]
    return ida + vuelta + ida[:1]


def rapida(dibujo, e):
    fin = e["longRapida"]
    pt = fin + e["xTrayectoria"]
    p0 = pt + (e["cotaTrayectoria"] - e["cotaPoza"]) * e["zRampaEntrada"]
    p1 = p0 + e["longPoza"]
    p2 = p1 + (e["cotaAbajo"] - e["cotaPoza"]) * e["zRampaSalida"]
    t = p2 + e["longTransSalida"]
    ini, ent = e["progresivaInicio"], e["longTransEntrada"]
    ancho = max(e[k] for k in ("espejoArriba", "espejoAbajo", "espejoRapida", "espejoPoza"))
    eje = simple((5 + ent) * e["sArriba"] + e["cotaInicio"] + e["hArriba"] + e["vArriba"] ** 2 / 19.62
                 + e["sobreelevacion"] + ancho / 2 + 0.15)
    estaciones = [ini + x for x in (-5 - ent, -ent, 0, fin, p0, p1, p2, t, t + 5)]
    medios = [e[k] / 2 for k in ["espejoArriba"] * 2 + ["espejoRapida"] * 2 + ["espejoPoza"] * 3 + ["espejoAbajo"] * 2]
    ras = puntos_de(dibujo, "RAS")
    exigir([len(p) for p in ras[:5]] == [36, 2 * e["numTramos"] + 8, 5, 19, 19], "outlines of the structure")
    for lado, contorno in ((-1, ras[3]), (1, ras[4])):
        exigir(cerca(contorno, planta(estaciones, medios, eje, lado)), "wall of the plan")
    grosor = 0.1 / math.cos(math.atan(e["sAbajo"]))
    fondo = [e["cotaAbajo"] - d * e["sAbajo"] for d in (e["longTransSalida"], e["longTransSalida"] + 5)]
    a, b = (ini + t, fondo[0]), (ini + t + 5, fondo[1])
    exigir(cerca(ras[2], [a, b, (b[0], b[1] - grosor), (a[0], a[1] - grosor), a]), "downstream lining")
    exigir([len(p) for p in puntos_de(dibujo, "TIRANTE")] == [100 * e["numTramos"] + 31], "water surface")
    cuenta = Counter((x.dxf.layer, x.dxftype()) for x in dibujo.modelspace())
    exigir(cuenta["CANAL", "LWPOLYLINE"] == 7 and cuenta["CANAL", "LINE"] == 18, "canal")
    exigir(cuenta["LGRADIENTE", "LWPOLYLINE"] == 0, "the energy line was not asked for")
    lineas = cuenta["GRID", "LINE"]
    # one text to each line of the grid but its two edges; station and elevation of each point; slopes
    exigir(cuenta["TEXT", "TEXT"] == lineas - 2 + 2 * (4 + e["numTramos"]) + 2 + e["numTramos"], "texts")
    medidas = cotas(dibujo)
    for k in ("longPoza", "xTrayectoria", "longTransSalida", "ynAbajo", "y2", "ycControl"):
        exigir(any(abs(m - e[k]) < 1e-4 for m in medidas), f"no dimension of {k}")


COMPROBAR = {"rapida": rapida}


def main():
    programa, *proyectos = sys.argv[1:]
    mal = 0
    with tempfile.TemporaryDirectory() as carpeta:
        for proyecto in proyectos:
            dxf = str(Path(carpeta, "dibujo.dxf"))
            corrida = subprocess.run([programa, "--json", "--dxf", dxf, proyecto], capture_output=True, text=True)
            try:
                exigir(corrida.returncode == 0, corrida.stderr)
                objeto = json.loads(corrida.stdout)
                dibujo = ezdxf.readfile(dxf)
                cabecera(dibujo)
                extension(dibujo)
                estado = {k: simple(v) if isinstance(v, float) else v for k, v in objeto["estado"].items()}
                COMPROBAR[objeto["estructura"]](dibujo, estado)
                print(f"{Path(proyecto).name}: {len(dibujo.modelspace())} entities")
            except (AssertionError, KeyError, OSError, ValueError, ezdxf.DXFError) as fallo:
                mal += 1
                print(f"{proyecto}: {type(fallo).__name__}: {fallo}")
    return 1 if mal or not proyectos else 0


sys.exit(main())
