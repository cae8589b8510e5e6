#include "qt/entrada_estudio.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>

#include "qt/cadena.h"

namespace calvento {

CampoNumero::CampoNumero(QWidget* padre) : QLineEdit(padre) {
  setAlignment(Qt::AlignRight);
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize CampoNumero::minimumSizeHint() const {
  const QSize menor = QLineEdit::minimumSizeHint();
  return {menor.width() + fontMetrics().horizontalAdvance(QStringLiteral("0000.000")), menor.height()};
}

EntradaEstudio::EntradaEstudio(QWidget& dueno, QGridLayout& en, int renglon, const QString& rotulo, bool opcional)
    : cual_(new QComboBox(&dueno)), opcional_(opcional) {
  const auto conRotulo = [&](const QString& texto, int columna, QWidget* campo) {
    auto* r = new QLabel(texto, &dueno);
    r->setBuddy(campo);
    en.addWidget(r, renglon, columna);
    en.addWidget(campo, renglon, columna + 1);
  };
  cual_->setAccessibleName(QString(rotulo).remove(u'&').remove(u':'));
  cual_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  cual_->setMinimumContentsLength(16);
  conRotulo(rotulo, 0, cual_);
  int columna = 2;
  for (const auto& [campo, texto] : {std::pair{&desde_, "desde"}, {&hasta_, "hasta"}, {&paso_, "paso"}}) {
    *campo = new CampoNumero(&dueno);
    (*campo)->setAccessibleName(cual_->accessibleName() + u' ' + QLatin1String(texto));
    conRotulo(QLatin1String(texto), columna, *campo);
    columna += 2;
  }
  en.setColumnStretch(1, 1);
  QObject::connect(cual_, &QComboBox::currentIndexChanged, cual_, [this] { proponer(); });
}

void EntradaEstudio::ofrecer(const Ficha& ficha, const std::string& elegida) {
  ficha_ = &ficha;
  cual_->clear();
  if (opcional_) cual_->addItem(QStringLiteral("(nada más)"));
  for (const Entrada& e : entradas(ficha)) cual_->addItem(aQt(e.titulo()), aQt(e.nombre));
  if (const int i = cual_->findData(aQt(elegida)); i >= 0) cual_->setCurrentIndex(i);
  proponer();
}

const Entrada* EntradaEstudio::entrada() const {
  const QString nombre = cual_->currentData().toString();
  return ficha_ == nullptr || nombre.isEmpty() ? nullptr : entradaDe(*ficha_, deQt(nombre));
}

Serie EntradaEstudio::serie() const { return {deQt(desde_->text()), deQt(hasta_->text()), deQt(paso_->text())}; }

std::optional<Variacion> EntradaEstudio::variacion() const {
  const Entrada* e = entrada();
  if (e == nullptr) return std::nullopt;
  Variacion v{e, {}};
  if (e->esNumero()) {
    v.valores = valores(*e, serie());
  } else {
    for (const Opcion& o : e->opciones) v.valores.push_back(o.valor);
  }
  return v;
}

void EntradaEstudio::proponer() {
  const Entrada* e = entrada();
  const bool numero = e != nullptr && e->esNumero();
  const Serie s = numero && tecleado ? serieAlrededor(*e, tecleado(*e)) : Serie{};
  for (const auto& [campo, texto] : {std::pair{desde_, &s.desde}, {hasta_, &s.hasta}, {paso_, &s.paso}}) {
    campo->setEnabled(numero);
    campo->setText(aQt(*texto));
  }
}

}  // namespace calvento
