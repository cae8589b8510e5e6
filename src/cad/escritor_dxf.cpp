#include "cad/escritor_dxf.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <dxflib/dl_dxf.h>
#include <numbers>

#include "cad/cota_dxf.h"
#include "comun/version.h"
#include "modelo/codificacion.h"

namespace calvento {

namespace {

constexpr const char* estiloTexto = "Standard";
constexpr double escalaVentana = 1.5;             ///< width to height of the view that the drawing opens with
constexpr double anchoA3 = 0.42, altoA3 = 0.297;  ///< m; on a sheet of this size, lying, the drawing is printed

/// A setting of dimensions: its header variable, its group in a style, its value.
template <class Valor>
struct AjusteCota {
  const char* variable;
  int grupo;
  Valor valor;
};
constexpr AjusteCota<double> medidasDeCota[] = {
    {"$DIMSCALE", 40, 1},
    {"$DIMASZ", 41, medidaCota},
    {"$DIMEXO", 42, separacionEnSitio},
    {"$DIMEXE", 44, medidaCota},
    {"$DIMTXT", 140, medidaCota},
    {"$DIMLFAC", 144, 1},
    {"$DIMGAP", 147, medidaCota* holguraCota},
};
constexpr int grupoPosicion = 77, grupoCeros = 78, grupoDecimales = 271;
constexpr int sinCerosFinales = 8, decimalesCota = 3;
constexpr AjusteCota<int> modosDeCota[] = {
    {"$DIMTIH", 73, 0},  // texts lie along their line,
    {"$DIMTOH", 74, 0},  // outside its ends too
    {"$DIMTAD", grupoPosicion, 0},
    {"$DIMZIN", grupoCeros, sinCerosFinales},
    {"$DIMDEC", grupoDecimales, decimalesCota},
    {"$DIMLUNIT", 277, 2},  // decimal
    {"$DIMDSEP", 278, '.'},
};

std::string bloqueDeCota(std::size_t numero) { return "*D" + std::to_string(numero); }

/// The rectangle that holds all of a drawing.
struct Limites {
  double x1 = 1e20, y1 = 1e20, x2 = -1e20, y2 = -1e20;
  void incluir(const PuntoCad& p, double margen = 0) {
    x1 = std::min(x1, p.x - margen), x2 = std::max(x2, p.x + margen);
    y1 = std::min(y1, p.y - margen), y2 = std::max(y2, p.y + margen);
  }
};

Limites limitesDe(const DatosDxf& dibujo) {
  struct Visita {
    Limites& l;
    void operator()(const LineaDxf& e) const { l.incluir(e.a), l.incluir(e.b); }
    void operator()(const PolilineaDxf& e) const {
      for (const PuntoCad& p : e.vertices) l.incluir(p);
    }
    void operator()(const CirculoDxf& e) const { l.incluir(e.centro, e.radio); }
    void operator()(const TextoDxf& e) const { l.incluir(e.en, e.altura); }
    void operator()(const CotaDxf& e) const { l.incluir(e.a), l.incluir(e.b), l.incluir(e.texto, e.altura); }
  };
  Limites l;
  for (const EntidadDxf& e : dibujo.entidades) std::visit(Visita{l}, e.forma);
  if (l.x1 > l.x2) l = {0, 0, 1, 1};
  return l;
}

/// The library writes to a file that it opens itself; here its groups are kept in memory instead. Reals and
/// hexadecimal numbers come by as texts.
class GruposEnMemoria : public DL_WriterA {
 public:
  GruposEnMemoria() : DL_WriterA("", DL_Codes::AC1015) {}
  void dxfString(int codigo, const char* valor) const override {
    texto_.append(codigo < 10 ? "  " : codigo < 100 ? " " : "").append(std::to_string(codigo)) += '\n';
    texto_.append(valor) += '\n';
  }
  void dxfString(int codigo, const std::string& valor) const override { dxfString(codigo, valor.c_str()); }
  void dxfInt(int codigo, int valor) const override { dxfString(codigo, std::to_string(valor)); }
  const std::string& texto() const { return texto_; }

 private:
  mutable std::string texto_;
};

/// Writes one drawing through the library, section by section.
class Escritor {
 public:
  explicit Escritor(const DatosDxf& dibujo) : dibujo_(dibujo), limites_(limitesDe(dibujo)) {}

