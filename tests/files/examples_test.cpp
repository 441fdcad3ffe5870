#include "base/code_page.h"
#include "document_fixture.h"

namespace zel::test {
namespace {

using Examples = DocumentTest;

TEST_F(Examples, AreGivenBackToTheByte) {
  std::size_t count = 0;
  for (const auto& entry : std::filesystem::directory_iterator(ZEL_EXAMPLES_DIR)) {
    if (entry.path().extension() != ".zel") continue;
    ++count;
    const std::string example = entry.path().string();
    ASSERT_TRUE(loadDocument(example, view, graphs, header, message)) << example << message;
    EXPECT_GT(graphs.count(), 0) << example;
    EXPECT_EQ(toCodePage(documentText(view, graphs)), bytesOf(example)) << example;
  }
  EXPECT_GT(count, 0u);
}

}  // namespace
}  // namespace zel::test
