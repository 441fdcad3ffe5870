#include "app/messages.h"

#include "base/message_table.h"
#include "program_fixture.h"

namespace zel::test {
namespace {

class Messages : public ProgramTest {
 protected:
  FakeMessageBoxes& boxes = services.boxes;
};

TEST_F(Messages, AttentionShowsItsTextAsItIs) {
  ShowAttention(boxes, "Error de sintaxis.");
  SetCurrentLanguage("EN");
  ShowAttention(boxes, "Error de sintaxis.");
  EXPECT_EQ(boxes.shown, (std::vector<Box>{
                             {"Error de sintaxis.", "ZEL - ATENCIÓN", BoxStyle::stop},
                             {"Error de sintaxis.", "ZEL - NOTIFY", BoxStyle::stop},
                         }));
}

TEST_F(Messages, InformationIsTranslatedAndHasTheButtonsOfStyleSix) {
  ShowInformation(boxes, "Cerrar");
  SetCurrentLanguage("EN");
  ShowInformation(boxes, "Cerrar");
  EXPECT_EQ(boxes.shown, (std::vector<Box>{
                             {"Cerrar", "Información", BoxStyle::cancel_try_again_continue},
                             {"Close", "Information", BoxStyle::cancel_try_again_continue},
                         }));
}

TEST_F(Messages, EmptyTextsShowNothingButAnEmptyInformation) {
  ShowAttention(boxes, "");
  ReportError(boxes, "");
  EXPECT_TRUE(boxes.shown.empty());
  ShowInformation(boxes, "");
  ASSERT_EQ(boxes.shown.size(), 1u);
  EXPECT_EQ(boxes.shown[0].text, "");
}

TEST_F(Messages, AnErrorIsReportedWithItsCause) {
  ReportError(boxes, "porque sí");
  SetCurrentLanguage("EN");
  ReportError(boxes, "porque sí");
  EXPECT_EQ(boxes.shown, (std::vector<Box>{
                             {"No se puede realizar la operación.\r\nCausa: porque sí",
                              "ZEL - Reporte de errores", BoxStyle::stop},
                             {"Cannot perform requested action.\r\nReason: porque sí",
                              "ZEL - Error report", BoxStyle::stop},
                         }));
}

TEST_F(Messages, KnowTheThreeErrorsOfUsersInTheCurrentLanguage) {
  EXPECT_TRUE(IsKnownUserError("Error de sintaxis."));
  EXPECT_TRUE(IsKnownUserError("x: Error: No se entiende el elemento: '2*'"));
  EXPECT_TRUE(IsKnownUserError(messages::kRangeTooClose));
  EXPECT_FALSE(IsKnownUserError("error de sintaxis."));
  EXPECT_FALSE(IsKnownUserError("Syntax error."));
  EXPECT_FALSE(IsKnownUserError(""));
  SetCurrentLanguage("EN");
  EXPECT_TRUE(IsKnownUserError("Syntax error."));
  EXPECT_TRUE(IsKnownUserError("Cannot understand expression: '2*'"));
  EXPECT_TRUE(IsKnownUserError("Cannot graph because interval range is too small."));
  EXPECT_FALSE(IsKnownUserError("Error de sintaxis."));
}

TEST_F(Messages, ACriticalErrorNamesTheGraphAndIsShownForKnownErrorsOnly) {
  ReportCriticalError(boxes, "Error de sintaxis.", 'f');
  ReportCriticalError(boxes, "Valores demasiado grandes para operar.", 'f');
  SetCurrentLanguage("EN");
  ReportCriticalError(boxes, "Syntax error.", 'g');
  EXPECT_EQ(boxes.shown,
            (std::vector<Box>{
                {"Operación cancelada.\r\nCausa: Error de sintaxis.\r\nDetalle: gráfico activo f",
                 "ZEL - Reporte de errores criticos", BoxStyle::stop},
                {"Cancelled operation.\r\nReason: Syntax error.\r\nDetail: active graphic g",
                 "ZEL - Critical error report", BoxStyle::stop},
            }));
}

TEST_F(Messages, ACriticalErrorOfNoGraphNamesNone) {
  ReportCriticalError(boxes, "Error de sintaxis.", std::nullopt);
  EXPECT_EQ(boxes.shown.at(0).text,
            "Operación cancelada.\r\nCausa: Error de sintaxis.\r\nDetalle: gráfico activo ");
}

TEST_F(Messages, ADrawingErrorIsCriticalWhenItIsKnownAndShownAsItIsOtherwise) {
  ShowDrawingError(boxes, messages::kRangeTooClose, 'c');
  ShowDrawingError(boxes, "Error: Los valores del rango son demasiado elevados.", 'c');
  SetCurrentLanguage("EN");
  ShowDrawingError(boxes, "Cannot graph because interval range is too small.", 'd');
  EXPECT_EQ(
      boxes.shown,
      (std::vector<Box>{
          {"Operación cancelada.\r\nCausa: " + std::string(messages::kRangeTooClose) +
               "\r\nDetalle: gráfico activo c",
           "ZEL - Reporte de errores criticos", BoxStyle::stop},
          {"Error: Los valores del rango son demasiado elevados.", "ZEL - ATENCIÓN",
           BoxStyle::stop},
          {"Cancelled operation.\r\nReason: Cannot graph because interval range is too small.\r\n"
           "Detail: active graphic d",
           "ZEL - Critical error report", BoxStyle::stop},
      }));
}

}  // namespace
}  // namespace zel::test
