#include "platform/xdg/recent_list.h"

#include <QXmlStreamReader>

#include <gmock/gmock.h>

#include "platform/xdg/recent_bookmarks.h"

namespace zel::test {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

constexpr const char* kNow = "2026-01-31T12:00:00Z";

RecentKind kind() { return {"zel", "zel %f", "application/x-zel", ".zel"}; }

std::vector<std::string> documents(std::string_view list) { return documentsOnList(list, kind()); }

std::optional<std::string> added(const std::string& list, const std::string& path) {
  return withDocument(list, path, kind(), kNow);
}

bool isWellFormed(const std::string& xml) {
  QXmlStreamReader reader(QByteArray::fromStdString(xml));
  while (!reader.atEnd()) reader.readNext();
  return !reader.hasError();
}

/// The entry of another program, as desktops write it.
std::string othersEntry(const std::string& address, const std::string& used,
                        const std::string& type = "text/plain", const std::string& more = "") {
  return "  <bookmark href=\"" + address + "\" added=\"2025-01-01T00:00:00Z\" modified=\"" + used +
         "\" visited='" + used +
         "'>\r\n    <info>\n      <metadata owner=\"http://freedesktop.org\">\n"
         "        <mime:mime-type type=\"" +
         type + "\"/>\n" + more +
         "        <bookmark:applications>\n"
         "          <bookmark:application name=\"Editor &amp; more\" exec=\"&apos;ed %u&apos;\" "
         "modified=\"2025-01-01T00:00:00Z\" count=\"3\"/>\n"
         "        </bookmark:applications>\n      </metadata>\n    </info>\n  </bookmark>\n";
}

std::string list(const std::string& entries) {
  return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<!-- é <bookmark href='file:///x.zel'> -->\n"
         "<xbel version=\"1.0\"\n      xmlns:bookmark=\"http://www.freedesktop.org/standards/"
         "desktop-bookmarks\"\n      xmlns:mime=\"http://www.freedesktop.org/standards/"
         "shared-mime-info\"\n>\n" +
         entries + "</xbel>";
}

TEST(RecentList, HasTheDocumentsThatWereUsedLastFirst) {
  const std::string text =
      list(othersEntry("file:///home/ana/a.zel", "2025-03-01T00:00:00Z") +
           othersEntry("file:///home/ana/b.txt", "2025-04-01T00:00:00Z") +
           othersEntry("file:///home/ana/B%20%c3%b1.ZEL", "2025-05-01T00:00:00Z") +
           othersEntry("file://localhost/c", "2025-04-01T00:00:00Z", "application/x-zel"));
  EXPECT_THAT(documents(text), ElementsAre("/home/ana/B ñ.ZEL", "/c", "/home/ana/a.zel"));
}

TEST(RecentList, HasNoDocumentsOfOtherMachinesOrOfOtherProgramsAlone) {
  const std::string text =
      list(othersEntry("https://zel.example/a.zel", "2025") +
           othersEntry("file://server/a.zel", "2025") + othersEntry("a.zel", "2025") +
           othersEntry("file:///nul%00.zel", "2025") +
           othersEntry("file:///p.zel", "2025", "text/plain", "<bookmark:private/>\n"));
  EXPECT_THAT(documents(text), IsEmpty());
}

TEST(RecentList, BeginsWithItsFirstDocument) {
  const auto text = added("", "/home/ana/a & \"b\" ñ.zel");
  ASSERT_TRUE(text);
  EXPECT_TRUE(isWellFormed(*text));
  EXPECT_THAT(*text, HasSubstr("href=\"file:///home/ana/a%20%26%20%22b%22%20%C3%B1.zel\""));
  EXPECT_THAT(*text, HasSubstr("exec=\"&apos;zel %f&apos;\""));
  EXPECT_THAT(*text, HasSubstr("type=\"application/x-zel\""));
  EXPECT_THAT(documents(*text), ElementsAre("/home/ana/a & \"b\" ñ.zel"));
}

TEST(RecentList, GetsAnEntryAndKeepsTheOthersToTheCharacter) {
  const std::string others = othersEntry("file:///b.txt", "2025-01-01T00:00:00Z");
  const auto text = added(list(others), "/a.zel");
  ASSERT_TRUE(text);
  EXPECT_TRUE(isWellFormed(*text));
  const std::string before = list(others);
  EXPECT_TRUE(text->starts_with(before.substr(0, before.size() - 7)));
  EXPECT_TRUE(text->ends_with("</xbel>"));
  EXPECT_THAT(documents(*text), ElementsAre("/a.zel"));
}

TEST(RecentList, PutsItselfIntoTheEntryOfAnotherProgram) {
  const std::string mine = othersEntry("file:///a.zel", "2025-01-01T00:00:00Z");
  const std::string text = *added(list(mine), "/a.zel");
  EXPECT_TRUE(isWellFormed(text));
  EXPECT_THAT(text,
              HasSubstr("modified=\"" + std::string(kNow) + "\" visited='" + kNow + "'>\r\n"));
  EXPECT_THAT(text, HasSubstr("added=\"2025-01-01T00:00:00Z\""));
  EXPECT_THAT(text, HasSubstr("name=\"Editor &amp; more\" exec=\"&apos;ed %u&apos;\" "
                              "modified=\"2025-01-01T00:00:00Z\" count=\"3\"/>"));
  EXPECT_THAT(text, HasSubstr("name=\"zel\""));
  EXPECT_THAT(documents(text), ElementsAre("/a.zel"));
}

TEST(RecentList, CountsHowOftenADocumentIsUsed) {
  const std::string once = *added("", "/a.zel");
  const std::string text = *withDocument(once, "/a.zel", kind(), "2026-02-01T00:00:00Z");
  EXPECT_TRUE(isWellFormed(text));
  EXPECT_THAT(text, HasSubstr("count=\"2\""));
  EXPECT_EQ(text.find("count=\"1\""), std::string::npos);
  EXPECT_THAT(text, HasSubstr("visited=\"2026-02-01T00:00:00Z\""));
  EXPECT_THAT(text, HasSubstr("added=\"" + std::string(kNow) + "\""));
}

TEST(RecentList, GoesOnCountingFromWhateverNumberOthersHaveWritten) {
  const auto counted = [](const std::string& number) {
    std::string text = *added("", "/a.zel");
    text.replace(text.find("count=\"1\""), 9, "count=\"" + number + "\"");
    return *added(text, "/a.zel");
  };
  EXPECT_THAT(counted("2147483646"), HasSubstr("count=\"2147483647\""));
  EXPECT_THAT(counted("2147483647"), HasSubstr("count=\"2147483647\""));
  EXPECT_THAT(counted("-2147483648"), HasSubstr("count=\"1\""));
  EXPECT_THAT(counted("99999999999999999999"), HasSubstr("count=\"1\""));
}

TEST(RecentList, PutsItselfIntoEntriesThatSayLittle) {
  for (const std::string entry :
       {"<bookmark href='file:///a.zel'/>", "<bookmark href='file:///a.zel'></bookmark>",
        "<bookmark href='file:///a.zel'><info/></bookmark>",
        "<bookmark href='file:///a.zel'><info><metadata owner='somebody'/></info></bookmark>",
        "<bookmark href='file:///a.zel'><info><metadata owner='http://freedesktop.org'>"
        "</metadata></info></bookmark>"}) {
    const std::string text = *added(list(entry), "/a.zel");
    EXPECT_TRUE(isWellFormed(text)) << text;
    EXPECT_THAT(text, HasSubstr("modified=\"" + std::string(kNow) + "\""));
    const std::string again = *added(text, "/a.zel");
    EXPECT_THAT(again, HasSubstr("count=\"2\"")) << again;
    EXPECT_TRUE(isWellFormed(again)) << again;
    EXPECT_THAT(documents(again), ElementsAre("/a.zel"));
  }
}

TEST(RecentList, IsOfferedWhatIsPrivateToTheProgramItself) {
  const std::string entry =
      othersEntry("file:///p.zel", "2025", "text/plain", "<bookmark:private/>");
  EXPECT_THAT(documents(*added(list(entry), "/p.zel")), ElementsAre("/p.zel"));
}

TEST(RecentList, IsLeftAloneWhereItIsNone) {
  for (const std::string text :
       {" ", "no list", "<xbel>", "<xbel></xbel", "<xbel></other>", "<other></other>", "<xbel/>",
        "<xbel></xbel><xbel></xbel>", "<xbel><bookmark></xbel></bookmark>", "<xbel a='></xbel>",
        "<xbel><!-- </xbel>", "<xbel><![CDATA[</xbel>", "<xbel><></></xbel>",
        "<!DOCTYPE xbel [<!ENTITY a 'aaaa'>]><xbel>&a;</xbel>", "<xbel><bookmark <b></b></xbel>"}) {
    EXPECT_THAT(documents(text), IsEmpty()) << text;
    EXPECT_EQ(added(text, "/a.zel"), std::nullopt) << text;
  }
}

TEST(RecentList, IsReadWhateverItHolds) {
  for (const std::string text :
       {"<xbel><bookmark></bookmark></xbel>", "<xbel><bookmark href=''/></xbel>",
        "<xbel><bookmark href='file:///%4'/></xbel>", "<xbel><bookmark href=file:///a.zel/></xbel>",
        "<xbel><bookmark href='file:///a&#0;b.zel'/></xbel>",
        "<xbel><bookmark href='file:///a&#xFFFFFFFFFF;&#x;&none;.txt'/></xbel>",
        "<xbel><info/><bookmark:application name='zel'/></xbel>",
        "<xbel><![CDATA[<bookmark href='file:///a.zel'/>]]></xbel>"}) {
    EXPECT_THAT(documents(text), IsEmpty()) << text;
    EXPECT_NE(added(text, "/q.zel"), std::nullopt) << text;
  }
}

/// A parser that looks back for each piece would not come to an end here.
TEST(RecentList, IsReadInOnePassHoweverItIsMade) {
  constexpr std::size_t kSize = 4 << 20;
  std::string attributes = "<xbel";
  for (int i = 0; attributes.size() < kSize; ++i)
    attributes += " xmlns:a" + std::to_string(i) + "=''";
  EXPECT_THAT(documents(attributes + "></xbel>"), IsEmpty());
  std::string deep = "<xbel>";
  while (deep.size() < kSize) deep += "<bookmark>";
  EXPECT_THAT(documents(deep), IsEmpty());
  std::string references = "<xbel><bookmark href='";
  while (references.size() < kSize) references += "&";
  EXPECT_THAT(documents(references + "'/></xbel>"), IsEmpty());
  std::string quotes = "<xbel>";
  while (quotes.size() < kSize) quotes += "<a b=\"";
  EXPECT_THAT(documents(quotes), IsEmpty());
}

TEST(RecentAddress, LeadsToEveryPathAndBack) {
  std::string path = "/";
  for (int byte = 1; byte < 256; ++byte) path += static_cast<char>(byte);
  EXPECT_EQ(pathOfAddress(addressOfPath(path)), path);
}

}  // namespace
}  // namespace zel::test
