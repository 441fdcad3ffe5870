#include "forms/export/frm_exportar.h"

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QSpinBox>
#include <QThread>
#include <array>
#include <filesystem>
#include <functional>

#include <gmock/gmock.h>

#include "app/plot_arguments.h"
#include "forms/export/picture_preview.h"
#include "forms/window_fixture.h"
#include "support/patience.h"

namespace zel::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::StartsWith;

class ExportWindow : public WindowTest {
 protected:
  ExportWindow() { addFunction('a', "x", 0x0000FF); }

  void open(const ViewSettings& view = {}) {
    handViewOver(program.params, view, &main);
    window.showForm();
  }
  QSpinBox& width() { return control<QSpinBox>(window, "spnAncho"); }
  QSpinBox& height() { return control<QSpinBox>(window, "spnAlto"); }
  QDoubleSpinBox& scale() { return control<QDoubleSpinBox>(window, "spnEscala"); }
  QComboBox& format() { return control<QComboBox>(window, "cboFormato"); }
  QPushButton& save() { return control<QPushButton>(window, "cmdGuardar"); }
  QPushButton& cancel() { return control<QPushButton>(window, "cmdCancelar"); }
  std::string measures() { return fromQt(control<QLabel>(window, "LblMedidas").text()); }
  QWidget& preview() { return control<QWidget>(window, "VistaPrevia"); }

  /// A curve that is drawn until it is stopped.
  void addEndlessCurve() {
    auto parameters = std::make_shared<Parameters>();
    for (const auto& [key, value] :
         {std::pair("ecuacion_xt", "t"), std::pair("ecuacion_yt", "t"), std::pair("inicio", "0"),
          std::pair("fin", "1"), std::pair("variacion", "0")})
      parameters->set(key, value);
    program.graphs.rebuildGraph('b', "t", "", 0, 'T', parameters);
  }
  /// Something red is seen in the preview.
  bool showsCurve() {
    const QImage shown = preview().grab().toImage();
    for (int y = 0; y < shown.height(); ++y)
      for (int x = 0; x < shown.width(); ++x)
        if (shown.pixelColor(x, y).red() - shown.pixelColor(x, y).green() > 80) return true;
    return false;
  }

  NotedWindow main;
  frmExportar window{program};
};

TEST_F(ExportWindow, HasItsCaptionsInBothLanguages) {
  const auto captions = [this] {
    return std::vector<std::string>{fromQt(window.windowTitle()), fromQt(save().text()),
                                    fromQt(cancel().text()), fromQt(width().accessibleName()),
                                    fromQt(scale().accessibleName())};
  };
  open();
  EXPECT_THAT(captions(), ElementsAre("Exportar imagen", "&Guardar...", "&Cancelar",
                                      "Ancho (píxeles)", "Escala"));
  SetCurrentLanguage("EN");
  open();
  EXPECT_THAT(captions(),
              ElementsAre("Export picture", "&Save...", "&Cancel", "Width (pixels)", "Scale"));
  expectAccessibleNames(window);
}

TEST_F(ExportWindow, ShowsAPreview) {
  open();
  EXPECT_TRUE(QTest::qWaitFor([this] { return showsCurve(); }, kPatience));
}

TEST_F(ExportWindow, SaysInThePreviewWhyThereIsNone) {
  ViewSettings view;
  view.xi = view.xf = 1;
  open(view);
  const auto said = [this] { return fromQt(preview().accessibleDescription()); };
  EXPECT_TRUE(QTest::qWaitFor([&] { return !said().empty(); }, kPatience));
  EXPECT_EQ(said(), redrawMessage(RedrawOutcome::too_close));
  EXPECT_FALSE(showsCurve());
  EXPECT_THAT(services.boxes.shown, IsEmpty());
}

TEST_F(ExportWindow, WritesThePictureAsChosenAndCloses) {
  services.files.paths = {"a.png"};
  open();
  width().setValue(300);
  height().setValue(200);
  scale().setValue(1.5);
  save().click();
  EXPECT_EQ(QImage("a.png").size(), QSize(450, 300));
  EXPECT_FALSE(window.isVisible());
  EXPECT_EQ(main.shown, 1);
}

