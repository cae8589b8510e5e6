// Scenes played on the windows of the whole program: what is typed and pressed, which boxes appear, what then stands
// where. They are data, tests/guiones.
#include <fstream>
#include <sstream>

#include "apoyo/cajas_escritas.h"
#include "apoyo/mesa.h"
#include "lote/campos.h"
#include "lote/caso.h"
#include "modelo/archivo_proyecto.h"
#include "plataforma/rejilla.h"
#include "plataforma/ventana_datos.h"

namespace calvento::lote {
namespace {

/// Shows nothing and notes what it was asked for.
class Sistema : public SinPantalla {
 public:
  std::vector<std::string> llamadas;
  void presentar(Ventana& v) override { llamadas.push_back("presentar " + v.nombre()); }
  void cerrar(Ventana& v) override { llamadas.push_back("cerrar " + v.nombre()); }
  void ocultar(Ventana& v) override { llamadas.push_back("ocultar " + v.nombre()); }
  void imprimir(Ventana& v) override { llamadas.push_back("imprimir " + v.nombre()); }
  void copiar(Ventana& v) override { llamadas.push_back("copiar " + v.nombre()); }
};

/// "Text1=2.5 Text2=" as an object; the texts of this short form hold no blanks.
Json comoObjeto(const Json& pares) {
  if (!pares.is_string()) return pares;
  Json objeto;
  std::istringstream palabras(pares.get<std::string>());
  for (std::string p; palabras >> p;) objeto[p.substr(0, p.find('=', 1))] = p.substr(p.find('=', 1) + 1);
  return objeto;
}

class Escena {
 public:
  explicit Escena(const Json& escena, const Json& datos)
      : datos_(datos), ventana_(programa_.cargar(escena["ventana"].get<std::string>())) {
    const Json archivos = escena.value("archivos", Json::object());
    for (const auto& [nombre, lineas] : archivos.items()) {
      if (lineas == "carpeta") std::filesystem::create_directory(nombre);
      if (lineas == "tubería") carpeta_.tuberia(nombre);
      if (!lineas.is_array()) continue;
      std::string contenido;
      for (const Json& l : lineas) contenido += l.get<std::string>() + "\r\n";
      carpeta_.escribir(nombre, contenido);
    }
    for (const Json& paso : escena["pasos"]) {
      SCOPED_TRACE(paso.dump());
      dar(paso);
    }
  }

 private:
  void dar(const Json& paso) {
    for (const Json& c : paso.value("cajas", Json::array())) {
      std::string caja = c;
      if (const auto i = caja.find("{}/"); i != std::string::npos) caja.replace(i, 2, carpeta_.en(""));
      prepararCaja(dialogos_, caja);
    }
    sistema_.llamadas.clear();
    const auto obrar = [&] {
      if (paso.contains("base")) ponerTodo(datos_[paso["base"].get<std::string>()]);
      if (paso.contains("pon")) ponerTodo(paso["pon"]);
      if (paso.contains("proyecto")) {
        const std::string archivo = paso["proyecto"];
        programa_.abrirProyecto(archivo.starts_with("ejemplos/") ? RAIZ_PROYECTO "/" + archivo : archivo);
      }
      if (paso.contains("muestra")) programa_.mostrar(paso["muestra"].get<std::string>());
      if (paso.contains("pulsa")) pulsar(paso["pulsa"]);
    };
    if (paso.contains("escritos"))
      EXPECT_EQ(camposEscritos(programa_.estado, obrar), enOrden(paso["escritos"]));
    else
      obrar();
    dialogos_.comprobarGastado();
    if (paso.contains("abre")) comparar(Json(sistema_.llamadas), paso["abre"], "asked of the windows");
    const Json ve = comoObjeto(paso.value("ve", Json::object()));
    for (const auto& [que, debe] : ve.items()) comparar(valor(que), debe, que);
  }

  /// The control of a name with or without the window's.
  std::pair<Ventana*, std::string> donde(const std::string& nombre) {
    if (!nombre.starts_with("Form")) return {ventana_, nombre};
    const std::size_t punto = nombre.find('.');
    Ventana* v = programa_.cargar(nombre.substr(0, punto));
    if (v == nullptr) throw std::runtime_error("no window for " + nombre);
    return {v, nombre.substr(punto + 1)};
  }

