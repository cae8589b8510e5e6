#include <gtest/gtest.h>

#include "apoyo/dialogos_guion.h"
#include "apoyo/navegador_mudo.h"
#include "hidraulica/form14.h"
#include "hidraulica/form15.h"

namespace calvento {
namespace {

TEST(Form15, RectangularJumpOfAHandCalculation) {
  DesignState estado;
  DialogosGuion dialogos;
  NavegadorMudo navegador;
  Form15 f(estado, dialogos, navegador);
  f.Text1.Text = "10";
  f.Text3.Text = "5";
  f.Text4.Text = "0.5";
  f.Command1.Click();
  EXPECT_EQ(f.Text6.Text.valor(), "1.051");
  EXPECT_EQ(f.Text7.Text.valor(), "2.103");
}

TEST(Form14, ElementsOfASectionOfAHandCalculation) {
  DesignState estado;
  DialogosGuion dialogos;
  NavegadorMudo navegador;
  Form14 f(estado, dialogos, navegador);
  f.Option1.Value = true;
  f.Text1.Text = "2";
  f.Text2.Text = "1";
  f.Text3.Text = "3";
  f.Command1.Click();
  EXPECT_EQ(f.Text6.Text.valor(), "1.155");
  EXPECT_EQ(f.Text7.Text.valor(), "8.657");
  EXPECT_EQ(f.Text9.Text.valor(), "7");
  EXPECT_EQ(f.Text12.Text.valor(), "10");
}

}  // namespace
}  // namespace calvento
