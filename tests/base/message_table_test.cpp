#include "base/message_table.h"

#include <array>

#include <gtest/gtest.h>

#include "base/language.h"
#include "support/language_guard.h"

namespace zel::test {
namespace {

/// Typed a second time, letter by letter: the wording of both columns must not drift.
constexpr std::array<MessageRow, 67> kExpected = {{
    {"No se encuentran MÁXIMOS ni Mínimos.", "Cannot find maximun nor minimun values."},
    {"GRAFICANDO", "GRAPHING"},
    {"Posible", "Possible"},
    {"RECORRIDO", "PATH"},
    {"Error de impresora", "print error"},
    {"Trabajo de impresión cancelado.", "Impression job canceled."},
    {"No se puede imprimir.", "Cannot print."},
    {"Causa: ", "Reason: "},
    {"Error: No se puede mostrar vista previa.", "Error: Cannot show preview."},
    {"Agregar nuevo gráfico", "New graphic"},
    {"Modificar gráfico", "Edit graphic"},
    {"No se puede realizar la operación.", "Cannot perform requested action."},
    {"El archivo no es compatible con esta versión del programa.",
     "File you try to open is uncompatible with that program version."},
    {"EN PAUSA...", "PAUSE MODE"},
    {"ZEL - Datos iniciales", "ZEL - Graphic manager"},
    {"Cerrar", "Close"},
    {"Graficador de funciones matemáticas", "Mathematical function grapher"},
    {"No se pudo salvar el archivo.", "Could not save file."},
    {"ZEL - ATENCIÓN", "ZEL - NOTIFY"},
    {"Datos no válidos en declaraciones y/o rango.", "No valid definitions or range."},
    {"Error: No se puede graficar con la ecuación y rango elegidos.",
     "Error: Cannot graph using selected function and range."},
    {"Error: Los valores del rango son demasiado elevados.", "Error: Range value too big."},
    {"No se puede encontrar el programa asociado.", "Cannot find related program."},
    {"No se puede definir mas gráficos.", "Cannot create more graphics."},
    {"No se puede encontrar el programa asociado.", "Could not find related program."},
    {"Causa: código ", "Reason: code "},
    {"Error: No se pudo salvar.", "Error: Cannot save file."},
    {"Se ha copiado el gráfico de funciones al Portapapeles de Windows.",
     "Graphic was copied to clipboard."},
    {"La función LnGamma no existe para el valor solicitado.",
     "LnGamma function cannot be evaluated for a value."},
    {"Valores demasiado grandes para operar.", "Too big values"},
    {"Función ingresada por usuario", "User function"},
    {"No se encuentra el operador.", "Cannot find operator."},
    {"El denominador debe ser distinto de cero.", "denominator cannot be zero."},
    {"Error en Función", "Error in function"},
    {"El valor debe ser numérico y positivo.", "Value must be positive and numeric."},
    {"El resultado es demasiado grande.", "Too big result."},
    {"Detalle", "Detail"},
    {"El logaritmando debe ser numérico y mayor que cero.",
     "Logarithmand must be numeric and greater than zero."},
    {"El valor debe ser numérico y mayor o igual que cero.",
     "Value must be numeric and greater than zero."},
    {"DESCONOCIDO", "UNKNOWN"},
    {"Gráfico", "Graphic"},
    {"Información", "Information"},
    {"Ingrese un valor de X para evaluar la función.",
     "Please enter a value for 'X' in order to evaluate function."},
    {"Ingrese un valor de t para evaluar la función.",
     "Please enter a value for 't' in order to evaluate function."},
    {"Detalle: gráfico activo ", "Detail: active graphic "},
    {"Operación cancelada.", "Cancelled operation."},
    {"Para salir presione 'Cancelar'.", "Press 'cancel' to return."},
    {"ZEL - Reporte de errores criticos", "ZEL - Critical error report"},
    {"Cálculo de un valor específico", "Evaluate specific values."},
    {"No se pudo agregar o modificar el gráfico.", "Cannot add or update graph."},
    {"El campo %1 no puede estar vacío.", "Text field %1 can't be empty."},
    {"Gráfico de funciones", "Function graphic"},
    {"Error: No se pudo abrir el archivo.", "Error: Cannot open file."},
    {"Error en paréntesis en el campo %1.", "Parenthesis error in field %1."},
    {"Los siguientes campos deben contener valores numéricos:",
     "Next fields must contains numeric values:"},
    {"Los valores de distancia deben ser números positivos en los siguientes campos:",
     "Size must be numeric value greater than zero in fields:"},
    {"Los siguientes campos deben contener valores numéricos crecientes:",
     "Next fields must contains increasing numeric values:"},
    {"Debe incluir el nombre del parámetro en la declaración de la función paramétrica.",
     "Cannot find parameter name in parametric definition."},
    {"Error: No se puede graficar.\r\n"
     "Causa: Los valores del rango son demasiado cercanos entre si.  La diferencia tiende a cero "
     "en el rango de las x y/o el de las y.\r\n"
     "Solución: Modifique el rango separando mas dichos valores.\r\n"
     "Nota: Asegúrese de editar el valor completo.  El mismo puede ser demasiado grande para el "
     "campo en que aparece y podría requerir del uso de flechas o mouse para verlo completo.",
     "Cannot graph because interval range is too small."},
    {"Error: No se entiende el elemento: ", "Cannot understand expression: "},
    {"Error de sintaxis.", "Syntax error."},
    {"ZEL - Reporte de errores", "ZEL - Error report"},
    {"No se pudieron cargar los datos en memoria correctamente.\r\n"
     "Memoria inestable.  Se recomienda reiniciar.",
     "Could not load data into memory. Restart program recommended."},
    {"Error: Se ha detectado un problema al probar alguna función en su sistema.\r\n"
     "Consecuencia: NO se puede iniciar el programa.\r\n\r\n"
     "Detalles de la prueba:",
     "Error detected while testing program functions.\r\n"
     "Cannot start system.\r\n"
     "Test details:"},
    {"No es posible cargar las funciones en memoria porque el formato del archivo no es el "
     "esperado.",
     "Cannot load file in memory because file format is incompatible."},
    {"¿Está seguro que desea borrar el elemento seleccionado?", "Confirm remove selected item?"},
    {"Un error en la configuración impidió que el programa se inicie correctamente.\r\n"
     "Si tenía instalada una versión anterior de este programa en la misma carpeta destino, "
     "debería elegir otra carpeta para la nueva instalación, o bien  desinstalar la versión "
     "vieja antes de instalar la nueva.\r\n"
     "Además, a fin de evitar errores, se recomienda borrar cualquier fichero que haya quedado "
     "en la carpeta antes de instalar la nueva versión.",
     "Startup error.\r\n"
     "If you have installed a previous version of this software, please make sure you have "
     "uninstalled it before installing the new version.\r\n"
     "Futhermore, after uninstalling it is advisable to remove any remaining file in the target "
     "folder before installing a new version."},
}};

TEST(MessageTable, HoldsEveryRowInItsPlaceLetterByLetter) {
  const auto rows = messageTable();
  ASSERT_EQ(rows.size(), kExpected.size());
  for (std::size_t i = 0; i < kExpected.size(); ++i) {
    EXPECT_EQ(rows[i].spanish, kExpected[i].spanish) << "row " << i + 1;
    EXPECT_EQ(rows[i].english, kExpected[i].english) << "row " << i + 1;
  }
}

TEST(MessageTable, TranslatesEveryRowButTheOneThatRepeatsAnEarlierOne) {
  constexpr std::size_t kRepeated = 24;
  const LanguageGuard english("EN");
  for (std::size_t i = 0; i < kExpected.size(); ++i) {
    const std::size_t answer = i == kRepeated ? kRepeated - 2 : i;
    EXPECT_EQ(Localize(kExpected[i].spanish), kExpected[answer].english) << "row " << i + 1;
  }
}

TEST(MessageTable, LeavesEveryRowAsItIsInSpanish) {
  const LanguageGuard spanish("ES");
  for (const MessageRow& row : kExpected) EXPECT_EQ(Localize(row.spanish), row.spanish);
}

TEST(MessageTable, SharesItsLongTextsByName) {
  EXPECT_EQ(messages::kRangeTooClose, kExpected[58].spanish);
  EXPECT_EQ(messages::kSelfTestFailed, kExpected[63].spanish);
  EXPECT_EQ(messages::kStartupFailedLong, kExpected[66].spanish);
}

}  // namespace
}  // namespace zel::test
