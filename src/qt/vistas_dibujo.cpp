#include "qt/vistas_dibujo.h"

#include <array>

#include <QStringList>

#include "qt/ajustes.h"
#include "qt/cadena.h"

namespace calvento {

namespace {

constexpr int cuantas = 30;
const QString claveVistas = QStringLiteral("dibujos");
const QChar separador = u'\t';

QString proyectoDe(const MarcoDibujo& dibujo) {
  return aQt(dibujo.nombre()) + separador + aQt(dibujo.Caption.valor()) + separador;
}

QString escrita(const MarcoDibujo::VistaPedida& v) {
  QStringList n{v.principal ? QStringLiteral("1") : QStringLiteral("0")};
  for (const Real x : {v.limites.x1, v.limites.x2, v.limites.y1, v.limites.y2}) n += QString::number(x.valor(), 'g', 9);
  return n.join(u' ');
}

std::optional<MarcoDibujo::VistaPedida> leida(const QString& texto) {
  const QStringList n = texto.split(u' ');
  if (n.size() != 5) return std::nullopt;
  std::array<double, 4> x{};
  for (int i = 0; i < 4; ++i) {
    bool bien = false;
    x[static_cast<std::size_t>(i)] = n[i + 1].toDouble(&bien);
    if (!bien || !detalle::utilizable(x[static_cast<std::size_t>(i)])) return std::nullopt;
  }
  return MarcoDibujo::VistaPedida{{x[0], x[1], x[2], x[3]}, n[0] == QLatin1String("1")};
}

}  // namespace

void VistasDibujo::alAbrir(MarcoDibujo& dibujo) {
  const QString proyecto = proyectoDe(dibujo);
  if (dibujo.Caption.valor().empty() || !abiertos_.insert(proyecto).second) return;
  for (const QString& linea : ajustes().value(claveVistas).toStringList())
    if (linea.startsWith(proyecto))
      if (const auto v = leida(linea.mid(proyecto.size()))) dibujo.volverA(*v);
}

void VistasDibujo::alDejar(const MarcoDibujo& dibujo) {
  const auto vista = dibujo.vistaPedida();
  if (dibujo.Caption.valor().empty() || !vista) return;
  QSettings a = ajustes();
  const QStringList antes = a.value(claveVistas).toStringList();
  const QString proyecto = proyectoDe(dibujo);
  QStringList lineas{proyecto + escrita(*vista)};
  for (const QString& linea : antes)
    if (!linea.startsWith(proyecto) && lineas.size() < cuantas) lineas += linea;
  if (lineas != antes) a.setValue(claveVistas, lineas);
}

}  // namespace calvento
