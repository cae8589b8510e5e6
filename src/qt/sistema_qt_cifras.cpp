// Whose figures the open result windows show.
#include <algorithm>

#include <QBoxLayout>
#include <QLineEdit>
#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>

#include "qt/cadena.h"
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

/// Says where the figures of a result window are not those of the last calculation, or are those of a structure that
/// has no such window.
void SistemaQt::avisarCifras(Abierta& abierta) {
  const std::string& ventana = abierta.ventana->nombre();
  const VentanaUi* diseno = ventanaUi(ventana);
  auto* marco = qobject_cast<QMdiSubWindow*>(abierta.marco);
  if (diseno == nullptr || !diseno->deUnCalculo || marco == nullptr || ultimo_.numero == 0) return;
  const std::string& nombre = abierta.mostrado.nombre;
  QString texto;
  if (abierta.mostrado.numero != ultimo_.numero)
    texto = aQt((nombre.empty() ? "C" : nombre + ", c") + "alculado antes del último OK");
  else if (navegador_ != nullptr && !navegador_->comoMostrar(ventana))
    texto = aQt("Con los valores del último OK: " + nombre);
  else
    return;
  if (!abierta.franja) ponerFranja(abierta, *marco, texto);
  abierta.franja->decir(texto);
}

void SistemaQt::ponerFranja(Abierta& abierta, QMdiSubWindow& marco, const QString& texto) {
  auto* franja = new Franja(marco, [this, ventana = abierta.ventana] { actualizar(*ventana); });
  franja->decir(texto);
  auto* columna = qobject_cast<QBoxLayout*>(marco.layout());
  columna->setSpacing(0);
  // the frame grows by the strip in one step: a picture that changed its size would be drawn anew, from a record in
  // which another calculation is writing
  columna->setEnabled(false);
  columna->insertWidget(0, franja);
  abierta.franja = franja;
  franja->show();
  columna->setEnabled(true);
  if (marco.isMaximized() || marco.isMinimized()) return columna->invalidate();
  abierta.sinFranja = marco.geometry();
  marco.resize(marco.size() + QSize(0, franja->heightForWidth(marco.contentsRect().width())));
  marco.move(marco.x(), std::clamp(area_->viewport()->height() - marco.height(), 0, std::max(0, marco.y())));
  abierta.conFranja = marco.geometry();
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