  /// What stands in a field is replaced as a program does, any other control is set as a user does.
  void ponerTodo(const Json& pares) {
    const Json objeto = comoObjeto(pares);
    for (const auto& [nombre, texto] : objeto.items()) {
      if (nombre.starts_with("=")) {
        if (Single* c = campo(nombre)) *c = Val(texto.get<std::string>());
        if (nombre == "=rutaArchivo") programa_.estado.rutaArchivo = texto;
        if (nombre == "=esNuevo") programa_.estado.esNuevo = texto == "1";
        continue;
      }
      const auto [v, control] = donde(nombre);
      if (auto* t = v->buscar<TextBox>(control))
        t->Text = texto;
      else if (auto* f = v->buscar<Frame>(control))
        f->Visible = texto == "1";
      else if (auto* l = v->buscar<Label>(control))
        l->Caption = texto;
      else if (auto* b = v->buscar<StatusBar>(control))
        b->Panel1 = texto;
      else
        poner(*v, {v->nombre(), control, texto});
    }
  }

  void pulsar(const Json& que) {
    if (que.is_array()) {
      for (const Json& q : que) pulsar(q);
      return;
    }
    std::istringstream palabras(que.get<std::string>());
    std::string nombre, como;
    palabras >> nombre >> como;
    const auto [v, control] = donde(nombre);
    Control* c = v->buscar(control);
    ASSERT_NE(c, nullptr) << nombre;
    if (como == "GotFocus") return disparar(c->GotFocus);
    if (como == "MouseMove") return disparar(c->MouseMove);
    if (auto* b = dynamic_cast<CommandButton*>(c)) return disparar(b->Click);
    if (auto* m = dynamic_cast<Menu*>(c)) return disparar(m->Click);
    if (auto* f = dynamic_cast<UpDown*>(c)) return como == "sube" ? f->subir() : f->bajar();
    if (auto* t = dynamic_cast<Toolbar*>(c); t != nullptr && como == "*") {
      for (const std::string& clave : t->claves()) t->ButtonClick(clave);
      return t->ButtonClick("otra");
    }
    if (auto* t = dynamic_cast<Toolbar*>(c)) return t->ButtonClick(como);
    if (auto* g = dynamic_cast<Grid*>(c)) return g->pulsar(std::stoi(como));
    ADD_FAILURE() << nombre << " cannot be pressed";
  }

  Single* campo(const std::string& nombre) {
    for (const CampoSingle& c : camposSingle())
      if (c.nombre == nombre.substr(1)) return &(programa_.estado.*c.campo);
    return nullptr;
  }

  Json valor(const std::string& que) {
    const DesignState& e = programa_.estado;
    if (Single* c = que.starts_with("=") ? campo(que) : nullptr) return static_cast<double>(c->valor());
    if (que == "=numTramos") return static_cast<int>(e.numTramos);
    if (que == "=esNuevo") return e.esNuevo;
    if (que == "entradas") return carpeta_.entradas();
    if (que == "=perfil") return e.perfil.size();
    if (que.starts_with("archivo ")) return leerLineas(carpeta_.en(que.substr(8)), 99);
    if (que == "=tipoTubo") return e.tipoTubo;
    if (que == "=rutaArchivo") return e.rutaArchivo;
    if (que == "calculado") return dynamic_cast<VentanaDatos*>(ventana_)->calculado();
    if (que == "Caption") return ventana_->Caption.valor();
    if (que == "Panel1") return ventana_->buscar<StatusBar>("sbStatusBar")->Panel1.valor();
    if (que == "Nota") return ventana_->buscar<StatusBar>("sbStatusBar")->Nota.valor();
    if (que == "menus" || que == "llenos") return lista(que == "menus");
    if (que == "rotulos") return rotulos();
    const auto [v, nombre] = donde(que);
    const std::size_t fin = std::min(nombre.find('['), nombre.find('.'));
    Control* c = v->buscar(nombre.substr(0, fin));
    if (c == nullptr) return "no control " + que;
    return fin >= nombre.size() ? propia(*c) : propiedad(*c, nombre.substr(fin));
  }

  /// The result menus that are enabled, or the fields that are not empty.
  std::string lista(bool menus) {
    std::string s;
    for (const Estructura& estructura : estructuras())
      if (menus && estructura.formato->ventana == ventana_->nombre())
        for (const auto m : estructura.menus)
          if (ventana_->buscar(m)->Enabled) s.append(s.empty() ? "" : " ").append(m);
    for (const Control* c : ventana_->controles())
      if (const auto* t = dynamic_cast<const TextBox*>(c); !menus && t != nullptr && !t->Text.valor().empty())
        s.append(s.empty() ? "" : " ").append(t->nombre());
    return s;
  }

