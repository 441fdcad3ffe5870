#include <utility>

#include "platform/win32/automation_mail_client.h"

namespace zel {
namespace {

constexpr std::int32_t kMailItem = 0;

/// The object that a call gave, if it gave one.
ComObject objectOf(const std::optional<ComValue>& value) {
  const ComObject* const object = value ? std::get_if<ComObject>(&*value) : nullptr;
  return object ? *object : ComObject();
}

}  // namespace

AutomationMailClient::AutomationMailClient(std::string program_id)
    : program_id_(std::move(program_id)) {}

bool AutomationMailClient::start() {
  if (!session_) session_.emplace();
  client_ = ComObject::create(program_id_);
  return static_cast<bool>(client_);
}

bool AutomationMailClient::createItem() {
  item_ = objectOf(client_.call("CreateItem", {kMailItem}));
  return static_cast<bool>(item_);
}

bool AutomationMailClient::addRecipient(const std::string& address) {
  return objectOf(item_.property("Recipients")).call("Add", {address}).has_value();
}

bool AutomationMailClient::setSubject(const std::string& subject) {
  return item_.setProperty("Subject", subject);
}

bool AutomationMailClient::send() { return item_.call("Send", {}).has_value(); }

}  // namespace zel
