#include "lote/json.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <nlohmann/json.hpp>

#include "comun/numeros.h"
#include "comun/version.h"
#include "modelo/codificacion.h"
#include "plataforma/rejilla.h"

namespace calvento::lote {

namespace {

/// What the bytes of a text ask for.
constexpr unsigned char especial = 1;  ///< an escape
constexpr unsigned char ajeno = 2;     ///< a look whether the text is UTF-8
constexpr auto clases = [] {
  std::array<unsigned char, 256> c{};
  for (std::size_t i = 0; i < c.size(); ++i)
    c[i] = i >= 0x80 ? ajeno : i < 0x20 || i == '"' || i == '\\' || i == 0x7F ? especial : 0;
  return c;
}();

/// The library escapes what is below U+0020; a terminal obeys DEL, and U+0080 to U+009F, too.
std::string sinOrdenes(std::string texto) {
  for (const char guia : {'\x7F', '\xC2'})
    for (std::size_t i = texto.find(guia); i != std::string::npos; i = texto.find(guia, i + 1)) {
      const std::size_t largo = guia == '\x7F' ? 1 : 2;
      const auto ultimo = static_cast<unsigned char>(texto[i + largo - 1]);
      if (ultimo >= 0xA0) continue;
      std::array<char, 8> escape{};
      std::snprintf(escape.data(), escape.size(), "\\u00%02x", ultimo);
      texto.replace(i, largo, escape.data());
    }
  return texto;
}

}  // namespace

void EscritorJson::separar() {
  if (!primero_) salida_ += ',';
  primero_ = false;
}
void EscritorJson::abrir(char c) {
  separar();
  salida_ += c;
  primero_ = true;
}
void EscritorJson::cerrar(char c) {
  salida_ += c;
  primero_ = false;
}
void EscritorJson::clave(std::string_view nombre) {
  texto(nombre);
  salida_ += ':';
  primero_ = true;
}
void EscritorJson::texto(std::string_view valor) {
  separar();
  unsigned hay = 0;
  for (const char c : valor) hay |= clases[static_cast<unsigned char>(c)];
  const bool ascii = (hay & ajeno) == 0;
  if ((hay & especial) == 0 && (ascii || esUtf8(valor))) {  // nearly all: no need of the library
    salida_ += '"';
    ascii ? salida_ += valor : salida_ += sinOrdenes(std::string(valor));
    salida_ += '"';
    return;
  }
  // file names may be no UTF-8: what is not is replaced, since the line must stay readable
  salida_ += sinOrdenes(nlohmann::json(valor).dump(-1, ' ', false, nlohmann::json::error_handler_t::replace));
}
void EscritorJson::logico(bool valor) {
  separar();
  salida_ += valor ? "true" : "false";
}
void EscritorJson::nulo() {
  separar();
  salida_ += "null";
}
template <class Numero>
void EscritorJson::escribirNumero(Numero valor) {
  std::array<char, 32> bufer{};
  const auto r = std::to_chars(bufer.data(), bufer.data() + bufer.size(), valor);
  separar();
  salida_.append(bufer.data(), r.ptr);
}
void EscritorJson::numero(int valor) { escribirNumero(valor); }
void EscritorJson::numero(float valor) { std::isfinite(valor) ? escribirNumero(valor) : nulo(); }
void EscritorJson::numero(double valor) { std::isfinite(valor) ? escribirNumero(valor) : nulo(); }

namespace {

void escribirMensajes(EscritorJson& j, const std::vector<Mensaje>& mensajes) {
  static constexpr std::array<std::string_view, 3> tipos = {"aviso", "pregunta", "fallo"};
  j.clave("mensajes");
  j.abrirLista();
  for (const Mensaje& m : mensajes) {
    j.abrirObjeto();
    j.clave("tipo");
    j.texto(tipos.at(static_cast<std::size_t>(m.tipo)));
    j.clave("texto");
    j.texto(m.texto);
    if (m.tipo == Mensaje::Tipo::pregunta) {
      j.clave("respuesta");
      j.texto(m.respuesta ? "si" : "no");
    }
    j.cerrarObjeto();
  }
  j.cerrarLista();
}

void escribirNotas(EscritorJson& j, const std::vector<std::string>& notas) {
  if (notas.empty()) return;
  j.clave("notas");
  j.abrirLista();
  for (const std::string& nota : notas) j.texto(nota);
  j.cerrarLista();
}

void escribirPuestos(EscritorJson& j, const std::vector<ValorPuesto>& puestos) {
  if (puestos.empty()) return;
  j.clave("puestos");
  j.abrirLista();
  for (const ValorPuesto& p : puestos) {
    j.abrirObjeto();
    j.clave("nombre");
    j.texto(p.nombre);
    j.clave("texto");
    j.texto(p.texto);
    j.cerrarObjeto();
  }
  j.cerrarLista();
}

void escribirEstado(EscritorJson& j, const DesignState& estado) {
  j.clave("estado");
  j.abrirObjeto();
  for (const CampoSingle& c : camposSingle()) {
    j.clave(c.nombre);
    j.numero((estado.*c.campo).valor());
  }
  j.clave("anguloCaida");
  j.numero(estado.anguloCaida);
  j.clave("numTramos");
  j.numero(static_cast<int>(estado.numTramos));
  j.clave("tipoTubo");
  j.texto(estado.tipoTubo);
  j.clave("esNuevo");
  j.logico(estado.esNuevo);
  j.clave("rutaArchivo");
  j.texto(estado.rutaArchivo);
  j.cerrarObjeto();
}

void escribirPerfiles(EscritorJson& j, const DesignState& estado) {
  j.clave("perfil");
  j.abrirLista();
  for (const FilaPerfil& f : estado.perfil) {
    j.abrirLista();
    for (const Single s : {f.x, f.tirante, f.cota, f.velocidad, f.energia}) j.numero(s.valor());
    j.cerrarLista();
  }
  j.cerrarLista();
  j.clave("perfilCaida");
  j.abrirLista();
  for (const FilaPerfilCaida& f : estado.perfilCaida) {
    j.abrirLista();
    j.numero(f.x);
    j.numero(f.tirante);
    j.cerrarLista();
  }
  j.cerrarLista();
}

void escribirTabla(EscritorJson& j, const Rejilla& tabla) {
  j.abrirLista();
  for (int f = 0; f < tabla.filas(); ++f) {
    j.abrirLista();
    for (int c = 0; c < tabla.columnas(); ++c) j.texto(tabla.texto(f, c));
    j.cerrarLista();
  }
  j.cerrarLista();
}

void escribirVentana(EscritorJson& j, const Ventana& ventana, const Estructura& estructura) {
  j.clave("ventana");
  j.abrirObjeto();
  j.clave("titulo");
  j.texto(ventana.Caption.valor());
  j.clave("campos");
  j.abrirObjeto();
  for (const Control* c : ventana.controles())
    if (const auto* campo = dynamic_cast<const TextBox*>(c)) {
      j.clave(campo->nombre());
      j.texto(campo->Text.valor());
    }
  j.cerrarObjeto();
  j.clave("etiquetas");
  j.abrirObjeto();
  for (const std::string_view nombre : estructura.etiquetas)
    if (const auto* etiqueta = ventana.buscar<Label>(nombre)) {
      j.clave(nombre);
      j.texto(etiqueta->Caption.valor());
    }
  j.cerrarObjeto();
  if (const auto* barra = ventana.buscar<StatusBar>("sbStatusBar")) {
    j.clave("panel1");
    j.texto(barra->Panel1.valor());
  }
  j.clave("menus");
  j.abrirObjeto();
  for (const std::string_view nombre : estructura.menus)
    if (const auto* menu = ventana.buscar<Menu>(nombre)) {
      j.clave(nombre);
      j.logico(menu->Enabled);
    }
  j.cerrarObjeto();
  if (const auto* rejilla = ventana.buscar<Grid>("Grid1")) {
    j.clave("Grid1");
    escribirTabla(j, rejilla->tabla);
  }
  j.cerrarObjeto();
}

/// A window that holds nothing but a table is that table; any other is an object of its tables and texts.
void escribirReporte(EscritorJson& j, const Ventana& ventana) {
  const auto* unica = ventana.buscar<Grid>("Grid1");
  const auto esTexto = [](const Control* c) {
    return dynamic_cast<const TextBox*>(c) != nullptr || dynamic_cast<const Label*>(c) != nullptr;
  };
  const auto& controles = ventana.controles();
  if (unica != nullptr && std::none_of(controles.begin(), controles.end(), esTexto)) {
    escribirTabla(j, unica->tabla);
    return;
  }
  j.abrirObjeto();
  for (const Control* c : controles) {
    if (const auto* tabla = dynamic_cast<const Grid*>(c)) {
      j.clave(c->nombre());
      escribirTabla(j, tabla->tabla);
    } else if (const auto* texto = dynamic_cast<const TextBox*>(c)) {
      j.clave(c->nombre());
      j.texto(texto->Text.valor());
    } else if (const auto* rotulo = dynamic_cast<const Label*>(c)) {
      j.clave(c->nombre());
      j.texto(rotulo->Caption.valor());
    }
  }
  j.cerrarObjeto();
}

void escribirReportes(EscritorJson& j, const std::vector<ReporteAbierto>& reportes) {
  if (reportes.empty()) return;
  j.clave("reportes");
  j.abrirObjeto();
  for (const ReporteAbierto& r : reportes) {
    j.clave(r.nombre);
    if (r.ventana != nullptr) {
      escribirReporte(j, *r.ventana);
      continue;
    }
    j.abrirObjeto();
    j.clave("fallo");
    j.texto(r.fallo);
    j.cerrarObjeto();
  }
  j.cerrarObjeto();
}

/// The last digits of a power are not the same in every system's mathematical library.
double redondeado(double x) { return Round(Real(x), 7).valor(); }

void escribirComprobaciones(EscritorJson& j, const Comprobaciones& todas) {
  j.clave("comprobaciones");
  j.abrirLista();
  for (const Comprobacion& c : todas) {
    j.abrirObjeto();
    j.clave("nombre");
    j.texto(c.nombre);
    j.clave("estado");
    j.texto(nombreEstado(c.estado));
    j.clave("valor");
    j.numero(redondeado(c.valor));
    j.clave("limite");
    j.numero(redondeado(c.limite));
    j.clave("unidad");
    j.texto(c.unidad);
    j.clave("detalle");
    j.texto(c.detalle);
    j.cerrarObjeto();
  }
  j.cerrarLista();
}

void escribirCabecera(EscritorJson& j, const std::string& archivo, const Estructura* estructura, bool calculado) {
  j.clave("version");
  j.texto(version());
  j.clave("archivo");
  j.texto(archivo);
  j.clave("estructura");
  estructura != nullptr ? j.texto(estructura->clave) : j.nulo();
  j.clave("calculado");
  j.logico(calculado);
}

}  // namespace

std::string comoJson(const Sesion& s) {
  EscritorJson j;
  j.abrirObjeto();
  escribirCabecera(j, s.archivo(), s.estructura(), s.calculado());
  escribirPuestos(j, s.puestos());
  escribirMensajes(j, s.mensajes());
  escribirNotas(j, s.notas());
  if (s.ventana() != nullptr) {
    escribirEstado(j, s.estado());
    escribirPerfiles(j, s.estado());
    escribirVentana(j, *s.ventana(), *s.estructura());
    escribirReportes(j, s.reportes());
    escribirComprobaciones(j, s.comprobaciones());
  }
  j.cerrarObjeto();
  return j.salida();
}

std::string comoJson(const std::string& archivo, const std::string& fallo) {
  EscritorJson j;
  j.abrirObjeto();
  escribirCabecera(j, archivo, estructuraDe(archivo), false);
  escribirMensajes(j, {{Mensaje::Tipo::fallo, fallo}});
  j.cerrarObjeto();
  return j.salida();
}

}  // namespace calvento::lote