  /// The captions in sight, each with the field of its number.
  std::string rotulos() {
    std::string s;
    for (const Control* c : ventana_->controles())
      if (const auto* l = dynamic_cast<const Label*>(c)) {
        EXPECT_EQ(ventana_->buscar("Text" + l->nombre().substr(5))->Visible, l->Visible) << l->nombre();
        if (l->Visible) s += l->Caption.valor() + "|";
      }
    return s;
  }

  static Json propia(const Control& c) {
    if (const auto* t = dynamic_cast<const TextBox*>(&c)) return t->Text.valor();
    if (const auto* l = dynamic_cast<const Label*>(&c)) return l->Caption.valor();
    if (const auto* o = dynamic_cast<const OptionButton*>(&c)) return o->Value.valor();
    if (const auto* k = dynamic_cast<const CheckBox*>(&c)) return k->Value.valor();
    if (dynamic_cast<const Menu*>(&c) != nullptr) return c.Enabled.valor();
    return c.Visible.valor();
  }

  static Json propiedad(const Control& c, const std::string& cual) {
    if (cual == ".Visible") return c.Visible.valor();
    if (cual == ".Enabled") return c.Enabled.valor();
    if (cual == ".BackColor") return c.BackColor.valor().valor;
    if (cual == ".ForeColor") return c.ForeColor.valor().valor;
    if (cual == ".ToolTipText") return c.ToolTipText.valor();
    // a cell: "[3][2]" its text, "[3]" whether its row is marked
    const auto* g = dynamic_cast<const Grid*>(&c);
    if (g == nullptr) return "no property " + cual;
    const int fila = cual[1] - '0';
    if (cual.size() < 6) return g->tabla.fondo(fila, 0) == color::celdaElegida;
    return g->tabla.texto(fila, cual[4] - '0');
  }

  const Json& datos_;
  const CarpetaPrueba carpeta_;
  DialogosGuion dialogos_;
  Sistema sistema_;
  Aplicacion programa_{dialogos_, sistema_};
  Ventana* ventana_;
};

TEST(Ventanas, EachIsOneForTheWholeRun) {
  DialogosGuion dialogos;
  Sistema sistema;
  Aplicacion a(dialogos, sistema);
  a.arrancar();
  EXPECT_EQ(sistema.llamadas, (std::vector<std::string>{"presentar frmMain", "presentar frmAbout"}));
  a.abrirProyecto(RAIZ_PROYECTO "/ejemplos/04-tres-tramos.cvr");  // reports need a design
  a.estado.bEntradaCaida = a.estado.bPozaCaida = 2;               // and those of the drops what only these have
  for (const std::string_view nombre : a.nombres()) {
    Ventana* v = a.cargar(nombre);
    ASSERT_NE(v, nullptr) << nombre;
    a.mostrar(nombre);
    EXPECT_EQ(a.cargada(nombre), v) << nombre;
    EXPECT_EQ(v->nombre(), nombre);
  }
  EXPECT_EQ(a.cargar("Form99"), nullptr);
}

std::vector<std::string> guiones() {
  std::vector<std::string> todos;
  for (const auto& g : std::filesystem::directory_iterator(RAIZ_PROYECTO "/tests/guiones"))
    if (g.path().extension() == ".json") todos.push_back(g.path().string());
  std::sort(todos.begin(), todos.end());
  return todos;
}

class Guion : public testing::TestWithParam<std::string> {};

TEST_P(Guion, GoesAsItIsWritten) {
  const Json guion = Json::parse(std::ifstream(GetParam()));
  for (const auto& [nombre, escena] : guion["escenas"].items()) {
    SCOPED_TRACE(nombre);
#ifdef _WIN32
    if (escena.contains("posix")) continue;
#endif
    const Escena jugada(escena, guion.value("datos", Json::object()));
  }
}

INSTANTIATE_TEST_SUITE_P(Ventanas, Guion, testing::ValuesIn(guiones()),
                         [](const auto& g) { return std::filesystem::path(g.param).stem().string(); });

}  // namespace
}  // namespace calvento::lote
