#include "estudio/entradas.h"

#include <algorithm>
#include <array>

#include "comun/numeros.h"
#include "estudio/ventanas_propias.h"
#include "plataforma/rejilla.h"

namespace calvento {

namespace {

/// A field of the record and the control it is read from.
struct Nombre {
  std::string_view registro;
  std::string_view control;
};

constexpr std::array comunes = {
    Nombre{"Q", "Text5"},
    Nombre{"bArriba", "Text6"},
    Nombre{"zArriba", "Text7"},
    Nombre{"nArriba", "Text8"},
    Nombre{"sArriba", "Text9"},
    Nombre{"bAbajo", "Text16"},
    Nombre{"zAbajo", "Text18"},
    Nombre{"nAbajo", "Text19"},
    Nombre{"sAbajo", "Text20"},
    Nombre{"cotaFin", "Text2"},
    Nombre{"cotaAbajo", "Text4"},
    Nombre{"zRampaSalida", "Text22"},
    Nombre{"progresivaInicio", "Text25"},
};
constexpr std::array deRapida = {
    Nombre{"bRapida", "Text10"},     Nombre{"zRapida", "Text11"},       Nombre{"nRapida", "Text12"},
    Nombre{"sTramo1", "Text13"},     Nombre{"sTramo2", "Text15"},       Nombre{"sTramo3", "Text14"},
    Nombre{"numTramos", "Text17"},   Nombre{"bPoza", "Text23"},         Nombre{"zPoza", "Text24"},
    Nombre{"cotaInicio", "Text1"},   Nombre{"cotaTramo2", "Text3"},     Nombre{"cotaTramo3", "Text27"},
    Nombre{"ahogamiento", "Text26"}, Nombre{"zRampaEntrada", "Text21"},
};
constexpr std::array deInclinada = {
    Nombre{"bPozaCaida", "Text23"},
    Nombre{"zPozaCaida", "Text24"},
    Nombre{"ahogamiento", "Text3"},
    Nombre{"zRampaEntrada", "Text21"},
};
constexpr std::array deVertical = {Nombre{"bPozaCaida", "Text23"}};
constexpr std::array parametrosTanques = {Nombre{"anguloTransicion", "Text9"}};
constexpr std::array parametrosVertical = {Nombre{"anguloTransicion", "Text9"}, Nombre{"kLongPoza", "Text1"},
                                           Nombre{"longTransVert", "Text2"}, Nombre{"longTubo", "Text10"}};

using Nombres = std::vector<Nombre>;

std::string nombreDe(const Nombres& nombres, const Ventana& ventana, const Control& control) {
  const auto it = std::ranges::find_if(nombres, [&](const Nombre& n) { return n.control == control.nombre(); });
  return it == nombres.end() ? ventana.nombre() + "." + control.nombre() : std::string(it->registro);
}

void anadirCampos(std::vector<Entrada>& lista, const Ventana& ventana, const Nombres& nombres) {
  for (const Control* c : ventana.controles()) {
    const auto* campo = dynamic_cast<const TextBox*>(c);
    if (campo == nullptr || !campo->numerico || !campo->magnitud.loLeeElCalculo) continue;
    const Magnitud& m = campo->magnitud;
    lista.push_back({nombreDe(nombres, ventana, *c),
                     ventana.nombre(),
                     c->nombre(),
                     std::string(m.nombre),
                     std::string(m.unidad),
                     m.dominio,
                     {}});
  }
}

/// The basin: a row of the table, or one of the two options of a vertical drop.
Entrada tipoDeTanque(const VentanaDatos& datos) {
  Entrada tipo{"tipoTanque", datos.nombre(), "Grid1", "Tipo de tanque amortiguador", "", Dominio::todos, {}};
  if (const auto* rejilla = datos.buscar<Grid>("Grid1")) {
    for (int f = 1; f < rejilla->tabla.filas(); ++f)
      tipo.opciones.push_back({std::to_string(f), rejilla->tabla.texto(f, 0)});
  } else {
    tipo.control = "Option1";
    tipo.rotulo = "Poza";
    tipo.opciones = {{"1", "Sin obstáculos"}, {"0", "Con obstáculos"}};
  }
  return tipo;
}

std::vector<Entrada> listaDe(const Ficha& ficha) {
  VentanasPropias ventanas(ficha);
  Nombres datos(comunes.begin(), comunes.end());
  const bool vertical = ficha.tipo == TipoEstructura::vertical;
  const auto juntar = [&datos](const auto& otros) { datos.insert(datos.end(), otros.begin(), otros.end()); };
  if (vertical)
    juntar(deVertical);
  else if (ficha.tipo == TipoEstructura::rapida)
    juntar(deRapida);
  else
    juntar(deInclinada);
  std::vector<Entrada> lista;
  anadirCampos(lista, ventanas.datos(), datos);
  lista.push_back(tipoDeTanque(ventanas.datos()));
  anadirCampos(lista, ventanas.parametros(),
               vertical ? Nombres(parametrosVertical.begin(), parametrosVertical.end())
                        : Nombres(parametrosTanques.begin(), parametrosTanques.end()));
  return lista;
}

}  // namespace

std::span<const Entrada> entradas(const Ficha& ficha) {
  static const std::array<std::vector<Entrada>, 3> listas = {listaDe(fichas()[0]), listaDe(fichas()[1]),
                                                             listaDe(fichas()[2])};
  return listas.at(static_cast<std::size_t>(ficha.tipo));
}

const Entrada* entradaDe(const Ficha& ficha, std::string_view nombre) {
  const auto todas = entradas(ficha);
  const auto it = std::ranges::find_if(todas, [&](const Entrada& e) {
    return e.nombre == nombre || (e.esNumero() && e.ventana + "." + e.control == nombre);
  });
  return it == todas.end() ? nullptr : &*it;
}

bool Entrada::admite(std::string_view valor) const {
  return esNumero() || std::ranges::find(opciones, valor, &Opcion::valor) != opciones.end();
}

std::string Entrada::leido(const std::string& valor) const {
  const auto it = std::ranges::find(opciones, valor, &Opcion::valor);
  return it == opciones.end() ? valor : it->nombre;
}

std::string valorDe(const Diseno& d, const Entrada& e) {
  if (!e.esNumero()) return texto(Real(d.e.tipoTanque));
  return e.ventana == d.ficha->formato->ventana ? d.campo(e.control) : d.parametro(e.control);
}

void poner(VentanaDatos& datos, Ventana& parametros, const Puesto& p) {
  Ventana& ventana = p.entrada->ventana == datos.nombre() ? static_cast<Ventana&>(datos) : parametros;
  Control* const control = ventana.buscar(p.entrada->control);
  if (auto* campo = dynamic_cast<TextBox*>(control))
    campo->escribir(p.texto);
  else if (auto* rejilla = dynamic_cast<Grid*>(control))
    rejilla->pulsar(static_cast<int>(Val(p.texto).valor()));
  else
    datos.buscar<OptionButton>(p.texto == "1" ? "Option1" : "Option2")->Value = true;
}

void poner(VentanaDatos& datos, Ventana& parametros, std::span<const Puesto> puestos) {
  for (const Puesto& p : puestos) poner(datos, parametros, p);
  // the rise of a drop is foretold where its width is entered, not with each field
  if (auto* ancho = datos.buscar<TextBox>("Text23")) disparar(ancho->GotFocus);
}

void usarDiseno(VentanaDatos& datos, Ventana& parametros, std::span<const Puesto> puestos) {
  poner(datos, parametros, puestos);
  datos.Command3_Click();
}

}  // namespace calvento
