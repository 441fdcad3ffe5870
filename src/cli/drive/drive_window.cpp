#include "cli/drive/drive_window.h"

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

void DriveWindow::showDrawingError(const std::string& message, std::optional<char> graph) {
  was_refused_ = true;
  is_report_ = IsKnownUserError(message);
  ShowDrawingError(*this, message, graph);
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
  const bool is_stop = style == BoxStyle::stop;
  const std::string_view stop_kind = is_report_ ? "report" : "attention";
  shown_.messages.push_back({is_stop ? stop_kind : "information", title, text});
  return is_stop ? BoxAnswer::ok : BoxAnswer::cancel;
}

}  // namespace zel
