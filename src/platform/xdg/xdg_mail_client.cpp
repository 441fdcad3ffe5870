#include "platform/xdg/xdg_mail_client.h"

#include <QByteArray>
#include <utility>

namespace zel {
namespace {

std::string percentEncoded(const std::string& text, const char* plain = "") {
  return QByteArray::fromStdString(text).toPercentEncoding(plain).toStdString();
}

}  // namespace

XdgMailClient::XdgMailClient(Launcher launcher) : launcher_(std::move(launcher)) {}

bool XdgMailClient::start() { return isInstalled("xdg-open"); }

bool XdgMailClient::createItem() {
  recipients_.clear();
  subject_.clear();
  return true;
}

bool XdgMailClient::addRecipient(const std::string& address) {
  if (!recipients_.empty()) recipients_ += ",";
  recipients_ += percentEncoded(address, "@");
  return true;
}

bool XdgMailClient::setSubject(const std::string& subject) {
  subject_ = subject;
  return true;
}

bool XdgMailClient::send() {
  return launcher_("xdg-open", {"mailto:" + recipients_ + "?subject=" + percentEncoded(subject_)});
}

}  // namespace zel