TEST_F(ExportWindow, WritesEachFormat) {
  services.files.paths = {"a.svg", "a.pdf"};
  open();
  format().setCurrentIndex(1);
  save().click();
  open();
  format().setCurrentIndex(2);
  save().click();
  EXPECT_THAT(bytesOf("a.svg"), StartsWith("<?xml"));
  EXPECT_THAT(bytesOf("a.pdf"), StartsWith("%PDF"));
  EXPECT_THAT(services.files.asked,
              ElementsAre("save SVG (*.svg)|*.svg", "save PDF (*.pdf)|*.pdf"));
}

TEST_F(ExportWindow, WritesTheSameBytesAgain) {
  services.files.paths = {"a.png", "b.png", "a.svg", "b.svg", "a.pdf", "b.pdf"};
  for (int i = 0; i < 6; ++i) {
    open();
    format().setCurrentIndex(i / 2);
    save().click();
  }
  for (const char* const ending : {".png", ".svg", ".pdf"}) {
    const std::string bytes = bytesOf(std::string("a") + ending);
    EXPECT_FALSE(bytes.empty()) << ending;
    EXPECT_TRUE(bytes == bytesOf(std::string("b") + ending)) << ending;
  }
}

TEST_F(ExportWindow, StaysWhenNothingWasWritten) {
  open();
  save().click();
  EXPECT_TRUE(window.isVisible());
  services.files.paths = {"missing/a.png"};
  save().click();
  EXPECT_TRUE(window.isVisible());
  EXPECT_EQ(services.boxes.shown.size(), 1u);
  EXPECT_TRUE(save().isEnabled());
}

TEST_F(ExportWindow, OffersScalesFromAQuarterToEight) {
  open();
  scale().setValue(0.01);
  EXPECT_EQ(scale().value(), 0.25);
  scale().setValue(100);
  EXPECT_EQ(scale().value(), 8);
}

TEST_F(ExportWindow, TakesBothDecimalSeparatorsForTheScaleInBothLanguages) {
  for (const char* const language : {"ES", "EN"}) {
    SetCurrentLanguage(language);
    open();
    for (const char* const typed : {"2,5", "2.5"}) {
      scale().setValue(1);
      scale().selectAll();
      QTest::keyClicks(&scale(), typed);
      EXPECT_EQ(scale().value(), 2.5) << language << " " << typed;
      EXPECT_EQ(fromQt(scale().text()), "2,5") << language << " " << typed;
    }
    window.close();
  }
}

TEST_F(ExportWindow, TellsHowLargeThePictureBecomes) {
  open();
  EXPECT_EQ(measures(), "800 × 600 píxeles");
  scale().setValue(2);
  EXPECT_EQ(measures(), "1600 × 1200 píxeles");
  format().setCurrentIndex(1);
  EXPECT_EQ(measures(), "423 × 318 mm");
  width().setValue(32767);
  EXPECT_EQ(measures(), "La imagen sería demasiado grande.");
  EXPECT_FALSE(save().isEnabled());
  width().setValue(400);
  EXPECT_TRUE(save().isEnabled());
}

TEST_F(ExportWindow, LeadsBackWithoutAFile) {
  open();
  cancel().click();
  EXPECT_FALSE(window.isVisible());
  open();
  QTest::keyClick(&window, Qt::Key_Escape);
  EXPECT_FALSE(window.isVisible());
  open();
  window.close();
  EXPECT_FALSE(window.isVisible());
  EXPECT_EQ(main.shown, 3);
  EXPECT_THAT(services.files.asked, IsEmpty());
}

TEST_F(ExportWindow, LeavesTheRangeOfTheMainWindowAsItWasTyped) {
  open();
  EXPECT_FALSE(program.params.Exists("xi"));
  EXPECT_EQ(callerOf(program.params), &main);
}

TEST_F(ExportWindow, CanBeLeftWhileItsPreviewIsDrawnWithoutEnd) {
  addEndlessCurve();
  QTimer::singleShot(600, &window, [this] { cancel().click(); });
  open();
  EXPECT_TRUE(QTest::qWaitFor([this] { return !window.isVisible(); }, kPatience));
  EXPECT_EQ(main.shown, 1);
}

