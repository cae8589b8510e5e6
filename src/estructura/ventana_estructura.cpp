#include "estructura/ventana_estructura.h"

#include <algorithm>
#include <utility>

#include "comun/numeros.h"
#include "estructura/pasos.h"
#include "hidraulica/solvers.h"
#include "plataforma/campos.h"

namespace calvento {

VentanaEstructura::VentanaEstructura(const FormatoProyecto& formato, DesignState& estado, Ventana& parametros,
                                     Dialogos& dialogos, Navegador& navegador)
    : VentanaDatos(formato.ventana, std::string(formato.titulo)),
      estado_(estado),
      dialogos_(dialogos),
      navegador_(navegador),
      formato_(formato),
      deParametros_(parametros),
      proyecto_(formato, estado, *this, parametros, dialogos) {
  unirArchivo();
  Command3.Click = [this] { Command3_Click(); };
  mnmemoria.Click = [this] { navegador_.mostrar("Memoria" + nombre()); };
  mnestudio.Click = [this] { navegador_.mostrar("Estudio" + nombre()); };
  estado_.esNuevo = true;
}

void VentanaEstructura::unirArchivo() {
  mnnuevo.Click = [this] { empezarNuevo(); };
  mnabrir.Click = [this] { Abrir_Archivo(); };
  mnguardar.Click = [this] { Guardar_Archivo(); };
  mnguardarcomo.Click = [this] { Guardarcomo_Archivo(); };
  mnimprimir.Click = [this] { navegador_.imprimir(*this); };
  mncopiar.Click = [this] { navegador_.copiar(*this); };
  mncerrar.Click = [this] { navegador_.descargar(*this); };
  Toolbar1.ButtonClick = [this](const std::string& clave) {
    if (clave == "nuevo") empezarNuevo();
    if (clave == "abrir") Abrir_Archivo();
    if (clave == "guardar") Guardar_Archivo();
    if (clave == "Copiar") navegador_.copiar(*this);
    if (clave == "imprimir") navegador_.imprimir(*this);
  };
}

void VentanaEstructura::contarCalculo() {
  std::string nombre = Caption;
  if (const std::size_t guion = nombre.find(" - "); guion != std::string::npos) nombre.replace(guion, 3, " ");
  estado_.calculo = {estado_.calculo.numero + 1, this->nombre(), std::move(nombre)};
  navegador_.calculado();
}

void VentanaEstructura::empezarNuevo() {
  dejarContenido();
  nuevo();
  proyecto_.olvidarArchivo();
  disparar(proyecto_.alCoincidir);
}

void VentanaEstructura::vigilar(Evento alSustituir, Evento alCoincidir) {
  proyecto_.alSustituir = std::move(alSustituir);
  proyecto_.alCoincidir = std::move(alCoincidir);
}

Trabajo VentanaEstructura::trabajo() const {
  Trabajo t = proyecto_.trabajo();
  t.calculado = calculado_ && mnmemoria.Enabled;  // a new project has no results
  return t;
}

void VentanaEstructura::reponer(const Trabajo& trabajo) {
  nuevo();
  calculado_ = false;
  quitarSenales(*this);
  quitarSenales(deParametros_);
  proyecto_.reponer(trabajo, [&] { trasLeer(trabajo.calculado); });
}

void VentanaEstructura::Command3_Click() {
  contarCalculo();
  calculado_ = false;
  quitarSenales(*this);
  quitarSenales(deParametros_);
  dialogos_.mensajes.clear();
  try {
    calculado_ = calcular();
  } catch (const FalloAritmetico& fallo) {
    contarFallo(fallo);
  }
  navegador_.calculoTerminado(*this);
}

/// The fields that may be the reason are marked already behind the box; what is in sight is corrected first.
void VentanaEstructura::contarFallo(const FalloAritmetico& fallo) {
  const bool aqui = senalarDudosos(*this);
  const bool enParametros = senalarDudosos(deParametros_);
  dialogos_.fallo(std::string(fallo.what()) + ": Ingresar datos correctamente, verificar");
  if (aqui) {
    disparar(alPedirCorreccion);
  } else if (enParametros) {
    navegador_.mostrar(deParametros_.nombre());
    disparar(deParametros_.alPedirCorreccion);
  }
}

void VentanaEstructura::Abrir_Archivo() {
  proyecto_.Abrir_Archivo([this] { trasLeer(true); });
}

void VentanaEstructura::abrir(const std::string& ruta) {
  proyecto_.abrir(ruta, [this] { trasLeer(true); });
}

void VentanaEstructura::abrirCopia(const std::string& ruta) {
  proyecto_.abrirCopia(ruta, [this] { trasLeer(true); });
}

void VentanaEstructura::leer(const TextBox& campo, Single DesignState::*valor) { estado_.*valor = Val(campo.Text); }

void VentanaEstructura::leerCanalArriba() {
  using D = DesignState;
  leer(Text5, &D::Q);
  leer(Text6, &D::bArriba);
  leer(Text7, &D::zArriba);
  leer(Text8, &D::nArriba);
  leer(Text9, &D::sArriba);
}

void VentanaEstructura::leerCanalAbajo() {
  using D = DesignState;
  leer(Text16, &D::bAbajo);
  leer(Text18, &D::zAbajo);
  leer(Text19, &D::nAbajo);
  leer(Text20, &D::sAbajo);
}

Evento VentanaEstructura::abre(const char* ventana) {
  return [this, ventana] { navegador_.mostrar(ventana); };
}

void VentanaEstructura::abreResultado(Menu& menu, const char* ventana) {
  menu.Click = abre(ventana);
  anotarResultado(menu, ventana, menu.Click);
}

void VentanaEstructura::anotarResultado(const Menu& menu, const char* ventana, Evento mostrar) {
  resultados_.push_back({&menu, ventana, std::move(mostrar)});
}

Evento VentanaEstructura::comoMostrar(std::string_view resultado) const {
  const auto it =
      std::find_if(resultados_.begin(), resultados_.end(), [&](const Resultado& r) { return r.ventana == resultado; });
  return it == resultados_.end() || !it->menu->Enabled ? Evento{} : it->mostrar;
}

void VentanaEstructura::habilitar(std::initializer_list<Menu*> menus, bool activos) {
  for (Menu* m : menus) m->Enabled = activos;
  mnmemoria.Enabled = activos;
}

void VentanaEstructura::vaciarCampos(std::initializer_list<TextBox*> campos) {
  for (TextBox* campo : campos) campo->Text = "";
}

void VentanaEstructura::mostrarAncho(const char* rotulo, Real (*ancho)(Real Q)) {
  if (vacio(Text5.Text)) {
    sbStatusBar.Panel1 = "";
    return;
  }
  pasandoFallos([&] { leer(Text5, &DesignState::Q); });
  pasandoFallos([&] { sbStatusBar.Panel1 = rotulo + texto(Round(ancho(estado_.Q), 3)); });
}

void VentanaEstructura::ponerAncho(TextBox& campo, Real (*ancho)(Real Q)) {
  if (vacio(Text5.Text)) return;
  pasandoFallos([&] {
    leer(Text5, &DesignState::Q);
    campo.Text = texto(Round(ancho(estado_.Q), 3));
  });
}

void VentanaEstructura::pistaTalud(TextBox& campo, const char* consejo, const char* panel) {
  campo.MouseMove = [this, &campo, consejo, panel] {
    campo.ToolTipText = consejo;
    sbStatusBar.Panel1 = panel;
  };
}

bool VentanaEstructura::algunoVacio(std::initializer_list<const TextBox*> campos) const {
  return std::any_of(campos.begin(), campos.end(), [](const TextBox* c) { return vacio(c->Text); });
}

Real VentanaEstructura::vistaCanalArriba(bool guardarVelocidad) {
  DesignState& e = estado_;
  using D = DesignState;
  pasandoFallos([&] { leer(Text6, &D::bArriba); });
  pasandoFallos([&] { leer(Text7, &D::zArriba); });
  pasandoFallos([&] { leer(Text8, &D::nArriba); });
  pasandoFallos([&] { leer(Text9, &D::sArriba); });
  pasandoFallos([&] { e.ynArriba = YNORMAL(e.Q, e.bArriba, e.zArriba, e.nArriba, e.sArriba); });
  const Seccion canal{e.bArriba, e.zArriba};
  Real A = 0, T = 0, v = 0;
  pasandoFallos([&] { A = canal.area(e.ynArriba); });
  if (guardarVelocidad) {
    pasandoFallos([&] { e.vArriba = e.Q / A; });
    v = e.vArriba;
  } else {
    pasandoFallos([&] { v = e.Q / A; });
  }
  pasandoFallos([&] { T = canal.espejo(e.ynArriba); });
  pasandoFallos([&] { e.frArriba = v / Sqr(gravedad * A / T); });
  return v;
}

bool VentanaEstructura::vistaRegimen() {
  if (estado_.frArriba > 1) {
    Frame1.Visible = false;
    Label41.Caption = notaRapido;
    return false;
  }
  if (!(estado_.frArriba < 1)) return false;
  Frame1.Visible = true;
  Label41.Caption = "";
  return true;
}

Real VentanaEstructura::vistaEnergiaCritica(Real b, Real z) {
  DesignState& e = estado_;
  Real A = 0, v = 0, E = 0;
  pasandoFallos([&] { e.ycControl = YCRITICO(e.Q, b, z); });
  pasandoFallos([&] { A = Seccion{b, z}.area(e.ycControl); });
  pasandoFallos([&] { v = e.Q / A; });
  pasandoFallos([&] { E = energiaEspecifica(v, e.ycControl); });
  return E;
}

}  // namespace calvento
