#include "memoria/html.h"

#include "comun/xml.h"

namespace calvento {

namespace {

/// Text with its lowered and raised parts.
std::string rico(std::string_view texto) {
  std::string s;
  for (std::size_t i = 0; i < texto.size();) {
    const bool marca = (texto[i] == '_' || texto[i] == '^') && i + 1 < texto.size() && texto[i + 1] == '{';
    const auto fin = marca ? texto.find('}', i) : std::string_view::npos;
    if (fin == std::string_view::npos) {
      s += comoXml(texto.substr(i, 1));
      ++i;
      continue;
    }
    const char* etiqueta = texto[i] == '_' ? "sub" : "sup";
    s += "<" + std::string(etiqueta) + ">" + comoXml(texto.substr(i + 2, fin - i - 2)) + "</" + etiqueta + ">";
    i = fin + 1;
  }
  return s;
}

const char* alineado(Alineacion a) {
  return a == Alineacion::derecha ? "right" : a == Alineacion::centro ? "center" : "left";
}

std::string celda(const char* etiqueta, const std::string& texto, Alineacion a, std::string_view fondo, int ancho = 0) {
  std::string s = "<" + std::string(etiqueta) + " align=\"" + alineado(a) + "\"";
  if (ancho > 0) s += " width=\"" + std::to_string(ancho) + "%\"";
  if (!fondo.empty()) s += " bgcolor=\"" + std::string(fondo) + "\"";
  return s + ">" + rico(texto) + "</" + etiqueta + ">";
}

std::string_view fondoDe(Tabla::Marca m) {
  switch (m) {
    case Tabla::Marca::mal:
      return "#f9d2cf";
    case Tabla::Marca::aviso:
      return "#fbf0c8";
    case Tabla::Marca::elegida:
      return "#cfeaf3";
    case Tabla::Marca::ninguna:
      break;
  }
  return {};
}

class Escritor {
 public:
  explicit Escritor(const FormaHtml& forma) : forma_(forma) {}

  void operator()(const Parrafo& p) {
    cerrarFormulas();
    html += (p.nota ? "<p class=\"nota\">" : "<p>") + rico(p.texto) + "</p>\n";
  }
  void operator()(const Formula& f) {
    if (!enFormulas_)
      html += "<table class=\"formulas\" border=\"0\" cellspacing=\"0\" cellpadding=\"3\" width=\"100%\">\n";
    enFormulas_ = true;
    const std::string cifras = f.cifras.empty() ? "" : rico(f.cifras);
    html += "<tr><td width=\"38%\">" + rico(f.expresion) + "</td><td width=\"38%\">" + cifras +
            "</td><td width=\"24%\"><b>" + rico(f.resultado) + "</b></td></tr>\n";
  }
  void operator()(const Tabla& t) {
    cerrarFormulas();
    if (!t.titulo.empty()) html += "<h4>" + rico(t.titulo) + "</h4>\n";
    const bool ancha = t.columnas.size() > 7;
    html += "<table class=\"" + std::string(ancha ? "tabla ancha" : "tabla") +
            "\" border=\"1\" cellspacing=\"0\" cellpadding=\"3\" width=\"100%\"><thead>\n";
    for (const auto& fila : t.titulos) {
      html += "<tr>";
      for (std::size_t c = 0; c < fila.size(); ++c)
        html += celda("th", fila[c], Alineacion::centro, "#e4eaf1", c < t.anchos.size() ? t.anchos[c] : 0);
      html += "</tr>\n";
    }
    html += "</thead><tbody>\n";
    for (std::size_t f = 0; f < t.filas.size(); ++f) {
      const auto fondo = f < t.marcas.size() ? fondoDe(t.marcas[f]) : std::string_view();
      html += "<tr>";
      for (std::size_t c = 0; c < t.filas[f].size(); ++c)
        html += celda("td", t.filas[f][c], c < t.columnas.size() ? t.columnas[c] : Alineacion::izquierda, fondo);
      html += "</tr>\n";
    }
    html += "</tbody></table>\n";
  }
  void operator()(const Figura& f) {
    cerrarFormulas();
    if (!f.titulo.empty()) html += "<h4>" + rico(f.titulo) + "</h4>\n";
    html += "<p class=\"figura\" align=\"center\">" + forma_.figura(f) + "</p>\n";
  }
  void cerrarFormulas() {
    if (enFormulas_) html += "</table>\n";
    enFormulas_ = false;
  }

  std::string html;

