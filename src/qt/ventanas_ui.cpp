#include "qt/ventanas_ui.h"

#include <algorithm>
#include <array>

#include <QMainWindow>
#include <QtPlugin>

#include "qt/boceto.h"
#include "ui_Form1.h"
#include "ui_Form10.h"
#include "ui_Form11.h"
#include "ui_Form13.h"
#include "ui_Form14.h"
#include "ui_Form15.h"
#include "ui_Form16.h"
#include "ui_Form17.h"
#include "ui_Form19.h"
#include "ui_Form2.h"
#include "ui_Form20.h"
#include "ui_Form21.h"
#include "ui_Form22.h"
#include "ui_Form23.h"
#include "ui_Form24.h"
#include "ui_Form25.h"
#include "ui_Form26.h"
#include "ui_Form3.h"
#include "ui_Form4.h"
#include "ui_Form5.h"
#include "ui_Form6.h"
#include "ui_Form7.h"
#include "ui_Form8.h"
#include "ui_FormEstudio.h"
#include "ui_FormManual.h"
#include "ui_FormMemoria.h"
#include "ui_MarcoExportar.h"
#include "ui_frmAbout.h"
#include "ui_frmMain.h"

Q_IMPORT_PLUGIN(IconoTrazos)

namespace calvento {

namespace {

template <class Diseno>
void construir(QMainWindow& vista) {
  Diseno().setupUi(&vista);
  for (QWidget* widget : vista.findChildren<QWidget*>())
    if (auto* boceto = dynamic_cast<Boceto*>(widget)) boceto->crecer();
}

constexpr std::array ventanas_ui = {
    VentanaUi{"frmMain", Acomodo::principal, construir<Ui::frmMain>},
    VentanaUi{"frmAbout", Acomodo::suelta, construir<Ui::frmAbout>},
    VentanaUi{"Form1", Acomodo::hija, construir<Ui::Form1>},
    VentanaUi{"Form2", Acomodo::hija, construir<Ui::Form2>},
    VentanaUi{"Form3", Acomodo::hija, construir<Ui::Form3>, true},
    VentanaUi{"Form10", Acomodo::hija, construir<Ui::Form10>},
    VentanaUi{"Form14", Acomodo::hija, construir<Ui::Form14>},
    VentanaUi{"Form15", Acomodo::hija, construir<Ui::Form15>},
    VentanaUi{"Form16", Acomodo::hija, construir<Ui::Form16>},
    VentanaUi{"Form25", Acomodo::hija, construir<Ui::Form25>},
    VentanaUi{"Form4", Acomodo::hija, construir<Ui::Form4>, true},
    VentanaUi{"Form17", Acomodo::hija, construir<Ui::Form17>, true},
    VentanaUi{"Form22", Acomodo::hija, construir<Ui::Form22>, true},
    VentanaUi{"Form5", Acomodo::hija, construir<Ui::Form5>, true},
    VentanaUi{"Form21", Acomodo::hija, construir<Ui::Form21>, true},
    VentanaUi{"Form23", Acomodo::hija, construir<Ui::Form23>, true},
    VentanaUi{"Form19", Acomodo::hija, construir<Ui::Form19>, true},
    VentanaUi{"Form20", Acomodo::hija, construir<Ui::Form20>, true},
    VentanaUi{"Form24", Acomodo::hija, construir<Ui::Form24>, true},
    VentanaUi{"Form11", Acomodo::hija, construir<Ui::Form11>, true},
    VentanaUi{"Form6", Acomodo::hija, construir<Ui::Form6>, true},
    VentanaUi{"Form8", Acomodo::hija, construir<Ui::Form8>, true},
    VentanaUi{"Form13", Acomodo::hija, construir<Ui::Form13>, true},
    VentanaUi{"Form7", Acomodo::hija, construir<Ui::Form7>, true},
    VentanaUi{"Form26", Acomodo::hija, construir<Ui::Form26>, true},
    VentanaUi{"Form12", Acomodo::hija, construir<Ui::MarcoExportar>, true},
    VentanaUi{"Form9", Acomodo::hija, construir<Ui::MarcoExportar>, true},
    VentanaUi{"Form18", Acomodo::hija, construir<Ui::MarcoExportar>, true},
    VentanaUi{"MemoriaForm10", Acomodo::hija, construir<Ui::FormMemoria>},
    VentanaUi{"MemoriaForm1", Acomodo::hija, construir<Ui::FormMemoria>},
    VentanaUi{"MemoriaForm16", Acomodo::hija, construir<Ui::FormMemoria>},
    VentanaUi{"EstudioForm10", Acomodo::hija, construir<Ui::FormEstudio>},
    VentanaUi{"EstudioForm1", Acomodo::hija, construir<Ui::FormEstudio>},
    VentanaUi{"EstudioForm16", Acomodo::hija, construir<Ui::FormEstudio>},
    VentanaUi{"FormManual", Acomodo::hija, construir<Ui::FormManual>},
};

}  // namespace

std::span<const VentanaUi> ventanasUi() { return ventanas_ui; }

const VentanaUi* ventanaUi(std::string_view nombre) {
  const auto* it =
      std::find_if(ventanas_ui.begin(), ventanas_ui.end(), [&](const VentanaUi& v) { return v.nombre == nombre; });
  return it == ventanas_ui.end() ? nullptr : it;
}

}  // namespace calvento
