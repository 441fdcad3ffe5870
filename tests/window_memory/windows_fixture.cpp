#include "windows_fixture.h"

#include <cstdint>
#include <cstring>
#include <utility>
#include <vector>

#include <link.h>

#include "app/main_commands.h"
#include "files/document.h"
#include "forms/listed_text.h"
#include "memory/failing_new.h"

namespace zel::test {
namespace {

using Range = std::pair<std::uintptr_t, std::uintptr_t>;

/// Where the code of this program and that of the library of C++ lie.
std::vector<Range> ownCode() {
  std::vector<Range> ranges;
  dl_iterate_phdr(
      [](dl_phdr_info* object, std::size_t, void* found) {
        const bool is_program = *object->dlpi_name == '\0';
        const bool is_first = static_cast<std::vector<Range>*>(found)->empty();
        if (!(is_program && is_first) && !std::strstr(object->dlpi_name, "libstdc++")) return 0;
        for (int i = 0; i < object->dlpi_phnum; ++i) {
          const auto& header = object->dlpi_phdr[i];
          const std::uintptr_t begin = object->dlpi_addr + header.p_vaddr;
          if (header.p_type == PT_LOAD && (header.p_flags & PF_X) != 0)
            static_cast<std::vector<Range>*>(found)->push_back({begin, begin + header.p_memsz});
        }
        return 0;
      },
      &ranges);
  return ranges;
}

bool isOwnCall(const void* caller) {
  static const std::vector<Range> ranges = ownCode();
  const auto address = reinterpret_cast<std::uintptr_t>(caller);
  for (const auto& [begin, end] : ranges)
    if (address >= begin && address < end) return true;
  return false;
}

}  // namespace

void WindowsInWantOfMemory::SetUpTestSuite() {
  application_maker = [](int& argument_count, char** arguments) -> std::unique_ptr<QApplication> {
    return std::make_unique<Application>(argument_count, arguments);
  };
  isOwnCall(nullptr);  // its own memory is had before any is refused
  may_fail = isOwnCall;
}

WindowsInWantOfMemory::WindowsInWantOfMemory() {
  program.engine.InitEngine();
  forms.emplace(program, "");
  forms->begin(StartStep::presentation);
  QTest::keyClick(shown("frmPresentacion"), Qt::Key_Return);
  static_cast<Application*>(qApp)->failed = [this] { forms->tellFailure(); };
  for (QWidget* widget : QApplication::topLevelWidgets())
    windows_[fromQt(widget->objectName())] = widget;
}

WindowsInWantOfMemory::~WindowsInWantOfMemory() {
  static_cast<Application*>(qApp)->failed = [] {};
}

QWidget* WindowsInWantOfMemory::shown(const char* name) {
  for (QWidget* window : QApplication::topLevelWidgets())
    if (window->isVisible() && window->objectName() == QLatin1String(name)) return window;
  return nullptr;
}

void WindowsInWantOfMemory::settle() {
  for (int i = 0; i < 3; ++i) QCoreApplication::processEvents();
}

void WindowsInWantOfMemory::choose(QWidget& window, const char* name) {
  QMetaObject::invokeMethod(window.findChild<QAction*>(QLatin1String(name)), "trigger",
                            Qt::QueuedConnection);
}

void WindowsInWantOfMemory::click(QWidget& window, const char* name) {
  QTest::mouseClick(window.findChild<QWidget*>(QLatin1String(name)), Qt::LeftButton);
}

MainView WindowsInWantOfMemory::view() {
  MainView view;
  view.xi = text(mainWindow(), "txtRanXi");
  view.xf = text(mainWindow(), "txtRanXf");
  view.yi = text(mainWindow(), "txtRanYi");
  view.yf = text(mainWindow(), "txtRanYf");
  view.escala_x = text(mainWindow(), "txtEscalaX");
  view.escala_y = text(mainWindow(), "txtEscalaY");
  view.definicion = static_cast<std::int16_t>(control<QSlider>(mainWindow(), "Slider1").value());
  view.proporcional = control<QCheckBox>(mainWindow(), "chkProporcional").isChecked();
  return view;
}

std::string WindowsInWantOfMemory::document() {
  std::string text = program.document_name + "|" + program.document_path + "|";
  for (const auto& [key, value] : program.header) text += key + "=" + value + "\n";
  for (const GraphsState* const state : {program.history.undoable(), program.history.redoable()})
    text += (state ? documentText({}, state->graphs) : "nothing") + "\n";
  return text + documentText(view(), program.graphs);
}

void WindowsInWantOfMemory::putDocument() {
  for (const char* name : {"frmGrafico", "frmAdmGraficos", "frmExportar", "frmImprimir"})
    window(name).hide();
  program.graphs.clearGraphs();
  program.document_name.clear();
  program.document_path.clear();
  program.header.removeAll();
  program.history = {};
  addFunction('a', "x^2/9-1+0*" + std::string(40, '1'));
  addFunction('c', "sen(x)*" + std::string(40, '2'));
  program.params = makeFormParams();
  for (const auto& [box, text] :
       {std::pair("txtRanXi", "-5,000000000000000"), std::pair("txtRanXf", "5"),
        std::pair("txtRanYi", "-5"), std::pair("txtRanYf", "5"), std::pair("txtEscalaX", "1"),
        std::pair("txtEscalaY", "1")})
    control<QLineEdit>(mainWindow(), box).setText(text);
  control<QSlider>(mainWindow(), "Slider1").setValue(100);
  dynamic_cast<FormWindow&>(mainWindow()).showForm();
  list().selectLetters("a");
}

void WindowsInWantOfMemory::expectListsToAgree(long failure) {
  EXPECT_EQ(fromQt(mainWindow().windowTitle()), mainWindowTitle(program)) << failure;
  QStringList rows;
  QStringList graphs;
  for (int i = 0; i < list().topLevelItemCount(); ++i)
    rows << list().topLevelItem(i)->text(0) + list().topLevelItem(i)->text(2);
  for (char letter = 'a'; letter <= 'z'; ++letter) {
    const GraphDef& def = *program.graphs.slot(letter);
    if (def.defined) graphs << QLatin1Char(letter) + listedText(def);
  }
  EXPECT_EQ(fromQt(rows.join("\n")), fromQt(graphs.join("\n"))) << failure;
  const auto isOn = [this](const char* name) {
    return control<QAction>(mainWindow(), name).isEnabled();
  };
  EXPECT_EQ(isOn("mDeshacer"), program.history.undoable() != nullptr) << failure;
  EXPECT_EQ(isOn("mRehacer"), program.history.redoable() != nullptr) << failure;
  const std::size_t selected = list().selectedLetters().size();
  EXPECT_EQ(isOn("mBorrar"), selected > 0) << failure;
  EXPECT_EQ(isOn("mModificar"), selected == 1) << failure;
}

void WindowsInWantOfMemory::expectOneWindowInFront(long failure) {
  std::string names;
  for (QWidget* window : QApplication::topLevelWidgets())
    if (window->isVisible() && !window->objectName().isEmpty())
      names += fromQt(window->objectName()) + " ";
  EXPECT_NE(names, "") << failure;
  const bool has_both = names.find("frmDatosIni") != std::string::npos &&
                        names.find("frmGrafico") != std::string::npos;
  EXPECT_FALSE(has_both) << failure;
}

long WindowsInWantOfMemory::expectDoneOrTold(const Deed& deed, int stride) {
  const auto prepare = [&] {
    deed.prepare();
    settle();
    services.boxes.shown.clear();
  };
  const auto attempt = [&] {
    deed.act();
    settle();
  };
  prepare();
  attempt();
  const std::string after = deed.held();
  const std::string picture = deed.shown();
  const auto usually_told = services.boxes.shown;
  long failures = 0;
  for (long first = 1;; first += first < 40 ? 1 : stride) {
    prepare();
    const std::string before = deed.held();
    const std::string selected = list().selectedLetters();
    EXPECT_NE(before, after);
    if (withFailingMemory(first, false, attempt) < first) break;
    ++failures;
    const std::string held = deed.held();
    const bool is_told = services.boxes.shown != usually_told;
    EXPECT_TRUE(held == after || held == before || held == deed.refused) << first << "\n" << held;
    const bool is_whole = held == after && deed.shown() == picture;
    EXPECT_TRUE(is_whole || is_told) << first << ": nobody was told";
    expectListsToAgree(first);
    expectOneWindowInFront(first);
    if (held == before) {
      EXPECT_EQ(list().selectedLetters(), selected) << first;
      services.boxes.shown.clear();
      attempt();
      EXPECT_EQ(deed.held(), after) << first << ": done again";
      EXPECT_EQ(services.boxes.shown, usually_told) << first;
    } else if (held == after && !is_whole) {
      deed.refresh();
    }
    EXPECT_TRUE(held == deed.refused || deed.shown() == picture) << first;
    if (HasFailure() && ++faulty_ > 12) break;
  }
  EXPECT_EQ(deed.held(), after);
  EXPECT_EQ(deed.shown(), picture);
  std::cout << failures << " failures\n";
  return failures;
}

}  // namespace zel::test