  std::string escribir() {
    w_->dxfString(999, "Calvento " + version());  // a remark
    cabecera();
    tablas();
    bloques();
    w_->sectionEntities();
    std::size_t cota = 0;
    for (const EntidadDxf& e : dibujo_.entidades) {
      const DL_Attributes a(e.capa, 256, -1, "BYLAYER", 1.0);
      std::visit([&](const auto& forma) { entidad(forma, a, cota); }, e.forma);
    }
    w_->sectionEnd();
    dxf_.writeObjects(*w_);
    dxf_.writeObjectsEnd(*w_);
    w_->dxfEOF();
    return grupos_.texto();
  }

 private:
  void variable(const char* nombre, int codigo, int valor) {
    w_->dxfString(9, nombre);
    w_->dxfInt(codigo, valor);
  }
  void variable(const char* nombre, int codigo, const char* valor) {
    w_->dxfString(9, nombre);
    w_->dxfString(codigo, valor);
  }
  void variable(const char* nombre, double x, double y) {
    w_->dxfString(9, nombre);
    w_->coord(10, x, y, 0);
  }
  void variable(const char* nombre, double valor) {
    w_->dxfString(9, nombre);
    w_->dxfReal(40, valor);
  }
  void plana(const char* nombre, double x, double y) {
    w_->dxfString(9, nombre);
    w_->dxfReal(10, x);
    w_->dxfReal(20, y);
  }

  void cabecera() {
    w_->sectionHeader();
    variable("$ACADVER", 1, "AC1015");
    variable("$DWGCODEPAGE", 3, "ANSI_1252");
    w_->dxfString(9, "$HANDSEED");
    w_->dxfHex(5, static_cast<int>(0x10000 + 0x20 * dibujo_.entidades.size()));
    variable("$INSUNITS", 70, 6);  // metres
    variable("$MEASUREMENT", 70, 1);
    variable("$LUNITS", 70, 2);
    variable("$LUPREC", 70, 3);
    variable("$EXTMIN", limites_.x1, limites_.y1);
    variable("$EXTMAX", limites_.x2, limites_.y2);
    variable("$CLAYER", 8, "0");
    variable("$TEXTSTYLE", 7, estiloTexto);
    variable("$DIMSTYLE", 2, estiloTexto);
    // some viewers read how dimensions look from here alone
    for (const auto& m : medidasDeCota) variable(m.variable, m.valor);
    for (const auto& m : modosDeCota) variable(m.variable, 70, m.valor);
    plana("$PLIMMIN", 0, 0);
    plana("$PLIMMAX", anchoA3, altoA3);
    w_->sectionEnd();
  }

  /// The view that the drawing opens with: all of it.
  void ventana() {
    w_->table("VPORT", 1, 8);
    w_->dxfString(0, "VPORT");
    w_->handle(5);
    w_->dxfString(100, "AcDbSymbolTableRecord");
    w_->dxfString(100, "AcDbViewportTableRecord");
    w_->dxfString(2, "*Active");
    w_->dxfInt(70, 0);
    const auto par = [this](int codigo, double x, double y) {
      w_->dxfReal(codigo, x);
      w_->dxfReal(codigo + 10, y);
    };
    par(10, 0, 0);
    par(11, 1, 1);
    par(12, (limites_.x1 + limites_.x2) / 2, (limites_.y1 + limites_.y2) / 2);
    par(13, 0, 0);
    par(14, 1, 1);
    par(15, 1, 1);
    w_->coord(16, 0, 0, 1);
    w_->coord(17, 0, 0, 0);
    const double alto = std::max(limites_.y2 - limites_.y1, (limites_.x2 - limites_.x1) / escalaVentana);
    w_->dxfReal(40, std::max(1.1 * alto, 1.0));
    w_->dxfReal(41, escalaVentana);
    w_->dxfReal(42, 50);
    w_->tableEnd();
  }

