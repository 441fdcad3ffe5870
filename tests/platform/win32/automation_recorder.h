#pragma once

#include <string>
#include <vector>

namespace zel::test {

/// An automation server inside this process, under a program id of its own. Its object has every
/// member that is asked for and gives itself as the result of every call, so that whatever is
/// driven through it is recorded: "get Name", "put Name=value", "call Name(values)". A property
/// that is read as `busy_property` is true so many times, and then false.
class AutomationRecorder {
 public:
  AutomationRecorder(const std::string& program_id, std::string busy_property, int busy_for);
  AutomationRecorder(const AutomationRecorder&) = delete;
  AutomationRecorder& operator=(const AutomationRecorder&) = delete;
  ~AutomationRecorder();

  /// Whether the server could be made known.
  bool isReady() const { return cookie_ != 0; }

  /// What was asked so far.
  const std::vector<std::string>& calls() const { return record_.calls; }

  struct Record {
    std::vector<std::string> calls;
    std::string busy_property;
    int busy_for = 0;
  };

 private:
  Record record_;
  unsigned long cookie_ = 0;
};

}  // namespace zel::test
