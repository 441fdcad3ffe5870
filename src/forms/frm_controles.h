#pragma once

#include "app/desktop.h"
#include "forms/form.h"

namespace zel {

/// The invisible holder of shared controls that are not visual: the help viewer.
class frmControles : public Form {
 public:
  explicit frmControles(Program& program) : Form(program, "frmControles") {}

  HelpViewer& help() { return program().services.help; }

  /// It has no captions and is never shown.
  void assignCaptions() override {}
  void showForm() override {}
};

}  // namespace zel