  void tablas() {
    w_->sectionTables();
    ventana();
    static constexpr std::array<const char*, 3> lineas = {"BYBLOCK", "BYLAYER", "CONTINUOUS"};
    w_->tableLinetypes(static_cast<int>(lineas.size()));
    for (const char* nombre : lineas) dxf_.writeLinetype(*w_, DL_LinetypeData(nombre, nombre, 0, 0, 0.0));
    w_->tableEnd();
    w_->tableLayers(static_cast<int>(dibujo_.capas.size()) + 1);
    capa("0", 7);
    for (const auto& [nombre, color] : dibujo_.capas) capa(nombre, color);
    w_->tableEnd();
    w_->tableStyle(1);
    asaTexto_ = static_cast<int>(w_->getNextHandle());
    dxf_.writeStyle(*w_, DL_StyleData(estiloTexto, 0, 0, 1, 0, 0, 0.15, "Arial", ""));
    w_->tableEnd();
    dxf_.writeView(*w_);
    dxf_.writeUcs(*w_);
    w_->tableAppid(1);
    dxf_.writeAppid(*w_, "ACAD");
    w_->tableEnd();
    estiloDeCota();
    dxf_.writeBlockRecord(*w_);
    const auto cotas = std::count_if(dibujo_.entidades.begin(), dibujo_.entidades.end(),
                                     [](const EntidadDxf& e) { return std::holds_alternative<CotaDxf>(e.forma); });
    for (std::ptrdiff_t i = 1; i <= cotas; ++i) dxf_.writeBlockRecord(*w_, bloqueDeCota(static_cast<std::size_t>(i)));
    w_->tableEnd();
    w_->sectionEnd();
  }

  /// Written group by group: the library's own style has two decimals and a comma, which some viewers go by.
  void estiloDeCota() {
    constexpr int asaTabla = 0xA, asaEstilo = 0x27;  // as the library numbers what stands before the entities
    w_->dxfString(0, "TABLE");
    w_->dxfString(2, "DIMSTYLE");
    w_->dxfHex(5, asaTabla);
    w_->dxfString(100, "AcDbSymbolTable");
    w_->dxfInt(70, 1);
    w_->dxfString(100, "AcDbDimStyleTable");
    w_->dxfInt(71, 0);
    w_->dxfString(0, "DIMSTYLE");
    w_->dxfHex(105, asaEstilo);
    w_->dxfString(100, "AcDbSymbolTableRecord");
    w_->dxfString(100, "AcDbDimStyleTableRecord");
    w_->dxfString(2, estiloTexto);
    w_->dxfInt(70, 0);
    for (const auto& m : medidasDeCota) w_->dxfReal(m.grupo, m.valor);
    for (const auto& m : modosDeCota) w_->dxfInt(m.grupo, m.valor);
    w_->dxfHex(340, asaTexto_);
    w_->tableEnd();
  }

  void capa(const std::string& nombre, int color) {
    dxf_.writeLayer(*w_, DL_LayerData(nombre, 0), DL_Attributes("", color, -1, "CONTINUOUS", 1.0));
  }

  void abrirBloque(const std::string& nombre) { dxf_.writeBlock(*w_, DL_BlockData(nombre, 0, 0, 0, 0)); }

  /// Each dimension has a block with its picture, for viewers that do not compute dimensions.
  void bloques() {
    w_->sectionBlocks();
    for (const char* nombre : {"*Model_Space", "*Paper_Space", "*Paper_Space0"}) {
      abrirBloque(nombre);
      dxf_.writeEndBlock(*w_, nombre);
    }
    std::size_t numero = 0;
    for (const EntidadDxf& e : dibujo_.entidades) {
      const auto* cota = std::get_if<CotaDxf>(&e.forma);
      if (cota == nullptr) continue;
      const std::string nombre = bloqueDeCota(++numero);
      abrirBloque(nombre);
      const DL_Attributes a("0", 0, -1, "BYBLOCK", 1.0);
      const DibujoCota d = dibujarCota(*cota);
      std::size_t ninguna = 0;
      for (const LineaDxf& l : d.lineas) entidad(l, a, ninguna);
      for (const FlechaDxf& f : d.flechas) flecha(f, a);
      entidad(d.texto, a, ninguna);
      dxf_.writeEndBlock(*w_, nombre);
    }
    w_->sectionEnd();
  }

