// Whose figures the open result windows show.
#include <algorithm>

#include <QBoxLayout>
#include <QLineEdit>
#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>

#include "qt/cadena.h"
#include "qt/franja.h"
#include "qt/sistema_qt.h"

namespace calvento {

namespace {

/// What the user has typed and chosen in a window, for the one that takes its place.
void conservarEntradas(const QMainWindow& vista, const Ventana& antes, const Ventana& despues) {
  for (const Control* control : antes.controles()) {
    const std::string& nombre = control->nombre();
    if (const auto* campo = dynamic_cast<const TextBox*>(control)) {
      const auto* linea = vista.findChild<QLineEdit*>(aQt(nombre));
      if (linea != nullptr && !linea->isReadOnly()) despues.buscar<TextBox>(nombre)->escribir(campo->Text);
    } else if (const auto* casilla = dynamic_cast<const CheckBox*>(control)) {
      despues.buscar<CheckBox>(nombre)->Value = casilla->Value;
    } else if (const auto* lista = dynamic_cast<const ComboBox*>(control)) {
      auto* nueva = despues.buscar<ComboBox>(nombre);
      if (lista->ListIndex < static_cast<int>(nueva->List.valor().size())) nueva->ListIndex = lista->ListIndex;
    }
  }
}

}  // namespace

void SistemaQt::calculado(const Calculo& ultimo) {
  ultimo_ = ultimo;
  for (auto& [nombre, abierta] : abiertas_) avisarCifras(abierta);
}

void SistemaQt::avisarCifras(Abierta& abierta) {
  const VentanaUi* diseno = ventanaUi(abierta.ventana->nombre());
  if (diseno == nullptr || !diseno->deUnCalculo || abierta.mostrado.numero == ultimo_.numero) return;
  auto* marco = qobject_cast<QMdiSubWindow*>(abierta.marco);
  if (marco == nullptr || abierta.franja) return;
  const std::string& nombre = abierta.mostrado.nombre;
  auto* franja = new Franja(*marco, aQt((nombre.empty() ? "C" : nombre + ", c") + "alculado antes del último OK"),
                            [this, ventana = abierta.ventana] { actualizar(*ventana); });
  auto* columna = qobject_cast<QBoxLayout*>(marco->layout());
  columna->setSpacing(0);
  // the frame grows by the strip in one step: a picture that changed its size would be drawn anew, from a record in
  // which another calculation is writing
  columna->setEnabled(false);
  columna->insertWidget(0, franja);
  abierta.franja = franja;
  franja->show();
  columna->setEnabled(true);
  if (marco->isMaximized() || marco->isMinimized()) return columna->invalidate();
  abierta.sinFranja = marco->geometry();
  marco->resize(marco->size() + QSize(0, franja->heightForWidth(marco->contentsRect().width())));
  marco->move(marco->x(), std::clamp(area_->viewport()->height() - marco->height(), 0, std::max(0, marco->y())));
  abierta.conFranja = marco->geometry();
}

/// Unloads the window and opens it from the last calculation, in its place and with what the user has put in.
void SistemaQt::actualizar(Ventana& ventana) {
  const Abierta* abierta = buscar(ventana);
  if (abierta == nullptr || navegador_ == nullptr) return;
  const Evento mostrar = navegador_->comoMostrar(ventana.nombre());
  if (!mostrar) {
    dialogos_.aviso("Con el último cálculo, " + ultimo_.nombre +
                    ", no se puede abrir esta ventana: es de otra estructura, no llegó a su fin o se cerró.\n"
                    "Pulse OK en el diseño que quiere ver y después Actualizar.");
    return;
  }
  QWidget* antes = abierta->marco;  // alive until the event has ended, as its window is
  const QMainWindow* vistaAntes = abierta->vista;
  const bool entera = antes->isMaximized();
  const QRect lugar = antes->geometry() == abierta->conFranja ? abierta->sinFranja : antes->geometry();
  navegador_->descargar(ventana);
  protegido([this](const std::string& texto) { dialogos_.fallo(texto); },
            [&] {
              mostrar();
              if (!alFrente_) return;  // it could not be loaded, which was told
              entera ? alFrente_->showMaximized() : alFrente_->setGeometry(lugar);
              const auto nueva = abiertas_.find(ventana.nombre());
              if (nueva != abiertas_.end()) conservarEntradas(*vistaAntes, ventana, *nueva->second.ventana);
            });
}

}  // namespace calvento
