#include <QListWidget>
#include <QMdiSubWindow>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextBrowser>

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
  vista("FormManual")->findChild<QLineEdit*>()->setText("Froude");
  tecla(Qt::Key_F3);
  const int primero = texto->textCursor().position();
  tecla(Qt::Key_F3);
  EXPECT_GT(texto->textCursor().position(), primero);
  tecla(Qt::Key_F3, Qt::ShiftModifier);
  EXPECT_EQ(texto->textCursor().position(), primero);
  tecla(Qt::Key_Escape);
  EXPECT_EQ(vista("FormManual"), nullptr);
  EXPECT_TRUE(campo("Form10", "Text8")->hasFocus());
  tecla(Qt::Key_F1);
  emit vista("FormManual")->findChild<QTextBrowser*>()->anchorClicked(QUrl("../ejemplos/09-diseno-del-manual.cvr"));
  EXPECT_EQ(campo("Form10", "Text5")->text(), "1.6");
}

}  // namespace
}  // namespace calvento
