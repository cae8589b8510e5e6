#include "memoria/fichas.h"

namespace calvento {

namespace {

Linea<Dato> canalArriba() {
  return {"Canal aguas arriba", {{"b", "Text6", "m"}, {"Z", "Text7", ""}, {"n", "Text8", ""}, {"S", "Text9", "m/m"}}};
}
Linea<Dato> canalAbajo() {
  return {"Canal aguas abajo",
          {{"b", "Text16", "m"}, {"Z", "Text18", ""}, {"n", "Text19", ""}, {"S", "Text20", "m/m"}}};
}
Linea<Dato> elevacionesCaida() {
  return {"Elevaciones", {{"inicio de caída", "Text2", "m"}, {"salida", "Text4", "m"}}};
}

std::vector<Linea<Dato>> parametrosTanques(std::string_view tramo) {
  return {
      {"Bordo libre",
       {{"canal aguas arriba", "Text5", "m"},
        {tramo, "Text6", "m"},
        {"poza", "Text7", "m"},
        {"canal aguas abajo", "Text8", "m"}}},
      {"Transiciones", {{"Ø", "Text9", "°"}}},
      {"K de la longitud de poza",
       {{"rectangular", "Text1", ""},
        {"USBR I", "Text2", ""},
        {"USBR II", "Text3", ""},
        {"USBR III", "Text4", ""},
        {"trapezoidal", "Text10", ""}}},
      {"Altura mínima de bloques", {{"", "Text11", "m"}}},
  };
}
std::vector<Linea<Dato>> parametrosVertical() {
  return {
      {"Bordo libre", {{"canal aguas arriba", "Text5", "m"}, {"canal aguas abajo", "Text8", "m"}}},
      {"Transiciones", {{"Ø", "Text9", "°"}}},
      {"K de la longitud de poza", {{"rectangular", "Text1", ""}}},
      {"Altura mínima de bloques", {{"", "Text11", "m"}}},
      {"Ventilación", {{"contracción lateral", "Text2", "m"}, {"longitud de tubería", "Text10", "m"}}},
  };
}

Ficha rapida() {
  using D = DesignState;
  return {
      TipoEstructura::rapida,
      &formatoRapida,
      "Form2",
      {
          {"Caudal", {{"Q", "Text5", "m³/s"}}},
          canalArriba(),
          {"Canal de la rápida",
           {{"b", "Text10", "m"}, {"Z", "Text11", ""}, {"n", "Text12", ""}, {"tramos", "Text17", ""}}},
          {"Pendientes de los tramos", {{"S1", "Text13", "m/m"}, {"S2", "Text15", "m/m"}, {"S3", "Text14", "m/m"}}},
          canalAbajo(),
          {"Poza", {{"B", "Text23", "m"}, {"Z", "Text24", ""}, {"ahogamiento", "Text26", "%"}}},
          {"Taludes de las rampas", {{"Z1", "Text21", ""}, {"Z2", "Text22", ""}}},
          {"Progresiva de inicio", {{"", "Text25", "m"}}},
          {"Elevaciones",
           {{"inicio", "Text1", "m"},
            {"2do tramo", "Text3", "m"},
            {"3er tramo", "Text27", "m"},
            {"inicio de trayectoria", "Text2", "m"},
            {"salida", "Text4", "m"}}},
      },
      parametrosTanques("rápida"),
      {
          {"Canal aguas arriba",
           {{"Yn", &D::ynArriba, "m"}, {"V", &D::vArriba, "m/s"}, {"F", &D::frArriba, ""}, {"H", &D::hArriba, "m", 2}}},
          {"Sección de control", {{"Y", &D::ycControl, "m"}, {"sobre elevación", &D::sobreelevacion, "m"}}},
          {"Tramos (longitud)",
           {{"L1", &D::longTramo1, "m", 2},
            {"L2", &D::longTramo2, "m", 2, true},
            {"L3", &D::longTramo3, "m", 2, true}}},
          {"Fin de la rápida",
           {{"Y", &D::yFin, "m"}, {"V", &D::vFin, "m/s"}, {"F", &D::frFin, ""}, {"H", &D::hRapida, "m", 2}}},
          {"Trayectoria", {{"L", &D::xTrayectoria, "m"}, {"elevación final", &D::cotaTrayectoria, "m"}}},
          {"Rampa de ingreso", {{"Z1", &D::zRampaEntrada, "", 2}}},
          {"Inicio del resalto", {{"Y1", &D::y1, "m"}, {"V1", &D::v1, "m/s"}, {"F1", &D::fr1, ""}}},
          {"Fin del resalto", {{"Y2", &D::y2, "m"}, {"V2", &D::v2, "m/s"}}},
          {"Poza",
           {{"elevación", &D::cotaPoza, "m"},
            {"profundidad", &D::profPoza, "m"},
            {"longitud", &D::longPoza, "m", 2},
            {"H", &D::hPoza, "m", 2}}},
          {"Canal aguas abajo", {{"Yn", &D::ynAbajo, "m"}, {"V", &D::vAbajo, "m/s"}, {"H", &D::hAbajo, "m", 2}}},
          {"Transiciones", {{"entrada", &D::longTransEntrada, "m", 2}, {"salida", &D::longTransSalida, "m", 2}}},
      }};
}

Ficha caidaInclinada() {
  using D = DesignState;
  return {
      TipoEstructura::inclinada,
      &formatoCaidaInclinada,
      "Form2",
      {
          {"Caudal", {{"Q", "Text5", "m³/s"}}},
          canalArriba(),
          canalAbajo(),
          {"Poza", {{"B", "Text23", "m"}, {"Z", "Text24", ""}, {"ahogamiento", "Text3", "%"}}},
          {"Taludes de las rampas", {{"Z1", "Text21", ""}, {"Z2", "Text22", ""}}},
          {"Progresiva de inicio", {{"", "Text25", "m"}}},
          elevacionesCaida(),
      },
      parametrosTanques("rampa"),
      {
          {"Canal aguas arriba",
           {{"Yn", &D::ynArriba, "m"}, {"V", &D::vArriba, "m/s"}, {"F", &D::frArriba, ""}, {"H", &D::hArriba, "m", 2}}},
          {"Cresta",
           {{"Y", &D::yFin, "m"},
            {"V", &D::vFin, "m/s"},
            {"sobre elevación", &D::sobreelevacion, "m"},
            {"L", &D::longControl, "m", 2},
            {"elevación", &D::cotaFin, "m"}}},
          {"Curva", {{"R", &D::radioCurva, "m", 2}, {"L", &D::xTrayectoria, "m"}, {"fin", &D::cotaTrayectoria, "m"}}},
          {"Inicio del resalto", {{"Y1", &D::y1, "m"}, {"V1", &D::v1, "m/s"}, {"F1", &D::fr1, ""}}},
          {"Fin del resalto", {{"Y2", &D::y2, "m"}, {"V2", &D::v2, "m/s"}}},
          {"Poza",
           {{"elevación", &D::cotaPoza, "m"},
            {"profundidad", &D::profPoza, "m", 2},
            {"longitud", &D::longPoza, "m", 2},
            {"H", &D::hPoza, "m", 2}}},
          {"Canal aguas abajo",
           {{"elevación", &D::cotaAbajo, "m"},
            {"Yn", &D::ynAbajo, "m"},
            {"V", &D::vAbajo, "m/s"},
            {"H", &D::hAbajo, "m", 2}}},
          {"Transiciones", {{"entrada", &D::longTransEntrada, "m", 2}, {"salida", &D::longTransSalida, "m", 2}}},
      }};
}

Ficha caidaVertical() {
  using D = DesignState;
  return {
      TipoEstructura::vertical,
      &formatoCaidaVertical,
      "Form25",
      {
          {"Caudal", {{"Q", "Text5", "m³/s"}}},
          canalArriba(),
          canalAbajo(),
          {"Poza", {{"B", "Text23", "m"}, {"Z2", "Text22", ""}}},
          {"Progresiva de inicio", {{"", "Text25", "m"}}},
          elevacionesCaida(),
      },
      parametrosVertical(),
      {
          {"Canal aguas arriba",
           {{"Yn", &D::ynArriba, "m"}, {"V", &D::vArriba, "m/s"}, {"F", &D::frArriba, ""}, {"H", &D::hArriba, "m", 2}}},
          {"Cresta",
           {{"Yc", &D::yFin, "m"},
            {"V", &D::vFin, "m/s"},
            {"sobre elevación", &D::sobreelevacion, "m"},
            {"L", &D::longControl, "m", 2}}},
          {"Caída", {{"tirante al pie", &D::yVert94, "m"}, {"longitud total", &D::longRapida, "m"}}},
          {"Inicio del resalto", {{"Y1", &D::y1, "m"}}},
          {"Fin del resalto", {{"Y2", &D::y2, "m"}, {"V2", &D::v2, "m/s"}}},
          {"Poza",
           {{"elevación", &D::cotaPoza, "m"}, {"profundidad", &D::profPoza, "m", 2}, {"longitud", &D::longPoza, "m"}}},
          {"Canal aguas abajo", {{"Yn", &D::ynAbajo, "m"}, {"H", &D::hAbajo, "m", 2}}},
          {"Transiciones", {{"entrada", &D::longTransEntrada, "m", 2}, {"salida", &D::longTransSalida, "m", 2}}},
          {"Ventilación",
           {{"contracción lateral", &D::longTransVert, "m", 2, true},
            {"tubos", &D::numTubos, "", 0},
            {"diámetro", &D::diamTubo, "m", 4}}},
      }};
}

}  // namespace

std::span<const Ficha> fichas() {
  static const std::vector<Ficha> todas = {rapida(), caidaInclinada(), caidaVertical()};
  return todas;
}

const Ficha* fichaDe(std::string_view ventana) {
  for (const Ficha& f : fichas())
    if (f.formato->ventana == ventana) return &f;
  return nullptr;
}

}  // namespace calvento
