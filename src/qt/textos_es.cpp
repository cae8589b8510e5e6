#include "qt/textos_es.h"

#include <array>
#include <cstring>

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QTranslator>

namespace calvento {

namespace {

struct Texto {
  const char* original;
  const char16_t* espanol;
};

/// Texts of Qt that this program can bring on the screen.
constexpr std::array<Texto, 31> textos = {{
    {"OK", u"Aceptar"},
    {"&OK", u"&Aceptar"},
    {"Cancel", u"Cancelar"},
    {"&Cancel", u"&Cancelar"},
    {"&Yes", u"&Sí"},
    {"&No", u"&No"},
    {"Close", u"Cerrar"},
    {"&Close", u"&Cerrar"},
    {"&Undo", u"&Deshacer"},
    {"&Redo", u"&Rehacer"},
    {"Cu&t", u"Cor&tar"},
    {"&Copy", u"&Copiar"},
    {"&Paste", u"&Pegar"},
    {"Delete", u"Eliminar"},
    {"Select All", u"Seleccionar todo"},
    {"&Restore", u"&Restaurar"},
    {"&Move", u"&Mover"},
    {"&Size", u"&Tamaño"},
    {"Mi&nimize", u"Mi&nimizar"},
    {"Ma&ximize", u"Ma&ximizar"},
    {"Stay on &Top", u"Siempre &visible"},
    {"Minimize", u"Minimizar"},
    {"Maximize", u"Maximizar"},
    {"Restore Down", u"Restaurar"},
    {"Menu", u"Menú"},
    {"&Open", u"&Abrir"},
    {"&Save", u"&Guardar"},
    {"Look in:", u"Buscar en:"},
    {"File &name:", u"&Nombre de archivo:"},
    {"Files of type:", u"Tipo:"},
    {"Ctrl", u"Ctrl"},  // what stands on the key
}};

class TextosPropios : public QTranslator {
 public:
  using QTranslator::QTranslator;
  bool isEmpty() const override { return false; }
  QString translate(const char* contexto, const char* original, const char* /*distincion*/, int /*n*/) const override {
    // only Qt's own classes: the captions of the program's windows are Spanish already
    if (contexto == nullptr || contexto[0] != 'Q') return {};
    for (const Texto& t : textos)
      if (std::strcmp(t.original, original) == 0) return QString::fromUtf16(t.espanol);
    return {};
  }
};

}  // namespace

void instalarTextosEspanoles(QCoreApplication& aplicacion) {
  auto* deQtMismo = new QTranslator(&aplicacion);
  if (deQtMismo->load(QStringLiteral("qtbase_es"), QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
    QCoreApplication::installTranslator(deQtMismo);
  else
    delete deQtMismo;
  QCoreApplication::installTranslator(new TextosPropios(&aplicacion));  // asked first
}

}  // namespace calvento
