#pragma once

#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QStatusBar>
#include <QTest>
#include <QToolButton>
#include <QVBoxLayout>

#include "plataforma/campos.h"
#include "qt/enlace.h"

namespace calvento {

/// A window with a control of each kind; what the user does to them is written down.
struct Mostrador : Ventana {
  Mostrador() : Ventana("Banco", "Prueba") {
    seleccionarAlEnfocar(*this);
    Text2.Change = [this] { hecho += "Change:" + Text2.Text.valor() + " "; };
    Option2.Click = [this] { hecho += "Option2 "; };
    Check1.Click = [this] { hecho += Check1.Value ? "marca " : "sin-marca "; };
    Combo1.Click = [this] { hecho += Combo1.Text() + " "; };
    UpDown1.UpClick = [this] { hecho += "sube:" + std::to_string(UpDown1.Value.valor()) + " "; };
    UpDown1.DownClick = [this] { hecho += "baja:" + std::to_string(UpDown1.Value.valor()) + " "; };
    Command1.Click = [this] { hecho += "Command1 "; };
  }
  std::string hecho;
  Label Label1{*this, "Label1", "Caudal:"};
  TextBox Text1{*this, "Text1", "12,5"};
  TextBox Text2{*this, "Text2"};
  OptionButton Option1{*this, "Option1", 1, true};
  OptionButton Option2{*this, "Option2", 1, false};
  CheckBox Check1{*this, "Check1"};
  ComboBox Combo1{*this, "Combo1", {"uno", "dos"}, 0};
  UpDown UpDown1{*this, "UpDown1", 1, 3, 1};
  ProgressBar Bar1{*this, "Bar1"};
  StatusBar Barra{*this, "Barra"};
  CommandButton Command1{*this, "Command1"};
  CommandButton* botonPredeterminado() override { return &Command1; }
};

/// Its widgets, joined to it.
struct BancoEnPantalla {
  template <class W>
  W* poner(const char* nombre, QWidget* padre = nullptr) {
    auto* w = new W(padre != nullptr ? padre : vista.centralWidget());
    w->setObjectName(QLatin1String(nombre));
    if (padre == nullptr) vista.centralWidget()->layout()->addWidget(w);
    return w;
  }
  void enlazar() {
    vista.setCentralWidget(new QWidget);
    new QVBoxLayout(vista.centralWidget());
    rotulo = poner<QLabel>("Label1");
    rotulo->setText("Caudal:");
    texto1 = poner<QLineEdit>("Text1");
    texto1->setAccessibleName("Datos: Caudal");
    rotulo->setBuddy(texto1);
    texto2 = poner<QLineEdit>("Text2");
    for (const char* opcion : {"Option1", "Option2"}) poner<QRadioButton>(opcion);
    poner<QCheckBox>("Check1");
    poner<QComboBox>("Combo1");
    auto* flechas = poner<QWidget>("UpDown1");
    poner<QToolButton>("UpDown1_subir", flechas);
    poner<QToolButton>("UpDown1_bajar", flechas);
    poner<QProgressBar>("Bar1");
    vista.statusBar()->setObjectName("Barra");
    poner<QPushButton>("Command1");
    enlace = std::make_unique<Enlace>(v, vista, [this](const std::string& t) { fallos.push_back(t); });
    vista.show();
    vista.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&vista));
    vista.setFocus();
  }
  ~BancoEnPantalla() {
    if (enlace) enlace->soltar();
  }

  Mostrador v;
  QMainWindow vista;
  QLabel* rotulo = nullptr;
  QLineEdit* texto1 = nullptr;
  QLineEdit* texto2 = nullptr;
  std::unique_ptr<Enlace> enlace;
  std::vector<std::string> fallos;
};

}  // namespace calvento
