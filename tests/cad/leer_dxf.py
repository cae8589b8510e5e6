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


# how dimensions look, in the header and in the style: some viewers read only one of them
COTAS = {"$DIMTXT": 0.075, "$DIMASZ": 0.075, "$DIMEXO": 0.1, "$DIMEXE": 0.075, "$DIMGAP": 0.0375, "$DIMSCALE": 1,
         "$DIMLFAC": 1, "$DIMDEC": 3, "$DIMZIN": 8, "$DIMTAD": 0, "$DIMLUNIT": 2, "$DIMDSEP": 46}


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


def muros(contornos, estaciones, medios, eje):
    for lado, contorno in zip((-1, 1), contornos):
        exigir(cerca(contorno, planta(estaciones, medios, eje, lado)), "wall of the plan")


def revestimiento(contorno, e, desde, hasta, cotas_fondo):
    grosor = 0.1 / math.cos(math.atan(e["sAbajo"]))
    a, b = (desde, cotas_fondo[0]), (hasta, cotas_fondo[1])
    exigir(cerca(contorno, [a, b, (b[0], b[1] - grosor), (a[0], a[1] - grosor), a]), "downstream lining")


def comunes(dibujo, e, contornos, bordes, lineas_planta, agua, pares, pendientes, valores):
    """What is counted in every structure."""
    largos = [len(p) for p in puntos_de(dibujo, "RAS")[:5]]
    exigir(largos == contornos, f"outlines of the structure: {largos}")
    largos = [len(p) for p in puntos_de(dibujo, "TIRANTE")]
    exigir(largos == [agua], f"water surface: {largos}")
    cuenta = Counter((x.dxf.layer, x.dxftype()) for x in dibujo.modelspace())
    exigir(cuenta["CANAL", "LWPOLYLINE"] == 1 + bordes and cuenta["CANAL", "LINE"] == lineas_planta, f"canal: {cuenta}")
    exigir(cuenta["LGRADIENTE", "LWPOLYLINE"] == 0, "the energy line was not asked for")
    # one text to each line of the grid but its two edges; station and elevation of each point; slopes
    textos = cuenta["GRID", "LINE"] - 2 + 2 * pares + pendientes
    exigir(cuenta["TEXT", "TEXT"] == textos, f"texts: {cuenta} for {textos}")
    medidas = cotas(dibujo)
    for k in valores:
        exigir(e[k] == 0 or any(abs(m - e[k]) < 1e-4 for m in medidas), f"no dimension of {k}")


def rapida(dibujo, e):
    fin = e["longRapida"]
    p0 = fin + e["xTrayectoria"] + (e["cotaTrayectoria"] - e["cotaPoza"]) * e["zRampaEntrada"]
    p1 = p0 + e["longPoza"]
    p2 = p1 + (e["cotaAbajo"] - e["cotaPoza"]) * e["zRampaSalida"]
    t = p2 + e["longTransSalida"]
    ini, ent, n = e["progresivaInicio"], e["longTransEntrada"], e["numTramos"]
    comunes(dibujo, e, [36, 2 * n + 8, 5, 19, 19], 6, 18, 100 * n + 31, 4 + n, 2 + n,
            ("longPoza", "xTrayectoria", "longTransEntrada", "longTransSalida", "ynAbajo", "y2", "ycControl"))
    ancho = max(e[k] for k in ("espejoArriba", "espejoAbajo", "espejoRapida", "espejoPoza"))
    eje = simple((5 + ent) * e["sArriba"] + e["cotaInicio"] + e["hArriba"] + e["vArriba"] ** 2 / 19.62
                 + e["sobreelevacion"] + ancho / 2 + 0.15)
    estaciones = [ini + x for x in (-5 - ent, -ent, 0, fin, p0, p1, p2, t, t + 5)]
    medios = [e[k] / 2 for k in ["espejoArriba"] * 2 + ["espejoRapida"] * 2 + ["espejoPoza"] * 3 + ["espejoAbajo"] * 2]
    ras = puntos_de(dibujo, "RAS")
    muros(ras[3:5], estaciones, medios, eje)
    fondo = [e["cotaAbajo"] - d * e["sAbajo"] for d in (e["longTransSalida"], e["longTransSalida"] + 5)]
    revestimiento(ras[2], e, ini + t, ini + t + 5, fondo)