TEST_F(ExportWindow, EndsTheDrawingOfAFileThatIsCancelledAndWritesNothing) {
  addEndlessCurve();
  services.files.paths = {"a.png"};
  open();
  bool was_enabled = true;
  QTimer::singleShot(500, &window, [&] {
    was_enabled = save().isEnabled();
    cancel().click();
  });
  save().click();
  EXPECT_FALSE(was_enabled);
  EXPECT_TRUE(window.isVisible());
  EXPECT_TRUE(save().isEnabled());
  EXPECT_FALSE(std::filesystem::exists("a.png"));
  EXPECT_THAT(services.boxes.shown, IsEmpty());
  cancel().click();
}

/// A file whose memory, drawing and compression take several looks at pending events.
class LargeFileInTheExportWindow : public ExportWindow {
 protected:
  static constexpr int kLongEnoughToBeTold = 400;  // milliseconds

  /// Saves, and does something at each moment in which pending events run.
  template <class Deed>
  void saveWith(const char* file, const Deed& deed) {
    services.files.paths = {file};
    if (!window.isVisible()) open();
    width().setValue(3000);
    height().setValue(3000);
    QTimer moments;
    QObject::connect(&moments, &QTimer::timeout, &window, deed);
    moments.start(0);
    save().click();
  }
};

TEST_F(LargeFileInTheExportWindow, IsCancelledAtAnyMoment) {
  const std::array<std::function<void()>, 3> ways = {
      [this] { cancel().click(); }, [this] { window.close(); },
      [this] { QTest::keyClick(&window, Qt::Key_Escape); }};
  int moments = 0;
  for (std::size_t last = 1; window.isVisible() || last == 1; ++last) {
    EXPECT_FALSE(std::filesystem::exists("a.png"));
    moments = 0;
    saveWith("a.png", [&] {
      if (++moments == static_cast<int>(last)) ways[last % ways.size()]();
    });
    EXPECT_TRUE(save().isEnabled());
    EXPECT_EQ(window.isVisible(), moments >= static_cast<int>(last))
        << "only what is done closes it";
  }
  EXPECT_EQ(QImage("a.png").size(), QSize(3000, 3000)) << "the one that was done before its moment";
  EXPECT_THAT(services.boxes.shown, IsEmpty());
}

TEST_F(LargeFileInTheExportWindow, SaysNoLongerThatItIsSavedWhenItIsToldThatItWasNot) {
  std::filesystem::create_directory("sub");
  const auto state = [this] { return fromQt(control<QLabel>(window, "LblEstado").text()); };
  std::string beside_the_message = "?";
  services.boxes.on_show = [&](const FakeMessageBoxes::Box&) { beside_the_message = state(); };
  saveWith("sub/a.png", [&] {
    if (state().empty())
      QThread::msleep(kLongEnoughToBeTold);
    else
      std::filesystem::remove("sub");
  });
  EXPECT_EQ(services.boxes.shown.size(), 1u);
  EXPECT_EQ(beside_the_message, "");
  EXPECT_TRUE(window.isVisible());
  EXPECT_TRUE(save().isEnabled());
}

TEST_F(LargeFileInTheExportWindow, LeavesTheFocusWhereItWasWhenItIsCancelled) {
  open();
  width().setFocus();
  saveWith("a.png", [this] { QTest::keyClick(&window, Qt::Key_Escape); });
  EXPECT_TRUE(window.isVisible());
  EXPECT_TRUE(width().hasFocus());
}

TEST_F(LargeFileInTheExportWindow, IsNotDisturbedByWhatElseTheUserDoes) {
  saveWith("alone.png", [] {});
  saveWith("a.png", [this, larger = 0]() mutable {
    window.resize(window.size() + QSize(++larger % 2 == 0 ? -9 : 9, 0));
    save().click();
    QTest::keyClick(&window, Qt::Key_Return);
    QTest::keyClick(&width(), Qt::Key_Up);
    ViewSettings another;
    another.xi = -1;
    open(another);
  });
  EXPECT_EQ(services.files.asked.size(), 2u);
  EXPECT_FALSE(window.isVisible());
  EXPECT_TRUE(bytesOf("a.png") == bytesOf("alone.png"));
}

}  // namespace
}  // namespace zel::test
