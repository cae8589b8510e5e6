#include "sesion/copias.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <utility>

#include "modelo/fallo_archivo.h"
#include "modelo/guardado.h"
#include "modelo/rutas.h"

namespace calvento {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view extensionFicha = ".datos";
constexpr const char* dejada = "dejada=1\n";
constexpr std::chrono::minutes horaGruesa{1};  // lists tell no seconds
constexpr std::chrono::hours restoViejo{1};    // a file that another program is writing is younger

/// A value in one line.
std::string enUnaLinea(const std::string& s) {
  std::string r;
  for (const char c : s) {
    if (c == '\\')
      r += "\\\\";
    else if (c == '\n')
      r += "\\n";
    else
      r += c;
  }
  return r;
}
std::string comoEra(std::string_view s) {
  std::string r;
  for (std::size_t i = 0; i < s.size(); ++i) {
    if (s[i] != '\\' || i + 1 == s.size()) {
      r += s[i];
      continue;
    }
    ++i;
    r += s[i] == 'n' ? '\n' : s[i];
  }
  return r;
}

std::string fichaDe(const Trabajo& t) {
  std::string f = "nombre=" + enUnaLinea(t.nombre) + "\narchivo=" + enUnaLinea(t.archivo) + "\n";
  if (t.calculado) f += "calculado=1\n";
  for (const auto& [nombre, valor] : t.contenido.otros) f += "campo." + nombre + "=" + enUnaLinea(valor) + "\n";
  return f;
}

std::string textoDe(const FormatoProyecto& formato, const std::vector<std::string>& lineas, std::string_view campo) {
  const auto it = std::find(formato.lineas.begin(), formato.lineas.end(), campo);
  const auto i = static_cast<std::size_t>(it - formato.lineas.begin());
  return i < lineas.size() ? lineas[i] : std::string();
}

std::string programaDe(const std::string& id) { return id.substr(0, id.rfind('-')); }

}  // namespace

/// What the small text beside a copy holds.
struct Copias::Ficha {
  Trabajo trabajo;
  std::optional<Hora> hora;
  bool dejada = false;
};

fs::path Copias::proyecto(const FormatoProyecto& formato, const std::string& id) const {
  return entorno_.carpeta / (id + "." + std::string(formato.extension));
}

fs::path Copias::texto(const FormatoProyecto& formato, const std::string& id) const {
  return proyecto(formato, id) += extensionFicha;
}

void Copias::hacerCarpeta() const {
  std::error_code ec;
  if (fs::create_directories(entorno_.carpeta, ec)) fs::permissions(entorno_.carpeta, fs::perms::owner_all, ec);
}

void Copias::guardar(const FormatoProyecto& formato, const Trabajo& trabajo) {
  hacerCarpeta();
  auto it = abiertas_.find(formato.ventana);
  if (it == abiertas_.end()) {
    const std::string id = entorno_.programa + "-" + std::to_string(++escritas_);
    it = abiertas_.emplace(std::string(formato.ventana), Abierta{id, {}, {}}).first;
  }
  escribirLineas(proyecto(formato, it->second.id), trabajo.contenido.lineas);
  escribirFicha(formato, it->second, fichaDe(trabajo));
}

/// A time that is nearly right costs no writing.
void Copias::escribirFicha(const FormatoProyecto& formato, Abierta& abierta, const std::string& ficha) {
  const Hora ahora = entorno_.ahora();
  const bool reciente = ahora >= abierta.hora && ahora - abierta.hora < horaGruesa;
  if (reciente && ficha == abierta.escrita) return;
  const auto segundos = std::chrono::duration_cast<std::chrono::seconds>(ahora.time_since_epoch()).count();
  guardarEntero(texto(formato, abierta.id), "hora=" + std::to_string(segundos) + "\n" + ficha);
  abierta.escrita = ficha;
  abierta.hora = ahora;
}

Copias::Ficha Copias::leerFicha(const FormatoProyecto& formato, const std::string& id) const {
  Ficha f;
  std::ifstream archivo(texto(formato, id), std::ios::binary);
  for (std::string linea; std::getline(archivo, linea);) {
    const std::size_t igual = linea.find('=');
    if (igual == std::string::npos) continue;
    const std::string clave = linea.substr(0, igual), valor = comoEra(std::string_view(linea).substr(igual + 1));
    if (clave == "hora") f.hora = Hora(std::chrono::seconds(std::strtoll(valor.c_str(), nullptr, 10)));
    if (clave == "dejada") f.dejada = true;
    if (clave == "nombre") f.trabajo.nombre = valor;
    if (clave == "archivo") f.trabajo.archivo = valor;
    if (clave == "calculado") f.trabajo.calculado = true;
    if (clave.starts_with("campo.")) f.trabajo.contenido.otros[clave.substr(6)] = valor;
  }
  return f;
}