def eje_de_caida(e, ancho_poza, sobreelevacion):
    ancho = max(e["espejoArriba"], e["espejoAbajo"], e["espejoRapida"], ancho_poza)
    return simple((5 + e["longTransEntrada"] + e["longControl"]) * e["sArriba"] + e["cotaFin"] + e["ynArriba"]
                  + e["vArriba"] ** 2 / 19.62 + sobreelevacion + simple(ancho) / 2 + 0.6)


def inclinada(dibujo, e):
    control = -e["longControl"]
    p0 = e["xTrayectoria"] + (e["cotaTrayectoria"] - e["cotaPoza"]) * e["zRampaEntrada"]
    p1 = p0 + e["longPoza"]
    p2 = p1 + (e["cotaAbajo"] - e["cotaPoza"]) * e["zRampaSalida"]
    t = p2 + e["longTransSalida"]
    ini, trans = e["progresivaInicio"], control - e["longTransEntrada"]
    comunes(dibujo, e, [39, 7, 5, 19, 19], 6, 18, 31, 4, 2,
            ("longPoza", "xTrayectoria", "longControl", "longTransEntrada", "longTransSalida", "ynAbajo", "y2", "yFin"))
    estaciones = [ini + x for x in (trans - 5, trans, control, 0, p0, p1, p2, t, t + 5)]
    medios = [e[k] / 2 for k in ["espejoArriba"] * 2 + ["espejoRapida"] * 2 + ["espejoPoza"] * 3 + ["espejoAbajo"] * 2]
    ras = puntos_de(dibujo, "RAS")
    muros(ras[3:5], estaciones, medios, eje_de_caida(e, e["espejoPoza"], e["sobreelevacion"]))
    fondo = [e["cotaAbajo"] - d * e["sAbajo"] for d in (e["longTransSalida"], e["longTransSalida"] + 5)]
    revestimiento(ras[2], e, ini + t, ini + t + 5, fondo)


def vertical(dibujo, e):
    p2 = e["longRapida"] + e["zRampaSalida"] * e["profPoza"]
    t = p2 + e["longTransSalida"]
    ini = e["progresivaInicio"]
    ras = puntos_de(dibujo, "RAS")
    comunes(dibujo, e, [17, 6, 5, 17, 17], 4, 12, e["filas"] + 27, 2, 2,
            ("longRapida", "longControl", "longTransEntrada", "longTransSalida", "ynAbajo", "y2", "yFin"))
    revestimiento(ras[2], e, ini + p2 + 0.15, ini + t + 5,
                  (e["cotaAbajo"], e["cotaAbajo"] - (e["longTransSalida"] + 5) * e["sAbajo"]))
    eje = eje_de_caida(e, e["espejoPoza"] + e["longTransVert"], 0)
    exigir(abs(ras[3][2][1] - eje + e["bPozaCaida"] / 2) < 1e-6, "axis of the plan")


COMPROBAR = {"rapida": rapida, "caida_inclinada": inclinada, "caida_vertical": vertical}


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
                cuadricula(dibujo)
                estado = {k: simple(v) if isinstance(v, float) else v for k, v in objeto["estado"].items()}
                estado["filas"] = len(objeto["perfilCaida"])
                COMPROBAR[objeto["estructura"]](dibujo, estado)
                print(f"{Path(proyecto).name}: {len(dibujo.modelspace())} entities")
            except (AssertionError, KeyError, OSError, ValueError, ezdxf.DXFError) as fallo:
                mal += 1
                print(f"{proyecto}: {type(fallo).__name__}: {fallo}")
    return 1 if mal or not proyectos else 0


sys.exit(main())
