#pragma once

#include <string>

#include <gtest/gtest.h>

#include "app/program.h"
#include "base/code_page.h"
#include "support/fake_services.h"
#include "support/language_guard.h"
#include "support/temporary_folder.h"

namespace zel::test {

/// A program with recording services in a folder of its own, in Spanish.
class ProgramTest : public ::testing::Test {
 protected:
  using Box = FakeMessageBoxes::Box;

  static Box attention(const std::string& text) {
    return {text, CurrentLanguage() == "EN" ? "ZEL - NOTIFY" : "ZEL - ATENCIÓN", BoxStyle::stop};
  }
  static Box errorReport(const std::string& cause) {
    if (CurrentLanguage() == "EN")
      return {"Cannot perform requested action.\r\nReason: " + cause, "ZEL - Error report",
              BoxStyle::stop};
    return {"No se puede realizar la operación.\r\nCausa: " + cause, "ZEL - Reporte de errores",
            BoxStyle::stop};
  }

  void addFunction(char letter, const std::string& formula) {
    program.graphs.rebuildGraph(letter, formula, "", 255, 'F', nullptr);
  }

 private:
  LanguageGuard language_{"ES"};
  TemporaryFolder home_;
  CurrentFolderGuard current_{home_.path()};

 protected:
  FakeServices services;
  Program program{services.services()};
};

}  // namespace zel::test
