#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "files/document.h"
#include "numbers/number_text.h"
#include "pictures/png.h"
#include "pictures/raster_picture.h"
#include "plot_fixture.h"
#include "support/png_reader.h"

/// Every example in pixels at three densities, compared to the last bit. A picture that differs is
/// written to the current folder, to be looked at beside the golden one and, when it is right, to
/// take its place.
namespace zel::test {
namespace {

constexpr int kWidth = 320;  // logical pixels
constexpr int kHeight = 240;

struct Density {
  double pixels;
  const char* name;
};

constexpr Density kDensities[] = {{1, "1"}, {1.5, "1.5"}, {2, "2"}};

std::string bytesOf(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

double numberOf(const std::string& text) { return readNumber(text).value_or(0); }

class GoldenPictures : public PlotTest {
 protected:
  void load(const std::string& example) {
    MainView fields;
    DocumentHeader header;
    std::string message;
    ASSERT_TRUE(loadDocument(example, fields, graphs, header, message)) << message;
    viewport.view = {numberOf(fields.xi), numberOf(fields.yi), numberOf(fields.xf),
                     numberOf(fields.yf), fields.definicion,   fields.proporcional};
    viewport.size = PictureSize::ofPixels(kWidth, kHeight);
    marks = {numberOf(fields.escala_x), numberOf(fields.escala_y), true, true};
    marks.x_shown = marks.escala_x != 0;
    marks.y_shown = marks.escala_y != 0;
  }

  Bitmap draw(double density) {
    RasterPicture raster(static_cast<int>(kWidth * density), static_cast<int>(kHeight * density),
                         density);
    Drawing drawing(engine, graphs, raster, screen);
    EXPECT_EQ(drawing.redraw(viewport, marks), RedrawOutcome::drawn);
    return raster.finish();
  }
};

/// False, with the picture in the current folder, when it is not the golden one.
bool isGolden(const Bitmap& drawn, const std::string& name) {
  if (readPng(bytesOf(ZEL_SOURCE_DIR "/tests/plot/golden/" + name)) == drawn) return true;
  std::ofstream(name, std::ios::binary) << writePng(drawn);
  return false;
}

TEST_F(GoldenPictures, ShowEveryExampleToThePixel) {
  std::size_t count = 0;
  for (const auto& entry : std::filesystem::directory_iterator(ZEL_EXAMPLES_DIR)) {
    if (entry.path().extension() != ".zel") continue;
    load(entry.path().string());
    for (const Density& density : kDensities) {
      const std::string name = entry.path().stem().string() + "-" + density.name + ".png";
      EXPECT_TRUE(isGolden(draw(density.pixels), name)) << name;
      ++count;
    }
  }
  EXPECT_GE(count, 24u);
}

}  // namespace
}  // namespace zel::test
