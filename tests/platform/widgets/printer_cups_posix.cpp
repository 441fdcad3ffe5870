// Through a print server of our own, which listens on a socket in a temporary folder and nowhere
// else, and whose printers put what they get into that folder.
#include <QElapsedTimer>
#include <QPrintDialog>
#include <filesystem>

#include <gmock/gmock.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include "platform/widgets/modal_driver.h"
#include "platform/widgets/printer_fixture.h"
#include "support/patience.h"

namespace zel::test {
namespace {

namespace fs = std::filesystem;

/// What the server is told of itself; %1 is its folder.
constexpr const char* kFiles = R"(ServerRoot %1
ServerBin %1/bin
DataDir /usr/share/cups
DocumentRoot %1
RequestRoot %1/spool
TempDir %1/spool
CacheDir %1/cache
StateDir %1/state
AccessLog %1/log
ErrorLog %1/log
PageLog %1/log
)";

constexpr const char* kServer = R"(Listen %1/socket
Browsing No
DefaultAuthType None
WebInterface No
<Location />
Order allow,deny
Allow all
</Location>
<Policy default>
<Limit All>
Order allow,deny
Allow all
</Limit>
</Policy>
)";

constexpr const char* kPrinters = R"(<DefaultPrinter Keeps>
Info Keeps
DeviceURI keep:%1/out
State Idle
Accepting Yes
</DefaultPrinter>
<Printer Refuses>
Info Refuses
DeviceURI keep:%1/out
State Idle
Accepting No
</Printer>
)";

/// Takes PDF documents as they are, on A4 paper with margins of a quarter of an inch.
constexpr const char* kDescription = R"ppd(*PPD-Adobe: "4.3"
*FormatVersion: "4.3"
*FileVersion: "1.0"
*LanguageVersion: English
*LanguageEncoding: ISOLatin1
*PCFileName: "KEEPS.PPD"
*Manufacturer: "ZEL"
*Product: "(Keeps)"
*ModelName: "Keeps"
*ShortNickName: "Keeps"
*NickName: "Keeps"
*PSVersion: "(3010) 0"
*ColorDevice: True
*DefaultColorSpace: RGB
*cupsFilter: "application/pdf 0 -"
*OpenUI *PageSize/Paper: PickOne
*DefaultPageSize: A4
*PageSize A4/A4: ""
*CloseUI: *PageSize
*OpenUI *PageRegion: PickOne
*DefaultPageRegion: A4
*PageRegion A4/A4: ""
*CloseUI: *PageRegion
*DefaultImageableArea: A4
*ImageableArea A4/A4: "18 18 577 824"
*DefaultPaperDimension: A4
*PaperDimension A4/A4: "595 842"
)ppd";

