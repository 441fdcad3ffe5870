#pragma once

#include <QAccessible>
#include <QAction>
#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSlider>
#include <QTest>
#include <string>

#include <gtest/gtest.h>

#include "app/program.h"
#include "forms/form.h"
#include "support/fake_services.h"
#include "support/language_guard.h"
#include "support/qt_application.h"
#include "support/temporary_folder.h"

namespace zel::test {

/// A window that notes how often it was shown.
class NotedWindow : public FormWindow {
 public:
  void showForm() override { ++shown; }
  int shown = 0;
};

/// A program with recording services, Qt, and a folder of its own.
class WindowTest : public ::testing::Test {
 protected:
  WindowTest() { application(); }

  template <class Control>
  static Control& control(QWidget& window, const char* name) {
    auto* found = window.findChild<Control*>(QString::fromLatin1(name));
    if (!found) throw std::runtime_error(std::string("no control ") + name);
    return *found;
  }

  static std::string text(QWidget& window, const char* name) {
    return fromQt(control<QLineEdit>(window, name).text());
  }

  static std::string actionText(QWidget& window, const char* name) {
    return fromQt(control<QAction>(window, name).text());
  }

  /// Every control that can have the focus has a name for those who cannot see it.
  static void expectAccessibleNames(QWidget& window) {
    for (QWidget* child : window.findChildren<QWidget*>()) {
      if (child->focusPolicy() == Qt::NoFocus || child->objectName().isEmpty()) continue;
      if (child->objectName().startsWith("qt_")) continue;
      QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(child);
      ASSERT_NE(interface, nullptr) << child->objectName().toStdString();
      EXPECT_FALSE(interface->text(QAccessible::Name).isEmpty())
          << child->objectName().toStdString();
    }
  }

  void addFunction(char letter, const std::string& formula, std::int32_t colour = 255) {
    program.graphs.rebuildGraph(letter, formula, "", colour, 'F', nullptr);
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
