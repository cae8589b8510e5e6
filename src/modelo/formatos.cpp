#include <array>

#include "modelo/archivo_proyecto.h"

namespace calvento {

namespace {

using namespace std::string_view_literals;

// The chute stores no transition angle: the field of the parameter window keeps what it has. The drops do store it.
constexpr std::array lineasRapida = {
    "Text5"sv,       "Text6"sv,       "Text7"sv,       "Text8"sv,       "Text9"sv,        "Text10"sv,
    "Text11"sv,      "Text12"sv,      "Text13"sv,      "Text15"sv,      "Text14"sv,       "Text16"sv,
    "Text18"sv,      "Text19"sv,      "Text20"sv,      "Text23"sv,      "Text24"sv,       "Text1"sv,
    "Text3"sv,       "Text27"sv,      "Text2"sv,       "Text4"sv,       "Text21"sv,       "Text22"sv,
    "Text25"sv,      "Text26"sv,      "Form2.Text1"sv, "Form2.Text2"sv, "Form2.Text3"sv,  "Form2.Text4"sv,
    "Form2.Text5"sv, "Form2.Text6"sv, "Form2.Text7"sv, "Form2.Text8"sv, "Form2.Text10"sv, "tipoTanque"sv,
    "Text17"sv};

constexpr std::array lineasCaidaInclinada = {"Text5"sv,       "Text2"sv,        "Text25"sv,
                                             "Text21"sv,      "Text22"sv,       "Text4"sv,
                                             "Text3"sv,       "Text6"sv,        "Text7"sv,
                                             "Text8"sv,       "Text9"sv,        "Text16"sv,
                                             "Text18"sv,      "Text19"sv,       "Text20"sv,
                                             "Text23"sv,      "Text24"sv,       "Form2.Text1"sv,
                                             "Form2.Text2"sv, "Form2.Text3"sv,  "Form2.Text4"sv,
                                             "Form2.Text5"sv, "Form2.Text6"sv,  "Form2.Text7"sv,
                                             "Form2.Text8"sv, "Form2.Text10"sv, "anguloTransicion"sv,
                                             "tipoTanque"sv};

constexpr std::array lineasCaidaVertical = {"Text5"sv,
                                            "Text25"sv,
                                            "Text2"sv,
                                            "Text4"sv,
                                            "Text22"sv,
                                            "Text6"sv,
                                            "Text7"sv,
                                            "Text8"sv,
                                            "Text9"sv,
                                            "Text16"sv,
                                            "Text18"sv,
                                            "Text19"sv,
                                            "Text20"sv,
                                            "Text23"sv,
                                            "Form25.Text2"sv,
                                            "Form25.Text1"sv,
                                            "Form25.Text5"sv,
                                            "Form25.Text8"sv,
                                            "anguloTransicion"sv,
                                            "tipoTubo"sv,
                                            "longTubo"sv,
                                            "diamTubo"sv,
                                            "tipoTransVert"sv,
                                            "tipoTanque"sv};

}  // namespace

// the chute's filter names the inclined drop's files: that is its text
const FormatoProyecto formatoRapida{"Form10", "cvr", "CVI File(*.CVR)|*.cvr", "Rápida", lineasRapida};
const FormatoProyecto formatoCaidaInclinada{"Form1", "cvi", "CVI File(*.CVI)|*.cvi", "Caída Inclinada",
                                            lineasCaidaInclinada};
const FormatoProyecto formatoCaidaVertical{"Form16", "cvv", "CVV File(*.CVV)|*.cvv", "Caída Vertical",
                                           lineasCaidaVertical};

}  // namespace calvento
