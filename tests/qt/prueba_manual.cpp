#include <QListWidget>
#include <QMdiSubWindow>
#include <QMenu>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextBrowser>

#include "apoyo/carpeta_prueba.h"
#include "qt/cadena.h"
#include "qt/escritorio.h"

namespace calvento {
namespace {

class Manual : public EnElEscritorio {
 protected:
  void tecla(Qt::Key cual, Qt::KeyboardModifiers con = Qt::NoModifier) {
    QTest::keyClick(vista("frmMain")->windowHandle(), cual, con);
    QTest::qWait(30);
  }
  std::string capitulo() {
    return deQt(vista("FormManual")->findChild<QListWidget*>()->currentItem()->text().trimmed());
  }
};

TEST_F(Manual, F1LoAbreEnElCapituloDeLaVentanaYEscVuelveAlCampo) {
  quitarAcercaDe();
  ASSERT_TRUE(QTest::qWaitForWindowActive(vista("frmMain")));
  elegir("frmMain", "mnrapida");
  QTest::qWait(30);
  campo("Form10", "Text8")->setFocus();
  tecla(Qt::Key_F1);
  ASSERT_NE(vista("FormManual"), nullptr);
  EXPECT_EQ(capitulo(), "5. Rápida");
  auto* texto = vista("FormManual")->findChild<QTextBrowser*>();
  EXPECT_TRUE(texto->hasFocus());
  const QTextCursor arriba = texto->cursorForPosition(QPoint(1, 1));
  EXPECT_EQ(deQt(arriba.block().text()), "5. Rápida");

  const int antes = texto->verticalScrollBar()->value();
  tecla(Qt::Key_PageDown);
  EXPECT_GT(texto->verticalScrollBar()->value(), antes);
  vista("FormManual")->findChild<QListWidget*>()->setCurrentRow(3);
  EXPECT_EQ(capitulo(), "3. Calculadora de canales");
  tecla(Qt::Key_Left, Qt::AltModifier);
  EXPECT_EQ(capitulo(), "5. Rápida");
  tecla(Qt::Key_F, Qt::ControlModifier);
  for (const char c : std::string("barisal")) QTest::keyClick(QApplication::focusWidget(), c);
  tecla(Qt::Key_Return);
  EXPECT_FALSE(texto->textCursor().hasSelection());
  vista("FormManual")->findChild<QLineEdit*>()->setText("Vedernikov");
  tecla(Qt::Key_F3);
  EXPECT_EQ(deQt(texto->textCursor().selectedText()), "Vedernikov");
  tecla(Qt::Key_Escape);
  EXPECT_EQ(vista("FormManual"), nullptr);
  EXPECT_TRUE(campo("Form10", "Text8")->hasFocus());
}

TEST_F(Manual, UnEjemploSeAbreComoCopia) {
  const CarpetaPrueba carpeta;
  elegir("frmMain", "mncaidavertical");
  QMenu* ejemplos = nullptr;
  for (QMenu* m : vista("Form16")->findChildren<QMenu*>())
    if (m->title() == "&Ejemplos") ejemplos = m;
  ASSERT_NE(ejemplos, nullptr);
  emit ejemplos->aboutToShow();
  ASSERT_EQ(ejemplos->actions().size(), 4);
  EXPECT_EQ(deQt(ejemplos->actions()[2]->text()), "23  Caudal pequeño, ventilado con tubos");
  ejemplos->actions()[2]->trigger();
  EXPECT_EQ(campo("Form16", "Text5")->text(), "0.25");
  dialogos.guarda(carpeta.en("propio.cvv"));
  elegir("Form16", "mnguardar");
  EXPECT_EQ(dialogos.ultimasOpciones.sugerido, "Copia de 23-vertical-tubos.cvv");
  campo("Form16", "Text5")->setText("0.26");
  elegir("Form16", "mnguardar");  // it has a file of its own now
  EXPECT_TRUE(carpeta.leer("propio.cvv").starts_with("0.26\r\n"));
}

}  // namespace
}  // namespace calvento
