#include "app/plot_arguments.h"

#include <gmock/gmock.h>

namespace zel::test {
namespace {

using ::testing::ElementsAre;

struct Window : FormWindow {
  void showForm() override {}
};

TEST(PlotArguments, AreReadAsTheMainWindowAddsThem) {
  FormParams params;
  params.Add("xi", -2.5);
  params.Add("xf", 7.0);
  params.Add("yi", 0.0);
  params.Add("yf", 1e300);
  params.Add("mantener_prop", true);
  params.Add("definicion", std::int16_t{42});
  EXPECT_EQ(viewIn(params), (ViewSettings{-2.5, 0, 7, 1e300, 42, true}));
}

TEST(PlotArguments, AreReadWhateverKindOfValueTheyAre) {
  FormParams params;
  params.Add("xi", std::string("-2,5"));
  params.Add("xf", std::int16_t{7});
  params.Add("yi", std::string("nada"));
  params.Add("definicion", 99.5);
  EXPECT_EQ(viewIn(params), (ViewSettings{-2.5, 0, 7, 0, 100, false}));
}

TEST(PlotArguments, ReadAs0WhereTheyAreMissing) {
  EXPECT_EQ(viewIn(makeFormParams()), (ViewSettings{0, 0, 0, 0, 0, false}));
}

TEST(PlotArguments, AQualityThatIsNo16BitIntegerReadsAs0) {
  FormParams params;
  params.Add("definicion", 40000.0);
  EXPECT_EQ(viewIn(params).definicion, 0);
}

TEST(PlotArguments, AreHandedOverInTheirOrderWithTheSenderLast) {
  FormParams params;
  params.Add("modo", std::string("agregar"));
  Window sender;
  const ViewSettings view = {-1, -2, 3, 4, 50, true};
  handViewOver(params, view, &sender);
  EXPECT_THAT(params.keys(), ElementsAre("xi", "xf", "yi", "yf", "definicion", "llamador"));
  EXPECT_EQ(callerOf(params), &sender);
  EXPECT_EQ(viewIn(params), (ViewSettings{-1, -2, 3, 4, 50, false}));
}

TEST(PlotArguments, GoToThePrintWindowWithThePlotWindowUnderImprimir) {
  FormParams params;
  params.Add("modo", std::string("agregar"));
  Window plot;
  handPlotOver(params, {-1, -2, 3, 4, 50, true}, &plot);
  EXPECT_THAT(params.keys(),
              ElementsAre("xi", "xf", "yi", "yf", "definicion", "imprimir", "llamador"));
  EXPECT_EQ(params.Item("imprimir"), FormValue(static_cast<FormWindow*>(&plot)));
  EXPECT_EQ(params.Item("definicion"), FormValue(std::int16_t{50}));
  EXPECT_EQ(callerOf(params), &plot);
  EXPECT_EQ(viewIn(params), (ViewSettings{-1, -2, 3, 4, 50, false}));
}

}  // namespace
}  // namespace zel::test
