#pragma once

#include <filesystem>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "cli/cli.h"
#include "support/environment_guard.h"
#include "support/language_guard.h"
#include "support/temporary_folder.h"

namespace zel::test {

/// Runs commands inside this process, in a temporary folder of the test's own.
class CliTest : public ::testing::Test {
 protected:
  struct Run {
    int status;
    std::string out;
    std::string err;
  };

  Run run(const std::vector<std::string>& arguments, const std::string& input = "") {
    std::istringstream in(input);
    std::ostringstream out;
    std::ostringstream err;
    const int status = runCli(arguments, in, out, err);
    return {status, out.str(), err.str()};
  }

  std::string path(const std::string& name) const { return folder_ / name; }

  static std::string example(const std::string& name) {
    return std::string(ZEL_EXAMPLES_DIR) + "/" + name;
  }

  std::string write(const std::string& name, const std::string& bytes) const {
    putBytes(path(name), bytes);
    return path(name);
  }

  /// A document with these lines in its view section (over the defaults) and these graph blocks.
  std::string writeDocument(const std::string& name, const std::string& view,
                            const std::string& graphs) const {
    return write(name, "[PRINCIPAL]\r\n01.versiones_compatibles=2.0\r\n \r\n[VISTA PRINCIPAL]\r\n" +
                           view + " \r\n[GRAFICOS PRINCIPAL]\r\n" + graphs + " ");
  }

  /// The block of one graph.
  static std::string block(char letter, char kind, const std::string& formula,
                           const std::string& parameters = "", const std::string& code = "") {
    return std::string("[GRAFICO]\r\n[PROPIEDADES]\r\nnombre=") + letter +
           "\r\ncarpeta=\r\ncodigo=" + code + "\r\ncolor=255\r\necuacion=" + formula +
           "\r\ntipo=" + kind + "\r\n \r\n[PARAMETROS]\r\n" + parameters + " \r\n \r\n";
  }

 private:
  EnvironmentGuard locale_{"LC_ALL", "es_ES.UTF-8"};
  LanguageGuard language_{"ES"};
  TemporaryFolder folder_;
};

}  // namespace zel::test