 private:
  const FormaHtml& forma_;
  bool enFormulas_ = false;
};

constexpr std::string_view estiloComun = R"(
body { font-family: "Liberation Sans", Arial, Helvetica, sans-serif; font-size: 10pt; }
h1 { font-size: 15pt; color: #17466f; }
h2 { font-size: 12pt; color: #17466f; }
h4 { font-size: 10pt; }
th, td { font-size: 8.5pt; }
table.ancha th, table.ancha td, th.ancha, td.ancha { font-size: 7pt; }
table { margin-top: 4px; margin-bottom: 6px; }
p.nota { font-size: 8.5pt; color: #444444; }
)";

constexpr std::string_view estiloNavegador = R"(
body { max-width: 60em; margin: 2em auto; padding: 0 1em; color: #1b2530; background: white; line-height: 1.4; }
h1 { border-bottom: 2px solid #17466f; margin-top: 2.2em; }
h4 { margin: 1.2em 0 .4em; }
table { border-collapse: collapse; margin: .6em 0; }
table.tabla th, table.tabla td { border: 1px solid #9fb0c0; padding: .25em .5em; }
table.formulas td { border: 0; font-size: 10pt; }
.figura svg { max-width: 100%; height: auto; }
div.tabla-ancha { overflow-x: auto; }
@media print { h1, h2, h4 { break-after: avoid; } tr, .figura { break-inside: avoid; } body { max-width: none; } }
)";

std::string numeroYTitulo(const Documento& doc, std::size_t i) {
  // the references close the report without a number of their own
  if (i + 1 == doc.capitulos.size()) return doc.capitulos[i].titulo;
  return std::to_string(i + 1) + ". " + doc.capitulos[i].titulo;
}

}  // namespace

std::string cabezaHtml(const Documento& doc, bool navegador) {
  std::string s = navegador ? "<!DOCTYPE html>\n<html lang=\"es\">" : "<html>";
  s += "<head><meta charset=\"utf-8\"/><title>" + comoXml(doc.titulo + " - " + doc.proyecto) + "</title><style>" +
       std::string(estiloComun) + std::string(navegador ? estiloNavegador : std::string_view()) +
       "</style></head><body>\n";
  return s;
}

std::string portadaHtml(const Documento& doc, const std::function<std::string(std::size_t)>& pagina) {
  const auto linea = [](const char* rotulo, const std::string& texto) {
    return "<tr><td width=\"25%\"><b>" + std::string(rotulo) + "</b></td><td width=\"75%\">" +
           (texto.empty() ? "______________________________________________" : comoXml(texto)) + "</td></tr>\n";
  };
  std::string s = "<h1 align=\"center\" style=\"font-size:22pt\">" + comoXml(doc.titulo) + "</h1>\n" +
                  "<p align=\"center\" style=\"font-size:16pt\">" + comoXml(doc.estructura) + "</p>\n" +
                  "<p align=\"center\" style=\"font-size:12pt\">" + comoXml(doc.proyecto) + "</p>\n<p></p>\n" +
                  "<table class=\"portada\" border=\"0\" cellspacing=\"0\" cellpadding=\"6\" width=\"100%\">\n";
  s += linea("Obra", doc.portada.obra) + linea("Ubicación", doc.portada.ubicacion) +
       linea("Proyectista", doc.portada.proyectista) + linea("Revisión", doc.portada.revision) +
       linea("Fecha", doc.portada.fecha) + linea("Programa", programaYVersion()) +
       linea("Comprobaciones",
             std::to_string(doc.cuenta.cumplen) + " de " + std::to_string(doc.cuenta.total) + " se cumplen");
  s += "</table>\n<p></p><h4>Contenido</h4>\n<table class=\"indice\" border=\"0\" cellspacing=\"0\" cellpadding=\"2\" "
       "width=\"100%\">\n";
  for (std::size_t i = 0; i < doc.capitulos.size(); ++i) {
    const std::string donde = pagina ? pagina(i) : "";
    const std::string titulo = comoXml(numeroYTitulo(doc, i));
    s += "<tr><td width=\"90%\">" +
         (pagina ? titulo : "<a href=\"#c" + std::to_string(i + 1) + "\">" + titulo + "</a>") +
         "</td><td width=\"10%\" align=\"right\">" + donde + "</td></tr>\n";
  }
  return s + "</table>\n";
}

std::string capituloHtml(const Documento& doc, std::size_t i, const FormaHtml& forma) {
  const Capitulo& c = doc.capitulos[i];
  Escritor e(forma);
  e.html = "<h1><a name=\"c" + std::to_string(i + 1) + "\"></a>" + comoXml(numeroYTitulo(doc, i)) + "</h1>\n";
  for (const Apartado& a : c.apartados) {
    e.cerrarFormulas();
    if (!a.titulo.empty()) e.html += "<h2>" + comoXml(a.titulo) + "</h2>\n";
    for (const Bloque& b : a.bloques) std::visit(e, b);
  }
  e.cerrarFormulas();
  return e.html;
}

std::string comoHtml(const Documento& doc, const FormaHtml& forma) {
  std::string s = cabezaHtml(doc, forma.navegador) + portadaHtml(doc, {});
  for (std::size_t i = 0; i < doc.capitulos.size(); ++i) s += capituloHtml(doc, i, forma);
  return s + std::string(pieHtml);
}

}  // namespace calvento
