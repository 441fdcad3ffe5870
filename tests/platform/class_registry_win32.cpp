#define WIN32_LEAN_AND_MEAN
#include <windows.h>

#include <string>

#include <gtest/gtest.h>

#include "app/desktop.h"
#include "platform/win32/win32_class_registry.h"
#include "support/language_guard.h"

namespace zel::test {
namespace {

/// A root of the test's own in the place of the classes root, which is left alone.
class ClassRegistryOfWindows : public ::testing::Test {
 protected:
  static constexpr const char* kRoot = "Software\\zel-test";
  static constexpr const char* kUsersClasses = "Software\\Classes\\";

  ClassRegistryOfWindows() {
    forget();
    RegCreateKeyA(HKEY_CURRENT_USER, kRoot, &root_);
  }
  ~ClassRegistryOfWindows() override { forget(); }

  std::uintptr_t root() const { return reinterpret_cast<std::uintptr_t>(root_); }

  /// No key, so that nothing can be made below it.
  static constexpr std::uintptr_t kRefusingRoot = 0x13570;

  /// The default value of a key below HKEY_CURRENT_USER; "-" where there is none.
  static std::string value(const std::string& key) {
    char text[300] = "";
    DWORD size = sizeof text;
    const bool found = RegGetValueA(HKEY_CURRENT_USER, key.c_str(), nullptr, RRF_RT_REG_SZ, nullptr,
                                    text, &size) == ERROR_SUCCESS;
    return found ? text : "-";
  }
  static std::string users(const std::string& key) { return value(kUsersClasses + key); }

  const ProgramPlace place{"C:\\z", "zel"};

 private:
  static void forget() {
    RegDeleteTreeA(HKEY_CURRENT_USER, kRoot);
    for (const char* const name : {"zel", ".zel"})
      RegDeleteTreeA(HKEY_CURRENT_USER, (kUsersClasses + std::string(name)).c_str());
  }

  LanguageGuard language_{"EN"};
  HKEY root_ = nullptr;
};

TEST_F(ClassRegistryOfWindows, WritesBelowItsRootAndNowhereElse) {
  Win32ClassRegistry registry(root());
  EXPECT_TRUE(registerZelDocuments(registry, place));
  EXPECT_EQ(value("Software\\zel-test\\zel"), "Function graphic");
  EXPECT_EQ(value("Software\\zel-test\\.zel"), "zel");
  EXPECT_EQ(value("Software\\zel-test\\zel\\shell\\open\\command"), "C:\\z\\zel.exe %1");
  EXPECT_EQ(value("Software\\zel-test\\zel\\DefaultIcon"), "C:\\z\\doc.ico");
  EXPECT_EQ(users("zel"), "-");
  EXPECT_EQ(users(".zel"), "-");
}

TEST_F(ClassRegistryOfWindows, GivesTheUsersOwnClassesWhatTheRootRefuses) {
  Win32ClassRegistry registry(kRefusingRoot);
  EXPECT_TRUE(registerZelDocuments(registry, place));
  EXPECT_EQ(users("zel"), "Function graphic");
  EXPECT_EQ(users(".zel"), "zel");
  EXPECT_EQ(users("zel\\shell\\open\\command"), "C:\\z\\zel.exe %1");
  EXPECT_EQ(users("zel\\DefaultIcon"), "C:\\z\\doc.ico");
}

TEST_F(ClassRegistryOfWindows, MakesNoEntryForAPathThatItWouldNameWrongly) {
  Win32ClassRegistry registry(root());
  for (const char* const folder : {"C:\\100%", "C:\\%1", "C:\\\xF0\x9F\x93\x88"}) {
    registerZelDocuments(registry, {folder, "zel"});
    EXPECT_EQ(value("Software\\zel-test\\zel\\shell\\open\\command"), "-") << folder;
  }
  EXPECT_EQ(value("Software\\zel-test\\zel"), "Function graphic");
}

TEST_F(ClassRegistryOfWindows, GivesThemTheValuesOfAKeyThatMayOnlyBeOpened) {
  Win32ClassRegistry registry(root());
  const ClassRegistry::Key key = registry.createKey("zel");
  RegCloseKey(reinterpret_cast<HKEY>(key));
  registry.setValue(key, "DefaultIcon", "C:\\z\\doc.ico");
  EXPECT_EQ(users("zel\\DefaultIcon"), "C:\\z\\doc.ico");
  EXPECT_EQ(value("Software\\zel-test\\zel\\DefaultIcon"), "-");
}

TEST_F(ClassRegistryOfWindows, PassesOverWhatFailsThereToo) {
  Win32ClassRegistry registry(kRefusingRoot);
  registry.setValue(registry.createKey("\\"), "x", "y");
  EXPECT_EQ(users("zel"), "-");
}

}  // namespace
}  // namespace zel::test
