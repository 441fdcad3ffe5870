#include "platform/xdg/document_type.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace zel::test {
namespace {

using ::testing::HasSubstr;

const DocumentType kZel = {"zel", ".zel", "Gráfico de funciones", "/opt/zel/bin/zel", "/home/ana"};

TEST(DocumentType, NamesItsMimeTypeAndItsIcons) {
  EXPECT_EQ(mimeType(kZel), "application/x-zel");
  EXPECT_EQ(iconName(kZel), "application-x-zel");
}

TEST(DocumentType, WritesTheMimePackage) {
  EXPECT_EQ(mimePackageText(kZel),
            R"(<?xml version="1.0" encoding="UTF-8"?>
<mime-info xmlns="http://www.freedesktop.org/standards/shared-mime-info">
  <mime-type type="application/x-zel">
    <comment>Gráfico de funciones</comment>
    <sub-class-of type="text/plain"/>
    <icon name="application-x-zel"/>
    <glob pattern="*.zel"/>
  </mime-type>
</mime-info>
)");
}

TEST(DocumentType, EscapesWhatXmlWouldRead) {
  DocumentType type = kZel;
  type.description = "a<b & \"c\">d";
  EXPECT_THAT(mimePackageText(type),
              HasSubstr("<comment>a&lt;b &amp; &quot;c&quot;&gt;d</comment>"));
}

TEST(DocumentType, WritesTheDesktopEntry) {
  EXPECT_EQ(desktopEntryText(kZel), R"([Desktop Entry]
Type=Application
Name=ZEL
GenericName=Mathematical function grapher
GenericName[es]=Graficador de funciones matemáticas
TryExec=/opt/zel/bin/zel
Exec="/opt/zel/bin/zel" %f
Path=/home/ana
Icon=zel
Terminal=false
Categories=Education;Math;
MimeType=application/x-zel;
StartupWMClass=zel
)");
}

// The quotation marks have their escapes, and the value as a whole has its own on top of them.
TEST(DocumentType, QuotesTheProgramForTheCommandLine) {
  const struct {
    const char* path;
    const char* exec;
  } rows[] = {
      {"/a b/zel", R"(Exec="/a b/zel" %f)"},         {"/a\"b/zel", R"(Exec="/a\\"b/zel" %f)"},
      {"/a$b`c/zel", R"(Exec="/a\\$b\\`c/zel" %f)"}, {"/a\\b/zel", R"(Exec="/a\\\\b/zel" %f)"},
      {"/añejo/zel", R"(Exec="/añejo/zel" %f)"},
  };
  for (const auto& row : rows) {
    DocumentType type = kZel;
    type.program_path = row.path;
    EXPECT_THAT(desktopEntryText(type), HasSubstr(std::string(row.exec) + "\n")) << row.path;
  }
}

TEST(DocumentType, CanBeNamedWhereAnEntryGivesTheSamePathsBack) {
  EXPECT_TRUE(canBeNamed(kZel));
  for (const char* const path : {"/a b/zel", "/añejo/zel", "/a\"b`$c\\d/zel"}) {
    DocumentType type = kZel;
    type.program_path = type.working_folder = path;
    EXPECT_TRUE(canBeNamed(type)) << path;
  }
  for (const char* const path :
       {"/a\nExec=b/zel", "/a\rb/zel", "/a\tb/zel", "/a\x7F/zel", "/a\xC2\x85/zel", "/a\xFF/zel",
        "/a\xC3/zel", "/a\xEF\xBF\xBD/zel"}) {
    DocumentType type = kZel;
    type.program_path = path;
    EXPECT_FALSE(canBeNamed(type)) << path;
    type = kZel;
    type.working_folder = path;
    EXPECT_FALSE(canBeNamed(type)) << path;
  }
}

TEST(DocumentType, CanNameAFolderThatTheProgramCouldNotBeIn) {
  for (const char* const path : {"/a=b/zel", "/100%/zel", "/100%f/zel", "/100%%/zel"}) {
    DocumentType type = kZel;
    type.program_path = path;
    EXPECT_FALSE(canBeNamed(type)) << path;
    type = kZel;
    type.working_folder = path;
    EXPECT_TRUE(canBeNamed(type)) << path;
  }
}

}  // namespace
}  // namespace zel::test
