#include "cli/drive_window.h"

#include <utility>

#include "app/messages.h"

namespace zel {

void DriveWindow::beginCommand() {
  shown_.progress.reset();
  shown_.messages.clear();
  if (session_.isOpen()) shown_.closed_to = {};
}

bool DriveWindow::queueAnswer(std::string_view answer) {
  if (answers_size_ + answer.size() >= kMostAnswers) return false;
  answers_size_ += answer.size() + 1;
  answers_.emplace_back(answer);
  return true;
}

void DriveWindow::pictureDrawn() {
  ++shown_.redraws;
  progress_.reset();
}

void DriveWindow::showMessage(const std::string& message) {
  was_refused_ = true;
  ShowAttention(*this, message);
}

void DriveWindow::showInformation(const std::string& message) { ShowInformation(*this, message); }

std::optional<std::string> DriveWindow::askValue(const std::string&, const std::string&) {
  if (answers_.empty()) return std::nullopt;
  std::string answer = std::move(answers_.front());
  answers_.pop_front();
  answers_size_ -= answer.size() + 1;
  return answer;
}

void DriveWindow::returnToMain() {
  session_.close();
  shown_.closed_to = "main";
}

void DriveWindow::runPendingEvents() {
  if (progress_) progress_->show([&] { return shown_.panels.first + shown_.panels.second; });
}

void DriveWindow::clear() {
  shown_.progress.emplace();
  progress_.emplace(err_);
}

BoxAnswer DriveWindow::show(const std::string& text, const std::string& title, BoxStyle style) {
  const bool is_attention = style == BoxStyle::stop;
  shown_.messages.push_back({is_attention ? "attention" : "information", title, text});
  return is_attention ? BoxAnswer::ok : BoxAnswer::cancel;
}

}  // namespace zel
