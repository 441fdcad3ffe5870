#include <QMouseEvent>
#include <random>

#include "frm_grafico_fixture.h"

/// What the user does while the plot window draws.
namespace zel::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class GraficoDrawing : public GraficoTest {};

TEST_F(GraficoDrawing, TellsItsProgressByThePlaceOfTheLetter) {
  addEndlessFamily('a');
  addEndlessFamily('f');
  for (const std::string code : {"ES", "EN"}) {
    SetCurrentLanguage(code);
    std::vector<std::vector<std::string>> seen;
    const auto look = [&] {
      seen.push_back(panels());
      press(Qt::Key_Escape);
    };
    begun.clear();
    inside('a', 1, look);
    inside('f', 1, look);
    open(view);
    const std::string word = code == "ES" ? " [GRAFICANDO]... " : " [GRAPHING]... ";
    EXPECT_THAT(seen, ElementsAre(ElementsAre(word + "a(x)", " (1 de 2)"),
                                  ElementsAre(word + "f(x)", " (6 de 2)")));
    EXPECT_EQ(panels().size(), 4u);
  }
}

TEST_F(GraficoDrawing, EscAndSpaceEndALongFamilyAndItStays) {
  addEndlessFamily('b');
  for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Space}) {
    inside('b', key == Qt::Key_Escape ? 1 : 2, [&] { press(key); });
    open(view);
    EXPECT_GT(pixelsThatAreNotWhite(picture->image()), 2000);
    EXPECT_EQ(panels().front(), " Xmin=-10  ");
  }
  EXPECT_EQ(begun, "bb");
  EXPECT_TRUE(window.isVisible());
}

TEST_F(GraficoDrawing, OtherKeysLetItGoOn) {
  addEndlessFamily('b');
  std::string after;
  inside('b', 1, [&] {
    for (const auto key : {Qt::Key_A, Qt::Key_Return, Qt::Key_C, Qt::Key_Tab, Qt::Key_F5})
      press(key);
    later(50, [&] {
      after = panels().front();
      press(Qt::Key_Space);
    });
  });
  open(view);
  EXPECT_EQ(after, " [GRAFICANDO]... b(x)");
}

TEST_F(GraficoDrawing, ShowsWhatHasBeenDrawnSoFar) {
  addEndlessFamily('a');
  int seen = 0;
  inside('a', 1, [&] {
    later(2 * PictureBox::kProgressInterval, [&] {
      seen = pixelsThatAreNotWhite(picture->grab().toImage());
      press(Qt::Key_Escape);
    });
  });
  open(view);
  EXPECT_GT(seen, 2000);
}

TEST_F(GraficoDrawing, AQuickDrawingIsNotSeenHalfDone) {
  addFunction('a', "x");
  open(view);
  const QImage before = picture->grab().toImage();
  picture->clear();
  EXPECT_EQ(picture->grab().toImage(), before);
}

TEST_F(GraficoDrawing, CanBeClosedInTheMiddle) {
  addEndlessFamily('a');
  addFunction('b', "x");
  inside('a', 1, [&] { window.close(); });
  open(view);
  EXPECT_FALSE(window.isVisible());
  EXPECT_EQ(begun, "a");
  EXPECT_EQ(caller.shown, 1);
  EXPECT_THAT(services.boxes.shown, IsEmpty());
}

TEST_F(GraficoDrawing, CanBeClosedAndOpenedAgainInTheMiddle) {
  addEndlessFamily('a');
  caller.on_show = [&] {
    program.graphs.clearGraphs();
    addFunction('c', "x");
    caller.on_show = nullptr;
    open({0, 0, 1, 1, 10, false});
  };
  inside('a', 1, [&] { window.close(); });
  open(view);
  settle();
  EXPECT_EQ(begun, "ac");
  EXPECT_TRUE(window.isVisible());
  EXPECT_EQ(window.session().view().xf, 1);
  EXPECT_THAT(panels(), ElementsAre(" Xmin=0  ", " XMAX=1  ", " Ymin=0  ", " YMAX=1  "));
}

TEST_F(GraficoDrawing, AResizeInTheMiddleDrawsAnew) {
  addEndlessFamily('a');
  inside('a', 1, [&] { window.resize(window.size() - QSize(100, 50)); });
  inside('a', 2, [&] { press(Qt::Key_Escape); });
  open(view);
  EXPECT_EQ(begun, "aa");
  EXPECT_EQ(window.session().pictureSize(),
            PictureSize::ofPixels(picture->width(), picture->height()));
  EXPECT_EQ(picture->image().size(), picture->size());
}

