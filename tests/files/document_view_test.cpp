#include "document_fixture.h"

namespace zel::test {
namespace {

using DocumentView = DocumentTest;

TEST_F(DocumentView, IsSetFromItsKeysInAnyOrder) {
  ASSERT_TRUE(loadSampleWith(kSampleView,
                             "[VISTA PRINCIPAL]\r\nescala_y=\r\nescala_x= 2 \r\nproporcional=0\r\n"
                             "definicion=7,5\r\nyf=d\r\nyi=c\r\nxf=b\r\nxi=a=b\r\n \r\n"));
  EXPECT_EQ(view, (MainView{"a=b", "b", "c", "d", 8, false, " 2 ", ""}));
}

TEST_F(DocumentView, KeepsWhatTheSectionDoesNotName) {
  view.xi = "before";
  ASSERT_TRUE(loadSampleWith("xi=-10\r\n", ""));
  EXPECT_EQ(view.xi, "before");
}

TEST_F(DocumentView, PassesOverOtherKeys) {
  ASSERT_TRUE(loadSampleWith("xi=-10\r\n", "XI=5\r\nxi =5\r\nzoom=x\r\nno pair\r\n  \r\nxi=3\r\n"));
  EXPECT_EQ(view.xi, "3");
}

TEST_F(DocumentView, TakesTheLastOfRepeatedKeys) {
  ASSERT_TRUE(loadSampleWith("xi=-10\r\n", "xi=1\r\nxi=2\r\n"));
  EXPECT_EQ(view.xi, "2");
}

TEST_F(DocumentView, HoldsTheQualityWithinTheSlider) {
  ASSERT_TRUE(loadSampleWith("definicion=5", "definicion=0"));
  EXPECT_EQ(view.definicion, 1);
  ASSERT_TRUE(loadSampleWith("definicion=5", "definicion=-32768"));
  EXPECT_EQ(view.definicion, 1);
  ASSERT_TRUE(loadSampleWith("definicion=5", "definicion=32767"));
  EXPECT_EQ(view.definicion, 100);
  ASSERT_TRUE(loadSampleWith("definicion=5", "definicion=4.5"));
  EXPECT_EQ(view.definicion, 4);
}

TEST_F(DocumentView, TakesAnyNumberButZeroAsProportional) {
  for (const char* const value : {"1", "-1", "2", "0,6", "32767"}) {
    ASSERT_TRUE(loadSampleWith("proporcional=1", std::string("proporcional=") + value));
    EXPECT_TRUE(view.proporcional) << value;
  }
  for (const char* const value : {"0", "0,5", "-0,4"}) {
    ASSERT_TRUE(loadSampleWith("proporcional=1", std::string("proporcional=") + value));
    EXPECT_FALSE(view.proporcional) << value;
  }
}

TEST_F(DocumentView, StopsAtANumberThatCannotBeConverted) {
  for (const char* const value : {"", " ", "x", "32768", "-32769", "1e9", "1 "}) {
    putOldGraph();
    expectFailure(loadSampleWith("definicion=5", std::string("definicion=") + value), "", "");
    expectFailure(loadSampleWith("proporcional=1", std::string("proporcional=") + value), "", "");
  }
}

TEST_F(DocumentView, KeepsWhatWasSetBeforeAFailure) {
  ASSERT_FALSE(loadSampleWith("definicion=5", "definicion=x"));
  EXPECT_EQ(view.yf, "10");
  ASSERT_FALSE(loadSampleWith("xi=-10", "xi=changed\r\nproporcional="));
  EXPECT_EQ(view.xi, "changed");
}

}  // namespace
}  // namespace zel::test
