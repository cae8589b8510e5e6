#include "qt/menu_ventana.h"

#include <algorithm>

#include <QAction>
#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QStyle>

namespace calvento {

namespace {

/// Tiles the area as it is: left alone, it would enlarge the main window, past the screen if need be, until the
/// largest child fits in every tile. It scrolls instead.
void mosaico(QMainWindow& principal, QMdiArea& area) {
  const QSize antes = principal.maximumSize();
  principal.setMaximumSize(principal.size());
  area.tileSubWindows();
  principal.setMaximumSize(antes);
}

/// Steps down from the corner so that every title is seen, each window in the size it opened with: left alone, the area
/// would shrink a drawing to the least it can bear.
void cascada(QMdiArea& area) {
  QPoint lugar;
  for (QMdiSubWindow* hija : area.subWindowList(QMdiArea::ActivationHistoryOrder)) {
    if (hija->isHidden() || hija->isMinimized()) continue;
    if (hija->isMaximized()) hija->showNormal();
    hija->setGeometry(QRect(lugar, hija->property(tamanoAlAbrir).toSize().expandedTo(hija->minimumSizeHint())));
    const int paso = hija->style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, hija);
    lugar += QPoint(paso, paso);
    if (lugar.y() > area.viewport()->height() / 2) lugar.setY(0);
  }
}

QString rotulo(const QMdiSubWindow& hija, int numero) {
  const QString marca = QStringLiteral("[*]"), letras = QStringLiteral("\x1f");
  QString titulo = hija.windowTitle().replace(marca + marca, letras);
  titulo.replace(marca, hija.isWindowModified() ? QStringLiteral("*") : QString()).replace(letras, marca);
  titulo.replace(u'&', QLatin1String("&&"));
  return (numero < 10 ? QStringLiteral("&%1 %2") : QStringLiteral("%1 %2")).arg(numero).arg(titulo);
}

void llenar(QMenu& menu, QMainWindow& principal, QMdiArea& area, const std::function<void(QMdiSubWindow&)>& traer) {
  menu.clear();
  QList<QMdiSubWindow*> abiertas = area.subWindowList(QMdiArea::CreationOrder);
  abiertas.removeIf([](const QMdiSubWindow* hija) { return hija->isHidden(); });
  for (QAction* orden : {menu.addAction(QStringLiteral("&Cascada"), &area, [&] { cascada(area); }),
                         menu.addAction(QStringLiteral("&Mosaico"), &area, [&] { mosaico(principal, area); })})
    orden->setEnabled(!abiertas.empty());
  if (!abiertas.empty()) menu.addSeparator();
  int numero = 0;
  for (QMdiSubWindow* hija : abiertas) {
    QAction* entrada = menu.addAction(rotulo(*hija, ++numero), hija, [traer, hija] { traer(*hija); });
    entrada->setCheckable(true);
    entrada->setChecked(hija == area.currentSubWindow());
  }
}

}  // namespace

void anadirMenuVentana(QMainWindow& principal, QMdiArea& area, std::function<void(QMdiSubWindow&)> traer) {
  auto* menu = principal.menuBar()->addMenu(QStringLiteral("&Ventana"));
  QObject::connect(menu, &QMenu::aboutToShow, &area,
                   [menu, &principal, &area, traer = std::move(traer)] { llenar(*menu, principal, area, traer); });
}

}  // namespace calvento