/// The way to the device: asked for its devices it has none; a job comes as a file or as its input.
constexpr const char* kDevice = R"(#!/bin/sh
[ $# -ge 5 ] || exit 0
page=${DEVICE_URI#keep:}/page.pdf
cat "${6:--}" >"$page.part" && mv "$page.part" "$page"
)";

class PrinterOfCups : public PrinterTest {
 protected:
  void SetUp() override {
    const QString program = QStandardPaths::findExecutable("cupsd");
    const QString elsewhere = QStandardPaths::findExecutable("cupsd", {"/usr/sbin", "/sbin"});
    if (program.isEmpty() && elsewhere.isEmpty()) GTEST_SKIP() << "cupsd is not installed";
    makeFolder();
    server_.setProcessChannelMode(QProcess::MergedChannels);
    server_.start(program.isEmpty() ? elsewhere : program,
                  {"-f", "-c", path("cupsd.conf"), "-s", path("cups-files.conf")});
    const auto has_ended = [this] { return server_.state() == QProcess::NotRunning; };
    ASSERT_TRUE(QTest::qWaitFor([&] { return answers() || has_ended(); }, kPatience))
        << "cupsd does not listen: " << bytesOf(serverFolder() / "log");
    if (has_ended()) {
      GTEST_SKIP() << "cupsd cannot run: " << server_.readAll().toStdString()
                   << bytesOf(serverFolder() / "log");
    }
  }

  void TearDown() override {
    if (server_.state() == QProcess::NotRunning) return;
    server_.terminate();
    if (!server_.waitForFinished(10000)) server_.kill();
    server_.waitForFinished();
  }

  /// The socket is there a moment before the server listens on it.
  static bool answers() {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    const std::string socket_path = serverFolder() / "socket";
    socket_path.copy(address.sun_path, sizeof(address.sun_path) - 1);
    const int number = ::socket(AF_UNIX, SOCK_STREAM, 0);
    const bool is_taken =
        ::connect(number, reinterpret_cast<const sockaddr*>(&address), sizeof(address)) == 0;
    ::close(number);
    return is_taken;
  }

  /// Waits for a file in the server's folder.
  static bool comes(const char* name) {
    QElapsedTimer clock;
    clock.start();
    while (!fs::exists(serverFolder() / name) && clock.elapsed() < kPatience) QTest::qWait(20);
    return fs::exists(serverFolder() / name);
  }

  static QString path(const char* name) { return QString::fromStdString(serverFolder() / name); }

  static PrintOutcome print(WidgetPrinter& printer, PageOrientation orientation, Point position) {
    return printer.print({orientation, position, kPicture, frame(kPicture), Bitmap()});
  }

 private:
  static void makeFolder() {
    for (const auto& entry : fs::directory_iterator(serverFolder().path()))
      fs::remove_all(entry.path());
    for (const char* name : {"ppd", "bin/backend", "bin/daemon", "spool", "cache", "state", "out"})
      fs::create_directories(serverFolder() / name);
    fs::permissions(serverFolder() / "out", fs::perms::all);  // the device may run as somebody else
    fs::create_symlink("/usr/lib/cups/daemon/cups-exec", serverFolder() / "bin/daemon/cups-exec");
    write("cups-files.conf", kFiles);
    write("cupsd.conf", kServer);
    write("printers.conf", kPrinters);
    write("ppd/Keeps.ppd", kDescription);
    write("ppd/Refuses.ppd", kDescription);
    write("bin/backend/keep", kDevice);
    fs::permissions(serverFolder() / "bin/backend/keep", fs::perms(0755));
  }

  static void write(const char* name, const char* text) {
    const QString folder = QString::fromStdString(serverFolder().path().string());
    putBytes(serverFolder() / name, QString::fromLatin1(text).replace("%1", folder).toStdString());
  }

  QProcess server_;
};

TEST_F(PrinterOfCups, HasThePaperOfTheDefaultPrinter) {
  WidgetPrinter printer;
  EXPECT_EQ(printer.paper(PageOrientation::portrait), (PaperSize{11900, 16840}));
  EXPECT_EQ(printer.paper(PageOrientation::landscape), (PaperSize{16840, 11900}));
}

TEST_F(PrinterOfCups, ThePageComesOutWithThePictureAtItsPlace) {
  WidgetPrinter printer([](QPrinter& chosen) {
    EXPECT_EQ(chosen.printerName(), "Keeps");
    return true;
  });
  ASSERT_TRUE(printer.paper(PageOrientation::landscape));
  EXPECT_EQ(print(printer, PageOrientation::landscape, {1000, 2000}), PrintOutcome::printed);
  ASSERT_TRUE(comes("out/page.pdf")) << bytesOf(serverFolder() / "log");
  const QImage page = pageOf(serverFolder() / "out/page.pdf");
  EXPECT_EQ(page.size(), QSize(1684, 1190));
  expectInk(page, 1000, 2000, 7000, 5000);
}

TEST_F(PrinterOfCups, PrintsWhatTheDialogAcceptsOnThePageAsItLies) {
  WidgetPrinter printer;
  ASSERT_TRUE(printer.paper(PageOrientation::landscape));
  const ModalDriver<QPrintDialog> driver({[](QPrintDialog& dialog) { dialog.accept(); }});
  EXPECT_EQ(print(printer, PageOrientation::landscape, {0, 0}), PrintOutcome::printed);
  ASSERT_TRUE(comes("out/page.pdf")) << bytesOf(serverFolder() / "log");
  const QImage page = pageOf(serverFolder() / "out/page.pdf");
  EXPECT_EQ(page.size(), QSize(1684, 1190));
  expectInk(page, 0, 0, 6000, 3000);
}

TEST_F(PrinterOfCups, ListsThePrintersAndTakesTheOneThatIsChosen) {
  WidgetPrinter printer([](QPrinter& chosen) {
    EXPECT_EQ(chosen.printerName(), "Refuses");
    return false;
  });
  EXPECT_THAT(printer.names(), ::testing::UnorderedElementsAre("Keeps", "Refuses"));
  EXPECT_EQ(printer.chosen(), "Keeps");
  printer.choose("Refuses");
  EXPECT_EQ(printer.chosen(), "Refuses");
  EXPECT_EQ(print(printer, PageOrientation::portrait, {0, 0}), PrintOutcome::cancelled);
}

TEST_F(PrinterOfCups, NoticesThatThePrinterRefusesTheJob) {
  WidgetPrinter printer([](QPrinter& chosen) {
    chosen.setPrinterName("Refuses");
    return true;
  });
  ASSERT_TRUE(printer.paper(PageOrientation::portrait));
  EXPECT_EQ(print(printer, PageOrientation::portrait, {0, 0}), PrintOutcome::failed);
}

TEST_F(PrinterOfCups, ThePrinterThatWasChosenStaysChosen) {
  std::string met;
  WidgetPrinter printer([&](QPrinter& chosen) {
    met += chosen.printerName().toStdString() + " ";
    chosen.setPrinterName("Refuses");
    return false;
  });
  for (int i = 0; i < 2; ++i) {
    ASSERT_TRUE(printer.paper(PageOrientation::portrait));
    EXPECT_EQ(print(printer, PageOrientation::portrait, {0, 0}), PrintOutcome::cancelled);
  }
  EXPECT_EQ(met, "Keeps Refuses ");
}

}  // namespace
}  // namespace zel::test
