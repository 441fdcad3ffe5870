#pragma once

#define WIN32_LEAN_AND_MEAN
#include <windows.h>

#include <string>
#include <vector>

namespace zel::test {

/// Who may use a file, as the system writes it; empty where it does not say.
inline std::vector<char> accessListOf(const std::wstring& path) {
  DWORD size = 0;
  GetFileSecurityW(path.c_str(), DACL_SECURITY_INFORMATION, nullptr, 0, &size);
  std::vector<char> list(size);
  if (!GetFileSecurityW(path.c_str(), DACL_SECURITY_INFORMATION, list.data(), size, &size))
    list.clear();
  return list;
}

/// Nobody but a file's owner may use it from now on. False where the system does not have it so.
inline bool keepForItsOwner(const std::wstring& path) {
  DWORD size = 0;
  GetFileSecurityW(path.c_str(), OWNER_SECURITY_INFORMATION, nullptr, 0, &size);
  std::vector<char> described(size);
  PSID owner = nullptr;
  BOOL is_default = FALSE;
  std::vector<char> room(200);
  const auto list = reinterpret_cast<PACL>(room.data());
  SECURITY_DESCRIPTOR access{};
  return GetFileSecurityW(path.c_str(), OWNER_SECURITY_INFORMATION, described.data(), size,
                          &size) &&
         GetSecurityDescriptorOwner(described.data(), &owner, &is_default) &&
         InitializeAcl(list, static_cast<DWORD>(room.size()), ACL_REVISION) &&
         AddAccessAllowedAce(list, ACL_REVISION, FILE_ALL_ACCESS, owner) &&
         InitializeSecurityDescriptor(&access, SECURITY_DESCRIPTOR_REVISION) &&
         SetSecurityDescriptorDacl(&access, TRUE, list, FALSE) &&
         SetFileSecurityW(path.c_str(), DACL_SECURITY_INFORMATION, &access);
}

}  // namespace zel::test