TEST_F(GraficoDrawing, ManyResizesInTheMiddleEndInTheLastOne) {
  addEndlessFamily('a');
  QTimer escapes;
  QObject::connect(&escapes, &QTimer::timeout, [&] { press(Qt::Key_Escape); });
  int resizes = 0;
  const std::function<void()> resize = [&] {
    ++resizes;
    window.resize(700 - 5 * resizes, 600 - 5 * resizes);
    if (resizes < 40)
      later(2, resize);
    else
      later(50, [&] { escapes.start(20); });
  };
  inside('a', 1, resize);
  open(view);
  EXPECT_EQ(window.size(), QSize(500, 400));
  EXPECT_EQ(picture->image().size(), picture->size());
  EXPECT_EQ(window.session().pictureSize(),
            PictureSize::ofPixels(picture->width(), picture->height()));
}

TEST_F(GraficoDrawing, ARefusedViewInTheMiddleReturnsOnce) {
  addEndlessFamily('a');
  inside('a', 1, [&] {
    view.xf = view.xi;
    open(view);
  });
  open(view);
  settle();
  EXPECT_EQ(services.boxes.shown.size(), 1u);
  EXPECT_EQ(caller.shown, 1);
  EXPECT_FALSE(window.isVisible());
}

TEST_F(GraficoDrawing, GraphsMayGoInTheMiddle) {
  addEndlessFamily('a');
  addFunction('z', "x");
  inside('a', 1, [&] {
    program.graphs.clearGraphs();
    later(20, [&] { press(Qt::Key_Escape); });
  });
  open(view);
  EXPECT_EQ(begun, "a");
}

/// One event of a user who does not wait.
class RandomUser {
 public:
  RandomUser(frmGrafico& window, PictureBox& picture) : window_(window), picture_(picture) {}

  template <class Open>
  void act(const Open& open) {
    const QPoint place(number(picture_.width()), number(picture_.height()));
    switch (number(9)) {
      case 0: QTest::keyClick(&picture_, number(2) ? Qt::Key_Escape : Qt::Key_Space); break;
      case 1: QTest::keyClick(&picture_, static_cast<Qt::Key>(Qt::Key_A + number(26))); break;
      case 2: window_.resize(40 + number(900), 40 + number(700)); break;
      case 3:
        QTest::mouseClick(&picture_, number(2) ? Qt::LeftButton : Qt::RightButton, {}, place);
        break;
      case 4: QTest::mouseMove(&picture_, place); break;
      case 5: window_.close(); break;
      case 6: picture_.repaint(); break;
      case 7: window_.setVisible(number(2) == 0); break;
      default: open(number(4)); break;
    }
  }

 private:
  int number(int below) { return static_cast<int>(random_() % static_cast<unsigned>(below)); }

  frmGrafico& window_;
  PictureBox& picture_;
  std::mt19937 random_{2881022008};
};

TEST_F(GraficoDrawing, SurvivesHundredsOfRandomEvents) {
  addEndlessFamily('a');
  addFunction('b', "x^2");
  addEndlessFamily('c');
  RandomUser user(window, *picture);
  const ViewSettings views[] = {view, {0, 0, 1, 1, 20, true}, {3, 0, 3, 1, 10, false}, view};
  const auto show = [&](int which) {
    handViewOver(program.params, views[which], &caller);
    window.showForm();
  };
  int left = 600;
  bool has_ended = false;
  std::function<void()> go_on = [&] {
    if (left == 0) {
      has_ended = true;
      program.graphs.clearGraphs();
      window.close();
      return;
    }
    QTimer::singleShot(1, &window, go_on);  // before it acts: events may run inside of an action
    for (int i = 0; i < 3 && left > 0; ++i, --left) user.act(show);
  };
  go_on();
  while (!has_ended) open(view);
  settle();
  EXPECT_FALSE(window.session().isOpen());
  addFunction('b', "x^2");
  begun.clear();
  open(view);
  EXPECT_EQ(begun, "b");
  EXPECT_EQ(panels().front(), " Xmin=-10  ");
}

}  // namespace
}  // namespace zel::test
