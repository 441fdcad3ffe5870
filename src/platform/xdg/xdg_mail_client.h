#pragma once

#include <string>

#include "app/services.h"
#include "platform/xdg/launcher.h"

namespace zel {

/// The user's mail program, by the desktop's own opener. A mail is opened for the user to read and
/// send; nothing is sent unseen.
class XdgMailClient : public MailClient {
 public:
  explicit XdgMailClient(Launcher launcher = launch);

  /// Whether there is an opener.
  bool start() override;
  bool createItem() override;
  bool addRecipient(const std::string& address) override;
  bool setSubject(const std::string& subject) override;
  /// Opens the mail.
  bool send() override;

 private:
  Launcher launcher_;
  std::string recipients_;  // as they stand in the address "mailto:"
  std::string subject_;
};

}  // namespace zel