  void entidad(const LineaDxf& e, const DL_Attributes& a, std::size_t&) {
    dxf_.writeLine(*w_, DL_LineData(e.a.x, e.a.y, e.a.z, e.b.x, e.b.y, e.b.z), a);
  }
  void entidad(const PolilineaDxf& e, const DL_Attributes& a, std::size_t&) {
    dxf_.writePolyline(*w_, DL_PolylineData(static_cast<int>(e.vertices.size()), 0, 0, 0), a);
    for (const PuntoCad& p : e.vertices) dxf_.writeVertex(*w_, DL_VertexData(p.x, p.y, p.z));
    dxf_.writePolylineEnd(*w_);
  }
  void entidad(const CirculoDxf& e, const DL_Attributes& a, std::size_t&) {
    dxf_.writeCircle(*w_, DL_CircleData(e.centro.x, e.centro.y, e.centro.z, e.radio), a);
  }
  void entidad(const TextoDxf& e, const DL_Attributes& a, std::size_t&) {
    const int horizontal = e.centrado ? 1 : 0;
    const int vertical = e.centrado ? 2 : 0;
    const PuntoCad ancla = e.centrado ? e.en : PuntoCad{};
    dxf_.writeText(*w_,
                   DL_TextData(e.en.x, e.en.y, e.en.z, ancla.x, ancla.y, ancla.z, e.altura, 1, 0, horizontal, vertical,
                               aWindows1252(e.texto), estiloTexto, e.giro),
                   a);
  }
  /// Written group by group: the library does not name the block of a dimension.
  void entidad(const CotaDxf& e, const DL_Attributes& a, std::size_t& numero) {
    const DibujoCota d = dibujarCota(e);
    w_->entity("DIMENSION");
    w_->dxfString(100, "AcDbEntity");
    w_->entityAttributes(a);
    w_->dxfString(100, "AcDbDimension");
    w_->dxfString(2, bloqueDeCota(++numero));
    w_->coord(10, d.enLinea.x, d.enLinea.y, d.enLinea.z);
    w_->coord(11, e.texto.x, e.texto.y, e.texto.z);
    constexpr int alineada = 1, bloquePropio = 32, textoColocado = 128;
    w_->dxfInt(70, alineada + bloquePropio + textoColocado);
    w_->dxfInt(71, 5);
    w_->dxfReal(42, d.medida);
    w_->dxfString(1, "");
    w_->dxfString(3, estiloTexto);
    w_->dxfString(100, "AcDbAlignedDimension");
    w_->coord(13, e.a.x, e.a.y, e.a.z);
    w_->coord(14, e.b.x, e.b.y, e.b.z);
    w_->dxfReal(50, std::atan2(e.b.y - e.a.y, e.b.x - e.a.x) * 180 / std::numbers::pi);
    ajustesDeCota(e);
  }
  /// What this dimension has of its own beside the style: sizes, three decimals without trailing zeros.
  void ajustesDeCota(const CotaDxf& e) {
    w_->dxfString(1001, "ACAD");
    w_->dxfString(1000, "DSTYLE");
    w_->dxfString(1002, "{");
    const std::array<std::pair<int, double>, 5> medidas = {
        {{41, e.flecha}, {42, e.separacion}, {44, e.extension}, {140, e.altura}, {147, e.altura * holguraCota}}};
    for (const auto& [codigo, valor] : medidas) {
      w_->dxfInt(1070, codigo);
      w_->dxfReal(1040, valor);
    }
    const std::array<std::pair<int, int>, 3> modos = {
        {{grupoPosicion, e.posicion}, {grupoCeros, sinCerosFinales}, {grupoDecimales, decimalesCota}}};
    for (const auto& [codigo, valor] : modos) {
      w_->dxfInt(1070, codigo);
      w_->dxfInt(1070, valor);
    }
    w_->dxfString(1002, "}");
  }
  void flecha(const FlechaDxf& f, const DL_Attributes& a) {
    const auto& [p, i, d] = f;
    dxf_.writeSolid(*w_, DL_SolidData(p.x, p.y, p.z, i.x, i.y, i.z, d.x, d.y, d.z, d.x, d.y, d.z, 0), a);
  }

  const DatosDxf& dibujo_;
  Limites limites_;
  int asaTexto_ = 0;  ///< handle of the text style
  DL_Dxf dxf_;
  GruposEnMemoria grupos_;
  DL_WriterA* w_ = &grupos_;
};

}  // namespace

std::string comoDxf(const DatosDxf& dibujo) { return Escritor(dibujo).escribir(); }

}  // namespace calvento
