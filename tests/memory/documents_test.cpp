// Every allocation of a load and of a save fails once, and from then on: the load tells that it
// failed, or is whole, and the document in the file is the older or the newer one.

#include <iostream>
#include <new>

#include "failing_new.h"
#include "files/document_fixture.h"

namespace zel::test {
namespace {

class DocumentsInWantOfMemory : public DocumentTest {
 protected:
  DocumentsInWantOfMemory() {
    const auto family = NewDictionary();
    family->Add("parametro", "the name of a parameter that needs memory");
    other_.rebuildGraph('c', "p*sen(x)+" + std::string(100, '1'), "", 255, 'Z', family);
    other_.rebuildGraph('d', "x+" + std::string(100, '2'), "", 255, 'F', nullptr);
    putBytes(path, sampleText());
  }

  GraphTable other_;
};

TEST_F(DocumentsInWantOfMemory, AreLoadedWholeOrTellThatTheyAreNot) {
  ASSERT_TRUE(writeDocument(path, sampleView(), other_).written);
  const std::string bytes = bytesOf(path);
  bool loaded = false;
  const long failures = failEachAllocation(
      false, [&] { loaded = loadDocument(path, view, graphs, header, message); },
      [&] {
        EXPECT_TRUE(loaded ? documentBytes(view, graphs) == bytes
                           : message.empty() || message == messages::kCannotOpen);
        EXPECT_TRUE(loaded || (view == MainView() && graphs.count() == 0 && header.Count() == 0));
        EXPECT_EQ(bytesOf(path), bytes);
        header.removeAll();
        view = MainView();
        graphs.clearGraphs();
      });
  std::cout << failures << " failures\n";
  EXPECT_GT(failures, 30);
  EXPECT_TRUE(loaded);
}

/// A failure for good may leave no memory for the message; then that is told by whoever asked.
TEST_F(DocumentsInWantOfMemory, AreNotLoadedInPartWhereThereIsNoMemoryAnyMore) {
  bool loaded = false;
  failEachAllocation(
      true,
      [&] {
        loaded = false;
        try {
          loaded = loadDocument(path, view, graphs, header, message);
        } catch (const std::bad_alloc&) {
        }
      },
      [&] { EXPECT_TRUE(!loaded || documentBytes(view, graphs) == sampleText()); });
  EXPECT_TRUE(loaded);
}

TEST_F(DocumentsInWantOfMemory, StayAsTheyWereOrAreSavedWhole) {
  const std::string newer = *documentBytes(view, other_);
  for (const bool lasts : {false, true}) {
    WriteResult result;
    const long failures = failEachAllocation(
        lasts, [&] { result = writeDocument(path, view, other_); },
        [&] {
          EXPECT_TRUE(result.existed);
          EXPECT_EQ(bytesOf(path), result.written ? newer : sampleText());
          EXPECT_EQ(folder.names(), std::set<std::string>{"sample.zel"});
          putBytes(path, sampleText());
        });
    std::cout << failures << " failures\n";
    EXPECT_GT(failures, 30);
    EXPECT_TRUE(result.written);
  }
}

TEST_F(DocumentsInWantOfMemory, MakeNoSaveThatIsNoticedByNobody) {
  std::string_view said;
  failEachAllocation(
      false, [&] { said = saveDocument(path, view, other_); },
      [&] {
        EXPECT_EQ(said.empty(), bytesOf(path) != sampleText());
        putBytes(path, sampleText());
      });
  EXPECT_EQ(said, "");
}

}  // namespace
}  // namespace zel::test
