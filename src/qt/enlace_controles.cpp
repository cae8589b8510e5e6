// How each kind of control is joined to its widget.
#include <algorithm>
#include <cmath>
#include <memory>
#include <utility>

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QScopedValueRollback>
#include <QSignalBlocker>
#include <QStatusBar>
#include <QToolBar>
#include <QToolButton>

#include "qt/cadena.h"
#include "qt/colores.h"
#include "qt/enlace.h"
#include "qt/numero_tecleado.h"
#include "qt/resultado_accesible.h"
#include "qt/vista_estudio.h"
#include "qt/vista_lienzo.h"
#include "qt/vista_manual.h"
#include "qt/vista_memoria.h"
#include "qt/vista_rejilla.h"

namespace calvento {

namespace {

// SelStart and SelLength count bytes of the control's text, the widget's positions count its characters
int bytes(const QString& texto, int desde, int cuantos) {
  return static_cast<int>(texto.mid(desde, cuantos).toUtf8().size());
}
int caracteres(const std::string& texto, int hasta) {
  const auto n = std::clamp<std::size_t>(static_cast<std::size_t>(std::max(hasta, 0)), 0, texto.size());
  return static_cast<int>(QString::fromUtf8(texto.data(), static_cast<qsizetype>(n)).size());
}

void leerSeleccion(TextBox& campo, const QLineEdit& linea) {
  const QString texto = linea.text();
  const int inicio = linea.hasSelectedText() ? linea.selectionStart() : linea.cursorPosition();
  campo.SelStart = bytes(texto, 0, inicio);
  campo.SelLength = bytes(texto, inicio, linea.selectionLength());
}

void escribirSeleccion(const TextBox& campo, QLineEdit& linea) {
  const int inicio = caracteres(campo.Text, campo.SelStart);
  const int largo = caracteres(campo.Text, campo.SelStart + campo.SelLength) - inicio;
  if (largo > 0) {
    if (linea.selectionStart() != inicio || linea.selectionLength() != largo) linea.setSelection(inicio, largo);
  } else if (linea.hasSelectedText() || linea.cursorPosition() != inicio) {
    linea.setCursorPosition(inicio);  // which takes the selection away
  }
}

void escribirTexto(const TextBox& campo, QLineEdit& linea, NumeroTecleado* numero) {
  const int cursor = linea.hasFocus() ? linea.cursorPosition() : 0;
  const NumeroTecleado::Pausa tal(numero);
  linea.setText(aQt(campo.Text.valor()));
  linea.setCursorPosition(std::min(cursor, static_cast<int>(linea.text().size())));
}

/// How a field is announced; empty where its control does not tell.
QString nombreDe(const Magnitud& m) {
  if (m.nombre.empty()) return {};
  const QString nombre = aQt(std::string(m.nombre));
  return m.unidad.empty() ? nombre + QStringLiteral(", sin unidad")
                          : nombre + QStringLiteral(" (") + aQt(std::string(m.unidad)) + u')';
}

/// The accessible name of the field that goes with the label follows its caption.
void rotular(QLabel& etiqueta, const QString& rotulo) {
  const auto sinDosPuntos = [](QString s) { return s.endsWith(u':') ? s.chopped(1) : s; };
  const QString antes = etiqueta.text();
  if (antes == rotulo) return;
  etiqueta.setText(rotulo);
  if (QWidget* campo = etiqueta.buddy(); campo != nullptr && !antes.isEmpty() && !rotulo.isEmpty())
    campo->setAccessibleName(campo->accessibleName().replace(sinDosPuntos(antes), sinDosPuntos(rotulo)));
}

}  // namespace

template <class W>
W* Enlace::widgetDe(const Control& control) const {
  return vista_.findChild<W*>(aQt(control.nombre()));
}

Enlace::Refresco Enlace::unir(Control& control) {
  if (auto* c = dynamic_cast<TextBox*>(&control)) return unirCampo(*c);
  if (auto* c = dynamic_cast<Label*>(&control)) return unirRotulo(*c);
  if (auto* c = dynamic_cast<CommandButton*>(&control)) return unirBoton(*c);
  if (auto* c = dynamic_cast<OptionButton*>(&control)) return unirOpcion(*c);
  if (auto* c = dynamic_cast<CheckBox*>(&control)) return unirCasilla(*c);
  if (auto* c = dynamic_cast<ComboBox*>(&control)) return unirLista(*c);
  if (auto* c = dynamic_cast<Menu*>(&control)) return unirMenu(*c);
  if (auto* c = dynamic_cast<Toolbar*>(&control)) return unirBarra(*c);
  if (auto* c = dynamic_cast<StatusBar*>(&control)) return unirEstado(*c);
  if (auto* c = dynamic_cast<UpDown*>(&control)) return unirFlechas(*c);
  if (auto* c = dynamic_cast<ProgressBar*>(&control)) return unirAvance(*c);
  if (auto* c = dynamic_cast<Grid*>(&control)) return unirTabla(*c);
  if (auto* c = dynamic_cast<PictureBox*>(&control)) return unirLienzo(*c);
  if (auto* c = dynamic_cast<VisorMemoria*>(&control)) return unirMemoria(*c);
  if (auto* c = dynamic_cast<VisorManual*>(&control)) return unirManual(*c);
  if (auto* c = dynamic_cast<VisorEstudio*>(&control)) return unirEstudio(*c);
  return unirGrupo(control);  // frames and decorations
}

Enlace::Refresco Enlace::comunes(Control& control, QWidget& widget) {
  controlDe_.insert(&widget, &control);
  widget.installEventFilter(this);
  // the palette is written only when a colour has changed: it repaints everything. What was painted last is shared by
  // all copies of the function.
  struct Pintado {
    Color fondo = color::ventana;
    Color texto = color::textoBoton;
    qint64 paleta = 0;
    bool marcado = false;
    bool operator==(const Pintado&) const = default;
  };
  auto ultimo = std::make_shared<Pintado>();
  ultimo->paleta = widget.parentWidget()->palette().cacheKey();
  const auto* linea = qobject_cast<QLineEdit*>(&widget);
  const auto* campo = linea != nullptr && !linea->isReadOnly() ? dynamic_cast<TextBox*>(&control) : nullptr;
  return [&control, w = &widget, ultimo, campo, consejo = widget.toolTip()] {
    w->setEnabled(control.Enabled);
    if (w->isHidden() == control.Visible) w->setVisible(control.Visible);
    const QString reparo = campo != nullptr ? aQt(campo->reparo()) : QString();
    const QString aviso = !reparo.isEmpty()             ? reparo
                          : !vacio(control.ToolTipText) ? aQt(control.ToolTipText.valor())
                                                        : consejo;
    if (w->toolTip() != aviso) w->setToolTip(aviso);
    if (campo != nullptr && w->accessibleDescription() != reparo) w->setAccessibleDescription(reparo);
    const Pintado ahora{control.BackColor, control.ForeColor, w->parentWidget()->palette().cacheKey(),
                        !reparo.isEmpty()};
    if (*ultimo == ahora) return;
    *ultimo = ahora;
    aplicarColores(*w, ahora.fondo, ahora.texto, ahora.marcado);
  };
}

Enlace::Refresco Enlace::unirCampo(TextBox& campo) {
  if (auto* editor = widgetDe<QPlainTextEdit>(campo)) return unirTextoLargo(campo, *editor);
  auto* linea = widgetDe<QLineEdit>(campo);
  if (linea == nullptr) return {};
  NumeroTecleado* numero = campo.numerico ? new NumeroTecleado(linea) : nullptr;
  if (numero != nullptr) linea->setValidator(numero);
  if (const QString nombre = nombreDe(campo.magnitud); !nombre.isEmpty()) linea->setAccessibleName(nombre);
  const auto seleccion = [this, &campo, linea] {
    if (ventana_ != nullptr) leerSeleccion(campo, *linea);
  };
  connect(linea, &QLineEdit::selectionChanged, this, seleccion);
  connect(linea, &QLineEdit::cursorPositionChanged, this, seleccion);
  // not only what is typed: screen readers and input methods put whole texts in
  connect(linea, &QLineEdit::textChanged, this, [this, &campo, linea](const QString& texto) {
    if (escribiendo_ == linea) return;
    atender([&] {
      leerSeleccion(campo, *linea);
      campo.Text = deQt(texto);
    });
  });
  return [this, &campo, linea, numero, comun = comunes(campo, *linea)] {
    comun();
    if (linea->text() != aQt(campo.Text.valor())) {
      const QScopedValueRollback<const QLineEdit*> delPrograma(escribiendo_, linea);
      escribirTexto(campo, *linea, numero);
    } else {
      escribirSeleccion(campo, *linea);
    }
  };
}

/// What only the program writes.
Enlace::Refresco Enlace::unirTextoLargo(TextBox& campo, QPlainTextEdit& editor) {
  return [&campo, &editor, comun = comunes(campo, editor)] {
    comun();
    if (editor.toPlainText() != aQt(campo.Text.valor())) editor.setPlainText(aQt(campo.Text.valor()));
  };
}

Enlace::Refresco Enlace::unirRotulo(Label& rotulo) {
  auto* etiqueta = widgetDe<QLabel>(rotulo);
  if (etiqueta == nullptr) return {};
  etiqueta->setTextFormat(Qt::PlainText);
  if (const Magnitud& m = rotulo.magnitud; !m.nombre.empty())
    presentarResultado(*etiqueta, aQt(std::string(m.nombre)), aQt(std::string(m.unidad)));
  return [&rotulo, etiqueta, comun = comunes(rotulo, *etiqueta)] {
    comun();
    rotular(*etiqueta, aQt(rotulo.Caption.valor()));
    contarResultado(*etiqueta);
  };
}

Enlace::Refresco Enlace::unirBoton(CommandButton& boton) {
  auto* pulsador = widgetDe<QAbstractButton>(boton);
  if (pulsador == nullptr) return {};
  if (auto* b = qobject_cast<QPushButton*>(pulsador)) b->setAutoDefault(true);
  connect(pulsador, &QAbstractButton::clicked, this, [this, &boton] { atender(boton.Click); });
  return [&boton, pulsador, comun = comunes(boton, *pulsador)] {
    comun();
    if (!vacio(boton.Caption)) pulsador->setText(aQt(boton.Caption.valor()));
  };
}

Enlace::Refresco Enlace::unirOpcion(OptionButton& opcion) {
  auto* radio = widgetDe<QRadioButton>(opcion);
  if (radio == nullptr) return {};
  connect(radio, &QRadioButton::clicked, this, [this, &opcion] { atender([&] { opcion.Value = true; }); });
  return [&opcion, radio, comun = comunes(opcion, *radio)] {
    comun();
    radio->setChecked(opcion.Value);
  };
}

Enlace::Refresco Enlace::unirCasilla(CheckBox& casilla) {
  auto* caja = widgetDe<QCheckBox>(casilla);
  if (caja == nullptr) return {};
  connect(caja, &QCheckBox::clicked, this, [this, &casilla](bool marcada) {
    atender([&] {
      casilla.Value = marcada;
      disparar(casilla.Click);
    });
  });
  return [&casilla, caja, comun = comunes(casilla, *caja)] {
    comun();
    caja->setChecked(casilla.Value);
  };
}

Enlace::Refresco Enlace::unirLista(ComboBox& lista) {
  auto* combo = widgetDe<QComboBox>(lista);
  if (combo == nullptr) return {};
  connect(combo, &QComboBox::activated, this,
          [this, &lista](int indice) { atender([&] { lista.ListIndex = indice; }); });
  return [&lista, combo, comun = comunes(lista, *combo)] {
    comun();
    const QSignalBlocker callado(combo);
    QStringList textos, actuales;
    for (const std::string& t : lista.List.valor()) textos << aQt(t);
    for (int i = 0; i < combo->count(); ++i) actuales << combo->itemText(i);
    if (textos != actuales) {
      combo->clear();
      combo->addItems(textos);
    }
    combo->setCurrentIndex(lista.ListIndex);
  };
}

Enlace::Refresco Enlace::unirMenu(Menu& menu) {
  auto* accion = vista_.findChild<QAction*>(aQt(menu.nombre()));
  if (auto* submenu = widgetDe<QMenu>(menu)) accion = submenu->menuAction();
  if (accion == nullptr) return {};
  controlDe_.insert(accion, &menu);
  connect(accion, &QAction::triggered, this, [this, &menu, accion] {
    accion->setChecked(menu.Checked);  // the mark is the program's to set
    atender(menu.Click);
  });
  return [&menu, accion] {
    accion->setEnabled(menu.Enabled);
    accion->setVisible(menu.Visible);
    accion->setChecked(menu.Checked);
  };
}

Enlace::Refresco Enlace::unirBarra(Toolbar& barra) {
  auto* herramientas = widgetDe<QToolBar>(barra);
  if (herramientas == nullptr) return {};
  for (const std::string& clave : barra.claves()) {
    auto* accion = vista_.findChild<QAction*>(aQt(barra.nombre() + "_" + clave));
    if (accion == nullptr || !herramientas->actions().contains(accion)) return {};
    controlDe_.insert(accion, &barra);
    connect(accion, &QAction::triggered, this, [this, &barra, clave] {
      atender([&] {
        if (barra.ButtonClick) barra.ButtonClick(clave);
      });
    });
  }
  herramientas->toggleViewAction()->setEnabled(false);  // a bar hidden by the context menu would be gone for good
  herramientas->setContextMenuPolicy(Qt::PreventContextMenu);
  return comunes(barra, *herramientas);
}

Enlace::Refresco Enlace::unirEstado(StatusBar& estado) {
  auto* barra = widgetDe<QStatusBar>(estado);
  if (barra == nullptr) return {};
  // a label of its own: the bar's messages vanish when the pointer crosses a menu
  auto* panel = new QLabel(barra);
  panel->setObjectName(aQt(estado.nombre() + "_panel1"));
  panel->setTextFormat(Qt::PlainText);
  panel->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  barra->addWidget(panel, 1);
  auto* nota = new QLabel(barra);
  nota->setObjectName(aQt(estado.nombre() + "_nota"));
  nota->setTextFormat(Qt::PlainText);
  barra->addPermanentWidget(nota);
  auto* segundo = new QToolButton(barra);
  segundo->setObjectName(aQt(estado.nombre() + "_panel2"));
  segundo->setAutoRaise(true);
  segundo->setToolButtonStyle(Qt::ToolButtonTextOnly);  // as high without a text as with one
  segundo->setFocusPolicy(Qt::TabFocus);
  segundo->setToolTip(QStringLiteral("Ver las comprobaciones en la memoria de cálculo"));
  // its place is kept while it is hidden, so that the first result moves nothing above it
  QSizePolicy sitio = segundo->sizePolicy();
  sitio.setRetainSizeWhenHidden(true);
  segundo->setSizePolicy(sitio);
  barra->addPermanentWidget(segundo);
  connect(segundo, &QToolButton::clicked, this, [this, &estado] { atender(estado.Panel2Click); });
  return [&estado, panel, nota, segundo, comun = comunes(estado, *barra)] {
    comun();
    panel->setText(aQt(estado.Panel1.valor()));
    nota->setText(aQt(estado.Nota.valor()));
    nota->setVisible(!vacio(estado.Nota));
    segundo->setText(aQt(estado.Panel2.valor()));
    segundo->setVisible(!estado.Panel2.valor().empty());
    segundo->setStyleSheet(estado.Alarma ? QStringLiteral("QToolButton { color: #c01c1c; font-weight: bold; }")
                                         : QString());
  };
}

Enlace::Refresco Enlace::unirFlechas(UpDown& flechas) {
  auto* caja = widgetDe<QWidget>(flechas);
  auto* arriba = vista_.findChild<QToolButton*>(aQt(flechas.nombre() + "_subir"));
  auto* abajo = vista_.findChild<QToolButton*>(aQt(flechas.nombre() + "_bajar"));
  if (caja == nullptr || arriba == nullptr || abajo == nullptr) return {};
  controlDe_.insert(arriba, &flechas);
  controlDe_.insert(abajo, &flechas);
  connect(arriba, &QToolButton::clicked, this, [this, &flechas] { atender([&] { flechas.subir(); }); });
  connect(abajo, &QToolButton::clicked, this, [this, &flechas] { atender([&] { flechas.bajar(); }); });
  return comunes(flechas, *caja);
}

Enlace::Refresco Enlace::unirAvance(ProgressBar& avance) {
  auto* barra = widgetDe<QProgressBar>(avance);
  if (barra == nullptr) return {};
  return [&avance, barra, comun = comunes(avance, *barra)] {
    comun();
    barra->setRange(avance.Min, avance.Max);
    const double valor = std::isfinite(avance.Value.valor()) ? avance.Value.valor() : avance.Min.valor();
    barra->setValue(static_cast<int>(
        std::lround(std::clamp(valor, double(avance.Min), double(std::max<int>(avance.Min, avance.Max))))));
  };
}

Enlace::Refresco Enlace::unirTabla(Grid& tabla) {
  auto* vista = dynamic_cast<VistaRejilla*>(widgetDe<QWidget>(tabla));
  if (vista == nullptr) return {};
  vista->mostrar(tabla, [this](const std::function<void()>& accion) { atender(accion); });
  return comunes(tabla, *vista);
}

Enlace::Refresco Enlace::unirLienzo(PictureBox& caja) {
  auto* vista = dynamic_cast<VistaLienzo*>(widgetDe<QWidget>(caja));
  if (vista == nullptr) return {};
  vista->mostrar(caja);
  return comunes(caja, *vista);
}

Enlace::Refresco Enlace::unirMemoria(VisorMemoria& visor) {
  auto* vista = dynamic_cast<VistaMemoria*>(widgetDe<QWidget>(visor));
  if (vista == nullptr) return {};
  vista->mostrar(visor);
  return [comun = comunes(visor, *vista), vista] {
    comun();
    vista->refrescar();
  };
}

Enlace::Refresco Enlace::unirEstudio(VisorEstudio& visor) {
  auto* vista = dynamic_cast<VistaEstudio*>(widgetDe<QWidget>(visor));
  if (vista == nullptr) return {};
  vista->mostrar(visor);
  return comunes(visor, *vista);
}

Enlace::Refresco Enlace::unirManual(VisorManual& visor) {
  auto* vista = dynamic_cast<VistaManual*>(widgetDe<QWidget>(visor));
  if (vista == nullptr) return {};
  vista->mostrar(visor);
  return [&visor, vista] { vista->abrirEn(aQt(std::exchange(visor.capitulo, {}))); };
}

Enlace::Refresco Enlace::unirGrupo(Control& grupo) {
  auto* widget = widgetDe<QWidget>(grupo);
  return widget == nullptr ? Refresco{} : comunes(grupo, *widget);
}

}  // namespace calvento