Trabajo Copias::leer(const FormatoProyecto& formato, const std::string& id) const {
  Trabajo t = leerFicha(formato, id).trabajo;
  t.contenido.lineas = leerLineas(proyecto(formato, id), formato.lineas.size());
  return t;
}

void Copias::dejar(const FormatoProyecto& formato) {
  const auto it = abiertas_.find(formato.ventana);
  if (it == abiertas_.end()) return;
  Abierta abierta = std::move(it->second);
  abiertas_.erase(it);
  escribirFicha(formato, abierta, abierta.escrita + dejada);
  borrarIguales(formato, leer(formato, abierta.id).contenido, abierta.id);
  ordenar(formato);
}

void Copias::soltar(const FormatoProyecto& formato, const Contenido& contenido) {
  const auto it = abiertas_.find(formato.ventana);
  if (it != abiertas_.end()) {
    borrar(formato, it->second.id);
    abiertas_.erase(it);
  }
  borrarIguales(formato, contenido, {});
}

std::vector<Copia> Copias::todas(const FormatoProyecto& formato) const {
  std::vector<Copia> copias;
  std::error_code ec;
  for (const fs::directory_entry& e : fs::directory_iterator(entorno_.carpeta, ec)) {
    const std::string nombre = comoTexto(e.path().filename());
    if (!tieneExtension(nombre, formato.extension)) continue;
    Copia c;
    c.id = comoTexto(e.path().stem());
    const Ficha ficha = leerFicha(formato, c.id);
    // a program may have been killed between the two files
    c.hora = ficha.hora.value_or(entorno_.ahora() - std::chrono::duration_cast<Hora::duration>(
                                                        fs::file_time_type::clock::now() - e.last_write_time(ec)));
    c.nombre = ficha.trabajo.nombre;
    c.abierta = !ficha.dejada;
    try {
      const std::vector<std::string> lineas = leerLineas(e.path(), formato.lineas.size());
      c.caudal = textoDe(formato, lineas, "Text5");
      c.elevacion = textoDe(formato, lineas, formato.ventana == formatoRapida.ventana ? "Text1" : "Text2");
    } catch (const FalloArchivo&) {
      continue;
    }
    copias.push_back(std::move(c));
  }
  std::sort(copias.begin(), copias.end(),
            [](const Copia& a, const Copia& b) { return a.hora != b.hora ? a.hora > b.hora : a.id > b.id; });
  return copias;
}

std::vector<Copia> Copias::lista(const FormatoProyecto& formato) const {
  std::vector<Copia> copias = todas(formato);
  std::erase_if(copias, [&](const Copia& c) { return c.abierta && entorno_.corre(programaDe(c.id)); });
  return copias;
}

std::optional<Copia> Copias::sinDejar(const FormatoProyecto& formato) {
  std::optional<Copia> primera;
  for (const Copia& c : lista(formato)) {
    if (!c.abierta) continue;
    if (!primera) primera = c;
    const auto segundos = std::chrono::duration_cast<std::chrono::seconds>(c.hora.time_since_epoch()).count();
    guardarEntero(texto(formato, c.id),
                  "hora=" + std::to_string(segundos) + "\n" + fichaDe(leerFicha(formato, c.id).trabajo) + dejada);
  }
  if (primera) ordenar(formato);
  return primera;
}

void Copias::borrar(const FormatoProyecto& formato, const std::string& id) const {
  std::error_code ec;
  fs::remove(proyecto(formato, id), ec);
  fs::remove(texto(formato, id), ec);
}

void Copias::borrarIguales(const FormatoProyecto& formato, const Contenido& contenido, const std::string& menos) const {
  for (const Copia& c : lista(formato)) {
    if (c.id == menos) continue;
    try {
      if (leer(formato, c.id).contenido == contenido) borrar(formato, c.id);
    } catch (const FalloArchivo&) {
      continue;
    }
  }
}

/// Too old, too many, and what killed programs left of a writing.
void Copias::ordenar(const FormatoProyecto& formato) const {
  const std::vector<Copia> copias = lista(formato);
  for (std::size_t i = 0; i < copias.size(); ++i)
    if (i >= cuantas || entorno_.ahora() - copias[i].hora > duracion) borrar(formato, copias[i].id);
  std::error_code ec;
  std::vector<fs::path> restos;
  for (const fs::directory_entry& e : fs::directory_iterator(entorno_.carpeta, ec)) {
    const std::string nombre = comoTexto(e.path().filename());
    const bool suelta = nombre.ends_with(extensionFicha) && !fs::exists(fs::path(e.path()).replace_extension(), ec);
    if ((suelta || nombre.ends_with(".tmp~")) && fs::file_time_type::clock::now() - e.last_write_time(ec) > restoViejo)
      restos.push_back(e.path());
  }
  for (const fs::path& r : restos) fs::remove(r, ec);
}

}  // namespace calvento
