#pragma once

#include <QApplication>
#include <QRegularExpression>
#include <QString>
#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/temporary_folder.h"

/// Qt for tests. It is all in this header: a build without Qt has nothing to leave out.
namespace zel::test {

/// Makes the application of a test program that needs another one than Qt's own. Set before the
/// first use.
using ApplicationMaker = std::unique_ptr<QApplication> (*)(int& argument_count, char** arguments);
inline ApplicationMaker application_maker = [](int& argument_count, char** arguments) {
  return std::make_unique<QApplication>(argument_count, arguments);
};

/// Fails the running test for every warning of Qt that it has not announced, and for every
/// announced one that did not come.
class QtSession : public ::testing::EmptyTestEventListener {
 public:
  QtSession() {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // What the toolkit keeps for the next time is neither read from the user's settings nor left in
    // them.
    qputenv("XDG_CONFIG_HOME", QByteArray::fromStdString(settings_.path().string()));
    before_ = qInstallMessageHandler(&QtSession::handle);
    running() = this;
    application_ = application_maker(argument_count_, arguments_);
  }

  QApplication& application() { return *application_; }

  void expectWarning(const std::string& pattern) {
    expected_.emplace_back(QString::fromStdString(pattern));
  }

  void OnTestEnd(const ::testing::TestInfo&) override {
    for (const QRegularExpression& missing : expected_)
      ADD_FAILURE() << "No warning came that matches: " << missing.pattern().toStdString();
    expected_.clear();
  }

  void OnTestProgramEnd(const ::testing::UnitTest&) override {
    application_.reset();
    running() = nullptr;
    qInstallMessageHandler(before_);
  }

  /// The one of this process; null before the first use and after the last test.
  static QtSession*& running() {
    static QtSession* session = nullptr;
    return session;
  }

 private:
  static void handle(QtMsgType type, const QMessageLogContext& context, const QString& text) {
    QtSession* const session = running();
    // What the offscreen platform says of itself.
    if (text.startsWith("This plugin does not support")) return;
    const bool is_warning = type == QtWarningMsg || type == QtCriticalMsg;
    if (is_warning && isNoise(text)) return;
    if (session && is_warning && session->isExpected(text)) return;
    if (session && is_warning) ADD_FAILURE() << "Qt warns: " << text.toStdString();
    if (session && session->before_) session->before_(type, context, text);
  }

  /// What the offscreen platform says of itself, and Qt of a session without a runtime folder.
  static bool isNoise(const QString& text) {
    return text.startsWith("This plugin does not support ") ||
           text.startsWith("QStandardPaths: XDG_RUNTIME_DIR not set");
  }

  /// Each announcement stands for one warning.
  bool isExpected(const QString& text) {
    for (auto it = expected_.begin(); it != expected_.end(); ++it) {
      if (!it->match(text).hasMatch()) continue;
      expected_.erase(it);
      return true;
    }
    return false;
  }

  TemporaryFolder settings_;
  int argument_count_ = 1;
  char name_[4] = "zel";
  char* arguments_[2] = {name_, nullptr};
  QtMessageHandler before_ = nullptr;
  std::vector<QRegularExpression> expected_;
  std::unique_ptr<QApplication> application_;
};

/// The one QApplication of the test program, made at its first use, offscreen, and taken down after
/// the last test. A fixture calls it before it makes a window.
inline QApplication& application() {
  if (!QtSession::running()) {
    // GoogleTest owns its listeners. Appended: what it fails is still printed with its test.
    ::testing::UnitTest::GetInstance()->listeners().Append(new QtSession);
  }
  return QtSession::running()->application();
}

/// Announces one warning of Qt that matches the regular expression in the running test.
inline void expectWarning(const std::string& pattern) {
  application();
  QtSession::running()->expectWarning(pattern);
}

}  // namespace zel::test
