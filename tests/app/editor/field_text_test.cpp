#include "app/editor/field_text.h"

#include <map>

#include <gtest/gtest.h>

namespace zel::test {
namespace {

class Controls : public FormControls {
 public:
  std::optional<std::string> controlText(std::string_view name) const override {
    const auto found = texts.find(std::string(name));
    return found == texts.end() ? std::nullopt : std::optional(found->second);
  }

  std::map<std::string, std::string> texts;
};

TEST(FieldText, LosesRelationSignsAndBlanksAtItsEnds) {
  Controls form;
  form.texts = {{"txtF", " x<=3 "}, {"txtZ", "=x+1"},   {"txtCX", " 3 "},
                {"txtCY", "< >="},  {"txtTx", "a = b"}, {"txtTy", "\t1"}};
  EXPECT_EQ(ReadFieldText(form, "txtF"), "x3");
  EXPECT_EQ(ReadFieldText(form, "txtZ"), "x+1");
  EXPECT_EQ(ReadFieldText(form, "txtCX"), "3");
  EXPECT_EQ(ReadFieldText(form, "txtCY"), "");
  EXPECT_EQ(ReadFieldText(form, "txtTx"), "a  b");
  EXPECT_EQ(ReadFieldText(form, "txtTy"), "\t1");
}

TEST(FieldText, IsEmptyWhereThereIsNoSuchControl) {
  EXPECT_EQ(ReadFieldText(Controls(), "txtF"), "");
}

}  // namespace
}  // namespace zel::test
