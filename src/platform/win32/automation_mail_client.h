#pragma once

#include <optional>
#include <string>

#include "app/services.h"
#include "platform/win32/com_dispatch.h"

namespace zel {

/// The mail client that Windows drives through its automation object. What cannot be done fails
/// quietly. A mail is sent at once, without being shown: this is meant.
class AutomationMailClient : public MailClient {
 public:
  explicit AutomationMailClient(std::string program_id = "Outlook.Application");

  bool start() override;
  bool createItem() override;
  bool addRecipient(const std::string& address) override;
  bool setSubject(const std::string& subject) override;
  bool send() override;

 private:
  std::string program_id_;
  std::optional<ComSession> session_;
  ComObject client_;
  ComObject item_;
};

}  // namespace zel
